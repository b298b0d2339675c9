#include "platform/qt/qt_file_dialog.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "platform/qt/dialog_owner.hpp"
#include "platform/qt/file_columns.hpp"
#include "platform/qt/japanese_labels.hpp"
#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr QSize kDialogSize(760, 520);  // room for names, sizes, kinds and dates

// The mnemonics of the labels lead to their lists.
void JoinLabels(QFileDialog& dialog) {
  constexpr std::pair<const char*, const char*> kPairs[] = {{"lookInLabel", "lookInCombo"},
                                                            {"fileTypeLabel", "fileTypeCombo"}};
  for (const auto& [label, field] : kPairs) {
    auto* words = dialog.findChild<QLabel*>(QLatin1String(label));
    if (words != nullptr) words->setBuddy(dialog.findChild<QWidget*>(QLatin1String(field)));
  }
}

void Prepare(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setWindowTitle(ToQt(request.title));
  dialog.resize(kDialogSize);
  DressColumns(dialog);
  JoinLabels(dialog);
  const QStringList filters = NameFilters(request.filter);
  dialog.setNameFilters(filters);
  const int row = qBound(1, request.filterIndex, qMax<int>(1, static_cast<int>(filters.size())));
  if (!filters.isEmpty()) dialog.selectNameFilter(filters.at(row - 1));
  const QFileInfo suggestion(ToQtPath(request.fileName));
  const QString folder = request.folder.empty() ? suggestion.path() : ToQtPath(request.folder);
  dialog.setDirectory(folder);
  if (!request.fileName.empty()) dialog.selectFile(suggestion.fileName());
}

QCheckBox* AddReadOnlyBox(QFileDialog& dialog) {
  auto* box = new QCheckBox(QStringLiteral("読み取り専用で開く(&R)"), &dialog);
  if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
    grid->addWidget(box, grid->rowCount(), 0, 1, grid->columnCount());
  }
  return box;
}

// By the list's own index: the toolkit tells the row's name without its hidden patterns.
int RowOf(const QFileDialog& dialog) {
  const auto* rows = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
  return rows == nullptr ? 1 : qMax(0, rows->currentIndex()) + 1;
}

// A name with a double quote in it is one name here; the toolkit would take it for a list of names.
class OneFileDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  QString NameField() const {
    const auto* field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    return field == nullptr ? QString() : field->text();
  }
  QString Chosen() const {
    if (NameField().contains(u'"')) return directory().absoluteFilePath(NameField());
    const QStringList files = selectedFiles();
    return files.isEmpty() ? QString() : files.constFirst();
  }

  void accept() override {
    const QFileInfo quoted(directory().absoluteFilePath(NameField()));
    const bool stands = quoted.isFile() || (acceptMode() == AcceptSave && !quoted.exists());
    if (!NameField().contains(u'"') || !stands) return QFileDialog::accept();
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call): past the list of names
  }
};

std::optional<FileDialogAnswer> Answer(OneFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.Chosen().isEmpty()) return std::nullopt;
  FileDialogAnswer answer;
  answer.fileName = FromQtPath(dialog.Chosen());
  answer.filterIndex = RowOf(dialog);
  return answer;
}

// The patterns of a row as the toolkit holds it: "Cﾌｧｲﾙ (*.c;*.h) (*.c *.h *.cpp)".
QStringList PatternsOf(const QString& nameFilter) {
  const qsizetype begin = nameFilter.lastIndexOf(u'(') + 1;
  return nameFilter.mid(begin, nameFilter.lastIndexOf(u')') - begin).split(u' ', Qt::SkipEmptyParts);
}

bool EndsInOneOf(const QString& path, const QStringList& patterns) {
  return std::any_of(patterns.begin(), patterns.end(), [&path](const QString& pattern) {
    return pattern.size() > 1 && path.endsWith(pattern.mid(1), Qt::CaseInsensitive);
  });
}

bool HasUsualExtension(const QString& path) {
  const QString extension = QMimeDatabase().suffixForFileName(path);
  return std::any_of(extension.begin(), extension.end(), [](QChar c) { return c.isLetter(); });
}

