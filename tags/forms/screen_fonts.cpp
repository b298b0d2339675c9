#include "tags/forms/screen_fonts.hpp"

#include <QFontDatabase>
#include <QStringList>

#include "platform/qt/qt_text.hpp"

namespace kestri {

std::vector<std::u16string> ScreenFontFamilies() {
  std::vector<std::u16string> names;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) names.push_back(FromQt(family));
  }
  return names;
}

}  // namespace kestri
