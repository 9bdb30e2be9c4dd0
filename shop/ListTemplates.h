#pragma once
#include <QString>

/// The rows of a list page as the options of the shop want them; "'" and "@" turn by the quote rule of the page.
namespace ListTemplates {

/// The header row "[ENTETE]" with its four captions still to fill.
QString headerRow(bool chAchat, bool chPhoto);
/// The row of one product with its separator. Without buying it shows no price at all, and a closing cell tag
/// stands alone; browsers pass over that, and shops are compared by these very bytes.
QString productRow(bool chAchat, bool chPhoto);

} // namespace ListTemplates
