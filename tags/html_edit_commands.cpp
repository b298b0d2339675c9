#include "tags/html_edit_commands.hpp"

#include "tags/default_tag.hpp"

namespace kestri {

void HtmlEditCommands::HTMLEdit_Click(int index) {
  if (around_.text.RefuseIfLocked()) return;
  if (around_.place.TextHasFocus() && around_.state.htmlNAVkeyB_AUTO == 1) around_.hints.seTagHintPriSet();
  switch (index) {
    case 0:
      if (around_.tagAnalyse) around_.tagAnalyse();
      break;
    case 1:
      Complete(kModeTag);
      break;
    case 2:
      Complete(kModeAttribute);
      break;
    case 3:
      Complete(kModeValue);
      break;
    default:
      break;
  }
}

void HtmlEditCommands::Complete(std::int32_t mode) {
  around_.popup.Preset(mode);
  int offset = 0;
  around_.popup.PrefixFromCaret(offset);
  around_.popup.ShowPopup(offset);
}

void HtmlEditCommands::HTMLEditHINTS() {
  if (!around_.hints.seTagHintPriSet()) around_.host.MessageToStatusBar(u"ｶｰｿﾙ位置がﾀｸﾞ内ではありません");
}

void HtmlEditCommands::CEdit_Click(int index) {
  if (index == 0) CompleteDefaultTag(around_.text, around_.common, around_.host);
}

void HtmlEditCommands::mnuCallUserInTo_Click() {
  if (around_.text.RefuseIfLocked()) return;
  if (around_.popup.Preset(kModeUser) == PresetResult::NoUserWords) return;
  int offset = 0;
  around_.popup.PrefixFromCaret(offset);
  if (around_.place.TextHasFocus()) around_.hints.seTagHide();
  around_.popup.ShowPopup(offset);
}

}  // namespace kestri
