#include "ui/glyph_table.hpp"

#include <QChar>

namespace kestri {

const GlyphTable::Glyph* GlyphTable::Find(char16_t unit) {
  std::unique_ptr<Page>& page = pages_[unit / kPageSize];
  if (!page) page = std::make_unique<Page>();
  Entry& entry = (*page)[unit % kPageSize];
  if (!entry.known) entry = {LookUp(unit), true};
  return entry.glyph.index == 0 ? nullptr : &entry.glyph;
}

GlyphTable::Glyph GlyphTable::LookUp(char16_t unit) const {
  const QChar character(unit);
  Glyph glyph;
  int count = 1;
  if (!font_.glyphIndexesForChars(&character, 1, &glyph.index, &count) || count != 1) return {};
  QPointF advance;
  if (!font_.advancesForGlyphIndexes(&glyph.index, &advance, 1)) return {};
  glyph.advance = advance.x();
  return glyph;
}

}  // namespace kestri
