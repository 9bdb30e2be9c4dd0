#pragma once
#include "platform/FtpSession.h"

#include <memory>

/// The session over libcurl: one control connection, transfers in a thread of their own so that neither a slow
/// server nor a slow name service holds the windows up.
class FtpClient : public FtpSession {
public:
    FtpClient();
    ~FtpClient() override;

    int State() const override;
    bool Busy() const override;
    QString CurrentDirectory() const override;
    Result setCurrentDirectory(const QString &path) override;
    Result RestartSupported(bool &supported) override;
    Result Login(const QString &host, const QString &user, const QString &password, const QString &account,
                 int port) override;
    Result Logout() override;
    void Close() override;
    void Abort() override;
    Result Cdup() override;
    Result List(QString &text, const QString &path = {}) override;
    Result MakeDirectory(const QString &name) override;
    Result RemoveDirectory(const QString &path) override;
    Result Delete(const QString &path) override;
    Result Rename(const QString &oldPath, const QString &newPath) override;
    Result Retrieve(const QString &remoteFile, const QString &localFile, qint64 offset = 0) override;
    Result Store(const QString &remoteFile, const QString &localFile, qint64 offset = 0) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
