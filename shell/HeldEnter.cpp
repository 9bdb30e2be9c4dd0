#include "shell/HeldEnter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPlainTextEdit>

HeldEnter::HeldEnter(QApplication &application) : QObject(&application)
{
    application.installEventFilter(this);
}

bool HeldEnter::eventFilter(QObject *object, QEvent *event)
{
    // A key comes to the window first, which passes it on to the widget.
    if (event->type() != QEvent::KeyPress || !object->isWidgetType())
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    return isEnter && key.isAutoRepeat() && !qobject_cast<QPlainTextEdit *>(object);
}
