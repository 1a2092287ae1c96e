#include "window/desktop/view/managed.h"

#include <QGuiApplication>

#ifdef CARDHAVEN_X11
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
std::unique_ptr<Reply, Free> Owned(Reply* reply) {
  return std::unique_ptr<Reply, Free>(reply);
}

// The window that a property of this window names; none if it has no such property.
xcb_window_t Named(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
  const auto cookie = xcb_get_property(connection, 0, window, property, XCB_ATOM_WINDOW, 0, 1);
  const auto reply = Owned(xcb_get_property_reply(connection, cookie, nullptr));
  xcb_window_t named = XCB_NONE;
  if (reply && xcb_get_property_value_length(reply.get()) == sizeof named)
    std::memcpy(&named, xcb_get_property_value(reply.get()), sizeof named);
  return named;
}

}  // namespace

// A manager keeps a window that names itself, and that the root window names.
bool WindowsAreManaged() {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* const connection = x11 ? x11->connection() : nullptr;
  if (!connection) return true;
  constexpr char kName[] = "_NET_SUPPORTING_WM_CHECK";
  const auto cookie = xcb_intern_atom(connection, 0, sizeof kName - 1, kName);
  const auto atom = Owned(xcb_intern_atom_reply(connection, cookie, nullptr));
  const auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
  if (!atom || !screen.data) return true;
  const xcb_window_t manager = Named(connection, screen.data->root, atom->atom);
  return manager != XCB_NONE && Named(connection, manager, atom->atom) == manager;
}

#else

bool WindowsAreManaged() { return true; }

#endif

bool WindowsHavePlaces() { return !QGuiApplication::platformName().startsWith("wayland"); }
