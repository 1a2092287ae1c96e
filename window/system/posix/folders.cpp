#include "window/system/folders.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace fs = std::filesystem;

namespace folders {
namespace {

Path Home() {
  if (const char* home = std::getenv("HOME"); home && home[0] == '/') return home;
  const passwd* user = getpwuid(getuid());
  return user && user->pw_dir && user->pw_dir[0] == '/' ? user->pw_dir : "";
}

// Gives a file another name that nobody bears.
bool MoveUnder(const Path& file, const Path& name) {
  std::error_code error;
  if (fs::is_symlink(file, error)) return false;
  return renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0;
}

bool ReachesDisk(const Path& path) {
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool reached = fsync(descriptor) == 0;
  close(descriptor);
  return reached;
}

}  // namespace

Path OfProgram() {
  std::error_code error;
  const Path program = fs::read_symlink("/proc/self/exe", error);
  return error ? Path() : program.parent_path();
}

Path OfPlayersData() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data && data[0] == '/') return data;
  const Path home = Home();
  return home.empty() ? Path() : home / ".local/share";
}

Path Absolute(const Path& path) {
  std::error_code error;
  return fs::absolute(path, error).lexically_normal();
}

bool IsFolder(const Path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool Exists(const Path& path) {
  std::error_code error;
  return fs::exists(path, error);
}

std::uintmax_t SizeOf(const Path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::is_regular_file(path, error) ? fs::file_size(path, error) : 0;
  return error ? 0 : size;
}

bool CanTakeFrom(const Path& from, const Path& to) {
  std::error_code error;
  return access(from.c_str(), W_OK) == 0 && !fs::equivalent(from, to, error);
}

void Make(const Path& folder) {
  std::error_code error;
  fs::create_directories(folder.parent_path(), error);
  mkdir(folder.c_str(), 0700);
}

void Move(const Path& file, const Path& place) {
  std::error_code error;
  if (fs::exists(fs::symlink_status(place, error)) || MoveUnder(file, place)) return;
  // To another disk goes a copy first, which becomes the file only when it is whole and lies there; nobody's
  // file is written over.
  const Path beside = place.string() + ".carried-" + std::to_string(getpid());
  const bool moved = fs::copy_file(file, beside, error) && ReachesDisk(beside) && MoveUnder(beside, place) &&
                     ReachesDisk(place.parent_path());
  fs::remove(beside, error);
  if (moved) fs::remove(file, error);
}

}  // namespace folders
