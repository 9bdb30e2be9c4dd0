#pragma once
#include <QString>

/// Whether a text can be read as a date, as leniently as people type them: two or three numbers with "/", "-" or
/// "." between, of which some order gives a day, a month and a year, with or without a time of day.
namespace LenientDate {

bool isDate(const QString &text);

}
