#pragma once
#include <QString>

/// Everything the program says to its user in a box. The desktop program shows windows, a run without a
/// window prints, a test records.
class Messages {
public:
    virtual ~Messages() = default;
    /// A box with one button.
    virtual void box(const QString &text, const QString &title) = 0;
    /// The same with the sign of a warning, where there is one.
    virtual void warn(const QString &text, const QString &title) { box(text, title); }
    /// A box with Yes and No; true for Yes.
    virtual bool question(const QString &text, const QString &title) = 0;
    /// The same where a Yes loses something: Enter says No.
    virtual bool riskyQuestion(const QString &text, const QString &title) { return question(text, title); }
    /// A box with OK and Cancel; true for OK.
    virtual bool confirm(const QString &text, const QString &title) { return question(text, title); }
    /// A beep without a window; `text` says what for, and goes to the log.
    virtual void alert(const QString &text) = 0;
};
