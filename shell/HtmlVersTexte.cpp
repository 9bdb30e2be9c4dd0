#include "shell/HtmlVersTexte.h"

#include "platform/CodePage.h"

#include <QHash>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar bullet = QChar(0x2022); // character 149 of the shop's code page

class Walker {
public:
    explicit Walker(QStringView html) : m_html(html) { m_out.reserve(html.size() / 2); }

    QString run()
    {
        while (m_pos < m_html.size()) {
            const QChar c = m_html[m_pos];
            if (c == u'<') {
                if (!tag())
                    break;
            } else if (c == u'&') {
                if (!entity())
                    break;
            } else {
                character(c);
                ++m_pos;
            }
        }
        return std::move(m_out);
    }

private:
    struct List {
        bool numbered;
        int items = 0;
    };

    void put(QChar c)
    {
        m_out += c;
        m_blank = c == u' ';
    }

    void lineBreak()
    {
        m_out += "\r\n"_L1;
        m_blank = true;
    }

    void character(QChar c)
    {
        if (c > u' ')
            put(c);
        else if (!m_blank && !m_out.isEmpty())
            put(u' ');
    }

    /// False when the text ends inside the tag, which ends the walk.
    bool tag()
    {
        if (m_html.mid(m_pos + 1, 3) == "!--"_L1) {
            const qsizetype end = m_html.indexOf("-->"_L1, m_pos + 4);
            m_pos = end + 3;
            return end >= 0;
        }
        const qsizetype end = m_html.indexOf(u'>', m_pos);
        if (end < 0)
            return false;
        const QStringView content = m_html.mid(m_pos + 1, end - m_pos - 1);
        m_pos = end + 1;
        if (!content.isEmpty() && content.front() == u'/') {
            closing(content.mid(1));
            return true;
        }
        return opening(content);
    }

    static bool is(QStringView content, QLatin1StringView name)
    {
        return content.compare(name, Qt::CaseInsensitive) == 0;
    }

    /// The bare name, or the name and attributes.
    static bool isOrHas(QStringView content, QLatin1StringView name)
    {
        return content.startsWith(name, Qt::CaseInsensitive)
               && (content.size() == name.size() || content[name.size()] == u' ');
    }

    void closing(QStringView name)
    {
        if (is(name, "OL"_L1) || is(name, "UL"_L1)) {
            if (!m_lists.empty())
                m_lists.pop_back();
            lineBreak();
        } else if (is(name, "TR"_L1) || is(name, "TABLE"_L1)) {
            lineBreak();
        }
    }

    bool opening(QStringView content)
    {
        if (content.isEmpty())
            return true;
        switch (content.front().toUpper().unicode()) {
        case u'T':
            return tableOrTitle(content);
        case u'S':
            return !isOrHas(content, "SCRIPT"_L1) || skipScript();
        case u'B':
            if (isOrHas(content, "BODY"_L1))
                openBody();
            else if (is(content, "BR"_L1))
                lineBreak();
            return true;
        case u'P':
            if (isOrHas(content, "P"_L1)) {
                lineBreak();
                lineBreak();
            }
            return true;
        case u'O':
            if (isOrHas(content, "OPTION"_L1)) {
                lineBreak();
                put(u'\t');
            } else if (isOrHas(content, "OL"_L1)) {
                m_lists.push_back({true});
            }
            return true;
        case u'U':
            if (isOrHas(content, "UL"_L1))
                m_lists.push_back({false});
            return true;
        case u'L':
            if (isOrHas(content, "LI"_L1))
                item();
            return true;
        default:
            return true;
        }
    }

    bool tableOrTitle(QStringView content)
    {
        if (is(content, "TITLE"_L1)) {
            title();
        } else if (isOrHas(content, "TABLE"_L1) || isOrHas(content, "TR"_L1)) {
            lineBreak();
            m_firstCell = true;
        } else if (isOrHas(content, "TD"_L1) || isOrHas(content, "TH"_L1)) {
            if (!m_firstCell)
                put(u'\t');
            m_firstCell = false;
        }
        return true;
    }

    void title()
    {
        const qsizetype end = m_html.indexOf(u'<', m_pos);
        const QStringView text = m_html.mid(m_pos, (end < 0 ? m_html.size() : end) - m_pos);
        const bool atStart = m_out.trimmed().isEmpty();
        if (atStart)
            m_out.clear();
        m_out += text.trimmed();
        if (atStart) {
            lineBreak();
            lineBreak();
        }
        m_pos += text.size();
        m_head = m_out.size();
    }

    void openBody()
    {
        m_out.truncate(m_head);
        m_blank = true;
    }

