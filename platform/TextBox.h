#pragma once
#include <QPlainTextEdit>

/// A box of several lines that gives back what it was given, no-break spaces and tabs included, and stays quick with
/// the longest lines.
class TextBox : public QPlainTextEdit {
    Q_OBJECT
public:
    using QPlainTextEdit::QPlainTextEdit;

    void showText(const QString &text);
    /// The text with CR LF between its lines. Control characters, which no page and no statement may hold, are gone.
    QString text() const;

protected:
    void insertFromMimeData(const QMimeData *source) override;

private:
    void prepareFor(const QString &text);
};
