#include "platform/qt/japanese_labels.hpp"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include "platform/qt/japanese_words.hpp"

namespace kestri {

void InstallJapaneseLabels() {
  QCoreApplication* application = QCoreApplication::instance();
  const auto name = QStringLiteral("qtbase_ja");
  if (application->findChild<QTranslator*>(name) != nullptr) return;
  QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
  auto* translator = new QTranslator(application);
  translator->setObjectName(name);
  if (translator->load(name, QCoreApplication::applicationDirPath() + QStringLiteral("/lib")) ||
      translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(translator);
  }
  QCoreApplication::installTranslator(new JapaneseWords(application));
}

}  // namespace kestri
