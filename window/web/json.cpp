#include "window/web/json.h"

#include <cstdio>

// Bytes above 127 go as they are: texts are UTF-8, and the page makes of anything else what it can.
Json& Json::Write(std::string_view text) {
  Part();
  text_ += '"';
  for (const char letter : text) {
    if (letter == '"' || letter == '\\') {
      text_ += '\\';
      text_ += letter;
    } else if (static_cast<unsigned char>(letter) < 0x20) {
      char escaped[7];
      std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(letter));
      text_ += escaped;
    } else {
      text_ += letter;
    }
  }
  text_ += '"';
  return *this;
}
