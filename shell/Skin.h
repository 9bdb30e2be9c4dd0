#pragma once
#include <QIcon>
#include <QString>

class QApplication;

/// The one look of all windows: the platform's colours, light or dark, and the program's icons.
namespace Skin {

/// Applied once, before the first window.
void apply(QApplication &application);
/// An icon by its name; icons are vectors, and their lines always have the colour of the windows' text.
QIcon icon(const QString &name);

} // namespace Skin
