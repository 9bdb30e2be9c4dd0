#include "platform/FtpVerifier.h"

#include <openssl/ssl.h>
#include <openssl/x509v3.h>

#include <ctime>
#include <memory>

namespace {

QString nameText(const X509_NAME *name)
{
    const std::unique_ptr<BIO, decltype(&BIO_free)> bio(BIO_new(BIO_s_mem()), BIO_free);
    X509_NAME_print_ex(bio.get(), name, 0, XN_FLAG_ONELINE & ~ASN1_STRFLGS_ESC_MSB);
    char *bytes = nullptr;
    const long length = BIO_get_mem_data(bio.get(), &bytes);
    return QString::fromUtf8(bytes, length);
}

QDateTime timeOf(const ASN1_TIME *time)
{
    std::tm parts{};
    if (ASN1_TIME_to_tm(time, &parts) != 1)
        return {};
    return {QDate(parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday),
            QTime(parts.tm_hour, parts.tm_min, parts.tm_sec), Qt::UTC};
}

QString fingerprintOf(const X509 *certificate)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    X509_digest(certificate, EVP_sha256(), digest, &length);
    return QString::fromLatin1(
        QByteArray::fromRawData(reinterpret_cast<const char *>(digest), qsizetype(length)).toHex(':').toUpper());
}

bool isMadeOutTo(X509 *certificate, const QByteArray &host)
{
    return X509_check_host(certificate, host.constData(), size_t(host.size()), 0, nullptr) == 1
           || X509_check_ip_asc(certificate, host.constData(), 0) == 1;
}

} // namespace

struct FtpVerifierCall {
    static int verify(X509_STORE_CTX *context, void *self)
    {
        auto &verifier = *static_cast<FtpVerifier *>(self);
        X509 *certificate = X509_STORE_CTX_get0_cert(context);
        FtpCertificate seen;
        seen.host = verifier.m_host;
        seen.port = verifier.m_port;
        seen.fingerprint = fingerprintOf(certificate);
        if (verifier.m_accepted.contains(seen.fingerprint)) {
            X509_STORE_CTX_set_error(context, X509_V_OK);
            return 1;
        }
        const bool trusted = X509_verify_cert(context) == 1;
        if (trusted && isMadeOutTo(certificate, verifier.m_host.toUtf8()))
            return 1;
        const int error = trusted ? X509_V_ERR_HOSTNAME_MISMATCH : X509_STORE_CTX_get_error(context);
        X509_STORE_CTX_set_error(context, error);
        seen.reasonNumber = error;
        seen.reason = QString::fromUtf8(X509_verify_cert_error_string(error));
        seen.subject = nameText(X509_get_subject_name(certificate));
        seen.issuer = nameText(X509_get_issuer_name(certificate));
        seen.from = timeOf(X509_get0_notBefore(certificate));
        seen.until = timeOf(X509_get0_notAfter(certificate));
        verifier.m_refused = seen;
        return 0;
    }
};

void FtpVerifier::setHost(const QString &host, int port)
{
    if (host != m_host || port != m_port)
        m_accepted.clear();
    m_host = host;
    m_port = port;
    m_refused.reset();
}

void FtpVerifier::install(void *sslContext)
{
    auto *context = static_cast<SSL_CTX *>(sslContext);
    // Read once for all connections: the bundle of all authorities takes longer than a small file.
    if (!m_authorities) {
        m_authorities.reset(X509_STORE_new(), X509_STORE_free);
        X509_STORE_set_default_paths(m_authorities.get());
    }
    SSL_CTX_set1_cert_store(context, m_authorities.get());
    SSL_CTX_set_verify(context, SSL_VERIFY_PEER, nullptr);
    SSL_CTX_set_cert_verify_callback(context, FtpVerifierCall::verify, this);
}
