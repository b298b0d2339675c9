// The locator against its rule written out literally on the whole text.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tags/tag_locator.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

void Need(bool holds) {
  if (!holds) std::abort();
}

struct Literal {
  bool found = false;
  std::u16string text;
  int openBefore = 0;
  int length = 0;
};

Literal FindLiterally(const std::u16string& text, int caret, std::u16string_view open,
                      std::u16string_view close, Compare compare) {
  if (caret == 0) return {};
  const int openBefore = InStrRev(text, open, caret, compare);
  const int closeBefore = InStrRev(text, close, caret, compare);
  if (openBefore <= closeBefore) return {};
  const int closeAfter = InStr(caret + 1, text, close, compare);
  const int openAfter = InStr(caret + 1, text, open, compare);
  if (closeAfter >= openAfter && (closeAfter < 1 || openAfter != 0)) return {};
  const int length = closeAfter - openBefore - 1;
  if (length < 0) return {};
  return {true, Replace(Mid(text, openBefore + 1, length), kCrLf, u" ", -1, compare), openBefore, length};
}

int KindLiterally(const Literal& span, const std::u16string& selected) {
  if (!span.found) return InStrRev(selected, u"<") > InStrRev(selected, u">") ? -4 : 0;
  const std::u16string_view first = Left(Trim(span.text), 1);
  return first == u"/" ? -2 : first == u"!" ? -3 : -1;
}

void CompareSpans(EditControl& control, std::u16string_view open, std::u16string_view close,
                  Compare compare) {
  const Position start = control.SelStart();
  const Position length = control.SelLength();
  const Literal expected = FindLiterally(control.Text(), start, open, close, compare);
  std::u16string inside;
  Need(FindCaretSpan(control, kLookOnly, inside, open, close, compare) == expected.found);
  Need(inside == expected.text);
  Need(control.SelStart() == start && control.SelLength() == length);
  Need(FindCaretSpan(control, kSelectSpan, inside, open, close, compare) == expected.found);
  if (expected.found) {
    Need(control.SelStart() == expected.openBefore && control.SelLength() == expected.length);
  }
  control.SetSelStart(start);
  control.SetSelLength(length);
}

// Letters that matter to the rules, so that short inputs already meet them.
char16_t Letter(std::uint8_t byte) {
  constexpr std::u16string_view kLetters = u"<>/! \t\"=a漢＜＞\u3000";
  return kLetters[byte % kLetters.size()];
}

std::u16string TextOf(const std::uint8_t* data, std::size_t size) {
  std::u16string text;
  for (std::size_t i = 0; i < size; ++i) {
    if (data[i] % 16 == 15) {
      text += kCrLf;
    } else if (data[i] == 14) {
      text += std::u16string(100, u'x');  // over the block of the scan
    } else {
      text += Letter(data[i] % 16);
    }
  }
  return text;
}

void Check(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return;
  fakes::FakeClipboard clipboard;
  EditControl control(clipboard);
  control.SetText(TextOf(data + 3, size - 3));
  control.SetSelStart(control.Length() * data[0] / 255);
  if (data[2] % 2 == 1) {  // a gap somewhere
    control.EM_REPLACESEL(true, u"<");
    control.SetSelStart(control.Length() * data[1] / 255);
  }
  control.SetSelLength(data[2] / 8);
  const std::u16string selected = control.SelText();
  const Literal span = FindLiterally(control.Text(), control.SelStart(), u"<", u">", Compare::Binary);
  Need(static_cast<int>(CaretTagKind(control, kLookOnly, Compare::Binary)) == KindLiterally(span, selected));
  CompareSpans(control, u"<", u">", Compare::Binary);
  CompareSpans(control, u"<", u">", Compare::Text);
  CompareSpans(control, u"<!", u"/>", Compare::Binary);
  CompareSpans(control, u"\"", u"\"", Compare::Binary);
}

}  // namespace
}  // namespace kestri

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestri::Check(data, size);
  return 0;
}
