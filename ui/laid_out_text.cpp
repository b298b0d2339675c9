#include "ui/laid_out_text.hpp"

#include "ui/plain_text.hpp"
#include "ui/shaped_text.hpp"

namespace kestri {

std::unique_ptr<LaidOutText> LayOutText(const QString& text, const QList<QTextLayout::FormatRange>& formats,
                                        const TextStyle& style) {
  if (formats.isEmpty()) {
    if (auto plain = PlainText::Of(text, style)) return plain;
  }
  return std::make_unique<ShapedText>(text, formats, style);
}

}  // namespace kestri
