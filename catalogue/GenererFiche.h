#pragma once
class PrintEngine;
class QWidget;
struct Session;

/// Shows the sheet of the product on the screen. One preview at a time; a layout that can't be read gives an empty
/// page.
void GenererFiche(QWidget &screen, const Session &session, PrintEngine &VPE1);
