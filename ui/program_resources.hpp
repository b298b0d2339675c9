// Pictures and texts that are built into the program, by their numbers.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>
#include <QVariant>
#include <optional>
#include <string>

#include "shell/common/class_common.hpp"
#include "ui/string_table.hpp"

namespace kestri {

class ProgramResources {
 public:
  enum Kind : int { kBitmap = 0, kIcon = 1, kCursor = 2, kJpeg = 3 };

  // root: the folder with "pictures/<id>", "JPEG/<id>" and "strings.txt", with a separator behind. Cheap:
  // nothing is read before it is asked for.
  explicit ProgramResources(const ClassCommon& common, QString root = QStringLiteral(":/"))
      : common_(common), root_(std::move(root)) {}

  // A QPixmap for the kinds above, invalid when there is no such picture or it cannot be loaded; a QString
  // for any other kind, empty for an unknown id.
  QVariant ReadResource(int id, int kind);

  QPixmap LoadPicture(int id) const;  // null when there is none
  // A "JPEG" passes through the file that SameFileName gives for "TopTitle" and "dat" in the temporary
  // folder, which is gone again at the return, whether the picture could be loaded or not. size: to be read
  // in; empty: its own.
  QImage LoadJpeg(int id, QSize size = {}) const;  // null when it cannot be loaded
  // Out of strings.txt, which is read once.
  const std::u16string& LoadString(int id);  // empty for an unknown id

 private:
  std::optional<std::u16string> WriteTemporary(const QByteArray& bytes) const;

  const ClassCommon& common_;
  QString root_;
  std::optional<StringTable> strings_;
};

}  // namespace kestri
