#pragma once
#include <QString>

/// EAN-13 check digit (GS1 General Specifications, 7.9) and the bar code made from a product reference.
namespace Ean13 {

/// Rewrites `code` as twelve digits, padded on the left, and returns its check digit. A code that is no number
/// stays as it is; what can't be read as a digit counts as 0.
QString CalculerCD(QString &code);

/// The thirteen digits for a reference such as "00042/202603": every "/" becomes "0", and of that the last eleven
/// characters follow a "1". A shorter reference is padded on the left, so that the "1" is no longer first.
QString fromReference(const QString &reference);

/// Whether a text is thirteen digits with the right check digit.
bool isValid(const QString &code);

} // namespace Ean13
