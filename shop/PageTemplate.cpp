#include "shop/PageTemplate.h"

#include <algorithm>
#include <optional>

PageTemplate::PageTemplate(QString text, QStringList placeholders)
    : m_text(std::move(text)), m_placeholders(std::move(placeholders))
{
    takeApart();
}

void PageTemplate::takeApart()
{
    const QStringView text(m_text);
    qsizetype literal = 0;
    qsizetype open = 0;
    while ((open = text.indexOf(u'[', open)) >= 0) {
        const auto found = std::find_if(m_placeholders.begin(), m_placeholders.end(),
                                        [&](const QString &p) { return text.mid(open).startsWith(p); });
        if (found == m_placeholders.end()) {
            ++open;
            continue;
        }
        m_slots.push_back({literal, open - literal, size_t(found - m_placeholders.begin())});
        open += found->size();
        literal = open;
    }
    m_tail = literal;
    // Only a piece of text that brings the end or the beginning of a placeholder with it could form one
    // together with a value that holds no bracket.
    const auto opensLate = [&](QStringView piece) { return piece.lastIndexOf(u'[') > piece.lastIndexOf(u']'); };
    m_literalTouches = std::any_of(m_slots.begin(), m_slots.end(),
                                   [&](const Slot &slot) { return opensLate(text.mid(slot.start, slot.length)); });
}

bool PageTemplate::mayFormPlaceholder(const std::vector<QStringView> &values) const
{
    return m_literalTouches
           || std::any_of(values.begin(), values.end(), [](QStringView value) { return value.contains(u'['); });
}

void PageTemplate::appendTo(QString &out, const std::vector<QStringView> &values) const
{
    if (mayFormPlaceholder(values)) {
        QString text = m_text;
        for (qsizetype i = 0; i < m_placeholders.size(); ++i)
            text.replace(m_placeholders[i], values[size_t(i)].toString());
        out += text;
        return;
    }
    const QStringView text(m_text);
    for (const Slot &slot : m_slots) {
        out += text.mid(slot.start, slot.length);
        out += values[slot.placeholder];
    }
    out += text.mid(m_tail);
}

QString PageTemplate::fill(const std::vector<QStringView> &values) const
{
    qsizetype size = m_text.size();
    for (const QStringView value : values)
        size += value.size();
    QString out;
    out.reserve(size);
    appendTo(out, values);
    return out;
}
