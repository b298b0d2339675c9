#include "ui/program_resources.hpp"

#include <QFile>
#include <QImageReader>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

// The name can be taken by a sibling that starts at the same moment.
constexpr int kMostTries = 10;

}  // namespace

QVariant ProgramResources::ReadResource(int id, int kind) {
  if (kind < kBitmap || kind > kJpeg) return ToQt(LoadString(id));
  const QPixmap picture = kind == kJpeg ? QPixmap::fromImage(LoadJpeg(id)) : LoadPicture(id);
  return picture.isNull() ? QVariant() : QVariant(picture);
}

QPixmap ProgramResources::LoadPicture(int id) const {
  return QPixmap(root_ + QStringLiteral("pictures/%1").arg(id));
}

QImage ProgramResources::LoadJpeg(int id, QSize size) const {
  QFile resource(root_ + QStringLiteral("JPEG/%1").arg(id));
  if (!resource.open(QIODevice::ReadOnly)) return {};
  const auto path = WriteTemporary(resource.readAll());
  if (!path) return {};
  QImageReader reader(ToQtPath(*path), "jpeg");
  if (!size.isEmpty()) reader.setScaledSize(size);
  const QImage picture = reader.read();
  common_.KillFile(*path);
  return picture;
}

// NewOnly: whatever stands under the name already, a link for instance, is neither followed nor overwritten.
std::optional<std::u16string> ProgramResources::WriteTemporary(const QByteArray& bytes) const {
  const std::u16string folder = common_.GetSystemDirectory(static_cast<int>(SystemFolder::Temporary));
  for (int i = 0; i < kMostTries; ++i) {
    const std::u16string path = common_.SameFileName(folder, u"TopTitle", u"dat");
    QFile file(ToQtPath(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) continue;
    const bool written = file.write(bytes) == bytes.size() && file.flush();
    file.close();
    if (written) return path;
    common_.KillFile(path);
    return std::nullopt;
  }
  return std::nullopt;
}

const std::u16string& ProgramResources::LoadString(int id) {
  if (!strings_) strings_.emplace(root_ + QStringLiteral("strings.txt"));
  return strings_->Text(id);
}

}  // namespace kestri
