#pragma once
#include <QString>
#include <optional>

/// The reversible text cipher for the one secret in the settings: authenticated (XSalsa20 with Poly1305, as the
/// library's secret box gives it), the key derived from the pass phrase, text in and text out.
namespace Cipher {

/// Never the same text twice for the same input.
QString EncryptText(const QString &passPhrase, const QString &text);
/// Nothing when the text was not made with this pass phrase or has been changed since.
std::optional<QString> DecryptText(const QString &passPhrase, const QString &text);

} // namespace Cipher