// The name with the row's first extension behind it, unless it ends in one of any row's or in one that the
// desktop knows, or the row takes any name.
QString WithExtension(const QString& path, const QString& nameFilter, const QStringList& allRows) {
  const QStringList patterns = PatternsOf(nameFilter);
  if (patterns.isEmpty() || patterns.contains(QStringLiteral("*"))) return path;
  const bool known = std::any_of(allRows.begin(), allRows.end(),
                                 [&path](const QString& row) { return EndsInOneOf(path, PatternsOf(row)); });
  return known || HasUsualExtension(path) ? path : path + patterns.constFirst().mid(1);
}

// Whether nothing was changed of what the dialog began with.
bool LeftAsItWas(const OneFileDialog& dialog, const FileDialogRequest& request, int row) {
  const QFileInfo suggestion(ToQtPath(request.fileName));
  const QString folder = request.folder.empty() ? suggestion.path() : ToQtPath(request.folder);
  return row == request.filterIndex && dialog.NameField() == suggestion.fileName() &&
         dialog.directory() == QDir(folder);
}

bool MayReplace(QWidget& dialog, const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  QMessageBox box(QMessageBox::Warning, dialog.windowTitle(),
                  QStringLiteral("%1 は既に存在します\n上書きしますか?").arg(QFileInfo(path).fileName()),
                  QMessageBox::NoButton, &dialog);
  box.setTextFormat(Qt::PlainText);
  QPushButton* yes = box.addButton(QStringLiteral("はい(&Y)"), QMessageBox::YesRole);
  QPushButton* no = box.addButton(QStringLiteral("いいえ(&N)"), QMessageBox::NoRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

}  // namespace

QStringList NameFilters(const std::u16string& filter) {
  const QStringList fields = ToQt(filter).split(u'|');
  QStringList rows;
  for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
    QStringList patterns = fields[i + 1].split(u';', Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
      pattern = pattern.trimmed();
      if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
    }
    rows << fields[i] + QLatin1String(" (") + patterns.join(u' ') + u')';
  }
  return rows;
}

std::optional<FileDialogAnswer> QtFileDialog::AskOpen(const FileDialogRequest& request) {
  InstallJapaneseLabels();
  FileTypes types;
  OneFileDialog dialog(DialogOwner(owner_));
  dialog.setIconProvider(&types);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  Prepare(dialog, request);
  QCheckBox* readOnly = (request.flags & kHideReadOnly) == 0 ? AddReadOnlyBox(dialog) : nullptr;
  auto answer = Answer(dialog);
  if (answer && readOnly != nullptr) answer->readOnly = readOnly->isChecked();
  return answer;
}

std::optional<FileDialogAnswer> QtFileDialog::AskSave(const FileDialogRequest& request) {
  InstallJapaneseLabels();
  FileTypes types;
  OneFileDialog dialog(DialogOwner(owner_));
  dialog.setIconProvider(&types);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked below, of the name with its extension
  Prepare(dialog, request);
  while (auto answer = Answer(dialog)) {
    if (!request.unchangedName.empty() && LeftAsItWas(dialog, request, answer->filterIndex)) {
      answer->fileName = request.unchangedName;
    } else {
      const QString row = dialog.nameFilters().value(answer->filterIndex - 1);
      answer->fileName = FromQtPath(WithExtension(ToQtPath(answer->fileName), row, dialog.nameFilters()));
    }
    const bool ask = (request.flags & kOverwritePrompt) != 0;
    if (!ask || MayReplace(dialog, ToQtPath(answer->fileName))) return answer;
  }
  return std::nullopt;
}

std::optional<std::u16string> QtFileDialog::AskFolder(const std::u16string& title,
                                                      const std::u16string& folder) {
  InstallJapaneseLabels();
  FileTypes types;
  QFileDialog dialog(DialogOwner(owner_), ToQt(title), ToQtPath(folder));
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setIconProvider(&types);
  dialog.resize(kDialogSize);
  DressColumns(dialog);
  JoinLabels(dialog);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQtPath(dialog.selectedFiles().constFirst());
}

}  // namespace kestri
