#include "platform/NumberBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QToolTip>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// Takes the blanks out and the comma for the decimal mark before it looks.
class NumberValidator : public QRegularExpressionValidator {
public:
    using QRegularExpressionValidator::QRegularExpressionValidator;

    State validate(QString &input, int &position) const override
    {
        static const QRegularExpression blanks(u"[\\s\\x{00a0}\\x{202f}]"_s);
        input.remove(blanks).replace(u',', u'.');
        position = int(std::min(qsizetype(position), input.size()));
        return QRegularExpressionValidator::validate(input, position);
    }
};

} // namespace

NumberBox::NumberBox(QWidget *parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
    allow();
    connect(this, &QLineEdit::inputRejected, this, [this] {
        QToolTip::showText(mapToGlobal(QPoint(0, height())),
                           u"0 … "_s + QString::number(maximum(), 'f', m_whole ? 0 : 2), this);
    });
}

void NumberBox::setDigits(int digits)
{
    m_digits = digits;
    allow();
}

void NumberBox::setWhole(bool whole)
{
    m_whole = whole;
    allow();
}

void NumberBox::allow()
{
    const QString decimals = m_whole ? QString() : u"(\\.[0-9]{0,2})?"_s;
    setValidator(new NumberValidator(QRegularExpression(u"[0-9]{0,%1}"_s.arg(m_digits) + decimals), this));
}

double NumberBox::maximum() const
{
    return std::pow(10, m_digits) - (m_whole ? 1 : 0.01);
}

QString NumberBox::shown(double number) const
{
    QString text = QString::number(number, 'f', m_whole ? 0 : 2);
    while (!m_amount && text.contains(u'.') && (text.endsWith(u'0') || text.endsWith(u'.')))
        text.chop(1);
    return text;
}

void NumberBox::setNumber(std::optional<double> number)
{
    m_number = number;
    m_shown = number ? shown(*number) : QString();
    setText(m_shown);
}

void NumberBox::showStored(const QString &text)
{
    setNumber(read(text));
    if (m_number)
        return;
    m_shown = text.trimmed();
    setText(m_shown);
}

std::optional<double> NumberBox::read(const QString &text) const
{
    bool isNumber = false;
    const double number = text.trimmed().replace(u',', u'.').toDouble(&isNumber);
    return isNumber && number >= 0 && number <= maximum() ? std::optional(number) : std::nullopt;
}

/// Only what differs from what is shown is an entry: a value may have more decimals than the box shows.
bool NumberBox::complete()
{
    if (text() == m_shown)
        return false;
    const QString typed = text();
    setNumber(read(typed));
    Q_EMIT numberEntered(m_number);
    return true;
}

/// Enter that ends an entry must not press the window's default button as well.
void NumberBox::keyPressEvent(QKeyEvent *event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!enter || !complete())
        QLineEdit::keyPressEvent(event);
}

void NumberBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT focusGained();
}

void NumberBox::focusOutEvent(QFocusEvent *event)
{
    complete();
    QLineEdit::focusOutEvent(event);
    Q_EMIT focusLost(event->reason());
}
