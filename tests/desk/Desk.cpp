#include "tests/desk/Desk.h"

#include <QApplication>
#include <QEvent>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

Visitor::Visitor()
{
    qApp->installEventFilter(this);
}

Visitor::~Visitor()
{
    qApp->removeEventFilter(this);
}

void Visitor::whenShown(const QString &window, std::function<void(QWidget &)> action)
{
    m_steps.push_back({window, std::move(action)});
}

QStringList Visitor::waiting() const
{
    QStringList names;
    for (const Step &step : m_steps)
        names << step.window;
    return names;
}

bool Visitor::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::Show || m_steps.empty() || object->objectName() != m_steps.front().window)
        return false;
    const Step step = m_steps.front();
    m_steps.erase(m_steps.begin());
    QTimer::singleShot(0, object, [step, object] { step.action(*static_cast<QWidget *>(object)); });
    return false;
}

Desk::Desk()
    : settings(m_place.filePath(u"settings"_s)), session(settings, clock, m_place.filePath(u"data"_s)), screens(session)
{
    session.messages = &messages;
    session.desktop = &desktop;
    session.files = &files;
    session.screens = &screens;
    const Result filled = ApplicationFolder::fill(QStringLiteral(ZELVANTOR_SHARE), session.applicationFolder);
    if (!filled)
        qFatal("%s", qPrintable(filled.text()));
}

void Desk::setSetting(const QString &name, const QString &value)
{
    if (!session.saveSetting(name, value))
        qFatal("settings can't be written");
}

void Desk::openSample()
{
    setSetting(u"DB"_s, ApplicationFolder::sample(session.applicationFolder) + u"/zelvantor.mdb"_s);
    setSetting(u"MONNAIE"_s, u"EUR"_s);
    setSetting(u"NomLogin"_s, u"admin"_s);
    session.readSettings();
    if (!session.gCnn.open(connectionText(session.gsDbPath)) || !AfficherInfo(session))
        qFatal("the sample can't be opened");
}

void Desk::sql(const QString &statement)
{
    if (const Result done = session.gCnn.execute(statement); !done)
        qFatal("%s", qPrintable(done.message()));
}

QString Desk::value(const QString &statement)
{
    Reader row = session.gCnn.read(statement);
    return row.next() ? row.text(0) : u"(no row)"_s;
}
