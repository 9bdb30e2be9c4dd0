#pragma once
#include <QString>

/// How an action ended: number 0 for success, else the number and the text of the failure. The caller
/// decides whether to show it or to pass over it.
class [[nodiscard]] Result {
public:
    Result() = default;
    Result(long number, QString text) : m_number(number), m_text(std::move(text)) {}

    explicit operator bool() const { return m_number == 0; }
    long number() const { return m_number; }
    const QString &text() const { return m_text; }

    /// "<number>: <text>", the form in which every failure is shown.
    QString message() const { return QString::number(m_number) + QStringLiteral(": ") + m_text; }

private:
    long m_number = 0;
    QString m_text;
};
