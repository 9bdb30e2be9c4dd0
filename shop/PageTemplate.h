#pragma once
#include <QString>
#include <QStringList>
#include <vector>

/// A template that is filled many times with the same placeholders in the same order. It is taken apart once;
/// filling puts the pieces together, which costs a fraction of as many replacements over the whole page.
/// The outcome is that of `applyReplacements`: where a value could make up a later placeholder, the steps
/// are really run one after the other.
class PageTemplate {
public:
    /// `placeholders` in the order of their steps, each beginning with "[" and ending with "]".
    PageTemplate(QString text, QStringList placeholders);

    /// Appends the filled template to `out`; `values` in the order of the placeholders.
    void appendTo(QString &out, const std::vector<QStringView> &values) const;
    QString fill(const std::vector<QStringView> &values) const;

private:
    struct Slot {
        qsizetype start; ///< of the literal piece in front of the placeholder
        qsizetype length;
        size_t placeholder;
    };

    void takeApart();
    bool mayFormPlaceholder(const std::vector<QStringView> &values) const;

    QString m_text;
    QStringList m_placeholders;
    std::vector<Slot> m_slots;
    qsizetype m_tail = 0;          ///< start of the literal piece behind the last placeholder
    bool m_literalTouches = false; ///< a literal piece ends with "[" or begins with "]" beside a placeholder
};
