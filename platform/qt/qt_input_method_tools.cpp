#include "platform/qt/qt_input_method_tools.hpp"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <span>

namespace kestri {
namespace {

struct Program {
  const char* name;
  const char* argument;  // null for none
};

// The dialogs of the conversion engines come before those of the frameworks around them.
constexpr Program kProperties[] = {
    {"mozc_tool", "--mode=config_dialog"},
    {"fcitx5-configtool", nullptr},
    {"fcitx5-config-qt", nullptr},
    {"fcitx-configtool", nullptr},
    {"fcitx-config-gtk3", nullptr},
    {"ibus-setup", nullptr},
    {"uim-pref-gtk3", nullptr},
    {"uim-pref-qt5", nullptr},
    {"im-config", nullptr},
};
constexpr Program kWordRegistration[] = {
    {"mozc_tool", "--mode=word_register_dialog"},
    {"kasumi", "--add"},
    {"uim-dict-gtk3", nullptr},
};
constexpr Program kPads[] = {
    {"mozc_tool", "--mode=hand_writing"}, {"kanjipad", nullptr},
    {"tegaki-recognize", nullptr},        {"gucharmap", nullptr},
    {"gnome-characters", nullptr},        {"kcharselect", nullptr},
};

bool StartDetached(const QString& path, const char* argument) {
  QProcess program;
  program.setProgram(path);
  if (argument != nullptr) program.setArguments({QLatin1String(argument)});
  program.setStandardOutputFile(QProcess::nullDevice());
  program.setStandardErrorFile(QProcess::nullDevice());
  return program.startDetached();
}

bool StartFirst(std::span<const Program> programs, const QStringList& folders) {
  for (const Program& program : programs) {
    const QString path = QStandardPaths::findExecutable(QLatin1String(program.name), folders);
    if (!path.isEmpty() && StartDetached(path, program.argument)) return true;
  }
  return false;
}

QStringList UsualFolders() {
  QStringList folders = qEnvironmentVariable("PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
  folders << QStringLiteral("/usr/lib/mozc") << QStringLiteral("/usr/libexec/mozc");
  return folders;
}

}  // namespace

QtInputMethodTools::QtInputMethodTools() : folders_(UsualFolders()) {}

bool QtInputMethodTools::ShowProperties() {
  return StartFirst(kProperties, folders_);
}

bool QtInputMethodTools::RegisterWord() {
  return StartFirst(kWordRegistration, folders_);
}

bool QtInputMethodTools::ShowPad() {
  return StartFirst(kPads, folders_);
}

}  // namespace kestri
