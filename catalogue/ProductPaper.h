#pragma once
#include "catalogue/ProductSheet.h"
#include "shell/Screens.h"

class QWidget;
struct Session;

/// What the product screen holds for paper: the texts that stand there, saved or not.
namespace ProductPaper {

LabelProduct label(const QWidget &screen);
/// The fields of the product sheet, name and description in the language of the windows.
PrintFields fields(const QWidget &screen, const Session &session);
/// The first picture of the list; empty where there is none.
QString firstPicture(const QWidget &screen, const Session &session);
QList<ProductSheet::Row> attributes(const QWidget &screen);

} // namespace ProductPaper
