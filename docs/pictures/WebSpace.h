#pragma once
#include "docs/pictures/QuietSession.h"

#include <QFileInfo>
#include <QMap>

/// A server with one folder, for the pictures of an open connection.
class WebSpace : public QuietSession {
public:
    QString CurrentDirectory() const override { return QStringLiteral("/www"); }
    Result setCurrentDirectory(const QString &) override { return {}; }
    Result Login(const QString &, const QString &user, const QString &, const QString &, int) override
    {
        tell(QStringLiteral("220 FTP\r\nAUTH TLS\r\n234 AUTH TLS\r\nUSER ") + user
             + QStringLiteral("\r\n331 Password\r\nPASS ********\r\n230 OK\r\nPWD\r\n257 \"/www\"\r\n"));
        setState(Connected);
        return {};
    }
    Result Cdup() override { return {}; }
    Result List(QString &text, const QString &) override
    {
        text = QStringLiteral("drwxr-xr-x 1 u g 4096 Mar 01 18:20 images\r\n");
        for (auto file = m_files.cbegin(); file != m_files.cend(); ++file)
            text += QStringLiteral("-rw-r--r-- 1 u g %1 Mar 01 18:20 %2\r\n").arg(file.value()).arg(file.key());
        return {};
    }
    Result MakeDirectory(const QString &) override { return {}; }
    Result RemoveDirectory(const QString &) override { return {}; }
    Result Delete(const QString &) override { return {}; }
    Result Rename(const QString &oldPath, const QString &newPath) override
    {
        m_files.insert(nameOf(newPath), m_files.take(nameOf(oldPath)));
        return {};
    }
    Result Retrieve(const QString &, const QString &, qint64) override { return {}; }
    Result Store(const QString &remoteFile, const QString &localFile, qint64) override
    {
        m_files.insert(nameOf(remoteFile), QFileInfo(localFile).size());
        tell(QStringLiteral("STOR ") + nameOf(remoteFile) + QStringLiteral("\r\n150 OK\r\n226 OK\r\n"));
        return {};
    }

private:
    static QString nameOf(const QString &path) { return path.section(u'/', -1); }
    void tell(const QString &reply) const
    {
        if (onProgress)
            onProgress({FtpOperation::Other, FtpProgress::Done, reply, 0});
    }

    QMap<QString, qint64> m_files{{QStringLiteral("checkout.htm"), 11020},
                                  {QStringLiteral("index.htm"), 4711},
                                  {QStringLiteral("store.css"), 15596}};
};
