#pragma once
#include <QString>

/// The French texts that belong to the program itself and no language file replaces, by number: captions from 1001,
/// messages from 2001.
namespace BuiltInTexts {

/// An unknown number gives an empty text.
QString text(int number);

} // namespace BuiltInTexts
