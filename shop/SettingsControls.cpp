#include "shop/SettingsControls.h"

#include "platform/OneLine.h"
#include "platform/TextBox.h"

#include <QCheckBox>
#include <QLineEdit>

#include <array>

using namespace Qt::StringLiterals;

namespace {

template <typename Value>
struct Binding {
    QString control;
    Value ShopSettings::*member;
};

const std::array<Binding<QString>, 15> &lines()
{
    static const std::array<Binding<QString>, 15> bindings = {{
        {u"txtTitre"_s, &ShopSettings::txtTitre},
        {u"txtLogo"_s, &ShopSettings::txtLogo},
        {u"txtFile"_s, &ShopSettings::txtFile},
        {u"txtFrais"_s, &ShopSettings::txtFrais},
        {u"txtlbFrais"_s, &ShopSettings::txtlbFrais},
        {u"txtTaxe"_s, &ShopSettings::txtTaxe},
        {u"txtlbTaxe"_s, &ShopSettings::txtlbTaxe},
        {u"txtForm"_s, &ShopSettings::txtForm},
        {u"txtDest"_s, &ShopSettings::txtDest},
        {u"txtExp"_s, &ShopSettings::txtExp},
        {u"txtSymbol"_s, &ShopSettings::txtSymbol},
        {u"txtMin"_s, &ShopSettings::txtMin},
        {u"txtPPEmail"_s, &ShopSettings::txtPPEmail},
        {u"txtPPRetour"_s, &ShopSettings::txtPPRetour},
        {u"txtPPDevise"_s, &ShopSettings::txtPPDevise},
    }};
    return bindings;
}

const std::array<Binding<QString>, 6> &texts()
{
    static const std::array<Binding<QString>, 6> bindings = {{
        {u"txtKeyword"_s, &ShopSettings::txtKeyword},
        {u"txtDescription"_s, &ShopSettings::txtDescription},
        {u"txtmessage"_s, &ShopSettings::txtmessage},
        {u"txtModalite"_s, &ShopSettings::txtModalite},
        {u"txtExpedition"_s, &ShopSettings::txtExpedition},
        {u"txtPrivacy"_s, &ShopSettings::txtPrivacy},
    }};
    return bindings;
}

const std::array<Binding<bool>, 7> &ticks()
{
    static const std::array<Binding<bool>, 7> bindings = {{
        {u"chTerme"_s, &ShopSettings::chTerme},
        {u"chExpedition"_s, &ShopSettings::chExpedition},
        {u"chPrivacy"_s, &ShopSettings::chPrivacy},
        {u"chAchat"_s, &ShopSettings::chAchat},
        {u"chPhoto"_s, &ShopSettings::chPhoto},
        {u"chSearch"_s, &ShopSettings::chSearch},
        {u"chGratuit"_s, &ShopSettings::chGratuit},
    }};
    return bindings;
}

} // namespace

void SettingsControls::show(const ShopSettings &settings, QWidget &screen)
{
    for (const auto &[control, member] : lines())
        screen.findChild<QLineEdit *>(control)->setText(settings.*member);
    for (const auto &[control, member] : texts())
        screen.findChild<TextBox *>(control)->showText(settings.*member);
    for (const auto &[control, member] : ticks())
        screen.findChild<QCheckBox *>(control)->setChecked(settings.*member);
}

void SettingsControls::take(ShopSettings &settings, const QWidget &screen)
{
    for (const auto &[control, member] : lines())
        settings.*member = oneLine(screen.findChild<QLineEdit *>(control)->text());
    for (const auto &[control, member] : texts())
        settings.*member = screen.findChild<TextBox *>(control)->text();
    for (const auto &[control, member] : ticks())
        settings.*member = screen.findChild<QCheckBox *>(control)->isChecked();
}
