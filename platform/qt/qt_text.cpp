#include "platform/qt/qt_text.hpp"

#include <QFile>

#include "shell/common/text.hpp"

namespace kestri {

QString ToQtPath(std::u16string_view path) {
  const std::string native = ToUtf8(path);
  return QFile::decodeName(QByteArray(native.data(), static_cast<qsizetype>(native.size())));
}

std::u16string FromQtPath(const QString& path) {
  const QByteArray native = QFile::encodeName(path);
  return FromUtf8(std::string_view(native.constData(), static_cast<std::size_t>(native.size())));
}

}  // namespace kestri
