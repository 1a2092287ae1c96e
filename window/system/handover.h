// What a start of the program was told to open, on its way to a copy that runs already.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace handover {

struct Request {
  std::string file;    // whole
  std::string folder;  // where settings, tables and saved games are kept
  std::string screen;  // that the windows stand on
  std::string launch;  // by which the desktop knows this start; "" where it doesn't tell
};

// The screen and the launch that the environment names.
Request Here();

// Offers it to all copies of this player's that listen. False if none has taken it, and none will any more.
bool Offer(const Request& request);

// Where a copy listens. Nobody finds it where the player has no folder for such things.
class Listener {
 public:
  Listener();
  ~Listener();
  Listener(const Listener&) = delete;

  // Can be read from when somebody has an offer; -1 if nobody will.
  int Wire() const { return wire_; }
  // Hears an offer that waits. What is given back was taken, and whoever offered it knows.
  std::optional<Request> Hear(const std::function<bool(const Request&)>& takes);

 private:
  std::filesystem::path place_;
  int wire_ = -1;
};

}  // namespace handover
