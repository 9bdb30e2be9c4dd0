#pragma once
#include <QString>

/// Whether the translations grid may write a text. The language tabs of the product window take a language code, or
/// a part of the run of codes, and nothing else; every other key takes any text.
bool mayTranslate(const QString &section, const QString &key, const QString &text);
