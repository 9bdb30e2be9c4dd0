#include "shell/Screen.h"

#include "shell/ChargerLangue.h"
#include "shell/Screens.h"

#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

const QString windowsApplication = u"ZELVANTOR"_s; // the title of the program, which is also a settings key

QString translateText(const Session &session)
{
    // Also while the shop screen reads the words of the shop.
    Localisation windows = session.localisation;
    windows.gbLangueCatalogue = false;
    return windows.textOr(u"MAIN"_s, u"miTraduire"_s, u"Traduire cette fenêtre..."_s);
}

} // namespace

void ScreenManners::loadTexts(QWidget &window, const Session &session)
{
    if (window.property("Tag").toString().isEmpty())
        return; // a window with fixed texts
    ChargerLangue(window, session.localisation);
    if (auto *screen = qobject_cast<Screen *>(&window))
        screen->textsLoaded();
}

void ScreenManners::apply(QWidget &window, Session &session)
{
    loadTexts(window, session);
    const auto stored = [&](const QString &name) {
        return QByteArray::fromBase64(session.settings.value(windowsApplication, window.objectName(), name).toLatin1());
    };
    window.restoreGeometry(stored(u"Geometry"_s));
    for (QSplitter *splitter : window.findChildren<QSplitter *>())
        splitter->restoreState(stored(splitter->objectName()));
    if (!window.isWindow())
        return; // the frame has the key and passes it on
    auto *shortcut = new QShortcut(QKeySequence(Qt::Key_F12), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, [&] { translate(window, session); });
}

void ScreenManners::translate(QWidget &window, Session &session)
{
    const auto *screen = qobject_cast<Screen *>(&window);
    if (window.property("Tag").toString().isEmpty() || (screen && !screen->isTranslatable()))
        return;
    if (session.screens && session.screens->translate(&window))
        loadTexts(window, session);
}

void ScreenManners::remember(const QWidget &window, Session &session)
{
    // A size that can't be kept is no reason for a message.
    const auto keep = [&](const QString &name, const QByteArray &state) {
        (void)session.settings.save(windowsApplication, window.objectName(), name,
                                    QString::fromLatin1(state.toBase64()));
    };
    keep(u"Geometry"_s, window.saveGeometry());
    for (const QSplitter *splitter : window.findChildren<QSplitter *>())
        keep(splitter->objectName(), splitter->saveState());
}

Screen::Screen(Session &screenSession, QWidget *parent) : QDialog(parent), m_session(screenSession) {}

void Screen::opened()
{
    setSizeGripEnabled(true);
    ScreenManners::apply(*this, m_session);
}

void Screen::done(int result)
{
    ScreenManners::remember(*this, m_session);
    QDialog::done(result);
}

void Screen::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    QWidget *focus = focusWidget();
    if (isEnter && (qobject_cast<QPushButton *>(focus) || qobject_cast<QToolButton *>(focus)))
        static_cast<QAbstractButton *>(focus)->click();
    else if (!isEnter || !qobject_cast<QAbstractItemView *>(focus))
        QDialog::keyPressEvent(event);
}

void Screen::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton && event->modifiers() == Qt::ControlModifier)
        ScreenManners::translate(*this, m_session);
    else
        QDialog::mousePressEvent(event);
}

void Screen::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->modifiers() == Qt::ControlModifier || !isTranslatable())
        return;
    QMenu menu(this);
    menu.addAction(translateText(m_session), this, [this] { ScreenManners::translate(*this, m_session); });
    menu.exec(event->globalPos());
}
