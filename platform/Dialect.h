#pragma once
#include <QString>

/// The statements of the program are written in the dialect of the store they were made for. `Dialect` turns
/// one into the dialect of SQLite and touches nothing inside a text literal or a quoted name.
namespace Dialect {

/// What is turned: "DELETE T.* FROM" and "DELETE * FROM" lose their column list, "#…#" becomes a text literal,
/// True and False become 1 and 0, and closing semicolons and blanks go.
QString toSqlite(QStringView statement);

} // namespace Dialect
