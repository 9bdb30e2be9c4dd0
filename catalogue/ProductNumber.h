#pragma once
#include "platform/Result.h"

#include <QDate>
#include <optional>
#include <vector>

class Connection;

/// The numbers of products: one counter of 16 bits in the store, and the reference made from a number.
namespace ProductNumber {

struct Taken {
    std::optional<int> number; ///< null where the store has no counter, and nothing was written
    bool isStored = false;     ///< whether the counter stands at the number
    std::vector<Result> failures;
};

/// Takes the next number; the counter moves at once. Past 32767 it reports an overflow and starts over at 1.
Taken ChercherNumProduit(Connection &gCnn);

/// "00042/202603" for number 42 on a day of March 2026.
QString reference(int number, const QDate &day);

} // namespace ProductNumber
