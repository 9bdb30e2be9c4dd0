#pragma once
#include <QImage>
#include <QPageLayout>
#include <chrono>

class QPagedPaintDevice;
class QWidget;
struct Session;

/// Prints the window in the foreground.
namespace ScreenPrint {

/// Time for the menu to close and for another window to be brought to the front.
constexpr std::chrono::milliseconds delay(3000);

/// Prints on the default printer when the time is over; where there is none, into a PDF. Returns at once. A layout that
/// is not valid leaves the device's own.
void start(QWidget &frame, const Session &session, const QPageLayout &layout, std::chrono::milliseconds wait = delay);

QImage CapturerFenetre();
/// As large as the printable page allows with the ratio of the picture, at the top left. False when the device takes
/// nothing.
bool ImprimerImage(const QImage &picture, QPagedPaintDevice &page);

} // namespace ScreenPrint
