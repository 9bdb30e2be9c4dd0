#pragma once
#include "platform/Result.h"

#include <vector>

class Connection;
class QString;

/// The two commands of the product list that act on a product without opening it. Statements run one after the
/// other; one that fails leaves the others done, and its failure is given back.
namespace ProductCopies {

/// A full copy under a new number and reference: its row, documents, pictures, prices by quantity, attributes. All
/// else, both dates included, is the source's; files are shared by name.
std::vector<Result> Dupliquer(Connection &gCnn, int source, int lNumProduit, const QString &reference);
/// Removes the row, the documents and the pictures; prices by quantity and attributes stay without an owner.
std::vector<Result> supprimer(Connection &gCnn, int glIdProduit);

} // namespace ProductCopies
