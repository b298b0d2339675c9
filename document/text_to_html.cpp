#include "document/text_to_html.hpp"

#include <exception>

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kHead = u"<HTML>\r\n\r\n<HEAD>\r\n<TITLE>";
constexpr std::u16string_view kBodyStart = u"</TITLE>\r\n</HEAD>\r\n\r\n<BODY>\r\n\r\n";
constexpr std::u16string_view kTail = u"\r\n\r\n</BODY>\r\n\r\n</HTML>";
constexpr std::u16string_view kLineBreak = u"<BR>";

std::u16string_view EntityOf(char16_t character, Blanks blanks) {
  switch (character) {
    case u'&':
      return u"&amp;";
    case u' ':
      return blanks == Blanks::Convert ? u"&nbsp;" : u"";
    case u'<':
      return u"&lt;";
    case u'>':
      return u"&gt;";
    case u'"':
      return u"&quot;";
    default:
      return {};
  }
}

// The pieces of the converted text in their order. No replacement holds what a later one looks for, so a
// single pass gives what one replacement after the other over the whole text would give.
template <typename Sink>
void ForEachPiece(std::u16string_view text, Blanks blanks, Sink sink) {
  std::size_t copiedTo = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool atLineEnd = text[i] == u'\r' && text.substr(i, kCrLf.size()) == kCrLf;
    const std::u16string_view replacement = atLineEnd ? kLineBreak : EntityOf(text[i], blanks);
    if (replacement.empty()) continue;
    sink(text.substr(copiedTo, i - copiedTo));
    sink(replacement);
    copiedTo = atLineEnd ? i : i + 1;
  }
  sink(text.substr(copiedTo));
}

template <typename Sink>
void ForEachPieceOfPage(std::u16string_view text, const TextToHtmlOptions& options, Sink sink) {
  const bool framed = options.frame == PageFrame::Whole;
  if (framed) {
    sink(kHead);
    sink(std::u16string_view(options.title));
    sink(kBodyStart);
  }
  ForEachPiece(text, options.blanks, sink);
  if (framed) sink(kTail);
}

// Each line of the source gets its break, whatever ends lines there.
void RecogniseLineEnds(std::u16string& text) {
  const std::u16string kind = ClassCommon::CrLfWinOrMac(text);
  if (kind == u"CR") text = ClassCommon::Rermutation2(text, u"\r", kCrLf, Compare::Binary, 0);
  if (kind == u"LF") text = ClassCommon::Rermutation2(text, u"\n", kCrLf, Compare::Binary, 0);
}

// A name that no file in the folder has, as far as a few draws can give one.
std::u16string DrawTargetName(const ClassCommon& common, std::u16string_view folder) {
  constexpr int kDraws = 100;
  std::u16string name;
  for (int draw = 0; draw < kDraws; ++draw) {
    name = common.GetRandomFileName(u"Html", common.ExeName(), u"htm");
    if (!common.PathExists(common.Join(folder, name))) break;
  }
  return name;
}

std::u16string TemporaryFolderOf(const ClassCommon& common) {
  return common.GetSystemDirectory(static_cast<int>(SystemFolder::Temporary));
}

}  // namespace

std::u16string ConvertTextToHtml(std::u16string_view text, const TextToHtmlOptions& options) {
  std::size_t length = 0;
  ForEachPieceOfPage(text, options, [&length](std::u16string_view piece) { length += piece.size(); });
  std::u16string page;
  page.reserve(length);
  ForEachPieceOfPage(text, options, [&page](std::u16string_view piece) { page += piece; });
  return page;
}

TextToHtml::TextToHtml(Document& document, const ClassCommon& common, MessageBox& boxes)
    : document_(document),
      common_(common),
      boxes_(boxes),
      targetName_(DrawTargetName(common, TemporaryFolderOf(common))) {}

std::u16string TextToHtml::TargetPath() const {
  return common_.Join(TemporaryFolderOf(common_), targetName_);
}

bool TextToHtml::Convert(std::u16string_view sourcePath, const TextToHtmlOptions& options) {
  bool written = false;
  try {
    written = WriteTarget(sourcePath, options);
  } catch (const std::exception&) {
    written = false;  // no memory for a text of this size
  }
  return written || TellFailure();
}

bool TextToHtml::WriteTarget(std::u16string_view sourcePath, const TextToHtmlOptions& options) const {
  const BusyPointer busy(common_.PortSet().window);
  if (TemporaryFolderOf(common_).empty()) return false;
  std::u16string text;
  if (!common_.ReadTextFile(sourcePath, text, -1)) return false;
  RecogniseLineEnds(text);
  const std::u16string page = ConvertTextToHtml(text, options);
  return code_page::RoundTrips(page) && common_.WriteTextFile(TargetPath(), page);
}

bool TextToHtml::OpenTarget() {
  if (document_.OpenDocument(TargetPath(), ReadOnly::No)) return true;
  common_.PortSet().files.Remove(TargetPath());
  return TellFailure();
}

bool TextToHtml::TellFailure() {
  std::u16string text = u"ﾃｷｽﾄのHTML型変換に失敗しました!! ";
  text.append(kCrLf);
  text.append(kCrLf).append(u"・指定したﾌｧｲﾙが見つからない．");
  text.append(kCrLf).append(u"・変換中にｴﾗｰが発生した．");
  text.append(kCrLf).append(u"・一部変換できない部分がありました．");
  text.append(kCrLf).append(u"・ｻｲｽﾞが大きい．『").append(kApplicationTitle).append(u"』では開けません．");
  text.append(kCrLf).append(u"・ﾊﾞｲﾅﾘ型である．");
  boxes_.Ask({.text = text, .caption = u"HTMLに変換して開く", .icon = MessageIcon::Exclamation});
  return false;
}

}  // namespace kestri
