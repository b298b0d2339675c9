#include "platform/qt/qt_text.hpp"

#include <QFile>
#include <algorithm>

#include "shell/common/text.hpp"
#include "shell/common/unit_search.hpp"

namespace kestri {

QString WithLf(std::u16string_view text) {
  QString result;
  result.reserve(static_cast<qsizetype>(text.size()));
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(unit_search::Find(text, u"\r\n", from), text.size());
    result.append(ToQt(text.substr(from, end - from)));
    if (end == text.size()) break;
    result.append(u'\n');
    from = end + 2;
  }
  return result;
}

QString ToQtPath(std::u16string_view path) {
  const std::string native = ToUtf8(path);
  return QFile::decodeName(QByteArray(native.data(), static_cast<qsizetype>(native.size())));
}

std::u16string FromQtPath(const QString& path) {
  const QByteArray native = QFile::encodeName(path);
  return FromUtf8(std::string_view(native.constData(), static_cast<std::size_t>(native.size())));
}

}  // namespace kestri
