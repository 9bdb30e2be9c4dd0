#include "shell/OneProgram.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 2000; // milliseconds
const QByteArray answer = "here";

/// In the folder that the system gives each user for what lives as long as he is logged in.
QString nameFor(const QString &gsDbPath)
{
    const QFileInfo store(gsDbPath);
    const QString path = store.exists() ? store.canonicalFilePath() : store.absoluteFilePath();
    const QByteArray hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex().left(16);
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/zelvantor-"_s
           + QString::fromLatin1(hash);
}

} // namespace

OneProgram::OneProgram(const QString &gsDbPath) : m_name(nameFor(gsDbPath)), m_lock(m_name + u".lock"_s)
{
    m_lock.setStaleLockTime(0); // a session may last for days; a dead holder is known by its process
}

OneProgram::~OneProgram() = default;

bool OneProgram::claim()
{
    if (!m_lock.tryLock() && m_lock.error() == QLockFile::LockFailedError)
        return false;
    QLocalServer::removeServer(m_name);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        QLocalSocket *caller = m_server->nextPendingConnection();
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        caller->write(answer);
        caller->disconnectFromServer();
        Q_EMIT called();
    });
    // Without a socket a second start still finds the lock; it can only not call.
    m_server->listen(m_name);
    return true;
}

bool OneProgram::callHolder() const
{
    QLocalSocket socket;
    socket.connectToServer(m_name);
    return socket.waitForConnected(patience) && socket.waitForReadyRead(patience) && socket.readAll() == answer;
}

void bringToFront()
{
    QWidget *window = QApplication::activeModalWidget();
    const QWidgetList all = QApplication::topLevelWidgets();
    for (auto candidate = all.begin(); !window && candidate != all.end(); ++candidate)
        if ((*candidate)->isVisible() && (*candidate)->windowType() == Qt::Window)
            window = *candidate;
    if (!window)
        return;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->raise();
    window->activateWindow();
}
