#pragma once
class QWidget;
class Spread;
struct Session;

/// What leaves the product list: the grid as it stands, without its hidden columns. With an empty grid nothing opens.
namespace ListOutput {

/// Asks for a file and writes it as its name ends; tells how it went. A name that ends otherwise writes nothing.
void exporter(const Spread &grid, Session &session, QWidget *parent);
void imprimer(const Spread &grid, const Session &session, QWidget *parent);

} // namespace ListOutput
