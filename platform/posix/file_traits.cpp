#include "platform/posix/file_traits.hpp"

#include <sys/xattr.h>

#include <string_view>
#include <vector>

namespace kestri::posix {
namespace {

constexpr mode_t kModeBits = 07777;
constexpr mode_t kAccessBits = 0777;

std::string AttributeNames(const char* path) {
  const ssize_t size = ::listxattr(path, nullptr, 0);
  if (size <= 0) return {};
  std::string names(static_cast<std::size_t>(size), '\0');
  const ssize_t length = ::listxattr(path, names.data(), names.size());
  names.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return names;
}

void CopyAttribute(const char* from, int to, const char* name) {
  const ssize_t size = ::getxattr(from, name, nullptr, 0);
  if (size < 0) return;
  std::vector<char> value(static_cast<std::size_t>(size) + 1);
  const ssize_t length = ::getxattr(from, name, value.data(), static_cast<std::size_t>(size));
  if (length >= 0) ::fsetxattr(to, name, value.data(), static_cast<std::size_t>(length), 0);
}

// What the folder would let others do with a new file is not what the old one allowed.
void DropInheritedAccess(int file) {
  ::fremovexattr(file, "system.posix_acl_access");
}

}  // namespace

bool KeepOwnerAndMode(PosixCalls& calls, int file, const struct stat& old) {
  DropInheritedAccess(file);
  struct stat made {};
  if (::fstat(file, &made) != 0) return false;
  const bool ownerStays = made.st_uid == old.st_uid && made.st_gid == old.st_gid;
  if (!ownerStays && calls.ChangeOwner(file, old.st_uid, old.st_gid) != 0) return false;
  const bool modeStays = ownerStays && made.st_mode == old.st_mode;
  return modeStays || calls.ChangeMode(file, old.st_mode & kModeBits) == 0;
}

void GiveTraits(PosixCalls& calls, int copy, const Original& original) {
  DropInheritedAccess(copy);
  calls.ChangeMode(copy, original.status.st_mode & kAccessBits);
  KeepAttributes(copy, original.path);
  const timespec times[] = {original.status.st_atim, original.status.st_mtim};
  ::futimens(copy, times);
}

void KeepAttributes(int file, const std::string& oldPath) {
  const std::string names = AttributeNames(oldPath.c_str());
  for (std::size_t start = 0; start < names.size();) {
    const char* name = names.c_str() + start;
    CopyAttribute(oldPath.c_str(), file, name);
    start += std::string_view(name).size() + 1;
  }
}

}  // namespace kestri::posix
