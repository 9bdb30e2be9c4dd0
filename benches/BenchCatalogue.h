#pragma once
#include <QString>

/// Catalogues made for the benches: 100 products a sub-group, 10 sub-groups a group, four attributes each,
/// descriptions of about 600 characters in HTML.
namespace BenchCatalogue {

/// An application folder with a store of `products` products and, when `pictureSize` is above 0, two pictures of
/// that many bytes each; language files and fixed assets come from the delivered ones. Ends the program on
/// failure.
void make(const QString &folder, int products, int pictureSize = 0);

} // namespace BenchCatalogue
