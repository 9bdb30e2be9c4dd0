#include "platform/PrintCodes.h"

#include <QStringView>

using namespace Qt::StringLiterals;

namespace {

class Parser {
public:
    Parser(QStringView codes, int page, int pageCount) : m_rest(codes), m_page(page), m_pageCount(pageCount) {}

    QList<PrintCodes::Line> lines()
    {
        while (!m_rest.isEmpty())
            if (!takeSwitch() && !takeQuoted() && !takeField())
                m_run.text += take(1);
        endLine();
        return m_lines;
    }

private:
    QStringView take(qsizetype size)
    {
        const QStringView taken = m_rest.left(size);
        m_rest = m_rest.mid(size);
        return taken;
    }
    bool takes(QStringView code)
    {
        if (!m_rest.startsWith(code))
            return false;
        take(code.size());
        return true;
    }
    void endRun()
    {
        if (!m_run.text.isEmpty())
            m_line << m_run;
        m_run.text.clear();
    }
    void endLine()
    {
        endRun();
        if (m_line.isEmpty())
            m_line << m_run;
        m_lines << m_line;
        m_line.clear();
    }
    template <typename Value>
    bool set(Value &value, const Value &wanted)
    {
        endRun();
        value = wanted;
        return true;
    }

    bool takeSwitch()
    {
        if (takes(u"/fb1"))
            return set(m_run.bold, true);
        if (takes(u"/fb0"))
            return set(m_run.bold, false);
        if (takes(u"/fu1"))
            return set(m_run.underlined, true);
        if (takes(u"/fu0"))
            return set(m_run.underlined, false);
        if (takes(u"/c"))
            return set(m_run.centred, true);
        if (!takes(u"/n"))
            return false;
        endLine();
        return true;
    }

    /// Codes with a value in quotes.
    bool takeQuoted()
    {
        const bool isName = m_rest.startsWith(u"/fn\"");
        if (!isName && !m_rest.startsWith(u"/fz\""))
            return false;
        const qsizetype end = m_rest.indexOf(u'"', 4);
        if (end < 0)
            return false;
        const QString value = m_rest.mid(4, end - 4).toString();
        const double points = value.toDouble();
        if (!isName && points <= 0)
            return false;
        take(end + 1);
        return isName ? set(m_run.family, value) : set(m_run.points, points);
    }

    bool takeField()
    {
        if (takes(u"//"))
            m_run.text += u'/';
        else if (takes(u"/pc"))
            m_run.text += QString::number(m_pageCount);
        else if (takes(u"/p"))
            m_run.text += QString::number(m_page);
        else
            return false;
        return true;
    }

    QStringView m_rest;
    int m_page;
    int m_pageCount;
    PrintCodes::Run m_run;
    PrintCodes::Line m_line;
    QList<PrintCodes::Line> m_lines;
};

} // namespace

QList<PrintCodes::Line> PrintCodes::parse(const QString &codes, int page, int pageCount)
{
    return Parser(codes, page, pageCount).lines();
}

QString PrintCodes::escape(QString text)
{
    return text.replace(u'/', "//"_L1);
}
