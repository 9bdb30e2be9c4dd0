#pragma once
#include "platform/FtpSession.h"
#include "platform/Result.h"

class SettingsStore;

/// The server and how to reach it, kept between runs. The password is kept in clear, in a file that only its
/// owner reads.
struct FtpSettings {
    QString RemoteHost;
    QString UserName;
    QString Password;
    QString RemoteDir;
    int TransferType = FtpSession::Binary;
    bool Passive = true;
    int Timeout = 60; ///< seconds
    int RemotePort = 21;
    FtpTls Tls = FtpTls::Automatic;

    static const QString application; ///< "ZELVANTORFTP", also the title of the boxes
    static FtpSettings load(const SettingsStore &store);
    /// Writes all values; what can't be written doesn't keep the others from it. The first failure is told.
    Result save(SettingsStore &store) const;

    /// What stands in the settings dialogue. False for a time-out outside 1 to 9999, and nothing is taken.
    bool takeTimeout(const QString &text);
    void takePort(const QString &text);
    static QString typeName(int type);
    static int typeFromName(const QString &name);

    static const QString timeoutWarning;
};

/// Certificates that were taken for good, one fingerprint a server.
namespace FtpCertificates {
enum class Known { Unknown, Same, Changed };
/// Host and port.
QString serverOf(const FtpCertificate &certificate);
Known check(const SettingsStore &store, const FtpCertificate &certificate);
Result keep(SettingsStore &store, const FtpCertificate &certificate);
} // namespace FtpCertificates
