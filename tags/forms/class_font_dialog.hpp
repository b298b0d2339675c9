// ClassFontDialog: one question for a font, answered in its properties.
#pragma once

#include <QPointer>
#include <cstdint>
#include <string>
#include <string_view>

#include "tags/forms/FontFrm.hpp"
#include "tags/forms/screen_fonts.hpp"

namespace kestri {

// The form is made at the first question, which reads the screen's fonts, and stays for the next ones.
class ClassFontDialog {
 public:
  explicit ClassFontDialog(ScreenFonts screenFonts = &ScreenFontFamilies);
  ~ClassFontDialog();
  ClassFontDialog(const ClassFontDialog&) = delete;
  ClassFontDialog& operator=(const ClassFontDialog&) = delete;

  const std::u16string& FontName() const { return choice_.name; }
  void SetFontName(std::u16string_view name) { choice_.name = name; }
  std::int16_t FontSize() const { return choice_.size; }  // points
  void SetFontSize(std::int16_t size) { choice_.size = size; }
  bool FontBold() const { return choice_.bold; }
  void SetFontBold(bool bold) { choice_.bold = bold; }
  bool FontItalic() const { return choice_.italic; }
  void SetFontItalic(bool italic) { choice_.italic = italic; }
  const std::u16string& Caption() const { return caption_; }
  void SetCaption(std::u16string_view caption) { caption_ = caption; }

  // For a use that knows names and sizes only; otherwise bold and italic can be chosen.
  void SetStylesOffered(bool offered) { stylesOffered_ = offered; }

  // True when the user chose: the properties carry the choice, else they stay. The owner's window is active
  // again afterwards.
  bool ShowFont(QWidget* owner);

 private:
  ScreenFonts screenFonts_;
  FontChoice choice_;
  std::u16string caption_ = u"ﾌｫﾝﾄの選択";
  bool stylesOffered_ = true;
  QPointer<FontFrm> form_;
};

}  // namespace kestri
