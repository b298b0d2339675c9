#include "document/document_template.hpp"

namespace kestri {
namespace {

constexpr char16_t kCaretMark = u'\t';

std::u16string WithCrLf(std::u16string text) {
  const std::u16string kind = ClassCommon::CrLfWinOrMac(text);
  if (kind != u"CR" && kind != u"LF") return text;
  return Replace(text, kind == u"CR" ? u"\r" : u"\n", kCrLf);
}

}  // namespace

bool IsTemplate(const ClassCommon& common, std::u16string_view path) {
  return UCase(common.CFile(path, 2)) == u"FMTDAT";
}

std::u16string TemplatePath(const ClassCommon& common, int kind) {
  const std::u16string folder = common.Join(common.ProgramFolder(), u"DataFiles");
  return common.Join(folder, u"NewData" + ToText(kind) + u".fmtdat");
}

bool TemplateExists(const ClassCommon& common, int kind) {
  const std::u16string path = TemplatePath(common, kind);
  return common.PathExists(path) && !common.IsFileAttribute(path, kAttributeDirectory);
}

TemplateText SplitAtCaretMark(std::u16string text) {
  text = WithCrLf(std::move(text));
  const std::size_t mark = text.rfind(kCaretMark);
  if (mark == std::u16string::npos) return {.beforeCaret = {}, .afterCaret = std::move(text)};
  return {.beforeCaret = text.substr(0, mark), .afterCaret = text.substr(mark + 1)};
}

std::optional<TemplateText> ReadTemplate(const ClassCommon& common, int kind) {
  std::u16string text;
  if (!common.ReadTextFile(TemplatePath(common, kind), text, -1)) return std::nullopt;
  return SplitAtCaretMark(std::move(text));
}

}  // namespace kestri
