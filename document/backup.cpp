#include "document/backup.hpp"

#include "document/settings_values.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kCaption = u"ﾊﾞｯｸｱｯﾌﾟ作成ｴﾗｰ ";
constexpr std::u16string_view kInterrupted = u"上書き保存は中断されました";

bool SwitchedOff(std::u16string_view folder) {
  const std::u16string upper = UCase(folder);
  return upper.empty() || upper == u"(なし)" || upper == u"(NULL)" || upper == u"NULL";
}

// "True" and "-1" as well as any other number that is not zero.
bool IsTrue(std::u16string_view value) {
  return UCase(Trim(value)) == u"TRUE" || ToLong(value).value_or(0) != 0;
}

// The head of the text that is at most size bytes of UTF-8, whole characters.
std::u16string Shortened(std::u16string_view text, std::size_t size) {
  while (!text.empty() && ToUtf8(text).size() > size) {
    const bool isPair =
        text.size() > 1 && (text.back() & 0xFC00) == 0xDC00 && (text[text.size() - 2] & 0xFC00) == 0xD800;
    text.remove_suffix(isPair ? 2 : 1);
  }
  return std::u16string(text);
}

}  // namespace

std::u16string BackupName(const ClassCommon& common, std::u16string_view folder, std::u16string_view path) {
  constexpr std::size_t kLongestName = 255;  // bytes
  std::u16string tail =
      u"[" + FormatTime(common.PortSet().clock.Now(), "%Y%m%d_%H%M%S_") + common.RandomDigits() + u"]";
  const bool hasExtension = common.CFile(path, 0).find(u'.') != std::u16string::npos;
  if (hasExtension) tail += Shortened(u"." + common.CFile(path, 2), kLongestName - tail.size());
  const std::u16string name = Shortened(common.CFile(path, 1), kLongestName - ToUtf8(tail).size());
  return common.Join(common.AppPath(folder), name + tail);
}

bool Backup::Make(std::u16string_view path) const {
  const std::u16string folder = common_.GetINI(common_.ExeName(), u"Path", u"UserBackUp", u"(なし)");
  if (SwitchedOff(folder)) return true;
  const std::u16string copy = BackupName(common_, folder, path);
  if (!common_.MakeDirectory(copy)) {
    return Refuse(u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙの作成先が不明です", u"ﾊﾟｽを設定し直して下さい", copy);
  }
  if (!common_.FileEdit(ClassCommon::FileOperation::Copy, path, copy, kMultipleDestinations)) {
    return Refuse(u"ﾊﾞｯｸｱｯﾌﾟﾌｧｲﾙが作成できません", u"ﾃﾞｨｽｸ用理量 ﾌﾟﾛﾃｸﾄ を確認して下さい", copy);
  }
  if (IsTrue(common_.GetINI(common_.ExeName(), u"Setting", u"ArcUnLha", u"0"))) Pack(copy);
  return true;
}

bool Backup::Refuse(std::u16string_view reason, std::u16string_view advice,
                    std::u16string_view subject) const {
  log_.WriteLog(reason, subject);
  std::u16string text(reason);
  text.append(kCrLf).append(advice).append(kCrLf).append(kInterrupted);
  boxes_.Ask({.text = text,
              .caption = std::u16string(kCaption).append(kApplicationTitle),
              .icon = MessageIcon::Critical});
  return false;
}

void Backup::Pack(const std::u16string& copy) const {
  std::u16string message;
  if (archiver_.PackBackup(copy, message)) {
    common_.KillFile(copy);
    return;
  }
  log_.WriteLog(message, copy);
  boxes_.Ask({.text = message,
              .caption = std::u16string(kCaption).append(kApplicationTitle),
              .icon = MessageIcon::Exclamation});
}

}  // namespace kestri
