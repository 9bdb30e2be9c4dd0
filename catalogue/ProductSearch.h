#pragma once
#include "platform/Result.h"

#include <QString>
#include <optional>
#include <vector>

class Connection;

/// The product search: filters in, rows and the two stock totals out.
namespace ProductSearch {

struct Filters {
    QString reference; ///< starts with it
    QString brand;     ///< starts with it
    std::optional<int> idFamille;
    std::optional<int> idCategorie;
    std::optional<int> idFournisseur;
};

constexpr int columns = 15; ///< of a row, those of the grid; nothing fills the last two
struct Found {
    std::vector<QString> cells; ///< row after row
    float purchase = 0;         ///< quantity times price with tax over all rows, in single precision
    float sale = 0;
    Result result;

    int rows() const { return int(cells.size()) / columns; }
};

/// The tail of the statement, with the word of its first clause; ");" without a filter.
QString ConstruireWhereSql(const Filters &filters);
QString statement(const Filters &filters);
Found search(Connection &gCnn, const Filters &filters);
/// A total as a plain number of single precision, seven digits at most.
QString totalText(float total);

} // namespace ProductSearch
