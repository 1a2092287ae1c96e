#include "window/system/foreign_files.h"

#include "window/system/disk.h"

bool ReadForeignFile(const std::filesystem::path& path, std::uintmax_t largest, std::string& text,
                     std::string& why) {
  const ReadOutcome outcome = Disk().Read(path, text);
  if (outcome == ReadOutcome::Missing) return false;
  if (outcome != ReadOutcome::Read) why = "it can't be read";
  if (text.size() > largest) why = "it is too large";
  return true;
}
