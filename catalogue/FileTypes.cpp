#include "catalogue/FileTypes.h"

using namespace Qt::StringLiterals;

QStringList FileTypes::pictures()
{
    return {u"BMP - *.bmp"_s, u"DCX - *.dcx"_s,  u"PIC - *.pic"_s,  u"PCX - *.pcx"_s, u"DIB - *.dib"_s,
            u"GIF - *.gif"_s, u"JPEG - *.jpg"_s, u"TIFF - *.tif"_s, u" *.*"_s};
}

QStringList FileTypes::documents()
{
    return {u"DOC - *.doc"_s, u"XLS - *.xls"_s, u"PDF - *.pdf"_s, u"TXT - *.txt"_s, u" *.*"_s};
}

QString FileTypes::filter(const QString &entry)
{
    return entry.mid(entry.indexOf(u'*')).trimmed();
}
