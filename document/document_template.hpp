// The user's templates of new documents: DataFiles/NewData<kind>.fmtdat below the program's folder.
#pragma once

#include <optional>
#include <string>

#include "shell/common/class_common.hpp"

namespace kestri {

// By the name: a file that new documents may begin with.
bool IsTemplate(const ClassCommon& common, std::u16string_view path);

std::u16string TemplatePath(const ClassCommon& common, int kind);
bool TemplateExists(const ClassCommon& common, int kind);  // a folder of that name is none

// The last tab of a template is no text: it marks where the caret of the new document stands.
struct TemplateText {
  std::u16string beforeCaret;
  std::u16string afterCaret;
  bool operator==(const TemplateText&) const = default;
};
// Without a tab all text stands behind the caret. A text whose lines end in CR or LF alone gets CR LF.
TemplateText SplitAtCaretMark(std::u16string text);
// Nothing when the file cannot be read as a text.
std::optional<TemplateText> ReadTemplate(const ClassCommon& common, int kind);

}  // namespace kestri
