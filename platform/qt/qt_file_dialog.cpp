#include "platform/qt/qt_file_dialog.hpp"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QTreeView>

#include "platform/qt/dialog_owner.hpp"
#include "platform/qt/japanese_labels.hpp"
#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr QSize kDialogSize(760, 520);  // room for names, sizes, kinds and dates

// The kind column in Japanese, whatever the toolkit's own texts cover.
class FileTypes : public QFileIconProvider {
 public:
  QString type(const QFileInfo& info) const override {
    return info.isDir() ? QStringLiteral("フォルダ") : QFileIconProvider::type(info);
  }
};

// Names take the room that is left; sizes, kinds and dates are never cut.
void FitColumns(QFileDialog& dialog) {
  auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (list == nullptr) return;
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

void Prepare(QFileDialog& dialog, const FileDialogRequest& request) {
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setWindowTitle(ToQt(request.title));
  dialog.resize(kDialogSize);
  FitColumns(dialog);
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

int RowOf(const QFileDialog& dialog) {
  return qMax(0, static_cast<int>(dialog.nameFilters().indexOf(dialog.selectedNameFilter()))) + 1;
}

std::optional<FileDialogAnswer> Answer(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  FileDialogAnswer answer;
  answer.fileName = FromQtPath(dialog.selectedFiles().constFirst());
  answer.filterIndex = RowOf(dialog);
  return answer;
}

// First extension of the chosen row, empty for "*".
QString SuffixOf(const QString& nameFilter) {
  const qsizetype begin = nameFilter.lastIndexOf(u'(') + 1;
  const QString pattern = nameFilter.mid(begin, nameFilter.lastIndexOf(u')') - begin).section(u' ', 0, 0);
  return pattern.startsWith(QLatin1String("*.")) ? pattern.mid(2) : QString();
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
  QFileDialog dialog(DialogOwner(owner_));
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
  QFileDialog dialog(DialogOwner(owner_));
  dialog.setIconProvider(&types);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, (request.flags & kOverwritePrompt) == 0);
  Prepare(dialog, request);
  const auto followRow = [&dialog](const QString& row) { dialog.setDefaultSuffix(SuffixOf(row)); };
  followRow(dialog.selectedNameFilter());
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, followRow);
  return Answer(dialog);
}

std::optional<std::u16string> QtFileDialog::AskFolder(const std::u16string& title,
                                                      const std::u16string& folder) {
  InstallJapaneseLabels();
  FileTypes types;
  QFileDialog dialog(DialogOwner(owner_), ToQt(title), ToQtPath(folder));
  dialog.setIconProvider(&types);
  dialog.resize(kDialogSize);
  FitColumns(dialog);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQtPath(dialog.selectedFiles().constFirst());
}

}  // namespace kestri
