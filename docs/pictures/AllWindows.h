#pragma once
#include <functional>

class QString;
class QWidget;
struct Session;

/// What is done with each window, under the name of its picture.
using WindowLook = std::function<void(QWidget &window, const QString &name)>;

/// Opens every window of the program, one after the other, on the sample shop of the session's application folder, in
/// the language of the session. The guide, the look over all windows and the test of their texts use it.
void showAllWindows(Session &session, const WindowLook &look);
