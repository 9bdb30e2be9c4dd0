#pragma once

struct sqlite3;

/// How the store compares texts.
namespace StoreText {

/// Registers the collation ZELVANTOR (case and trailing blanks don't count) and a LIKE that ignores the case of
/// every letter, "%" and "_" being its wild cards. Returns false when the library refuses.
bool install(sqlite3 *database);

} // namespace StoreText
