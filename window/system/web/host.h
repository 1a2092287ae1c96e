// What the page does for the program: every call that leaves WebAssembly, but those of the C library.
// `web/host.js` and `tests/web/console.mjs` are the other side.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#define HOST_CALL(name) __attribute__((import_module("host"), import_name(name)))

namespace host {

// The answers of a few calls are texts: the call gives the length, `Take` copies the text.
HOST_CALL("take") void Take(char* to);

inline constexpr int kMissing = -1, kRefused = -2;
// Files are kept under their whole paths. The length of a text, or one of the two above.
HOST_CALL("read") int Read(const char* path, size_t length);
// 1, or 0 where the browser has no room or lets us keep nothing.
HOST_CALL("write") int Write(const char* path, size_t length, const char* text, size_t size);
HOST_CALL("remove") void Remove(const char* path, size_t length);
// The paths of all files, a line each.
HOST_CALL("names") int Names();

// The console's lines, where there is one: how much was read, 0 at the end.
HOST_CALL("input") int Input(char* chunk, size_t size);
HOST_CALL("output") void Output(const char* text, size_t size);

// The text that a call has left.
inline std::string Taken(int length) {
  std::string text(static_cast<size_t>(length), '\0');
  if (length > 0) Take(text.data());
  return text;
}

}  // namespace host
