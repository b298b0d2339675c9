// Between the system's strings and the toolkit's: one copy each way, no conversion.
#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace kestri {

inline QString ToQt(std::u16string_view text) {
  return QString(reinterpret_cast<const QChar*>(text.data()), static_cast<qsizetype>(text.size()));
}

inline std::u16string FromQt(QStringView text) {
  return std::u16string(text.utf16(), static_cast<std::size_t>(text.size()));
}

// As other programs of the desktop expect it: each CR LF becomes LF. One pass.
QString WithLf(std::u16string_view text);

// A path as the toolkit's file classes take it: escaped bytes become the native name.
QString ToQtPath(std::u16string_view path);
std::u16string FromQtPath(const QString& path);

}  // namespace kestri
