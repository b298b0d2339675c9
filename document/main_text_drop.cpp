// The mouse button, and what is dropped on the text.
#include <algorithm>

#include "document/main_text.hpp"
#include "document/pasted_text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kOnlyFiles = u"ﾌｧｲﾙ以外は転送できません";

bool IsFile(const ClassCommon& common, std::u16string_view path) {
  const std::optional<FileStatus> status = common.PortSet().files.Status(path);
  return status && (status->attributes & kAttributeDirectory) == 0;
}

}  // namespace

void MainText::MouseDown() {
  tags_.seTagHide();
}

MainText::Drop MainText::OLEDropText(std::u16string_view text) {
  host_.BringToFront();
  if (control_.Locked()) {
    boxes_.Ask({.text = u"読み取り専用で開かれています!!",
                .caption = u"ReadOnly " + std::u16string(kApplicationTitle),
                .icon = MessageIcon::Exclamation});
    return Drop::Refused;
  }
  host_.FocusText();
  return Guarded([&] { ReplaceSelHwnd(FromOtherProgram(text), false, true); }) ? Drop::Done : Drop::Refused;
}

MainText::Drop MainText::OLEDropFiles(const std::vector<std::u16string>& paths) {
  tags_.UnloadPopups();
  host_.BringToFront();
  std::vector<std::u16string> files;
  std::copy_if(paths.begin(), paths.end(), std::back_inserter(files),
               [&](const std::u16string& path) { return IsFile(common_, path); });
  if (files.size() < paths.size() || paths.empty()) host_.MessageToStatusBar(kOnlyFiles);
  if (files.empty()) return Drop::Refused;
  return Guarded([&] { OpenDropped(files); }) ? Drop::Done : Drop::Refused;
}

void MainText::OpenDropped(const std::vector<std::u16string>& files) {
  if (SwitchOf(u"DragAndDropFileData") != 1) return host_.OpenDroppedFile(files.front());
  for (const std::u16string& file : files) host_.OpenInNewInstance(file);
}

void MainText::DropSelection(Position to, SelectionDrag drag) {
  if (!RefuseIfLocked()) Guarded([&] { MoveOrCopySelection(to, drag); });
}

void MainText::MoveOrCopySelection(Position to, SelectionDrag drag) {
  const Position begin = control_.SelStart();
  const Position end = begin + control_.SelLength();
  const bool move = drag == SelectionDrag::Move;
  if (move && to >= begin && to <= end) return;
  const std::u16string text = control_.SelText();
  const EditScope oneStep(control_);
  if (move) {
    EM_REPLACESEL(u"");
    if (to > end) to -= end - begin;
  }
  EM_SETSEL(to, to);
  EM_REPLACESEL(text);
  EM_SETSEL(to, to + static_cast<Position>(text.size()));
  control_.EM_SCROLLCARET();
}

MainText::Drop MainText::OLEDropOther() {
  common_.PortSet().window.Beep();
  return Drop::Refused;
}

}  // namespace kestri
