#include "platform/StoreText.h"

#include <QString>
#include <sqlite3.h>

#include <algorithm>
#include <string_view>

namespace {

std::string_view withoutTrailingBlanks(const void *bytes, int size)
{
    std::string_view text(static_cast<const char *>(bytes), size_t(size));
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

char lowered(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
}

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return uchar(c) < 0x80; });
}

int collate(void *, int sizeA, const void *bytesA, int sizeB, const void *bytesB)
{
    const std::string_view a = withoutTrailingBlanks(bytesA, sizeA);
    const std::string_view b = withoutTrailingBlanks(bytesB, sizeB);
    if (isAscii(a) && isAscii(b)) {
        const size_t shared = std::min(a.size(), b.size());
        for (size_t i = 0; i < shared; ++i) {
            const int difference = lowered(a[i]) - lowered(b[i]);
            if (difference != 0)
                return difference;
        }
        return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
    }
    return QString::fromUtf8(a).compare(QString::fromUtf8(b), Qt::CaseInsensitive);
}

/// Matching with one point of return, the last "%": linear for the patterns people type.
bool matches(QStringView pattern, QStringView text)
{
    qsizetype p = 0;
    qsizetype t = 0;
    qsizetype returnPattern = -1;
    qsizetype returnText = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'%') {
            returnPattern = ++p;
            returnText = t;
        } else if (p < pattern.size() && (pattern[p] == u'_' || pattern[p] == text[t])) {
            ++p;
            ++t;
        } else if (returnPattern >= 0) {
            p = returnPattern;
            t = ++returnText;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'%')
        ++p;
    return p == pattern.size();
}

QString foldedText(sqlite3_value *value)
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_value_text(value));
    return QString::fromUtf8(bytes, sqlite3_value_bytes(value)).toCaseFolded();
}

void like(sqlite3_context *context, int, sqlite3_value **values)
{
    if (sqlite3_value_type(values[0]) == SQLITE_NULL || sqlite3_value_type(values[1]) == SQLITE_NULL)
        return;
    sqlite3_result_int(context, matches(foldedText(values[0]), foldedText(values[1])) ? 1 : 0);
}

} // namespace

bool StoreText::install(sqlite3 *database)
{
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    return sqlite3_create_collation_v2(database, "ZELVANTOR", SQLITE_UTF8, nullptr, collate, nullptr) == SQLITE_OK
           && sqlite3_create_function_v2(database, "like", 2, flags, nullptr, like, nullptr, nullptr, nullptr)
                  == SQLITE_OK;
}
