#include "platform/CodePage.h"

#include <array>

namespace {

constexpr char16_t unassigned = 0xFFFD;

/// Bytes 0x80 to 0x9F; all other bytes are the Latin-1 characters of the same number.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, unassigned, 0x201A,     0x0192, 0x201E,     0x2026,     0x2020, 0x2021,     0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152,     unassigned, 0x017D, unassigned, unassigned, 0x2018, 0x2019,     0x201C, 0x201D, 0x2022,
    0x2013, 0x2014,     0x02DC,     0x2122, 0x0161,     0x203A,     0x0153, unassigned, 0x017E, 0x0178};

/// The byte of a character from U+0080 up, or 0 when the code page lacks it.
uchar byteOf(char16_t c)
{
    if (c >= 0xA0 && c <= 0xFF)
        return uchar(c);
    if (c == unassigned)
        return 0;
    for (size_t i = 0; i < upperControls.size(); ++i)
        if (upperControls[i] == c)
            return uchar(0x80 + i);
    return 0;
}

} // namespace

int CodePage::append(QByteArray &bytes, QStringView text)
{
    const qsizetype start = bytes.size();
    bytes.resize(start + text.size());
    char *out = bytes.data() + start;
    int lost = 0;
    const char16_t *in = text.utf16();
    const char16_t *const end = in + text.size();
    while (in != end) {
        const char16_t c = *in++;
        if (c < 0x80) {
            *out++ = char(c);
            continue;
        }
        uchar byte = byteOf(c);
        if (byte == 0) {
            ++lost;
            byte = '?';
            if (QChar::isHighSurrogate(c) && in != end && QChar::isLowSurrogate(*in))
                ++in;
        }
        *out++ = char(byte);
    }
    bytes.truncate(out - bytes.constData());
    return lost;
}

QByteArray CodePage::encode(QStringView text, int *lost)
{
    QByteArray bytes;
    const int missing = append(bytes, text);
    if (lost)
        *lost = missing;
    return bytes;
}

QString CodePage::decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char b : bytes) {
        const auto byte = uchar(b);
        *out++ = QChar(byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80] : char16_t(byte));
    }
    return text;
}
