// Saves a picture of every window: make_pictures FOLDER [LANGUAGE] [dark]
// Day, paths and file dates in them are the same in every run.
#include "app/DeskScreens.h"
#include "docs/pictures/AllWindows.h"
#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "shell/ApplicationFolder.h"
#include "shell/MessageBoxes.h"
#include "shell/Skin.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QWidget>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// Nothing may wait for a person here.
class Quiet : public Messages, public Desktop {
public:
    void box(const QString &text, const QString &title) override
    {
        std::fprintf(stderr, "%s: %s\n", qPrintable(title), qPrintable(text));
    }
    bool question(const QString &, const QString &) override { return true; }
    void alert(const QString &) override {}
    bool open(const QString &) override { return true; }
};

struct FixedClock : Clock {
    QDate today() const override { return {2026, 3, 2}; }
};

void tell(Messages &messages, const Result &result)
{
    if (!result)
        messages.box(result.text(), u"make_pictures"_s);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"zelvantor"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(ZELVANTOR_VERSION));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: make_pictures FOLDER [LANGUAGE] [dark]\n");
        return 2;
    }
    if (arguments.value(3) == u"dark"_s)
        QApplication::setPalette(QPalette(QColor(0x30, 0x33, 0x38), QColor(0x22, 0x25, 0x29)));
    Skin::apply(application);
    const QString folder = arguments[1];
    QDir().mkpath(folder);

    const QString home = QDir::tempPath() + u"/zelvantor-guide"_s; // shows in paths
    QLockFile alone(home + u".lock"_s);
    alone.lock(); // another run has the same home
    QDir(home).removeRecursively();
    qputenv("HOME", QFile::encodeName(home));
    SettingsStore settings(home + u"/.config/zelvantor"_s);
    const FixedClock clock;
    Quiet quiet;
    FileDialogs files;
    Session session(settings, clock, home + u"/.local/share/zelvantor"_s);
    DeskScreens screens(session);
    session.messages = &quiet;
    session.desktop = &quiet;
    session.files = &files;
    session.screens = &screens;
    tell(quiet, ApplicationFolder::fill(ApplicationFolder::delivered(), session.applicationFolder));
    tell(quiet, ApplicationFolder::takeSampleSettings(session));
    const QString sample = ApplicationFolder::sample(session.applicationFolder) + u"/pictures/"_s;
    const QString pictures = home + u"/Images"_s;
    for (const QString &path : {pictures, QString(home + u"/Documents"_s)})
        QDir().mkpath(path);
    for (const QString &name : QDir(sample).entryList({u"bol-*"_s, u"tasse*"_s, u"mug-*"_s, u"theiere*"_s}))
        QFile::copy(sample + name, pictures + u'/' + name);
    tell(quiet, session.saveSetting(u"PATHPHOTO"_s, pictures));
    session.readSettings();
    session.gsLogin = u"vendeur"_s;
    session.localisation.gsLangue = arguments.value(2, u"FR"_s);
    session.gsDbPath = ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s;
    tell(quiet, session.gCnn.open(connectionText(session.gsDbPath)));
    showAllWindows(session, [&folder](QWidget &window, const QString &name) {
        window.grab().save(folder + u'/' + name + u".png"_s);
    });
    session.gCnn = Connection();
    QDir(home).removeRecursively();
    return 0;
}
