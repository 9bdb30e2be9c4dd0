#pragma once
#include <QObject>

class QApplication;

/// Enter that is still held down from the window before answers nothing and presses nothing: only its first press
/// counts, except in a text of several lines.
class HeldEnter : public QObject {
    Q_OBJECT
public:
    explicit HeldEnter(QApplication &application);

    bool eventFilter(QObject *object, QEvent *event) override;
};