    bool skipScript()
    {
        while ((m_pos = m_html.indexOf(u'<', m_pos)) >= 0) {
            if (m_html.mid(m_pos + 1, 7).compare("/SCRIPT"_L1, Qt::CaseInsensitive) == 0) {
                const qsizetype end = m_html.indexOf(u'>', m_pos);
                m_pos = end + 1;
                return end >= 0;
            }
            ++m_pos;
        }
        return false;
    }

    void item()
    {
        lineBreak();
        m_out += QString(2 * qsizetype(m_lists.size()), u' ');
        if (m_lists.empty())
            return;
        List &list = m_lists.back();
        if (list.numbered)
            m_out += QString::number(++list.items) + ". "_L1;
        else
            m_out += QString(bullet) + u' ';
    }

    bool entity()
    {
        const qsizetype end = m_html.indexOf(u';', m_pos);
        const qsizetype stop = end < 0 ? m_html.size() : end;
        const QString text = EntiteVersTexte(m_html.mid(m_pos + 1, stop - m_pos - 1));
        for (const QChar c : text)
            put(c);
        m_pos = stop + 1;
        return end >= 0;
    }

    QStringView m_html;
    QString m_out;
    qsizetype m_pos = 0;
    qsizetype m_head = 0; ///< what stays of the text in front of the body: the title
    bool m_blank = true;  ///< a blank now would double one, or open a line
    bool m_firstCell = true;
    std::vector<List> m_lists; ///< the open lists, innermost last
};

/// HTML 3.2 (W3C Recommendation, 1997), "Character Entities for ISO Latin-1": 161 to 191, then 223 to 255. The
/// name "supl" for 185 is how older texts of this program spell it.
constexpr std::array<QLatin1StringView, 31> signNames = {
    "iexcl"_L1,  "cent"_L1, "pound"_L1, "curren"_L1, "yen"_L1,    "brvbar"_L1, "sect"_L1,   "uml"_L1,
    "copy"_L1,   "ordf"_L1, "laquo"_L1, "not"_L1,    "shy"_L1,    "reg"_L1,    "macr"_L1,   "deg"_L1,
    "plusmn"_L1, "sup2"_L1, "sup3"_L1,  "acute"_L1,  "micro"_L1,  "para"_L1,   "middot"_L1, "cedil"_L1,
    "supl"_L1,   "ordm"_L1, "raquo"_L1, "frac14"_L1, "frac12"_L1, "frac34"_L1, "iquest"_L1};
constexpr std::array<QLatin1StringView, 33> letterNames = {
    "szlig"_L1,  "agrave"_L1, "aacute"_L1, "acirc"_L1,  "atilde"_L1, "auml"_L1,   "aring"_L1,  "aelig"_L1,  "ccedil"_L1,
    "egrave"_L1, "eacute"_L1, "ecirc"_L1,  "euml"_L1,   "igrave"_L1, "iacute"_L1, "icirc"_L1,  "iuml"_L1,   "eth"_L1,
    "ntilde"_L1, "ograve"_L1, "oacute"_L1, "ocirc"_L1,  "otilde"_L1, "ouml"_L1,   "divide"_L1, "oslash"_L1, "ugrave"_L1,
    "uacute"_L1, "ucirc"_L1,  "uuml"_L1,   "yacute"_L1, "thorn"_L1,  "yuml"_L1};

QHash<QString, QString> entityTable()
{
    QHash<QString, QString> table{{u"amp"_s, u"&"_s},
                                  {u"lt"_s, u"<"_s},
                                  {u"gt"_s, u">"_s},
                                  {u"nbsp"_s, QString(QChar(160))},
                                  {u"times"_s, QString(QChar(215))}};
    for (size_t i = 0; i < signNames.size(); ++i)
        table.insert(QString(signNames[i]), QString(QChar(ushort(161 + i))));
    for (size_t i = 0; i < letterNames.size(); ++i)
        table.insert(QString(letterNames[i]), QString(QChar(ushort(223 + i))));
    return table;
}

} // namespace

QString HtmlVersTexte(QStringView html)
{
    return Walker(html).run();
}

QString EntiteVersTexte(QStringView name)
{
    if (name.startsWith(u'#')) {
        bool isNumber = false;
        const char32_t number = name.mid(1).toUInt(&isNumber);
        if (!isNumber || number == 0 || number > QChar::LastValidCodePoint || QChar::isSurrogate(number))
            return {};
        // Numbers of the upper control block mean the characters of the shop's code page, as authors write them.
        if (number >= 0x80 && number < 0xA0)
            return CodePage::decode(QByteArray(1, char(number)));
        return QString::fromUcs4(&number, 1);
    }
    static const QHash<QString, QString> table = entityTable();
    return table.value(name.toString().toLower());
}

QString SansEspaces(const QString &text)
{
    return QString(text).remove(u' ');
}
