// Pictures of the desktop's theme by name, each loaded once, when it is first shown.
#pragma once

#include <QHash>
#include <QIcon>
#include <string_view>

namespace kestri {

class SharedIcons {
 public:
  // A name that the theme lacks gives the toolkit's own picture of it, or a null icon.
  QIcon Named(std::u16string_view name);
  QIcon PageFor(const QString& extension);  // a sheet of paper with the extension on it

 private:
  QHash<QString, QIcon> named_;
  QHash<QString, QIcon> pages_;
};

}  // namespace kestri
