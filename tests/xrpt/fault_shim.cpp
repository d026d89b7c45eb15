// Loaded before the C library, this makes one of a program's calls on one folder fail: the FAULT_NTH call of FAULT_CALL
// ends with FAULT_ERRNO (0: a write takes half of what it was given). Only files whose path holds FAULT_FOLDER count.
// With FAULT_SLOW writes take their time, in small pieces, so that a kill finds them at it.
// The file FAULT_HIT is made when the call was reached, so that whoever counts knows when to stop.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr size_t kPiece = 16384;

std::string Setting(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

bool IsInFolder(const char* path) {
  static const std::string folder = Setting("FAULT_FOLDER");
  return !folder.empty() && path && std::strstr(path, folder.c_str());
}

bool IsInFolder(int descriptor) {
  char path[4096] = {};
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  return ::readlink(link.c_str(), path, sizeof path - 1) > 0 && IsInFolder(path);
}

void MarkHit() {
  if (std::FILE* hit = std::fopen(Setting("FAULT_HIT").c_str(), "w")) std::fclose(hit);
}

// Whether this is the call that fails. Sets errno.
template <class Place>
bool Fails(const char* call, Place place) {
  static const std::string wanted = Setting("FAULT_CALL");
  static int left = std::atoi(Setting("FAULT_NTH").c_str());
  if (wanted != call || !IsInFolder(place) || left <= 0 || --left > 0) return false;
  MarkHit();
  errno = std::atoi(Setting("FAULT_ERRNO").c_str());
  return true;
}

template <class Function>
Function* Real(const char* call) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, call));
}

}  // namespace

#define FORWARD(result, call, place, parameters, arguments)  \
  extern "C" result call parameters {                        \
    if (Fails(#call, place)) return static_cast<result>(-1); \
    return Real<result parameters>(#call) arguments;         \
  }

FORWARD(int, fsync, fd, (int fd), (fd))
FORWARD(int, ftruncate, fd, (int fd, off_t size), (fd, size))
FORWARD(int, fchmod, fd, (int fd, mode_t mode), (fd, mode))
FORWARD(int, fchown, fd, (int fd, uid_t user, gid_t group), (fd, user, group))
FORWARD(int, flock, fd, (int fd, int how), (fd, how))
FORWARD(int, fstat, fd, (int fd, struct stat* out), (fd, out))
FORWARD(off_t, lseek, fd, (int fd, off_t offset, int from), (fd, offset, from))
FORWARD(ssize_t, read, fd, (int fd, void* bytes, size_t size), (fd, bytes, size))
FORWARD(int, fsetxattr, fd, (int fd, const char* name, const void* value, size_t size, int flags),
        (fd, name, value, size, flags))
FORWARD(int, stat, path, (const char* path, struct stat* out), (path, out))
FORWARD(int, unlink, path, (const char* path), (path))
FORWARD(int, rename, to, (const char* from, const char* to), (from, to))
FORWARD(ssize_t, listxattr, path, (const char* path, char* names, size_t size), (path, names, size))
FORWARD(ssize_t, getxattr, path, (const char* path, const char* name, void* value, size_t size),
        (path, name, value, size))
FORWARD(int, faccessat, path, (int folder, const char* path, int mode, int flags), (folder, path, mode, flags))

extern "C" int posix_fallocate(int fd, off_t offset, off_t size) {
  if (Fails("posix_fallocate", fd)) return errno;
  return Real<int(int, off_t, off_t)>("posix_fallocate")(fd, offset, size);
}

extern "C" ssize_t write(int fd, const void* bytes, size_t size) {
  const auto real = Real<ssize_t(int, const void*, size_t)>("write");
  if (!Setting("FAULT_SLOW").empty() && IsInFolder(fd)) {
    ::usleep(2000);
    return real(fd, bytes, size < kPiece ? size : kPiece);
  }
  if (!Fails("write", fd)) return real(fd, bytes, size);
  return errno == 0 ? real(fd, bytes, (size + 1) / 2) : -1;
}

extern "C" int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = flags & O_CREAT ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (Fails("open", path)) return -1;
  return Real<int(const char*, int, ...)>("open")(path, flags, mode);
}
