// From exec to the login window and from the login to the main window, beside an empty program of the same toolkit.
// Without an argument it runs itself in both roles, several times, and prints the best.
#include "app/DeskScreens.h"
#include "benches/Figure.h"
#include "platform/Desktop.h"
#include "platform/Messages.h"
#include "shell/ApplicationFolder.h"
#include "shell/Main.h"
#include "shell/Skin.h"
#include "shell/frmMain.h"

#include <QApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 7;
constexpr const char *startVariable = "ZELVANTOR_BENCH_START";

double millisecondsSinceExec()
{
    return double(QDateTime::currentMSecsSinceEpoch() - qEnvironmentVariable(startVariable).toLongLong());
}

/// Calls once for each window, when it has painted for the first time.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(std::function<void(QWidget &)> call) : m_call(std::move(call)) {}

    bool eventFilter(QObject *object, QEvent *event) override
    {
        auto *widget = event->type() == QEvent::Paint ? qobject_cast<QWidget *>(object) : nullptr;
        if (widget && widget->isWindow() && !m_seen.contains(widget->objectName())) {
            m_seen << widget->objectName();
            QTimer::singleShot(0, widget, [this, widget] { m_call(*widget); });
        }
        return false;
    }

private:
    std::function<void(QWidget &)> m_call;
    QStringList m_seen;
};

class Quiet : public Messages, public Desktop {
public:
    void box(const QString &text, const QString &) override { std::fprintf(stderr, "%s\n", qPrintable(text)); }
    bool question(const QString &, const QString &) override { return false; }
    void alert(const QString &) override {}
    bool open(const QString &) override { return false; }
};

int emptyProgram(QApplication &application)
{
    QWidget window;
    window.setObjectName(u"empty"_s);
    FirstPaint painted([](QWidget &) {
        std::printf("empty %f\n", millisecondsSinceExec());
        QApplication::quit();
    });
    application.installEventFilter(&painted);
    window.show();
    return QApplication::exec();
}

/// The program's own start over a folder that was filled before; the login is pressed as soon as it stands.
int desk(QApplication &application, const QString &folder)
{
    Skin::apply(application);
    SettingsStore settings(folder + u"/settings"_s);
    const Clock clock;
    Quiet quiet;
    Session session(settings, clock, folder + u"/data"_s);
    DeskScreens screens(session);
    session.messages = &quiet;
    session.desktop = &quiet;
    session.screens = &screens;
    if (const Result filled = ApplicationFolder::fill(ApplicationFolder::delivered(), session.applicationFolder);
        !filled)
        return 1;
    QElapsedTimer sinceLogin;
    FirstPaint painted([&](QWidget &window) {
        if (window.objectName() == u"frmLogin"_s) {
            std::printf("login %f\n", millisecondsSinceExec());
            sinceLogin.start();
            window.findChild<QPushButton *>(u"cmdOK"_s)->click();
        } else if (window.objectName() == u"frmMain"_s) {
            std::printf("main %f\n", double(sinceLogin.nsecsElapsed()) / 1e6);
            std::fflush(stdout);
            std::_Exit(0);
        }
    });
    application.installEventFilter(&painted);
    const std::unique_ptr<frmMain> window = Main(session);
    return window ? QApplication::exec() : 1;
}

/// Runs this program in a role and reads the value of a line of its answer.
double measured(const QStringList &role, const QByteArray &line)
{
    double best = 1e9;
    for (int i = 0; i < rounds; ++i) {
        qputenv(startVariable, QByteArray::number(QDateTime::currentMSecsSinceEpoch()));
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(), role);
        process.waitForFinished();
        for (const QByteArray &answer : process.readAllStandardOutput().split('\n'))
            if (answer.startsWith(QByteArray(line + ' ')))
                best = std::min(best, answer.mid(line.size() + 1).toDouble());
    }
    return best;
}

void prepare(const QString &folder)
{
    SettingsStore settings(folder + u"/settings"_s);
    const std::pair<QString, QString> values[] = {{u"PAYS"_s, u"FR"_s},
                                                  {u"LANGUE"_s, u"FR"_s},
                                                  {u"MONNAIE"_s, u"EUR"_s},
                                                  {u"NomLogin"_s, u"admin"_s},
                                                  {u"DB"_s, folder + u"/data/sample/zelvantor.mdb"_s}};
    for (const auto &[name, value] : values)
        if (!settings.save(SettingsKey::application, SettingsKey::section, name, value))
            std::exit(1);
    if (!ApplicationFolder::fill(ApplicationFolder::delivered(), folder + u"/data"_s))
        std::exit(1);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"zelvantor"_s);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"empty"_s)
        return emptyProgram(application);
    if (arguments.value(1) == u"desk"_s)
        return desk(application, arguments.value(2));

    const QTemporaryDir place;
    prepare(place.path());
    const double empty = measured({u"empty"_s}, "empty");
    const double login = measured({u"desk"_s, place.path()}, "login");
    const double main = measured({u"desk"_s, place.path()}, "main");
    Figure("start, login window", login, "ms").beside("an empty program", login / empty, 4.5);
    Figure("start, main window after the login", main, "ms").atMost(300);
    return 0;
}
