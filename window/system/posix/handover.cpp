#include "window/system/handover.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <system_error>
#include <vector>

#include "window/system/posix/descriptor.h"

namespace fs = std::filesystem;

namespace handover {
namespace {

constexpr int kPatience = 2000;       // milliseconds that a copy has for its answer
constexpr size_t kLongest = 1 << 16;  // bytes
constexpr char kTaken = '+', kLeft = '-';

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value ? value : "";
}

// A folder of the player's alone; "" if there is none.
fs::path Folder() {
  const fs::path runtime = Variable("XDG_RUNTIME_DIR");
  if (!runtime.is_absolute()) return {};
  const fs::path folder = runtime / "card-haven";
  mkdir(folder.c_str(), S_IRWXU);
  struct stat found = {};
  const bool isOurs = lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
                      found.st_uid == geteuid() && (found.st_mode & (S_IRWXG | S_IRWXO)) == 0;
  return isOurs ? folder : fs::path();
}

std::optional<sockaddr_un> AddressOf(const fs::path& place) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (place.native().size() >= sizeof address.sun_path) return std::nullopt;
  std::memcpy(address.sun_path, place.c_str(), place.native().size());
  return address;
}

bool IsOfThisPlayer(int connection) {
  ucred peer = {};
  socklen_t size = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

bool Send(int connection, const std::string& text) {
  for (size_t sent = 0; sent < text.size();) {
    const ssize_t some =
        Insist([&] { return send(connection, text.data() + sent, text.size() - sent, MSG_NOSIGNAL); });
    if (some <= 0) return false;
    sent += static_cast<size_t>(some);
  }
  return true;
}

// Each of the parts ends with a zero; an empty text follows them.
std::string Text(const Request& request) {
  std::string text;
  for (const std::string* part : {&request.file, &request.folder, &request.screen, &request.launch})
    text.append(*part).push_back('\0');
  return text;
}

std::optional<Request> Parse(const std::string& text) {
  std::vector<std::string> parts;
  for (size_t at = 0, end; (end = text.find('\0', at)) != std::string::npos; at = end + 1)
    parts.push_back(text.substr(at, end - at));
  if (parts.size() != 4) return std::nullopt;
  return Request{parts[0], parts[1], parts[2], parts[3]};
}

// Until all of it has come: whoever offers has sent it when he is heard.
std::string Received(int connection) {
  constexpr timeval kSoon = {0, 300'000};
  setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &kSoon, sizeof kSoon);
  std::string text;
  char some[4096];
  while (text.size() < kLongest) {
    const ssize_t read = Insist([&] { return recv(connection, some, sizeof some, 0); });
    if (read <= 0) return read == 0 ? text : "";
    text.append(some, static_cast<size_t>(read));
  }
  return "";
}

bool OfferTo(const fs::path& place, const std::string& text) {
  const auto address = AddressOf(place);
  const Descriptor connection(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!address || connection < 0) return false;
  const auto* const where = reinterpret_cast<const sockaddr*>(&*address);
  if (Insist([&] { return connect(connection, where, sizeof *address); }) != 0) {
    // Who listened here was killed. A copy that begins to listen shows itself only when it does.
    if (errno == ECONNREFUSED) unlink(place.c_str());
    return false;
  }
  if (!IsOfThisPlayer(connection) || !Send(connection, text)) return false;
  shutdown(connection, SHUT_WR);
  pollfd answer = {connection, POLLIN, 0};
  Insist([&] { return poll(&answer, 1, kPatience); });
  // From here on a copy that is late can't take it any more; what it has said by now counts.
  shutdown(connection, SHUT_RDWR);
  char said = kLeft;
  return Insist([&] { return recv(connection, &said, 1, 0); }) == 1 && said == kTaken;
}

}  // namespace

Request Here() {
  const std::string token = Variable("XDG_ACTIVATION_TOKEN");
  return {"", "", Variable("WAYLAND_DISPLAY") + " " + Variable("DISPLAY"),
          token.empty() ? Variable("DESKTOP_STARTUP_ID") : token};
}

bool Offer(const Request& request) {
  const std::string text = Text(request);
  const fs::path folder = Folder();
  if (folder.empty() || text.size() >= kLongest) return false;
  std::error_code none;
  std::vector<fs::path> places;
  for (fs::directory_iterator each(folder, none), end; !none && each != end; each.increment(none))
    if (each->path().extension() == ".socket") places.push_back(each->path());
  for (const fs::path& place : places)
    if (OfferTo(place, text)) return true;
  return false;
}

Listener::Listener() {
  const fs::path folder = Folder();
  if (folder.empty()) return;
  const std::string name = std::to_string(std::random_device()());
  const fs::path unseen = folder / (name + ".new"), place = folder / (name + ".socket");
  const auto address = AddressOf(unseen);
  if (!address || !AddressOf(place)) return;
  const int listening = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (listening < 0) return;
  if (bind(listening, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) == 0 &&
      listen(listening, 8) == 0 && std::rename(unseen.c_str(), place.c_str()) == 0) {
    place_ = place;
    wire_ = listening;
    return;
  }
  unlink(unseen.c_str());
  close(listening);
}

Listener::~Listener() {
  if (wire_ < 0) return;
  unlink(place_.c_str());
  close(wire_);
}

std::optional<Request> Listener::Hear(const std::function<bool(const Request&)>& takes) {
  const Descriptor connection(Insist([&] { return accept4(wire_, nullptr, nullptr, SOCK_CLOEXEC); }));
  if (connection < 0 || !IsOfThisPlayer(connection)) return std::nullopt;
  const auto request = Parse(Received(connection));
  const bool mine = request && takes(*request);
  if (!Send(connection, std::string(1, mine ? kTaken : kLeft)) || !mine) return std::nullopt;
  return request;
}

}  // namespace handover
