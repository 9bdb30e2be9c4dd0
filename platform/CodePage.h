#pragma once
#include <QByteArray>
#include <QString>

/// The 8-bit code page of all shop files and shop texts, windows-1252 (Microsoft's table as registered with
/// IANA). A table of its own rather than the platform's converter, since that one lets the five unassigned
/// bytes through as control characters and is slower than the rest of a page together.
namespace CodePage {

/// The bytes of `text`. A character that the code page lacks leaves as "?", a pair of surrogates as one.
/// `lost`, when given, receives the number of characters that left so.
QByteArray encode(QStringView text, int *lost = nullptr);

/// The same, appended to `bytes`; returns the number of characters lost.
int append(QByteArray &bytes, QStringView text);

/// The text of bytes in the code page; the five unassigned bytes give U+FFFD.
QString decode(QByteArrayView bytes);

} // namespace CodePage
