#include "tags/tag_locator.hpp"

#include <optional>

#include "tags/delimiter_scan.hpp"

namespace kestri {
namespace {

// One-based indices of the delimiters around the caret.
struct TagSpan {
  Position openBefore = 0;
  Position closeAfter = 0;

  Position InnerLength() const { return closeAfter - openBefore - 1; }
};

bool IsOneUnit(std::u16string_view open, std::u16string_view close, Compare compare) {
  return open.size() == 1 && close.size() == 1 && compare == Compare::Binary;
}

// Only the nearest delimiter on either side decides, so one scan outwards stops at the first hit of either.
std::optional<TagSpan> NearestSpan(const EditControl& control, char16_t open, char16_t close) {
  const Position caret = control.SelStart();
  const Position before = LastOfEither(control, open, close, caret);
  if (before < 0 || control.At(before) == close) return std::nullopt;
  const Position after = FirstOfEither(control, open, close, caret);
  if (after < 0 || control.At(after) == open) return std::nullopt;
  return TagSpan{before + 1, after + 1};
}

// One-based, 0 for not found, as the rule states them.
std::optional<TagSpan> SearchedSpan(const EditControl& control, std::u16string_view open,
                                    std::u16string_view close, Compare compare) {
  const Position caret = control.SelStart();
  const Position openBefore = control.FindLast(open, caret, compare) + 1;
  const Position closeBefore = control.FindLast(close, caret, compare) + 1;
  if (openBefore <= closeBefore) return std::nullopt;
  const Position closeAfter = control.Find(close, caret, compare) + 1;
  const Position openAfter = control.Find(open, caret, compare) + 1;
  if (closeAfter >= openAfter && (closeAfter < 1 || openAfter != 0)) return std::nullopt;
  if (closeAfter < 1) return std::nullopt;  // a further opening delimiter alone gives no text either
  return TagSpan{openBefore, closeAfter};
}

std::optional<TagSpan> FindSpan(const EditControl& control, std::u16string_view open,
                                std::u16string_view close, Compare compare) {
  if (control.SelStart() == 0 || open.empty() || close.empty()) return std::nullopt;
  if (IsOneUnit(open, close, compare)) return NearestSpan(control, open[0], close[0]);
  return SearchedSpan(control, open, close, compare);
}

void SelectInside(EditControl& control, std::int16_t mode, const TagSpan& span) {
  if (mode == kLookOnly) return;
  control.SetSelStart(span.openBefore);
  control.SetSelLength(span.InnerLength());
}

CaretKind KindOfInside(const EditControl& control, const TagSpan& span) {
  const Position end = span.closeAfter - 1;
  for (Position at = span.openBefore; at < end; ++at) {
    const char16_t c = control.At(at);
    if (c == u' ') continue;
    if (c == u'\r' && at + 1 < end && control.At(at + 1) == u'\n') {
      ++at;
      continue;
    }
    if (c == u'/') return CaretKind::ClosingTag;
    return c == u'!' ? CaretKind::Declaration : CaretKind::OpeningTag;
  }
  return CaretKind::OpeningTag;
}

// The last delimiter of the selection decides.
CaretKind KindOfSelection(const EditControl& control, Compare compare) {
  if (control.SelLength() == 0) return CaretKind::Outside;
  const Position start = control.SelStart();
  const Position end = start + control.SelLength();
  if (compare == Compare::Binary) {
    const Position last = LastOfEither(control, u'<', u'>', end, start);
    return last >= 0 && control.At(last) == u'<' ? CaretKind::SelectionStraddles : CaretKind::Outside;
  }
  const std::u16string selected = control.SelText();
  const bool straddles = InStrRev(selected, u"<", -1, compare) > InStrRev(selected, u">", -1, compare);
  return straddles ? CaretKind::SelectionStraddles : CaretKind::Outside;
}

bool Equals(std::u16string_view left, std::u16string_view right, Compare compare) {
  return StrComp(left, right, compare) == 0;
}

}  // namespace

bool FindCaretSpan(EditControl& control, std::int16_t mode, std::u16string& outText, std::u16string_view open,
                   std::u16string_view close, Compare compare) {
  outText.clear();
  const auto span = FindSpan(control, open, close, compare);
  if (!span) return false;
  SelectInside(control, mode, *span);
  outText = Replace(control.Slice(span->openBefore, span->InnerLength()), kCrLf, u" ", -1, compare);
  return true;
}

CaretKind CaretTagKind(EditControl& control, std::int16_t mode, Compare compare) {
  const auto span = FindSpan(control, u"<", u">", compare);
  if (!span) return KindOfSelection(control, compare);
  SelectInside(control, mode, *span);
  return KindOfInside(control, *span);
}

std::u16string TagNameOf(std::u16string_view tagText, Compare compare) {
  const std::u16string oneLine = Replace(tagText, kCrLf, u" ", -1, compare);
  std::u16string_view text = Trim(oneLine);
  if (Equals(Left(text, 1), u"<", compare)) text.remove_prefix(1);
  if (Equals(Right(text, 1), u">", compare)) text.remove_suffix(1);
  text = Trim(text);
  const int blank = InStr(1, text, u" ", compare);
  return std::u16string(blank == 0 ? text : Left(text, blank - 1));
}

}  // namespace kestri
