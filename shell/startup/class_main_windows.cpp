// The windows that a process may exist for instead of the editor's.
#include "shell/common/image_viewer.hpp"
#include "shell/common/text.hpp"
#include "shell/startup/class_main.hpp"

namespace kestri {
namespace {

std::u16string Quoted(std::u16string_view text) {
  return std::u16string(u"\"").append(text).append(u"\"");
}

}  // namespace

std::int32_t ClassMain::ShowImageSlides(const std::u16string& folder) {
  const std::u16string viewer = SiblingImageViewer(common_);
  if (!common_.PathExists(folder) || !common_.IsFileAttribute(folder, kAttributeDirectory)) {
    Refuse(u"ﾌｫﾙﾀﾞ " + Quoted(folder) + u" は 存在しません");
  } else if (!common_.ExecuteShow(viewer, 3, folder)) {
    Refuse(Quoted(common_.CFile(viewer, 0)) + u" を開けません");
  }
  return kDone;
}

std::int32_t ClassMain::ShowImageConversion(const std::u16string& path) {
  const bool exists = common_.PathExists(path);
  const bool isFile = exists && !common_.IsFileAttribute(path, kAttributeDirectory);
  state_.currentFile = isFile ? path : std::u16string();
  if (isFile) {
    state_.currentFolder = common_.AppPath2(common_.CPath(path, -2));
  } else if (exists) {
    state_.currentFolder = path;
  } else {
    state_.currentFolder = common_.AppPath2(common_.GetINI(common_.ExeName(), u"Setting", u"NawPath", u""));
  }
  return windows_.ShowImageConversion() ? kLive : TellMissingWindow(u"IMGCFrm");
}

std::int32_t ClassMain::ShowCompileWindow(const std::u16string& path) {
  state_.currentFile = path;
  const auto owner = windows_.ShowCompileWindow();
  if (!owner) return TellMissingWindow(u"ComplForm");
  state_.startupState[0] = *owner;
  return kLive;
}

std::int32_t ClassMain::ShowArchive(const std::u16string& path, ArchiveWindow show,
                                    std::u16string_view windowName) {
  if (!common_.PathExists(path)) return Refuse(Quoted(path) + u" は 存在しません");
  return (windows_.*show)(common_.GetLongPath(path)) ? kLive : TellMissingWindow(windowName);
}

std::int32_t ClassMain::TellMissingWindow(std::u16string_view name) {
  SetBusyPointer(false);
  Tell(std::u16string(u"この機能はまだ組み込まれていません\r\n").append(name), MessageIcon::Exclamation);
  return kEnd;
}

}  // namespace kestri
