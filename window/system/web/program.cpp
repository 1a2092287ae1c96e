#include "window/system/program.h"

#include "window/system/web/host.h"

namespace program {

void OutliveReaders() {}
int Input() { return 0; }
size_t Read(char* chunk, size_t size) { return static_cast<size_t>(host::Input(chunk, size)); }
bool ReadNow(char* chunk, size_t size, size_t& got) {
  got = Read(chunk, size);
  return true;
}
bool Write(const char* text, size_t size) {
  host::Output(text, size);
  return true;
}

}  // namespace program
