#include "ui/plain_text.hpp"

#include <QGlyphRun>
#include <algorithm>
#include <cmath>

#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr int kOverhang = 2;  // glyphs that may reach into the part that shows from either side

// Whether the character is drawn by its own glyph whatever stands beside it: western letters, kana,
// ideographs, symbols. Marks over other letters, selectors, emoji and scripts that join are not.
bool StandsAlone(char16_t unit) {
  if (unit < 0x300) return true;
  if (unit < 0x370) return false;
  if (unit < 0x530) return unit < 0x483 || unit > 0x489;
  if (unit < 0x2010) return false;
  if (unit < 0x20D0) return unit < 0x2028 || (unit > 0x202F && unit < 0x205F) || unit > 0x206F;
  if (unit < 0x3400) {
    return unit > 0x20FF && (unit < 0x302A || unit > 0x302F) && unit != 0x3099 && unit != 0x309A;
  }
  return unit < 0xA000 || (unit >= 0xE000 && unit < 0xFB00) || (unit >= 0xFF00 && unit < 0xFFF0);
}

bool LeavesNoInk(char16_t unit) {
  return unit == u' ' || unit == kIdeographicSpace;
}

}  // namespace

std::unique_ptr<PlainText> PlainText::Of(const QString& text, const TextStyle& style) {
  std::unique_ptr<PlainText> plain(new PlainText(style));
  if (!plain->Set(text, style.tabWidth)) return nullptr;
  return plain;
}

bool PlainText::Set(const QString& text, double tabWidth) {
  const auto size = static_cast<std::size_t>(text.size());
  indexes_.reserve(size);
  places_.reserve(size + 1);
  double x = 0;
  places_.push_back(x);
  for (const QChar character : text) {
    const char16_t unit = character.unicode();
    quint32 index = 0;
    if (unit == u'\t') {
      x = (std::floor(x / tabWidth) + 1) * tabWidth;
    } else {
      const GlyphTable::Glyph* glyph = StandsAlone(unit) ? glyphs_->Find(unit) : nullptr;
      if (glyph == nullptr) return false;
      if (!LeavesNoInk(unit)) index = glyph->index;
      x += glyph->advance;
    }
    indexes_.push_back(index);
    places_.push_back(x);
  }
  return true;
}

double PlainText::XOf(int offset) const {
  return places_[static_cast<std::size_t>(offset)];
}

int PlainText::OffsetLeftOf(double x) const {
  const auto right = std::upper_bound(places_.begin() + 1, places_.end() - 1, x);
  return static_cast<int>(right - places_.begin()) - 1;
}

int PlainText::OffsetAt(double x) const {
  if (indexes_.empty()) return 0;
  const int left = OffsetLeftOf(x);
  return x - XOf(left) <= XOf(left + 1) - x ? left : left + 1;
}

std::vector<std::pair<double, double>> PlainText::Spans(int begin, int end) const {
  if (begin >= end) return {};
  return {{XOf(begin), XOf(end)}};
}

void PlainText::Draw(QPainter& painter, const TextPaint& paint) const {
  if (indexes_.empty()) return;
  const int size = static_cast<int>(indexes_.size());
  const int begin = std::max(0, OffsetLeftOf(paint.left) - kOverhang);
  const int end = std::min(size, OffsetLeftOf(paint.right) + 1 + kOverhang);
  const int selectionBegin = std::clamp(paint.selectionBegin, begin, end);
  const int selectionEnd = std::clamp(paint.selectionEnd, selectionBegin, end);
  const QPointF baseline = paint.origin + QPointF(0, baseline_);
  DrawGlyphs(painter, baseline, begin, selectionBegin, paint.fore);
  DrawGlyphs(painter, baseline, selectionBegin, selectionEnd, paint.selectionFore);
  DrawGlyphs(painter, baseline, selectionEnd, end, paint.fore);
}

void PlainText::DrawGlyphs(QPainter& painter, QPointF baseline, int begin, int end,
                           const QColor& color) const {
  std::vector<quint32> indexes;
  std::vector<QPointF> places;
  for (auto i = static_cast<std::size_t>(begin); i < static_cast<std::size_t>(end); ++i) {
    if (indexes_[i] == 0) continue;
    indexes.push_back(indexes_[i]);
    places.emplace_back(places_[i], 0);
  }
  if (indexes.empty()) return;
  QGlyphRun run;
  run.setRawFont(glyphs_->Font());
  run.setRawData(indexes.data(), places.data(), static_cast<int>(indexes.size()));
  painter.setPen(color);
  painter.drawGlyphRun(baseline, run);
}

}  // namespace kestri
