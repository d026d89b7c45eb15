#include "host/FileAttributes.h"

#include <sys/xattr.h>

#include <vector>

namespace xrpt {
namespace {

// The system labels files by rules of its own.
bool IsTheSystems(std::string_view name) { return name.starts_with("security.") || name.starts_with("trusted."); }

// Names, each with a zero byte behind it; none where the file system knows no attributes.
std::error_code AttributeNames(const Path& file, std::string& names) {
  const ssize_t size = ::listxattr(file.c_str(), nullptr, 0);
  if (size < 0) return errno == ENOTSUP ? std::error_code() : LastError();
  names.resize(static_cast<std::size_t>(size));
  const ssize_t got = size > 0 ? ::listxattr(file.c_str(), names.data(), names.size()) : 0;
  if (got < 0) return LastError();
  names.resize(static_cast<std::size_t>(got));
  return {};
}

std::error_code TakeAttribute(int successor, const Path& former, const char* name) {
  const ssize_t size = ::getxattr(former.c_str(), name, nullptr, 0);
  if (size < 0) return LastError();
  std::vector<char> value(static_cast<std::size_t>(size) + 1);
  const ssize_t got = ::getxattr(former.c_str(), name, value.data(), value.size());
  if (got < 0 || ::fsetxattr(successor, name, value.data(), static_cast<std::size_t>(got), 0) != 0) return LastError();
  return {};
}

std::error_code TakeOwner(int successor, const struct stat& was) {
  struct stat now {};
  if (::fstat(successor, &now) != 0) return LastError();
  if (now.st_uid == was.st_uid && now.st_gid == was.st_gid) return {};
  return ::fchown(successor, was.st_uid, was.st_gid) == 0 ? std::error_code() : LastError();
}

}  // namespace

// The mode comes after the owner, whose change clears bits of it, and before the access lists, which refine it.
std::error_code TakeAttributes(int successor, const Path& former, const struct stat& was) {
  if (const std::error_code error = TakeOwner(successor, was)) return error;
  if (::fchmod(successor, was.st_mode & 07777) != 0) return LastError();
  std::string names;
  if (const std::error_code error = AttributeNames(former, names)) return error;
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* name = names.data() + at;
    if (IsTheSystems(name)) continue;
    if (const std::error_code error = TakeAttribute(successor, former, name)) return error;
  }
  return {};
}

}  // namespace xrpt
