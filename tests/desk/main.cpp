#include "shell/HeldEnter.h"
#include "shell/Skin.h"
#include "tests/support/Suite.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Skin::apply(application);
    const HeldEnter heldEnter(application);
    return Suite::run();
}
