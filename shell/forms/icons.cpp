#include "shell/forms/icons.hpp"

#include <QString>

namespace kestri {
namespace {

constexpr std::string_view kOwn = "kestrile-";

QString Latin(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

QIcon CommandIcon(std::string_view name) {
  if (name.empty()) return {};
  if (name.starts_with(kOwn))
    return QIcon(QStringLiteral(":/tools/%1.svg").arg(Latin(name.substr(kOwn.size()))));
  return QIcon::fromTheme(Latin(name));
}

}  // namespace kestri
