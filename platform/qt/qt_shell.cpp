#include "platform/qt/qt_shell.hpp"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include "platform/qt/qt_text.hpp"
#include "platform/qt/recent_documents.hpp"

namespace kestri {
namespace {

bool AskFileManager(const char* method, const QString& path) {
  const QString uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
  return QProcess::startDetached(
      QStringLiteral("dbus-send"),
      {QStringLiteral("--session"), QStringLiteral("--dest=org.freedesktop.FileManager1"),
       QStringLiteral("--type=method_call"), QStringLiteral("/org/freedesktop/FileManager1"),
       QStringLiteral("org.freedesktop.FileManager1.") + QLatin1String(method),
       QStringLiteral("array:string:") + uri, QStringLiteral("string:")});
}

// The program of a .desktop file: the first word of its Exec line.
QString ProgramOfDesktopEntry(const QString& name) {
  const QString file = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, name);
  QFile entry(file);
  if (file.isEmpty() || !entry.open(QIODevice::ReadOnly)) return {};
  while (!entry.atEnd()) {
    const QString line = QString::fromUtf8(entry.readLine()).trimmed();
    if (!line.startsWith(QLatin1String("Exec="))) continue;
    const QStringList words = QProcess::splitCommand(line.mid(5));
    return words.isEmpty() ? QString() : QStandardPaths::findExecutable(words.constFirst());
  }
  return {};
}

QString DesktopChoice(const QString& mimeType) {
  QProcess query;
  query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"), mimeType});
  if (!query.waitForFinished(2000)) return {};
  const QString entry = QString::fromUtf8(query.readAllStandardOutput()).trimmed();
  return entry.isEmpty() ? QString() : ProgramOfDesktopEntry(entry);
}

QString FirstOnPath(const QStringList& names) {
  for (const QString& name : names) {
    const QString program = QStandardPaths::findExecutable(name);
    if (!program.isEmpty()) return program;
  }
  return {};
}

QStringList WellKnownPrograms(const QString& mimeType) {
  if (mimeType.startsWith(QLatin1String("image/"))) {
    return {"kolourpaint", "mtpaint", "drawing", "pinta", "gimp"};
  }
  return {"libreoffice", "abiword", "gnome-text-editor", "gedit", "kwrite", "mousepad", "xed"};
}

}  // namespace

bool QtShell::Open(std::u16string_view path, std::u16string_view parameters) {
  if (!parameters.empty()) return StartProgram(path, parameters);
  return QProcess::startDetached(QStringLiteral("xdg-open"), {ToQtPath(path)});
}

bool QtShell::Explore(std::u16string_view folder) {
  return QProcess::startDetached(QStringLiteral("xdg-open"), {ToQtPath(folder)});
}

bool QtShell::Properties(std::u16string_view path) {
  return AskFileManager("ShowItemProperties", ToQtPath(path));
}

std::u16string QtShell::TypeName(std::u16string_view path) {
  return FromQt(QMimeDatabase().mimeTypeForFile(ToQtPath(path)).comment());
}

std::u16string QtShell::IconName(std::u16string_view path) {
  const QFileInfo file(ToQtPath(path));
  const auto mode = QMimeDatabase::MatchExtension;
  return FromQt(file.isDir() ? QStringLiteral("folder")
                             : QMimeDatabase().mimeTypeForFile(file, mode).iconName());
}

void QtShell::AddToRecentDocuments(std::u16string_view path) {
  RegisterRecentDocument(ToQtPath(path));
}

std::u16string QtShell::ProgramForMimeType(std::string_view mimeType) {
  const QString type = QString::fromUtf8(mimeType.data(), static_cast<qsizetype>(mimeType.size()));
  const QString chosen = DesktopChoice(type);
  return FromQtPath(chosen.isEmpty() ? FirstOnPath(WellKnownPrograms(type)) : chosen);
}

bool QtShell::StartProgram(std::u16string_view program, std::u16string_view argument) {
  // A quoted argument is one argument; the quotes are the command line's, not the program's.
  const bool quoted = argument.size() >= 2 && argument.front() == u'"' && argument.back() == u'"';
  const std::u16string_view bare = quoted ? argument.substr(1, argument.size() - 2) : argument;
  QStringList arguments;
  if (!bare.empty()) arguments << ToQtPath(bare);
  return QProcess::startDetached(ToQtPath(program), arguments);
}

bool QtShell::StartCommandLine(std::u16string_view commandLine) {
  QStringList words = QProcess::splitCommand(ToQtPath(commandLine));
  if (words.isEmpty()) return false;
  const QString program = words.takeFirst();
  return QProcess::startDetached(program, words);
}

}  // namespace kestri
