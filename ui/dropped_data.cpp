#include "ui/dropped_data.hpp"

#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

QStringList LocalPaths(const QMimeData& data) {
  QStringList paths;
  for (const QUrl& url : data.urls()) {
    if (url.isLocalFile()) paths << url.toLocalFile();
  }
  return paths;
}

// The lines of an offered text; some programs end it with a NUL.
QStringList LinesOf(QString text) {
  return text.remove(QChar::Null).remove(QLatin1Char('\r')).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool NamesOnly(const QStringList& paths, const QString& text) {
  const QStringList lines = LinesOf(text);
  return std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
    return paths.contains(line) || paths.contains(QUrl(line).toLocalFile());
  });
}

}  // namespace

DroppedKind KindOf(const QMimeData& data) {
  const QStringList paths = LocalPaths(data);
  if (!paths.isEmpty() && NamesOnly(paths, data.text())) return DroppedKind::Files;
  return data.hasText() ? DroppedKind::Text : DroppedKind::Other;
}

std::vector<std::u16string> LocalFiles(const QMimeData& data) {
  std::vector<std::u16string> files;
  for (const QString& path : LocalPaths(data)) files.push_back(FromQt(path));
  return files;
}

QString DesktopText(std::u16string_view text) {
  return WithLf(text);
}

}  // namespace kestri
