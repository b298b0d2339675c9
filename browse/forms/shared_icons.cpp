#include "browse/forms/shared_icons.hpp"

#include <QApplication>
#include <QStyle>

#include "browse/forms/page_icon.hpp"
#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

QIcon ToolkitIcon(const QString& name) {
  static const QHash<QString, QStyle::StandardPixmap> kPictures = {
      {QStringLiteral("folder"), QStyle::SP_DirClosedIcon},
      {QStringLiteral("folder-open"), QStyle::SP_DirOpenIcon},
      {QStringLiteral("drive-harddisk"), QStyle::SP_DriveHDIcon},
      {QStringLiteral("drive-removable-media"), QStyle::SP_DriveFDIcon},
  };
  const auto found = kPictures.find(name);
  return found == kPictures.end() ? QIcon() : QApplication::style()->standardIcon(*found);
}

}  // namespace

QIcon SharedIcons::Named(std::u16string_view name) {
  const QString text = ToQt(name);
  const auto found = named_.constFind(text);
  if (found != named_.constEnd()) return *found;
  QIcon icon = QIcon::fromTheme(text);
  if (icon.isNull()) icon = ToolkitIcon(text);
  return *named_.insert(text, icon);
}

QIcon SharedIcons::PageFor(const QString& extension) {
  const auto found = pages_.constFind(extension);
  return found != pages_.constEnd() ? *found : *pages_.insert(extension, PageIcon(extension));
}

}  // namespace kestri
