#pragma once
#include <QLineEdit>

#include <optional>

/// A line edit that holds a number of at most two decimals, or null. A person's entry counts when it is complete,
/// that is with Enter, which goes no further then, or when the box is left. Commas and blanks are taken as they are
/// typed or pasted; anything that is no number between the limits is refused with the limits beside the box.
class NumberBox : public QLineEdit {
    Q_OBJECT
    /// Always two decimals, as amounts have; else only those that count.
    Q_PROPERTY(bool amount READ isAmount WRITE setAmount)
    Q_PROPERTY(int digits READ digits WRITE setDigits)
    Q_PROPERTY(bool whole READ isWhole WRITE setWhole)
public:
    explicit NumberBox(QWidget *parent = nullptr);

    bool isAmount() const { return m_amount; }
    void setAmount(bool amount) { m_amount = amount; }
    /// Digits before the decimal mark, six unless told otherwise.
    int digits() const { return m_digits; }
    void setDigits(int digits);
    bool isWhole() const { return m_whole; }
    void setWhole(bool whole);

    std::optional<double> number() const { return m_number; }
    /// Shows a number without telling anybody.
    void setNumber(std::optional<double> number);
    /// Shows a text as the store holds it; one that is no number within the limits stays as it is until a person
    /// types another, so that nothing of the store is lost by looking at it.
    void showStored(const QString &text);
    /// The number that a stored text holds, with either decimal mark; null for any other text, and outside the limits.
    std::optional<double> read(const QString &text) const;
    double maximum() const;
    /// Takes what has been typed so far for a complete entry; false when there was none.
    bool complete();

Q_SIGNALS:
    void numberEntered(std::optional<double> number);
    void focusGained();
    /// With the reason, by which a change of window can be told from a change of control.
    void focusLost(Qt::FocusReason reason);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString shown(double number) const;
    void allow();

    std::optional<double> m_number;
    QString m_shown; ///< what the box showed before a person typed
    bool m_amount = false;
    bool m_whole = false;
    int m_digits = 6;
};
