#pragma once
#include <QString>

/// The template store: a read-only table of texts addressed by column and row, compiled in from
/// `shop/templates`.
namespace GrilleModeles {

/// The text of a cell, lines ended by CR LF, the last one too. A cell that does not exist reads as that
/// line end alone.
QString text(int column, int row);

} // namespace GrilleModeles
