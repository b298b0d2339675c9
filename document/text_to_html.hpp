// Plain text made into a page: the conversion itself, and the command that opens the result as a new
// temporary file.
#pragma once

#include <string>
#include <string_view>

#include "document/document.hpp"
#include "platform/message_box.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

enum class PageFrame { None, Whole };
enum class Blanks { Keep, Convert };

struct TextToHtmlOptions {
  PageFrame frame = PageFrame::Whole;
  Blanks blanks = Blanks::Convert;  // half-width blanks to "&nbsp;"
  std::u16string title = u"タイトル";
};

// Special characters become entities and each CR LF gets a <BR> in front; the frame, if any, goes around it.
// The title is taken as it stands. Only half-width characters are special.
std::u16string ConvertTextToHtml(std::u16string_view text, const TextToHtmlOptions& options);

// One run of the dialog: its target's name is drawn once. Every failure is told in the same box, which names
// the possible reasons.
class TextToHtml {
 public:
  TextToHtml(Document& document, const ClassCommon& common, MessageBox& boxes);

  const std::u16string& TargetName() const { return targetName_; }
  std::u16string TargetPath() const;  // in the temporary folder

  // Reads the source, converts it and writes the target. False: told, and nothing is left behind.
  bool Convert(std::u16string_view sourcePath, const TextToHtmlOptions& options);
  // Opens what Convert wrote. False: told, and the target is gone.
  bool OpenTarget();

 private:
  bool WriteTarget(std::u16string_view sourcePath, const TextToHtmlOptions& options) const;
  bool TellFailure();

  Document& document_;
  const ClassCommon& common_;
  MessageBox& boxes_;
  std::u16string targetName_;
};

}  // namespace kestri
