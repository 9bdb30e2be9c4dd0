#pragma once
#include "platform/FtpSession.h"

#include <QByteArray>
#include <QSet>

#include <memory>
#include <optional>

struct x509_store_st;

/// Judges the certificate of a server: trusted by the system and made out to the host, or accepted before by its
/// fingerprint. What is neither is noted for the merchant and the handshake ends, before any password is sent.
class FtpVerifier {
public:
    /// What is accepted holds for one host and port.
    void setHost(const QString &host, int port);
    /// Puts the verifier in the place of OpenSSL's own check; `sslContext` is an SSL_CTX.
    void install(void *sslContext);

    const std::optional<FtpCertificate> &refused() const { return m_refused; }
    void forgetRefused() { m_refused.reset(); }
    void accept(const FtpCertificate &certificate) { m_accepted.insert(certificate.fingerprint); }

private:
    friend struct FtpVerifierCall;

    QString m_host;
    int m_port = 0;
    std::shared_ptr<x509_store_st> m_authorities; ///< those of the system, OpenSSL's X509_STORE
    QSet<QString> m_accepted;
    std::optional<FtpCertificate> m_refused;
};
