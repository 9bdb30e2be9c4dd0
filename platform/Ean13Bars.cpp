#include "platform/Ean13Bars.h"

#include <QByteArray>
#include <memory>

#include <zint.h>

namespace {

constexpr qsizetype digits = 13;

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

} // namespace

/// The library would complete a shorter code and read an add-on in a longer one, so the length is judged before.
std::optional<std::bitset<Ean13Bars::modules>> Ean13Bars::encode(QStringView code)
{
    const QByteArray text = code.toLatin1();
    if (text.size() != digits || !std::all_of(text.begin(), text.end(), isDigit))
        return {};
    const std::unique_ptr<zint_symbol, void (*)(zint_symbol *)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    if (!symbol)
        return {};
    symbol->symbology = BARCODE_EANX;
    const auto *bytes = reinterpret_cast<const unsigned char *>(text.constData());
    if (ZBarcode_Encode(symbol.get(), bytes, int(text.size())) >= ZINT_ERROR || symbol->width != modules)
        return {};
    std::bitset<modules> dark;
    for (size_t i = 0; i < modules; ++i)
        dark[i] = (symbol->encoded_data[0][i / 8] >> (i % 8)) & 1;
    return dark;
}
