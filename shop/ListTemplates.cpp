#include "shop/ListTemplates.h"

#include "shop/PageParts.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList orderForm = {
    u"      <FORM NAME=order onSubmit='AddToCart(this);' style='text-align: center'>"_s,
    u"      <input type=hidden name=SHIPPING value='[transport]'>"_s,
    u"      <input type=hidden name=ID_NUM value='[reference]'>"_s,
    u"      <input type=hidden name=NAME value='[nom]'>"_s,
    u"      <input type=hidden name=PRICE value='[prix]'>"_s,
    u"      <p align='center'>"_s,
    u"<table border='0' width='100%' id='table5'>"_s,
    u"    <tr>"_s,
    u"       <td>&nbsp;</td>"_s,
    u"       <td align='center' valign='bottom'>"_s,
    u"       <input type=text size=2 maxlength=3 name=QUANTITY onChange=@this.value=CKquantity(this.value)@ value='1'></td>"_s,
    u"       <td align='left'>"_s,
    u"     <p align='left'>"_s,
    u"      <input type='image' src='images/shopcart.gif' align=left name='add1' width='25' height='24' style='border-left: 2px solid #6699FF; border-bottom: 2px solid #6699FF'></td>"_s,
    u"   </tr>"_s,
    u"</table>"_s,
    u"      </FORM>"_s,
};

}

QString ListTemplates::headerRow(bool chAchat, bool chPhoto)
{
    QStringList row = {u"<tr>"_s};
    if (chPhoto)
        row << u" <td width='23%' bgcolor='#3366CC' align='center' height='38'>&nbsp;</td>"_s;
    row << u"             <td width='12%' bgcolor='#3366CC' align='center' height='38'>"_s
        << u"             <font color='#FFFFFF'><b>[LREFERENCE]</b></font></td>"_s
        << u"             <td width='38%' bgcolor='#3366CC' align='center' height='38'><b>"_s
        << u"             <font color='#FFFFFF'>[LNOM]</font></b></td>"_s
        << u"             <td width='7%' bgcolor='#3366CC' align='center' height='38'><b>"_s;
    if (chAchat) {
        row << u"             <font color='#FFFFFF'>[LPRIX]</font></b></td>"_s
            << u"             <td bgcolor='#3366CC' align='center' width='17%' height='38'><font color='#FFFFFF'><b>"_s
            << u"             [LQTE]</b></font></td>"_s;
    } else {
        row << u"             <font color='#FFFFFF'></font></b></td>"_s;
    }
    row << u"         </tr>"_s;
    return PageParts::lines(row);
}

QString ListTemplates::productRow(bool chAchat, bool chPhoto)
{
    QStringList row = {
        u"<tr>"_s,
        u"<td align='left' colspan='5' background='images/bluebar1.gif' style='border-left-width: 1px; border-right-width: 1px; border-top-width: 1px; border-bottom-style: solid; border-bottom-width: 1px'>"_s,
        u"            &nbsp;</td>"_s,
        u"  </tr>"_s,
        u"<tr>"_s,
    };
    if (chPhoto) {
        row << u"<td width='23%' align='center'>"_s << u"            <a href='[refprod]'>"_s
            << u"            <img border='0' src='images/[imagesmall]' width='184' height='185'></a></td>"_s;
    }
    row << u"            <td width='12%' align='center'><a href='[refprod]'>[reference]</a></td>"_s
        << u"            <td width='38%' align='center'>[nom]</td>"_s;
    if (chAchat) {
        row << u"            <td width='7%' align='center'>[prix] [devis]</td>"_s
            << u"            <td align='center' width='17%'>"_s;
        row += orderForm;
    }
    row << u"            </td>"_s << u"        </tr>"_s;
    return PageParts::lines(row);
}
