#include "ftp/FtpSettings.h"

#include "platform/SettingsStore.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString section = u"Settings"_s;
const QString certificates = u"Certificates"_s;

/// The number that a text starts with, 0 without one.
qint64 leadingNumber(const QString &text)
{
    static const QRegularExpression number(u"^\\s*([+-]?\\d{1,15})"_s);
    return number.match(text).captured(1).toLongLong();
}

int stored(const SettingsStore &store, const QString &name, int absent)
{
    bool isNumber = false;
    const int value = store.value(FtpSettings::application, section, name).toInt(&isNumber);
    return isNumber ? value : absent;
}

} // namespace

const QString FtpSettings::application = u"ZELVANTORFTP"_s;
const QString FtpSettings::timeoutWarning = u"Invalid Timeout Value. \r\n\r\nEnter a value between 0 and 9999"_s;

FtpSettings FtpSettings::load(const SettingsStore &store)
{
    const auto text = [&store](const QString &name) { return store.value(application, section, name); };
    FtpSettings settings;
    settings.RemoteHost = text(u"RemoteHost"_s);
    settings.UserName = text(u"UserName"_s);
    settings.Password = text(u"Password"_s);
    settings.RemoteDir = text(u"RemoteDir"_s);
    settings.TransferType = stored(store, u"TransferType"_s, settings.TransferType);
    const QString passive = text(u"Passive"_s);
    settings.Passive = passive.isEmpty() || passive.compare(u"true"_s, Qt::CaseInsensitive) == 0 || passive == u"-1"_s
                       || passive == u"1"_s;
    settings.takeTimeout(text(u"Timeout"_s));
    settings.RemotePort = stored(store, u"RemotePort"_s, settings.RemotePort);
    const int tls = stored(store, u"Tls"_s, int(FtpTls::Automatic));
    if (tls >= int(FtpTls::Automatic) && tls <= int(FtpTls::Never))
        settings.Tls = FtpTls(tls);
    return settings;
}

Result FtpSettings::save(SettingsStore &store) const
{
    const std::pair<QString, QString> values[] = {{u"RemoteDir"_s, RemoteDir},
                                                  {u"RemoteHost"_s, RemoteHost},
                                                  {u"UserName"_s, UserName},
                                                  {u"Password"_s, Password},
                                                  {u"TransferType"_s, QString::number(TransferType)},
                                                  {u"Passive"_s, Passive ? u"True"_s : u"False"_s},
                                                  {u"Timeout"_s, QString::number(Timeout)},
                                                  {u"RemotePort"_s, QString::number(RemotePort)},
                                                  {u"Tls"_s, QString::number(int(Tls))}};
    Result first;
    for (const auto &[name, value] : values) {
        if (Result saved = store.save(application, section, name, value); !saved && first)
            first = saved;
    }
    return first;
}

bool FtpSettings::takeTimeout(const QString &text)
{
    const qint64 seconds = leadingNumber(text);
    if (seconds < 1 || seconds > 9999)
        return false;
    Timeout = int(seconds);
    return true;
}

void FtpSettings::takePort(const QString &text)
{
    RemotePort = int(leadingNumber(text));
}

QString FtpSettings::typeName(int type)
{
    if (type == FtpSession::Ascii)
        return u"Ascii"_s;
    return type == FtpSession::Binary ? u"Binary"_s : u"EBCIDIC"_s;
}

int FtpSettings::typeFromName(const QString &name)
{
    if (name == u"Binary"_s)
        return FtpSession::Binary;
    return name == u"Ascii"_s ? FtpSession::Ascii : FtpSession::Ebcdic;
}

QString FtpCertificates::serverOf(const FtpCertificate &certificate)
{
    return certificate.host + u':' + QString::number(certificate.port);
}

FtpCertificates::Known FtpCertificates::check(const SettingsStore &store, const FtpCertificate &certificate)
{
    const QString kept = store.value(FtpSettings::application, certificates, serverOf(certificate));
    if (kept.isEmpty())
        return Known::Unknown;
    return kept == certificate.fingerprint ? Known::Same : Known::Changed;
}

Result FtpCertificates::keep(SettingsStore &store, const FtpCertificate &certificate)
{
    return store.save(FtpSettings::application, certificates, serverOf(certificate), certificate.fingerprint);
}
