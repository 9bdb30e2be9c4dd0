#pragma once
#include <QValidator>

/// Digits with at most so many decimals behind a point. A comma becomes the point and blanks go, so that numbers
/// can be pasted as others write them.
class NumberValidator : public QValidator {
public:
    NumberValidator(int decimals, QObject *parent) : QValidator(parent), m_decimals(decimals) {}

    State validate(QString &input, int &position) const override;
    /// A number that is already longer may stay so.
    void admit(const QString &text);
    /// "12." as "12", ".5" as "0.5".
    static QString tidy(const QString &text);

private:
    int m_decimals;
};
