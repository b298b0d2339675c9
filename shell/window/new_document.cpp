#include "shell/window/new_document.hpp"

#include <array>

namespace kestri {
namespace {

constexpr std::int16_t kClipFile = 10;
constexpr std::int16_t kAsked = 11;

constexpr std::array<std::u16string_view, 15> kExtensions = {u"",       u".txt", u".htm", u".htm", u".css",
                                                             u".c",     u".h",   u".bat", u".ini", u".java",
                                                             u".clped", u"",     u".vbs", u".txt", u".aat"};

std::u16string TemplateText(std::int16_t kind, const ClassCommon& common) {
  if (kind == kClipFile) return {};
  const std::u16string folder = common.Join(common.ProgramFolder(), u"DataFiles");
  std::u16string text;
  common.ReadTextFile(common.Join(folder, u"NewData" + ToText(kind) + u".fmtdat"), text, -1);
  return text;
}

std::u16string FolderForNew(const ClassCommon& common, const ApplicationState& state) {
  return common.PathExists(state.currentFolder) ? state.currentFolder : common.GetSystemDirectory(5);
}

}  // namespace

std::optional<std::u16string> NewDocumentExtension(std::int16_t kind) {
  if (kind < 0 || static_cast<std::size_t>(kind) >= kExtensions.size()) return u"";
  return std::u16string(kExtensions[static_cast<std::size_t>(kind)]);
}

std::optional<std::u16string> AskExtension(InputBox& box) {
  const auto answer = box.Ask(u"拡張子を指定して下さい", u"新規作成 (拡張子のﾕｰｻﾞｰ指定)", u".txt");
  if (!answer || answer->empty()) return std::nullopt;
  return StartsWith(*answer, u".") ? *answer : u"." + *answer;
}

bool NewText(std::int16_t kind, const ClassCommon& common, Document& document, DocumentWindow& window,
             ApplicationState& state, InputBox& box) {
  const auto extension = kind == kAsked ? AskExtension(box) : NewDocumentExtension(kind);
  if (!extension) return false;
  document.SetDocumentText(TemplateText(kind, common), KeepModified::No);
  state.currentFolder = FolderForNew(common, state);
  const std::u16string withoutDot = extension->empty() ? u"" : extension->substr(1);
  document.ApplyOpenedFile(common.SameFileName(state.currentFolder, u"無題", withoutDot), ReadOnly::No,
                           u"CR+LF");
  window.MessageToStatusBar(extension->empty() ? u"新規作成 (白紙)" : u"新規作成 (" + *extension + u")");
  return true;
}

}  // namespace kestri
