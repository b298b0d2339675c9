#include "tags/forms/screen_fonts.hpp"

#include <QFontDatabase>

#include "platform/qt/qt_text.hpp"

namespace kestri {

std::vector<std::u16string> NamesWithoutFoundry(const QStringList& families) {
  QStringList names;
  for (const QString& family : families) names += family.section(QStringLiteral(" ["), 0, 0);
  names.removeDuplicates();
  std::vector<std::u16string> result;
  for (const QString& name : names) result.push_back(FromQt(name));
  return result;
}

std::vector<std::u16string> ScreenFontFamilies() {
  QStringList shown;
  for (const QString& family : QFontDatabase::families()) {
    if (!QFontDatabase::isPrivateFamily(family)) shown += family;
  }
  return NamesWithoutFoundry(shown);
}

}  // namespace kestri
