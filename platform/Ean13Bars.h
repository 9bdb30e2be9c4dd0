#pragma once
#include <QStringView>
#include <bitset>
#include <optional>

/// The bars of an EAN-13 symbol (GS1 General Specifications, 5.2).
namespace Ean13Bars {

constexpr int modules = 95;
constexpr int leftQuiet = 11; ///< modules that stay white before the bars
constexpr int rightQuiet = 7;

/// The dark modules from left to right; nothing for a code that is not thirteen digits with the right check digit.
std::optional<std::bitset<modules>> encode(QStringView code);

} // namespace Ean13Bars
