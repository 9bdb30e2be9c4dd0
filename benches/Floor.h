#pragma once
#include <string>

/// The least that any generator of this shop has to do, without rules, checks or reports: read the same rows
/// with prepared statements, put the pieces of the pages together, encode them and write the files.
namespace Floor {

/// Writes the list and product pages and the search data of the store into `out`; returns the bytes written.
/// `productHead` and the like are the constant pieces of a finished shop's pages.
struct Pieces {
    std::string productHead;
    std::string productTail;
    std::string listHead;
    std::string listTail;
    std::string row; ///< a row of the list, with "%" where a field goes
};
size_t generate(const std::string &store, const std::string &out, const Pieces &pieces, bool pictures);

/// Writes the bytes of every file of `shop` again into `out`; returns the seconds that the writing alone took.
double copyBytes(const std::string &shop, const std::string &out);

} // namespace Floor
