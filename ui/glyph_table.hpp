// The glyphs of one font, each looked up once.
#pragma once

#include <QFont>
#include <QRawFont>
#include <array>
#include <memory>

namespace kestri {

class GlyphTable {
 public:
  explicit GlyphTable(const QFont& font) : font_(QRawFont::fromFont(font)) {}

  struct Glyph {
    quint32 index = 0;
    double advance = 0;  // pixels
  };
  // Null where the font itself has none and another one would stand in.
  const Glyph* Find(char16_t unit);
  const QRawFont& Font() const { return font_; }

 private:
  struct Entry {
    Glyph glyph;
    bool known = false;
  };
  static constexpr int kPageSize = 256;
  using Page = std::array<Entry, kPageSize>;

  Glyph LookUp(char16_t unit) const;

  QRawFont font_;
  std::array<std::unique_ptr<Page>, 0x10000 / kPageSize> pages_;
};

}  // namespace kestri
