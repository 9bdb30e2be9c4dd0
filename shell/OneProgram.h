#pragma once
#include <QLockFile>
#include <QObject>

class QLocalServer;

/// One program at a time on one store for a user. The first to claim the store holds it as long as the object lives;
/// another start finds it held and calls the holder to the front.
class OneProgram : public QObject {
    Q_OBJECT
public:
    /// The names of the lock and of the socket follow from the path of the store, links resolved.
    explicit OneProgram(const QString &gsDbPath);
    ~OneProgram() override;

    /// True when the store is this program's now. What a killed program left behind does not count.
    bool claim();
    /// Calls the holder; false when it does not answer within two seconds.
    bool callHolder() const;

Q_SIGNALS:
    /// Another start has found the store held.
    void called();

private:
    QString m_name;
    QLockFile m_lock;
    QLocalServer *m_server = nullptr;
};

/// Brings the window that a person is asked to act on to the front.
void bringToFront();
