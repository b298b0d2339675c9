#include "shell/startup/forms/toolkit_setup.hpp"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLocale>
#include <csignal>

#include "ui/editor_style.hpp"

namespace kestri {

void PrepareEnvironment() {
  qputenv("QT_XCB_GL_INTEGRATION", "none");
  std::signal(SIGXFSZ, SIG_IGN);
}

void PrepareLook() {
  QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
  QApplication::setStyle(new EditorStyle);
  const QString gothic = QStringLiteral("IPAGothic");
  const QString proportional = QStringLiteral("Monapo");
  for (const char16_t* name : {u"ＭＳ ゴシック", u"MS Gothic", u"FixedSys", u"ＭＳ 明朝", u"MS Mincho"}) {
    QFont::insertSubstitution(QString::fromUtf16(name), gothic);
  }
  for (const char16_t* name : {u"ＭＳ Ｐゴシック", u"MS PGothic", u"ＭＳ Ｐ明朝", u"MS PMincho"}) {
    QFont::insertSubstitution(QString::fromUtf16(name), proportional);
  }
  const QString ownIcons = QStringLiteral("Tango");
  QIcon::setFallbackThemeName(ownIcons);
  if (QIcon::themeName().isEmpty() || QIcon::themeName() == QLatin1String("hicolor"))
    QIcon::setThemeName(ownIcons);
}

}  // namespace kestri
