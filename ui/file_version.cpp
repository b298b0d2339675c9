#include "ui/file_version.hpp"

namespace kestri {

std::u16string FileVersion(const ClassCommon& common, std::u16string_view path) {
  constexpr std::u16string_view kMark = u".so.";
  const std::u16string name = common.CFile(common.PortSet().files.Canonical(path), 0);
  const std::size_t at = name.find(kMark);
  const std::u16string version = at == name.npos ? std::u16string() : name.substr(at + kMark.size());
  return version.find_first_not_of(u"0123456789.") == version.npos ? version : std::u16string();
}

}  // namespace kestri
