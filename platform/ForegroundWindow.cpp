#include "platform/ForegroundWindow.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>

#ifdef ZELVANTOR_XCB
#include <memory>
#include <xcb/xcb.h>
#endif

namespace {

#ifdef ZELVANTOR_XCB
template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> owned(Reply *reply)
{
    return {reply, &std::free};
}

/// The window that the window manager names as the active one; 0 without a window manager.
xcb_window_t activeWindow(xcb_connection_t *display, xcb_window_t root)
{
    constexpr char name[] = "_NET_ACTIVE_WINDOW"; // Extended Window Manager Hints 1.5
    const auto atom =
        owned(xcb_intern_atom_reply(display, xcb_intern_atom(display, 1, sizeof name - 1, name), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return 0;
    const auto property = owned(xcb_get_property_reply(
        display, xcb_get_property(display, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr));
    if (!property || xcb_get_property_value_length(property.get()) < int(sizeof(xcb_window_t)))
        return 0;
    return *static_cast<xcb_window_t *>(xcb_get_property_value(property.get()));
}

/// A window manager puts each window into one of its own, which is the frame.
xcb_window_t frameOf(xcb_connection_t *display, xcb_window_t window, xcb_window_t root)
{
    while (true) {
        const auto tree = owned(xcb_query_tree_reply(display, xcb_query_tree(display, window), nullptr));
        if (!tree || tree->parent == root || tree->parent == XCB_WINDOW_NONE)
            return window;
        window = tree->parent;
    }
}

QImage pictureOnX11()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t *display = x11 ? x11->connection() : nullptr;
    if (!display || QGuiApplication::platformName() != QLatin1String("xcb"))
        return {};
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
    const xcb_window_t window = activeWindow(display, root);
    return window ? QGuiApplication::primaryScreen()->grabWindow(frameOf(display, window, root)).toImage() : QImage();
}
#endif

} // namespace

QImage ForegroundWindow::picture()
{
#ifdef ZELVANTOR_XCB
    if (QImage picture = pictureOnX11(); !picture.isNull())
        return picture;
#endif
    QWidget *own = QApplication::activeWindow();
    return own ? own->grab().toImage() : QImage();
}
