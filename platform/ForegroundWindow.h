#pragma once
#include <QImage>

/// The window that a person has in front, of whatever program.
namespace ForegroundWindow {

/// Its picture, with its frame. Where the platform shows no program the windows of others, it is the program's own
/// active window; null where there is none.
QImage picture();

} // namespace ForegroundWindow
