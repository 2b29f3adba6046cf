/* A folder that does not answer, for roads under Wine: a library that is loaded before all others (LD_PRELOAD) into
   Wine's processes on this side. While the file CORVELLE_HANG is there, whoever asks for a file or folder of the name
   "hanging", or for what is below it, waits until it is gone. That is what a dead share does, and no call of Windows
   breaks it off. The server of Wine, which serves all processes, never waits. */

#define _GNU_SOURCE
#ifdef __i386__ /* as Wine is made there */
#define _FILE_OFFSET_BITS 64
#define _TIME_BITS 64
#endif
#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdlib.h>
#include <string.h>
#include <strings.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

static const char name[] = "/hanging";

static int names_hanging(const char *path) {
  const char *at = path;
  const size_t length = sizeof(name) - 1;
  if (path == NULL) return 0;
  while ((at = strcasestr(at, name)) != NULL) {
    at += length;
    if (*at == '\0' || *at == '/') return 1;
  }
  return 0;
}

static void wait_if_hanging(const char *path) {
  static const char *marker = NULL;
  const struct timespec moment = {0, 5000000};
  const int error = errno;
  if (!names_hanging(path)) return;
  if (marker == NULL) {
    const int serves = strncmp(program_invocation_short_name, "wineserver", 10) == 0;
    marker = getenv("CORVELLE_HANG");
    if (marker == NULL || serves) marker = "";
  }
  while (*marker != '\0' && access(marker, F_OK) == 0) nanosleep(&moment, NULL);
  errno = error;
}

/* With such times and offsets a 32-bit library has these functions under other names: the headers give them to what is
   defined here, dlsym has to be told. */
#ifdef __i386__
#define NAME_OF_stat "__stat64_time64"
#define NAME_OF_lstat "__lstat64_time64"
#define NAME_OF_open "open64"
#else
#define NAME_OF_stat "stat"
#define NAME_OF_lstat "lstat"
#define NAME_OF_open "open"
#endif
#define NAME_OF_opendir "opendir"

#define NEXT(function) \
  static __typeof__(&function) next = NULL; \
  if (next == NULL) next = (__typeof__(&function))dlsym(RTLD_NEXT, NAME_OF_##function)

int stat(const char *path, struct stat *buffer) {
  NEXT(stat);
  wait_if_hanging(path);
  return next(path, buffer);
}

int lstat(const char *path, struct stat *buffer) {
  NEXT(lstat);
  wait_if_hanging(path);
  return next(path, buffer);
}

DIR *opendir(const char *path) {
  NEXT(opendir);
  wait_if_hanging(path);
  return next(path);
}

int open(const char *path, int flags, ...) {
  mode_t mode = 0;
  NEXT(open);
  wait_if_hanging(path);
  if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {
    va_list more;
    va_start(more, flags);
    mode = (mode_t)va_arg(more, int);
    va_end(more);
  }
  return next(path, flags, mode);
}
