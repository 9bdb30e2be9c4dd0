#pragma once
#include "shell/Session.h"

#include <QDialog>

/// What all windows of the program have: their texts, their remembered size and splitters, and the way to their
/// translations (Ctrl with the right button on the window's own area, its context menu, or F12).
namespace ScreenManners {

/// Called once at the end of a window's construction.
void apply(QWidget &window, Session &session);
/// Gives the texts again, after a change of language or of translations.
void loadTexts(QWidget &window, const Session &session);
/// Opens the translations of the window and, when they were changed, shows them at once.
void translate(QWidget &window, Session &session);
void remember(const QWidget &window, Session &session);

} // namespace ScreenManners

/// A modal window. A constructor sets the window up from its .ui file, wires it, and ends with `opened()`.
class Screen : public QDialog {
    Q_OBJECT
public:
    Screen(Session &session, QWidget *parent);

    void done(int result) override;
    /// Called when the texts of the language file have been given; what they must not change is set here.
    virtual void textsLoaded() {}
    virtual bool isTranslatable() const { return true; }

protected:
    void opened();
    Session &session() const { return m_session; }
    /// Enter on a button presses that button, and inside a list or grid it leaves the window alone.
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    Session &m_session;
};
