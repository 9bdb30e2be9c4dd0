#pragma once
#include <QString>

/// Numbers as the running program writes and reads them: a decimal mark, up to fifteen significant digits, no
/// grouping, no exponent for the sizes of amounts.
class NumberLocale {
public:
    explicit NumberLocale(QChar decimalMark = u'.') : m_decimalMark(decimalMark) {}

    QChar decimalMark() const { return m_decimalMark; }
    /// 0.21 as "0.21", with the decimal mark in use.
    QString toText(double value) const;
    /// The number that a text holds, blanks around it allowed; 0 for anything else.
    double toNumber(const QString &text) const;

private:
    QChar m_decimalMark;
};
