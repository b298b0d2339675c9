// Path arithmetic. Each rule is written for drive paths and for paths below one root.
#include <algorithm>

#include "shell/common/class_common.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kUncMark = u"\\\\";

bool IsUnc(std::u16string_view path) {
  return path.starts_with(kUncMark);
}

std::u16string WindowsRoot(std::u16string_view path) {
  constexpr std::size_t kBehindMark = 3;
  if (IsUnc(path)) {
    const auto end = path.find(u'\\', kBehindMark);
    return end == std::u16string_view::npos ? std::u16string() : std::u16string(path.substr(0, end));
  }
  const std::u16string_view drive = Left(path, 3);
  return EndsWith(drive, u":\\") && drive.size() == 3 ? std::u16string(drive) : std::u16string();
}

std::u16string BareRoot(const std::u16string& root) {
  if (root.empty()) return root;
  return IsUnc(root) ? root.substr(kUncMark.size()) : root.substr(0, 1);
}

std::int32_t TypeOfExtension(std::u16string_view extension) {
  struct Row {
    std::u16string_view extension;
    std::int32_t code;
  };
  static constexpr Row kRows[] = {
      {u"", kFileTypeHtml},     {u"TXT", kFileTypeText},  {u"HTM", kFileTypeHtml},
      {u"HTML", kFileTypeHtml}, {u"C", kFileTypeC},       {u"H", kFileTypeC},
      {u"CPP", kFileTypeC},     {u"BAS", kFileTypeBasic}, {u"FRM", kFileTypeBasic},
      {u"CLS", kFileTypeBasic}, {u"CTR", kFileTypeBasic}, {u"AAT", kFileTypeAsciiArt},
  };
  const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                 [&](const Row& candidate) { return candidate.extension == extension; });
  return row == std::end(kRows) ? kFileTypeOther : row->code;
}

// Length of the common prefix that ends behind a separator.
std::size_t CommonFolders(std::u16string_view from, std::u16string_view to, char16_t separator) {
  const auto differ = std::mismatch(from.begin(), from.end(), to.begin(), to.end()).first;
  const std::u16string_view same = from.substr(0, static_cast<std::size_t>(differ - from.begin()));
  const auto last = same.rfind(separator);
  return last == std::u16string_view::npos ? 0 : last + 1;
}

}  // namespace

std::u16string ClassCommon::Join(std::u16string_view folder, std::u16string_view name) const {
  return AppPath(folder) + Separator() + std::u16string(name);
}

std::u16string ClassCommon::AppPath(std::u16string_view path) const {
  if (!path.empty() && path.back() == Separator()) path.remove_suffix(1);
  return std::u16string(path);
}

std::u16string ClassCommon::AppPath2(std::u16string_view path) const {
  const std::size_t rootLength = style_ == PathStyle::Windows ? 3 : 1;
  const bool trailing = !path.empty() && path.back() == Separator();
  if (trailing) return std::u16string(path.size() == rootLength ? path : path.substr(0, path.size() - 1));
  const bool bareDrive = style_ == PathStyle::Windows && path.size() == 2;
  return bareDrive ? std::u16string(path) + Separator() : std::u16string(path);
}

std::u16string ClassCommon::CRoot(std::u16string_view path, int mode) const {
  path = Trim(path);
  if (style_ == PathStyle::Posix) return path.starts_with(u'/') ? u"/" : u"";
  const std::u16string root = WindowsRoot(path);
  return mode == 1 ? BareRoot(root) : root;
}

std::u16string ClassCommon::CPath(std::u16string_view path, int mode) const {
  const std::u16string_view trimmed = Trim(path);
  const auto last = trimmed.rfind(Separator());
  std::u16string folder;
  if (last != std::u16string_view::npos) {
    const bool isRootItself = style_ == PathStyle::Posix && last == 0;
    const bool isUncMark = style_ == PathStyle::Windows && last == 1 && IsUnc(trimmed);
    folder = isRootItself ? u"/" : isUncMark ? trimmed : trimmed.substr(0, last);
    if (PathExists(folder)) return folder;
  }
  switch (mode) {
    case -998:
      return u"";
    case -1:
      return std::u16string(path);
    case 1:
      return GetSystemDirectory(static_cast<int>(SystemFolder::Windows));
    case 2:
      return GetSystemDirectory(static_cast<int>(SystemFolder::Documents));
    case 3:
      return AppPath2(programFolder_);
    case 4:
      return GetSystemDirectory(static_cast<int>(SystemFolder::System));
    case 5:
      return GetSystemDirectory(static_cast<int>(SystemFolder::ProgramFiles));
    case 6:
      return GetSystemDirectory(static_cast<int>(SystemFolder::Desktop));
    default:
      return folder;
  }
}

std::u16string ClassCommon::CFile(std::u16string_view path, int mode) const {
  path = Trim(path);
  const std::u16string_view name = path.substr(path.rfind(Separator()) + 1);
  const auto dot = name.rfind(u'.');
  if (mode == 0 || dot == std::u16string_view::npos) return std::u16string(name);
  return std::u16string(mode == 1 ? name.substr(0, dot) : name.substr(dot + 1));
}

std::u16string ClassCommon::CFile2(std::u16string_view path) const {
  const std::size_t headLength = style_ == PathStyle::Windows ? 3 : 1;
  if (path.size() <= headLength) return std::u16string(path);
  const std::u16string_view tail = path.substr(headLength);
  const auto last = tail.rfind(Separator());
  if (last == std::u16string_view::npos || last == 0) return std::u16string(path);
  const auto secondLast = tail.rfind(Separator(), last - 1);
  if (secondLast == std::u16string_view::npos) return std::u16string(path);
  return std::u16string(path.substr(0, headLength)) + u"..." + std::u16string(tail.substr(secondLast));
}

std::u16string ClassCommon::CDir(std::u16string_view path, int flag) const {
  const std::u16string folder = flag == 0 ? CPath(path, -2) : std::u16string(path);
  return folder.substr(folder.rfind(Separator()) + 1);
}

std::u16string ClassCommon::RelaPath(std::u16string_view from, std::u16string_view to,
                                     std::u16string_view separator) const {
  if (UCase(CRoot(from, 0)) != UCase(CRoot(to, 0))) return u"";
  const std::u16string folder = AppPath(CPath(from, -2)) + Separator();
  const std::size_t common = CommonFolders(folder, to, Separator());
  const std::u16string up = std::u16string(u"..") + Separator();
  std::u16string result = std::u16string(u".") + Separator();
  const auto levels =
      std::count(folder.begin() + static_cast<std::ptrdiff_t>(common), folder.end(), Separator());
  for (auto level = levels; level > 0; --level) result.insert(0, up);
  result += to.substr(common);
  if (separator.size() == 1) std::replace(result.begin(), result.end(), Separator(), separator.front());
  return result;
}

std::int32_t ClassCommon::FileTypeReturn(std::u16string_view path) const {
  return TypeOfExtension(UCase(CFile(path, 2)));
}

}  // namespace kestri
