#include "tests/ftp/RealServer.h"

#include "tests/support/Files.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

int freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

QString unpacked(const QString &file)
{
    return QStringLiteral(ZELVANTOR_FTP_SERVERS) + u"/usr/" + file;
}

} // namespace

const QString RealServer::password = u"sécret word"_s;

RealServer::RealServer(Kind kind) : m_kind(kind), m_port(freePort())
{
    // Some servers work for another user.
    QDir(m_folder.path()).mkdir(u"root"_s);
    QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7755));
    QFile::setPermissions(root(), QFile::Permissions(0x7777));
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    QDir(m_folder.path()).mkdir(u"empty"_s);
    kind == Kind::Vsftpd ? vsftpd() : kind == Kind::Proftpd ? proftpd() : pureFtpd();
    QElapsedTimer waited;
    for (waited.start(); m_process.state() != QProcess::NotRunning && !waited.hasExpired(10000);) {
        QTcpSocket probe;
        probe.connectToHost(u"127.0.0.1"_s, quint16(m_port));
        if (probe.waitForConnected(1000))
            return;
        QThread::msleep(20);
    }
    qFatal("no server: %s", m_process.readAll().constData());
}

RealServer::~RealServer()
{
    m_process.terminate();
    m_process.waitForFinished();
}

QString RealServer::user() const
{
    return m_kind == Kind::Vsftpd ? u"anonymous"_s : u"shop"_s;
}

QByteArray RealServer::tool(const QString &program, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    return process.readAllStandardOutput();
}

/// TLS is required, and the session of the control connection on every data connection.
void RealServer::vsftpd()
{
    tool(u"openssl"_s, {u"req"_s, u"-x509"_s, u"-newkey"_s, u"rsa:2048"_s, u"-nodes"_s, u"-days"_s, u"30"_s, u"-subj"_s,
                        u"/CN=shop.example"_s, u"-addext"_s, u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s,
                        path(u"key.pem"_s), u"-out"_s, path(u"cert.pem"_s)});
    const QString settings = u"listen=YES\nlisten_address=127.0.0.1\nlisten_port=%1\nbackground=NO\n"
                             "run_as_launching_user=YES\nanonymous_enable=YES\nlocal_enable=NO\nftp_username=nobody\n"
                             "anon_root=%2/root\nwrite_enable=YES\nanon_upload_enable=YES\n"
                             "anon_mkdir_write_enable=YES\nanon_other_write_enable=YES\nanon_world_readable_only=NO\n"
                             "allow_writeable_chroot=YES\nsecure_chroot_dir=%2/empty\nseccomp_sandbox=NO\n"
                             "ssl_enable=YES\nallow_anon_ssl=YES\nforce_anon_logins_ssl=YES\n"
                             "force_anon_data_ssl=YES\nrequire_ssl_reuse=YES\nssl_ciphers=HIGH\n"
                             "rsa_cert_file=%2/cert.pem\nrsa_private_key_file=%2/key.pem\n"_s;
    Files::write(path(u"conf"_s), settings.arg(m_port).arg(m_folder.path()).toUtf8());
    m_process.start(unpacked(u"sbin/vsftpd"_s), {path(u"conf"_s)});
}

void RealServer::proftpd()
{
    const QByteArray hash = tool(u"openssl"_s, {u"passwd"_s, u"-5"_s, password}).trimmed();
    const QByteArray ids = QByteArray::number(getuid()) + ':' + QByteArray::number(getgid());
    Files::write(path(u"users"_s), "shop:" + hash + ':' + ids + "::" + root().toUtf8() + ":/bin/sh\n");
    QFile::setPermissions(path(u"users"_s), QFile::ReadOwner | QFile::WriteOwner);
    const QString settings = u"ServerName \"shop\"\nServerType standalone\nDefaultServer on\nUseIPv6 off\n"
                             "DefaultAddress 127.0.0.1\nSocketBindTight on\nPort %1\nUser %3\nGroup %4\n"
                             "UseReverseDNS off\nWtmpLog off\nPidFile %2/empty/pid\nScoreboardFile none\nAuthPAM off\n"
                             "AuthOrder mod_auth_file.c\nAuthUserFile %2/users\nRequireValidShell off\nRootLogin on\n"
                             "AllowOverwrite on\nAllowStoreRestart on\nAllowRetrieveRestart on\nSystemLog %2/log\n"_s;
    const QString owner = QString::fromUtf8(tool(u"id"_s, {u"-un"_s}).trimmed());
    const QString group = QString::fromUtf8(tool(u"id"_s, {u"-gn"_s}).trimmed());
    Files::write(path(u"conf"_s), settings.arg(QString::number(m_port), m_folder.path(), owner, group).toUtf8());
    m_process.start(unpacked(u"sbin/proftpd"_s), {u"-n"_s, u"-c"_s, path(u"conf"_s)});
}

void RealServer::pureFtpd()
{
    const QByteArray typed = password.toUtf8() + '\n';
    tool(unpacked(u"bin/pure-pw"_s),
         {u"useradd"_s, u"shop"_s, u"-f"_s, path(u"users"_s), u"-F"_s, path(u"users.pdb"_s), u"-m"_s, u"-u"_s,
          u"65534"_s, u"-g"_s, u"65534"_s, u"-d"_s, root(),
          // Cheaper hashing, which otherwise takes seconds.
          u"-C"_s, u"200"_s},
         typed + typed);
    m_process.start(unpacked(u"sbin/pure-ftpd"_s),
                    {u"-S"_s, u"127.0.0.1,%1"_s.arg(m_port), u"-l"_s, u"puredb:"_s + path(u"users.pdb"_s), u"-E"_s,
                     u"-H"_s, u"-L"_s, u"20000:8"_s, u"-g"_s, path(u"pid"_s)});
}
