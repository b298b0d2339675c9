// Writes a picture of every window and dialog in one palette and one scale, and tells the faults of their
// layouts.
//
//   gallery FOLDER light|dark 100|200      into FOLDER/light-100 and so on; ends with 1 when there is a fault
#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

#include "shell/startup/forms/toolkit_setup.hpp"
#include "tests/gallery/windows.hpp"

namespace {

QPalette DarkPalette() {
  const QColor window(0x31, 0x36, 0x3b), base(0x1b, 0x1e, 0x20), text(0xef, 0xf0, 0xf1),
      faded(0x7f, 0x8c, 0x8d);
  QPalette palette(text, window, window.lighter(140), base.darker(120), window.lighter(120), text, Qt::white,
                   base, window);
  palette.setColor(QPalette::AlternateBase, window);
  palette.setColor(QPalette::ToolTipBase, window);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::PlaceholderText, faded);
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
  palette.setColor(QPalette::HighlightedText, base);
  palette.setColor(QPalette::Link, QColor(0x1d, 0x99, 0xf3));
  for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faded);
  return palette;
}

// One screen that holds every window at either scale.
QByteArray PlatformWithLargeScreen(const QTemporaryDir& folder, int percent) {
  QFile file(folder.filePath(QStringLiteral("screen.json")));
  if (!file.open(QIODevice::WriteOnly)) return "offscreen";
  file.write(QByteArray(R"({"screens": [{"name": "gallery", "x": 0, "y": 0, "width": )")
                 .append(QByteArray::number(1920 * percent / 100))
                 .append(R"(, "height": )")
                 .append(QByteArray::number(1200 * percent / 100))
                 .append(R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})"));
  return "offscreen:configfile=" + file.fileName().toUtf8();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const QString palette = QString::fromLocal8Bit(argv[2]);
  const int percent = std::atoi(argv[3]);
  const QTemporaryDir settings;
  qputenv("QT_LOGGING_RULES", "default.warning=false");  // what the offscreen platform cannot do
  qputenv("QT_QPA_PLATFORM", PlatformWithLargeScreen(settings, percent));
  qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0));
  kestri::PrepareEnvironment();
  QApplication application(argc, argv);
  // The offscreen platform knows no icon folders.
  QIcon::setThemeSearchPaths(QStandardPaths::locateAll(
      QStandardPaths::GenericDataLocation, QStringLiteral("icons"), QStandardPaths::LocateDirectory));
  kestri::PrepareLook();
  if (palette == QLatin1String("dark")) QApplication::setPalette(DarkPalette());

  const QString folder =
      QStringLiteral("%1/%2-%3").arg(QString::fromLocal8Bit(argv[1]), palette).arg(percent);
  kestri::gallery::Gallery gallery(folder, percent / 100.0);
  kestri::gallery::TakeEditor(gallery);
  kestri::gallery::TakeDialogs(gallery);
  kestri::gallery::TakeCommonDialogs(gallery);
  for (const QString& fault : gallery.Faults()) std::printf("%s\n", qPrintable(fault));
  std::printf("%s: %d pictures, %lld faults\n", qPrintable(folder), gallery.Pictures(),
              static_cast<long long>(gallery.Faults().size()));
  return gallery.Faults().isEmpty() ? 0 : 1;
}
