#include "shop/GenererSearch.h"

#include "platform/CodePage.h"
#include "shell/HtmlVersTexte.h"
#include "shop/Replacement.h"

using namespace Qt::StringLiterals;

void SearchIndex::add(const QString &fileName, const QString &text)
{
    QString plain = HtmlVersTexte(text);
    plain.removeIf([](QChar c) { return c == u'\n' || c == u'\r' || c == u'\'' || c == u'-'; });
    // Neither a double quote nor a backslash is escaped: what the pages hold of them breaks the line, which is
    // why names are checked before a run.
    const QString line = u"array_files["_s + QString::number(m_count) + u"]=new Array(0,'HTM','"_s + fileName + u"','"_s
                         + m_title + u"','','','"_s + plain + u"');\r\n"_s;
    m_lost += CodePage::append(m_statements, toDoubleQuotes(line));
    ++m_count;
}

QByteArray GenererSearch(const SearchIndex &index)
{
    QByteArray bytes;
    bytes.reserve(index.statements().size() + 64);
    bytes += "array_files=new Array();\r\n";
    bytes += index.statements();
    bytes += "file_count=" + QByteArray::number(index.count()) + ";\r\n";
    return bytes;
}
