#include "ui/common_dialogs.hpp"

#include <algorithm>
#include <exception>

#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

void ActivateAgain(QWidget* owner) {
  if (owner != nullptr && owner->isVisible()) owner->activateWindow();
}

}  // namespace

void ClassCommonDialogFile::SetFilter(std::u16string_view filter) {
  while (filter.ends_with(u'\0')) filter.remove_suffix(1);
  filter_ = filter;
  std::replace(filter_.begin(), filter_.end(), u'\0', u'|');
}

bool ClassCommonDialogFile::Show(AskProcedure ask) try {
  const auto answer = (dialogs_.*ask)({.title = dialogTitle_,
                                       .filter = filter_,
                                       .filterIndex = filterIndex_,
                                       .folder = {},
                                       .fileName = fileName_,
                                       .flags = flags_});
  ActivateAgain(owner_);
  if (!answer) return false;
  fileName_ = answer->fileName;
  filterIndex_ = answer->filterIndex;
  flags_ = (flags_ & ~kOpenedReadOnly) | (answer->readOnly ? kOpenedReadOnly : 0);
  return true;
} catch (const std::exception& error) {
  qWarning("%s: %s", kErrorSource, error.what());
  return false;
}

bool ClassCommonDialogFolder::Show() {
  path_ = Choose();
  while (!path_.empty() && !Accessible(path_)) {
    TellNoAccess(path_);
    path_ = Choose();
  }
  ActivateAgain(owner_);
  return !path_.empty();
}

std::u16string ClassCommonDialogFolder::Choose() const {
  return dialogs_.AskFolder(dialogTitle_, callBack_ ? callBack_() : path_).value_or(std::u16string());
}

// Only a folder that may be entered has itself as an entry.
bool ClassCommonDialogFolder::Accessible(const std::u16string& folder) const {
  return common_.PathExists(common_.Join(folder, u"."));
}

void ClassCommonDialogFolder::TellNoAccess(const std::u16string& folder) const {
  std::u16string name = common_.CFile(common_.AppPath(folder), 0);
  if (name.empty()) name = folder;
  std::u16string text = u"ﾌｫﾙﾀﾞの参照 \"" + name + u"\"";
  text.append(kCrLf).append(u"にｱｸｾｽできませんでした");
  boxes_.Ask({.text = text, .caption = std::u16string(kApplicationTitle), .icon = MessageIcon::Exclamation});
}

}  // namespace kestri
