#include "window/desktop/view/launched.h"

#include <QGuiApplication>
#include <QWidget>

#ifdef CARDHAVEN_X11
#include <xcb/xcb.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

xcb_atom_t Atom(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
  auto* const reply = xcb_intern_atom_reply(connection, cookie, nullptr);
  const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  std::free(reply);
  return atom;
}

void Tell(xcb_connection_t* connection, xcb_window_t root, uint32_t mask,
          const xcb_client_message_event_t& event) {
  xcb_send_event(connection, 0, root, mask, reinterpret_cast<const char*>(&event));
}

// The moment of the launch ends its name.
uint32_t TimeOf(const std::string& launch) {
  constexpr std::string_view kMark = "_TIME";
  uint32_t time = XCB_CURRENT_TIME;
  if (const size_t at = launch.rfind(kMark); at != std::string::npos)
    std::from_chars(launch.data() + at + kMark.size(), launch.data() + launch.size(), time);
  return time;
}

// The pointer needn't tell any longer that something is being launched.
void EndLaunch(xcb_connection_t* connection, xcb_window_t root, xcb_window_t window,
               const std::string& launch) {
  std::string text = "remove: ID=\"";
  for (const char letter : launch) {
    if (letter == '"' || letter == '\\') text += '\\';
    text += letter;
  }
  text += '"';
  xcb_client_message_event_t event = {};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 8;
  event.window = window;
  event.type = Atom(connection, "_NET_STARTUP_INFO_BEGIN");
  constexpr size_t kPiece = sizeof event.data.data8;
  for (size_t at = 0; at <= text.size(); at += kPiece) {  // with the zero behind it
    std::memset(event.data.data8, 0, kPiece);
    std::memcpy(event.data.data8, text.data() + at, std::min(kPiece, text.size() - at));
    Tell(connection, root, XCB_EVENT_MASK_PROPERTY_CHANGE, event);
    event.type = Atom(connection, "_NET_STARTUP_INFO");
  }
}

}  // namespace

void ShowLaunched(QWidget& window, const std::string& launch) {
  const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  xcb_connection_t* const connection = x11 ? x11->connection() : nullptr;
  const auto screen =
      connection ? xcb_setup_roots_iterator(xcb_get_setup(connection)) : xcb_screen_iterator_t{};
  if (!screen.data) return;
  const auto own = static_cast<xcb_window_t>(window.winId());
  xcb_client_message_event_t event = {};
  event.response_type = XCB_CLIENT_MESSAGE;
  event.format = 32;
  event.window = own;
  event.type = Atom(connection, "_NET_ACTIVE_WINDOW");
  event.data.data32[0] = 1;  // an application asks
  event.data.data32[1] = TimeOf(launch);
  Tell(connection, screen.data->root,
       XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY, event);
  if (!launch.empty()) EndLaunch(connection, screen.data->root, own, launch);
  xcb_flush(connection);
}

#else

void ShowLaunched(QWidget&, const std::string&) {}

#endif

// Wayland's windows take the name along when they ask for the keyboard.
void PrepareLaunched(const std::string& launch) {
  if (QGuiApplication::platformName().startsWith("wayland") && !launch.empty())
    qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(launch));
}
