#include "shell/window/new_document.hpp"

#include <algorithm>
#include <array>
#include <iterator>

#include "document/document_template.hpp"

namespace kestri {
namespace {

constexpr std::int16_t kClipFile = 10;
constexpr std::int16_t kAsked = 11;

constexpr std::array<std::u16string_view, 15> kExtensions = {u"",       u".txt", u".htm", u".htm", u".css",
                                                             u".c",     u".h",   u".bat", u".ini", u".java",
                                                             u".clped", u"",     u".vbs", u".txt", u".aat"};

struct NewContent {
  std::u16string text;
  std::size_t caret = 0;
  bool templateRefused = false;  // there is one, but it is no text or may not be read
};

NewContent ContentOf(std::int16_t kind, const ClassCommon& common, const Document& document) {
  if (kind == kClipFile || !common.PathExists(TemplatePath(common, kind))) return {};
  auto read = ReadTemplate(common, kind);
  if (!read) return {.text = {}, .caret = 0, .templateRefused = true};
  NewContent content{.text = document.TabsToBlanks(std::move(read->beforeCaret))};
  content.caret = content.text.size();
  content.text += document.TabsToBlanks(std::move(read->afterCaret));
  return content;
}

bool HoldsText(const EditControl& control, std::u16string_view text) {
  const std::u16string_view head = control.FirstPiece();
  return static_cast<std::size_t>(control.Length()) == text.size() && text.starts_with(head) &&
         text.substr(head.size()) == control.SecondPiece();
}

bool FillWith(NewContent content, Document& document) {
  EditControl& control = document.Control();
  if (HoldsText(control, content.text)) {
    control.EM_EMPTYUNDOBUFFER();
  } else if (!document.SetDocumentText(std::move(content.text), KeepModified::No)) {
    return false;
  }
  control.SetSelStart(static_cast<Position>(content.caret));
  control.EM_SCROLLCARET();
  return true;
}

std::u16string StatusOf(std::u16string_view extension, bool templateRefused) {
  const bool blank = extension.empty() || templateRefused;
  return u"新規作成 (" + std::u16string(blank ? u"白紙" : extension) + u")";
}

// Neither a path separator nor a control character.
bool FitsInName(char16_t character) {
  return character >= u' ' && (character < 0x7F || character > 0x9F) && character != u'/' &&
         character != u'\\';
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
  if (!answer) return std::nullopt;
  std::u16string extension;
  std::copy_if(answer->begin(), answer->end(), std::back_inserter(extension), FitsInName);
  if (extension.find_first_not_of(u'.') == extension.npos) return std::nullopt;
  return StartsWith(extension, u".") ? extension : u"." + extension;
}

bool NewText(std::int16_t kind, const ClassCommon& common, Document& document, DocumentWindow& window,
             ApplicationState& state, InputBox& box, UseTemplate useTemplate) {
  const auto extension = kind == kAsked ? AskExtension(box) : NewDocumentExtension(kind);
  if (!extension) return false;
  NewContent content = useTemplate == UseTemplate::Yes ? ContentOf(kind, common, document) : NewContent();
  const std::u16string status = StatusOf(*extension, content.templateRefused);
  if (!FillWith(std::move(content), document)) return false;
  state.currentFolder = FolderForNew(common, state);
  const std::u16string withoutDot = extension->empty() ? u"" : extension->substr(1);
  document.ApplyOpenedFile(common.SameFileName(state.currentFolder, u"無題", withoutDot), ReadOnly::No,
                           u"CR+LF");
  window.MessageToStatusBar(status);
  window.FocusText();
  return true;
}

}  // namespace kestri
