#include "search/document_reports.hpp"

#include <algorithm>
#include <cstddef>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr int kStatePane = 2;

// No copy of the document: the selection may be all of it.
std::size_t BytesOf(const EditControl& control, Position begin, Position length) {
  const auto start = static_cast<std::size_t>(begin);
  const auto end = start + static_cast<std::size_t>(length);
  const std::u16string_view first = control.FirstPiece();
  const std::u16string_view second = control.SecondPiece();
  std::size_t bytes = 0;
  if (start < first.size()) bytes += code_page::EncodedLength(first.substr(start, end - start));
  if (end > first.size()) {
    const std::size_t from = std::max(start, first.size()) - first.size();
    bytes += code_page::EncodedLength(second.substr(from, end - first.size() - from));
  }
  return bytes;
}

}  // namespace

void ShowTotalIndex(EditControl& control, DocumentWindow& window) {
  control.SetSelLength(0);
  window.SetStatusPane(
      kStatePane, ToText(control.SelStart()) + u"(ｲﾝﾃﾞｯｸｽ) / " + ToText(control.Length()) + u"(総ｲﾝﾃﾞｯｸｽ)");
}

void ShowTotalBytes(const EditControl& control, DocumentWindow& window) {
  const bool selected = control.SelLength() > 0;
  const auto bytes = static_cast<double>(selected ? BytesOf(control, control.SelStart(), control.SelLength())
                                                  : BytesOf(control, 0, control.Length()));
  std::u16string text = selected ? u"ｾﾙのﾃｷｽﾄｻｲｽﾞは " : u"現在のﾃｷｽﾄの総ｻｲｽﾞは ";
  text.append(FormatThousands(bytes / 1000, 2)).append(u"ｷﾛﾊﾞｲﾄ (");
  text.append(FormatThousands(bytes, 0)).append(u"ﾊﾞｲﾄ) です");
  window.SetStatusPane(kStatePane, text);
}

}  // namespace kestri
