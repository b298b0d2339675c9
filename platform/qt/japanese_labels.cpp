#include "platform/qt/japanese_labels.hpp"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace kestri {

void InstallJapaneseLabels() {
  QCoreApplication* application = QCoreApplication::instance();
  const auto name = QStringLiteral("qtbase_ja");
  if (application->findChild<QTranslator*>(name) != nullptr) return;
  auto* translator = new QTranslator(application);
  translator->setObjectName(name);
  if (translator->load(name, QCoreApplication::applicationDirPath() + QStringLiteral("/lib")) ||
      translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
}

}  // namespace kestri
