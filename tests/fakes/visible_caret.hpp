// Texts in tests show their caret: "a‸b", or their selection: "a⟦bc⟧d". With a selection, the caret stands at
// its end unless a caret follows the opening bracket: "a⟦‸bc⟧d". A line feed in the row means CR LF.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "document/edit_control/edit_control.hpp"

namespace kestri::fakes {

inline constexpr char16_t kCaretMark = u'‸';
inline constexpr char16_t kSelectionOpens = u'⟦';
inline constexpr char16_t kSelectionCloses = u'⟧';

struct MarkedText {
  std::u16string text;
  Position anchor = 0;
  Position caret = 0;
};

// Without a mark the caret is at the text's end.
inline MarkedText ParseMarked(std::u16string_view row) {
  MarkedText result;
  Position opens = -1, closes = -1, caret = -1;
  for (const char16_t unit : row) {
    const auto here = static_cast<Position>(result.text.size());
    if (unit == kCaretMark) {
      caret = here;
    } else if (unit == kSelectionOpens) {
      opens = here;
    } else if (unit == kSelectionCloses) {
      closes = here;
    } else if (unit == u'\n') {
      result.text += u"\r\n";
    } else {
      result.text += unit;
    }
  }
  const auto end = static_cast<Position>(result.text.size());
  if (opens < 0 || closes < 0) {
    result.anchor = result.caret = caret < 0 ? end : caret;
  } else {
    result.caret = caret == opens ? opens : closes;
    result.anchor = opens + closes - result.caret;
  }
  return result;
}

inline std::u16string FormatMarked(std::u16string_view text, Position anchor, Position caret) {
  std::u16string row;
  const auto markAt = [&](Position here) {
    if (anchor == caret) {
      if (here == caret) row += kCaretMark;
      return;
    }
    if (here == std::max(anchor, caret)) row += kSelectionCloses;
    if (here == std::min(anchor, caret)) row += kSelectionOpens;
    if (here == caret && caret < anchor) row += kCaretMark;
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    markAt(static_cast<Position>(i));
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
    row += text[i];
  }
  markAt(static_cast<Position>(text.size()));
  return row;
}

inline void SetMarked(EditControl& control, std::u16string_view row) {
  MarkedText marked = ParseMarked(row);
  control.SetText(std::move(marked.text));
  control.MoveCaret(marked.anchor, EditControl::Extend::No);
  control.MoveCaret(marked.caret, EditControl::Extend::Yes);
}

inline std::u16string Marked(const EditControl& control) {
  return FormatMarked(control.Text(), control.Anchor(), control.Caret());
}

}  // namespace kestri::fakes
