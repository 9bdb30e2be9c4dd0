#include "platform/Cipher.h"

#include <QByteArray>

#include <sodium.h>

#include <array>

namespace {

using Key = std::array<unsigned char, crypto_secretbox_KEYBYTES>;

Key keyOf(const QString &passPhrase)
{
    const QByteArray bytes = passPhrase.toUtf8();
    Key key;
    crypto_generichash(key.data(), key.size(), reinterpret_cast<const unsigned char *>(bytes.constData()),
                       size_t(bytes.size()), nullptr, 0);
    return key;
}

const unsigned char *data(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

unsigned char *data(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

} // namespace

QString Cipher::EncryptText(const QString &passPhrase, const QString &text)
{
    if (sodium_init() < 0)
        return {};
    const QByteArray plain = text.toUtf8();
    QByteArray nonce(crypto_secretbox_NONCEBYTES, '\0');
    randombytes_buf(nonce.data(), size_t(nonce.size()));
    QByteArray box(plain.size() + qsizetype(crypto_secretbox_MACBYTES), '\0');
    crypto_secretbox_easy(data(box), data(plain), size_t(plain.size()), data(nonce), keyOf(passPhrase).data());
    return QString::fromLatin1(QByteArray(nonce + box).toBase64());
}

std::optional<QString> Cipher::DecryptText(const QString &passPhrase, const QString &text)
{
    constexpr qsizetype nonceSize = crypto_secretbox_NONCEBYTES;
    constexpr qsizetype macSize = crypto_secretbox_MACBYTES;
    const QByteArray bytes = QByteArray::fromBase64(text.toLatin1());
    if (sodium_init() < 0 || bytes.size() < nonceSize + macSize)
        return {};
    const QByteArray nonce = bytes.left(nonceSize);
    const QByteArray box = bytes.mid(nonceSize);
    QByteArray plain(box.size() - macSize, '\0');
    if (crypto_secretbox_open_easy(data(plain), data(box), size_t(box.size()), data(nonce), keyOf(passPhrase).data())
        != 0)
        return {};
    return QString::fromUtf8(plain);
}
