#include "window/system/foreign_files.h"

#include "window/system/web/host.h"

bool ReadForeignFile(const std::filesystem::path& path, std::uintmax_t largest, std::string& text,
                     std::string& why) {
  const std::string& name = path.native();
  const int length = host::Read(name.data(), name.size());
  if (length == host::kMissing) return false;
  if (length < 0)
    why = "it can't be read";
  else if (static_cast<std::uintmax_t>(length) > largest)
    why = "it is too large";
  else
    text = host::Taken(length);
  return true;
}
