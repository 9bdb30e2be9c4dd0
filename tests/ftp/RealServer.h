#pragma once
#include <QProcess>
#include <QTemporaryDir>

/// A server of Debian's packages on a free port of 127.0.0.1, on a folder of its own, for the life of the object.
class RealServer {
public:
    enum class Kind { Vsftpd, Proftpd, PureFtpd };

    explicit RealServer(Kind kind);
    ~RealServer();

    int port() const { return m_port; }
    QString user() const;
    QString root() const { return m_folder.filePath(QStringLiteral("root")); }

    QString certificate() const { return m_folder.filePath(QStringLiteral("cert.pem")); }

    static const QString password;

private:
    void vsftpd();
    void proftpd();
    void pureFtpd();
    QByteArray tool(const QString &program, const QStringList &arguments, const QByteArray &input = {});
    QString path(const QString &name) const { return m_folder.filePath(name); }

    Kind m_kind;
    int m_port;
    QTemporaryDir m_folder;
    QProcess m_process;
};
