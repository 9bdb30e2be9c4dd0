#pragma once
#include "docs/pictures/QuietSession.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QMap>
#include <optional>

/// A server in memory: folders are names that end in "/".
class MemorySession : public QuietSession {
public:
    QMap<QString, QByteArray> files; ///< by full path
    QStringList log;
    QString directory = QStringLiteral("/");
    Result refusal;                       ///< of the next login
    std::optional<QString> spoiltListing; ///< what the next listing says; empty for one that fails

    QString CurrentDirectory() const override { return directory; }
    Result setCurrentDirectory(const QString &path) override
    {
        const QString wanted = whole(path) + u'/';
        if (wanted != QStringLiteral("/") && wanted != QStringLiteral("//") && !files.contains(wanted))
            return {550, QStringLiteral("550 no such folder")};
        directory = whole(path);
        return {};
    }
    Result Login(const QString &host, const QString &user, const QString &, const QString &, int port) override
    {
        log << QStringLiteral("login %1@%2:%3").arg(user, host).arg(port);
        if (!refusal)
            return refusal;
        setState(Connected);
        return {};
    }
    Result Cdup() override
    {
        const QString above = directory.section(u'/', 0, -2);
        return setCurrentDirectory(above.isEmpty() ? QStringLiteral("/") : above);
    }
    Result List(QString &text, const QString &path) override
    {
        if (const auto spoilt = std::exchange(spoiltListing, {})) {
            text = *spoilt;
            return text.isEmpty() ? Result(425, QStringLiteral("425 no data connection")) : Result();
        }
        const QString below =
            QString(whole(path.isEmpty() ? directory : path) + u'/').replace(QStringLiteral("//"), QStringLiteral("/"));
        for (auto it = files.cbegin(); it != files.cend(); ++it) {
            QString name = it.key().startsWith(below) ? it.key().mid(below.size()) : QString();
            const bool folder = name.endsWith(u'/');
            name = folder ? name.chopped(1) : name;
            if (!name.isEmpty() && !name.contains(u'/'))
                text += (folder ? QStringLiteral("drwxr-xr-x") : QStringLiteral("-rw-r--r--"))
                        + QStringLiteral(" 1 u g ") + QString::number(it->size()) + QStringLiteral(" Jan 01 12:00 ")
                        + name + QStringLiteral("\r\n");
        }
        return {};
    }
    Result MakeDirectory(const QString &name) override
    {
        files.insert(whole(name) + u'/', {});
        if (onProgress)
            onProgress({FtpOperation::MakeDirectory, FtpProgress::Done, QStringLiteral("257 made\r\n"), 0});
        return {};
    }
    Result RemoveDirectory(const QString &path) override { return take(whole(path) + u'/'); }
    Result Delete(const QString &path) override { return take(whole(path)); }
    Result Rename(const QString &oldPath, const QString &newPath) override
    {
        files.insert(whole(newPath), files.take(whole(oldPath)));
        return {};
    }
    Result Retrieve(const QString &remoteFile, const QString &localFile, qint64 offset) override
    {
        log << QStringLiteral("retrieve ") + remoteFile;
        const QByteArray before = offset > 0 ? Files::read(localFile).left(offset) : QByteArray();
        Files::write(localFile, before + files.value(whole(remoteFile)).mid(offset));
        return {};
    }
    Result Store(const QString &remoteFile, const QString &localFile, qint64 offset) override
    {
        log << QStringLiteral("store %1 at %2").arg(remoteFile).arg(StoreMode == Continue ? offset : 0);
        const QByteArray before = StoreMode == Continue ? files.value(whole(remoteFile)).left(offset) : QByteArray();
        files.insert(whole(remoteFile), before + Files::read(localFile).mid(StoreMode == Continue ? offset : 0));
        return {};
    }

private:
    QString whole(const QString &path) const
    {
        return QDir::cleanPath(path.startsWith(u'/') ? path : QString(directory + u'/' + path));
    }
    Result take(const QString &path)
    {
        return files.remove(path) > 0 ? Result() : Result(550, QStringLiteral("550 none"));
    }
};
