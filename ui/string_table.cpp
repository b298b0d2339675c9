#include "ui/string_table.hpp"

#include <QFile>

#include "platform/qt/qt_text.hpp"

namespace kestri {

StringTable::StringTable(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QString text = QString::fromUtf8(file.readAll());
  for (const QStringView line : QStringView(text).split(u'\n')) TakeLine(line);
}

void StringTable::TakeLine(QStringView line) {
  const qsizetype tab = line.indexOf(u'\t');
  bool isNumber = false;
  const int id = tab > 0 ? line.first(tab).toInt(&isNumber) : 0;
  if (!isNumber) return;
  const QStringView text = line.sliced(tab + 1);
  texts_.emplace(id, FromQt(text.endsWith(u'\r') ? text.chopped(1) : text));
}

const std::u16string& StringTable::Text(int id) const {
  const auto found = texts_.find(id);
  return found == texts_.end() ? none_ : found->second;
}

}  // namespace kestri
