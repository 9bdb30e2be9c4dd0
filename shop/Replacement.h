#pragma once
#include <QString>
#include <vector>

/// One step of filling a template: a literal text, compared exactly, and what every occurrence becomes.
struct Replacement {
    QString placeholder;
    QString value;
};

/// Runs the steps in their order, each on the result of the one before: a value that holds a later placeholder
/// is filled too, one that holds an earlier one is not.
QString applyReplacements(QString text, const std::vector<Replacement> &steps);

/// The first half of the quote rule: every "'" to a double quote.
QString toDoubleQuotes(QString text);
/// The quote rule of fragments that the generators write: every "'" to a double quote, then every "@" to "'". It
/// runs over merchant data too, whose "@" and "'" turn with the rest; so it has always been.
QString quoteRule(QString text);

/// Without every "'".
QString withoutApostrophes(QString text);
/// Without every "'" and every double quote.
QString withoutQuotes(QString text);
