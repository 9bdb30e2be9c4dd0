#include "app/DeskScreens.h"
#include "shell/ApplicationFolder.h"
#include "shell/HeldEnter.h"
#include "shell/Main.h"
#include "shell/MessageBoxes.h"
#include "shell/Skin.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"zelvantor"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELVANTOR_VERSION));
    QGuiApplication::setDesktopFileName(u"org.zelvantor.Zelvantor"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    Skin::apply(application);
    const HeldEnter heldEnter(application);

    SettingsStore settings(SettingsStore::userFolder());
    settings.clearUnfinished();
    const Clock clock;
    MessageBoxes messages;
    DesktopServices desktop;
    FileDialogs files;
    Session session(settings, clock, ApplicationFolder::user());
    DeskScreens screens(session);
    session.messages = &messages;
    session.desktop = &desktop;
    session.files = &files;
    session.screens = &screens;
    if (const Result filled = ApplicationFolder::fill(ApplicationFolder::delivered(), session.applicationFolder);
        !filled)
        messages.box(filled.message(), u"ZELVANTOR"_s);
    const std::unique_ptr<frmMain> window = Main(session);
    return window ? QApplication::exec() : 0;
}
