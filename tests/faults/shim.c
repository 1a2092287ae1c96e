/* Preloaded into the program: makes its n-th file call fail, or kills the program there.
 *
 *   FAULT_FOLDER  only calls about files in this folder count
 *   FAULT_AT      the number of the call, from 1; 0 for none
 *   FAULT_KIND    "kill" (before the call), "killed-after" it, "short", or the number of an error
 *   FAULT_COUNT   a file into which the number of calls is written at the end
 *   FAULT_STUCK   files with this in their names can neither be renamed nor removed
 *   FAULT_SYNC    milliseconds that each fsync takes
 *   FAULT_LATER   the fsyncs are as fast as ever until there is a file of this name
 */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/file.h>
#include <unistd.h>

static const char *folder;
static long at, calls;
static const char *kind = "";

__attribute__((constructor)) static void Begin(void) {
  folder = getenv("FAULT_FOLDER");
  if (getenv("FAULT_AT")) at = atol(getenv("FAULT_AT"));
  if (getenv("FAULT_KIND")) kind = getenv("FAULT_KIND");
}

__attribute__((destructor)) static void End(void) {
  const char *name = getenv("FAULT_COUNT");
  FILE *file = name ? fopen(name, "w") : NULL;
  if (!file) return;
  fprintf(file, "%ld\n", calls);
  fclose(file);
}

static int Ours(const char *path) { return folder && path && strncmp(path, folder, strlen(folder)) == 0; }

static int OursToo(int descriptor) {
  char name[64], path[PATH_MAX];
  snprintf(name, sizeof name, "/proc/self/fd/%d", descriptor);
  const ssize_t length = readlink(name, path, sizeof path - 1);
  if (length < 0) return 0;
  path[length] = 0;
  return Ours(path);
}

enum { None, Fail, Short, KillAfter };

/* What happens to a call that counts. */
static int Fate(int counts) {
  if (!counts || ++calls != at) return None;
  if (strcmp(kind, "kill") == 0) kill(getpid(), SIGKILL);
  if (strcmp(kind, "killed-after") == 0) return KillAfter;
  if (strcmp(kind, "short") == 0) return Short;
  errno = atoi(kind);
  return errno ? Fail : None;
}

#define REAL(name) ((__typeof__(&name))dlsym(RTLD_NEXT, #name))
#define DIE_AFTER(fate) \
  if ((fate) == KillAfter) kill(getpid(), SIGKILL)

static int Open(const char *name, const char *path, int flags, mode_t mode) {
  const int fate = Fate(Ours(path));
  if (fate == Fail) return -1;
  const int result = ((int (*)(const char *, int, ...))dlsym(RTLD_NEXT, name))(path, flags, mode);
  DIE_AFTER(fate);
  return result;
}

static mode_t ModeOf(int flags, va_list rest) { return flags & O_CREAT ? va_arg(rest, mode_t) : 0; }

int open(const char *path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = ModeOf(flags, rest);
  va_end(rest);
  return Open("open", path, flags, mode);
}

int open64(const char *path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = ModeOf(flags, rest);
  va_end(rest);
  return Open("open64", path, flags, mode);
}

ssize_t read(int descriptor, void *buffer, size_t size) {
  const int fate = Fate(OursToo(descriptor));
  if (fate == Fail) return -1;
  /* A file that ends too early: the read behind a short one finds nothing. */
  if (fate == Short) return 0;
  const ssize_t result = REAL(read)(descriptor, buffer, size);
  DIE_AFTER(fate);
  return result;
}

ssize_t write(int descriptor, const void *buffer, size_t size) {
  const int fate = Fate(OursToo(descriptor));
  if (fate == Fail) return -1;
  const ssize_t result = REAL(write)(descriptor, buffer, fate == Short && size > 1 ? size / 2 : size);
  DIE_AFTER(fate);
  return result;
}

int fsync(int descriptor) {
  const int ours = OursToo(descriptor), fate = Fate(ours);
  const char *later = getenv("FAULT_LATER");
  if (ours && getenv("FAULT_SYNC") && (!later || access(later, F_OK) == 0)) usleep(1000 * atoi(getenv("FAULT_SYNC")));
  if (fate == Fail) return -1;
  const int result = REAL(fsync)(descriptor);
  DIE_AFTER(fate);
  return result;
}

static int Stuck(const char *path) {
  const char *stuck = getenv("FAULT_STUCK");
  if (!stuck || !Ours(path) || !strstr(path, stuck)) return 0;
  errno = EACCES;
  return 1;
}

int rename(const char *from, const char *to) {
  const int fate = Fate(Ours(to));
  if (fate == Fail || Stuck(from)) return -1;
  const int result = REAL(rename)(from, to);
  DIE_AFTER(fate);
  return result;
}

int renameat2(int old, const char *from, int new, const char *to, unsigned flags) {
  const int fate = Fate(Ours(to));
  if (fate == Fail || Stuck(from)) return -1;
  const int result = REAL(renameat2)(old, from, new, to, flags);
  DIE_AFTER(fate);
  return result;
}

int unlink(const char *path) {
  const int fate = Fate(Ours(path));
  if (fate == Fail || Stuck(path)) return -1;
  const int result = REAL(unlink)(path);
  DIE_AFTER(fate);
  return result;
}

int link(const char *from, const char *to) {
  const int fate = Fate(Ours(to));
  if (fate == Fail) return -1;
  const int result = REAL(link)(from, to);
  DIE_AFTER(fate);
  return result;
}

int flock(int descriptor, int operation) {
  const int fate = Fate(OursToo(descriptor));
  if (fate == Fail) return -1;
  const int result = REAL(flock)(descriptor, operation);
  DIE_AFTER(fate);
  return result;
}

int close(int descriptor) {
  const int fate = Fate(OursToo(descriptor));
  const int result = REAL(close)(descriptor);
  DIE_AFTER(fate);
  if (fate != Fail) return result;
  errno = atoi(kind);
  return -1;
}
