#include "browse/forms/DirFrame.hpp"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <iterator>

#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr int kGap = 3;  // logical pixels between the drop-down list and the file list

// The list that drops down is as wide as its captions, however narrow the bar is.
class KindsOfFile : public QComboBox {
 public:
  void showPopup() override {
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + scrollBar);
    QComboBox::showPopup();
  }
};

FolderBar::Shift ShiftOf(Qt::KeyboardModifiers keys) {
  if (keys == Qt::NoModifier) return FolderBar::Shift::None;
  return keys == Qt::ShiftModifier ? FolderBar::Shift::Shift : FolderBar::Shift::Other;
}

QString CaptionOf(const FolderBarRow& row) {
  const QString caption = ToQt(row.caption);
  return row.key.empty() ? caption
                         : caption + u'\t' + QString::fromLatin1(row.key.data(), qsizetype(row.key.size()));
}

}  // namespace

DirFrame::DirFrame(FolderBar::Around around, QWidget* parent)
    : QWidget(parent),
      bar_(around),
      splitter_(new QSplitter(Qt::Vertical)),
      directoryTree1_(new DirectoryTreeControl(bar_.directoryTree1, around.common, icons_)),
      fileExtCombo_(new KindsOfFile),
      dirTreeFile_(new DirTreeFileControl(bar_.dirTreeFile, icons_)) {
  Arrange();
  ConnectTree();
  ConnectFiles();
  for (QWidget* part : {static_cast<QWidget*>(directoryTree1_), static_cast<QWidget*>(dirTreeFile_)})
    part->installEventFilter(this);
  bar_.EnabledChanged = [this] { FollowEnabled(); };
}

// The controls look at the bar until they are gone.
DirFrame::~DirFrame() {
  delete splitter_;
}

void DirFrame::Arrange() {
  directoryTree1_->setAccessibleName(QStringLiteral("ﾌｫﾙﾀﾞ"));
  fileExtCombo_->setAccessibleName(QStringLiteral("ﾌｧｲﾙの種類"));
  fileExtCombo_->setToolTip(QStringLiteral("一覧に表示するﾌｧｲﾙの種類"));
  fileExtCombo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  fileExtCombo_->setMinimumContentsLength(4);
  dirTreeFile_->setAccessibleName(QStringLiteral("ﾌｧｲﾙの一覧"));
  auto* below = new QWidget;
  auto* files = new QVBoxLayout(below);
  files->setContentsMargins(0, 0, 0, 0);
  files->setSpacing(kGap);
  files->addWidget(fileExtCombo_);
  files->addWidget(dirTreeFile_, 1);
  splitter_->addWidget(directoryTree1_);
  splitter_->addWidget(below);
  splitter_->setChildrenCollapsible(false);
  splitter_->setStretchFactor(0, 1);
  splitter_->setStretchFactor(1, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(splitter_);
  setAccessibleName(QStringLiteral("ﾌｫﾙﾀﾞﾊﾞｰ"));
}

void DirFrame::ConnectTree() {
  connect(directoryTree1_, &DirectoryTreeControl::MenuAsked, this,
          [this](QPoint place) { ShowMenu(DirTreeMenu(), place); });
}

void DirFrame::ConnectFiles() {
  using List = DirTreeFileControl;
  connect(fileExtCombo_, &QComboBox::currentIndexChanged, this,
          [this](int row) { bar_.fileExtCombo.SetListIndex(row); });
  connect(dirTreeFile_, &List::DblClick, this, [this] { bar_.OpenSelectedFile(); });
  connect(dirTreeFile_, &List::MouseUp, this,
          [this](Qt::KeyboardModifiers keys) { bar_.FileListMouseUp(ShiftOf(keys)); });
  connect(dirTreeFile_, &List::MouseMove, this, [this](int row) {
    bar_.FileListMouseMove(row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row)));
  });
  connect(dirTreeFile_, &List::MenuAsked, this, [this](QPoint place) { ShowMenu(DirTreeFileMenu(), place); });
}

bool DirFrame::OwnsKey(const QKeyEvent& key) const {
  constexpr int kKeys[] = {Qt::Key_F2,     Qt::Key_F5,    Qt::Key_Backspace, Qt::Key_Delete,
                           Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape};
  if (directoryTree1_->EditsLabel()) return false;
  const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return plain && std::find(std::begin(kKeys), std::end(kKeys), key.key()) != std::end(kKeys);
}

void DirFrame::RunKey(int key, const QObject* part) {
  const bool inTree = part == directoryTree1_;
  if (key == Qt::Key_F5) bar_.RetryFolder();
  if (key == Qt::Key_F2 && inTree) bar_.RenameFolder();
  if (key == Qt::Key_Backspace) bar_.directoryTree1.SelectParent();
  if (key == Qt::Key_Escape) bar_.LeaveToText();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return;
  if (inTree) {
    directoryTree1_->ToggleExpanded();
  } else {
    bar_.OpenSelectedFile();
  }
}

// The bar's keys stay its own, whatever commands the window has on them; Delete deletes nothing here.
bool DirFrame::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!isKey || !OwnsKey(*static_cast<QKeyEvent*>(event))) return QWidget::eventFilter(watched, event);
  event->accept();
  if (event->type() == QEvent::KeyPress) RunKey(static_cast<QKeyEvent*>(event)->key(), watched);
  return true;
}

void DirFrame::Start(std::u16string_view folder) {
  if (started_) return;
  started_ = true;
  bar_.Start(folder);
  FillKinds();
}

void DirFrame::RefreshFiles() {
  if (started_) bar_.dirTreeFile.Refresh();
}

void DirFrame::FillKinds() {
  const QSignalBlocker quiet(fileExtCombo_);
  fileExtCombo_->clear();
  for (const std::u16string& caption : bar_.fileExtCombo.Captions()) fileExtCombo_->addItem(ToQt(caption));
  fileExtCombo_->setCurrentIndex(bar_.fileExtCombo.ListIndex());
}

void DirFrame::FollowEnabled() {
  const bool enabled = bar_.dirTreeFile.Enabled();
  const bool losesKeys = !enabled && (dirTreeFile_->hasFocus() || fileExtCombo_->hasFocus());
  if (losesKeys) directoryTree1_->setFocus();
  dirTreeFile_->setEnabled(enabled);
  fileExtCombo_->setEnabled(bar_.fileExtCombo.Enabled());
}

std::unique_ptr<QMenu> DirFrame::DirTreeMenu() {
  auto menu = std::make_unique<QMenu>(this);
  AddRows(*menu, FolderBarMenu::DirTreeSubMenu);
  AddRows(*menu, FolderBarMenu::DirTreeBookMenu);
  return menu;
}

std::unique_ptr<QMenu> DirFrame::DirTreeFileMenu() {
  auto menu = std::make_unique<QMenu>(this);
  AddRows(*menu, FolderBarMenu::DirTreeFileSubMenu);
  return menu;
}

void DirFrame::AddRows(QMenu& menu, FolderBarMenu which) {
  for (const FolderBarRow& row : RowsOf(which)) AddRow(menu, row);
}

void DirFrame::AddRow(QMenu& menu, const FolderBarRow& row) {
  if (row.IsSeparator()) {
    menu.addSeparator();
    return;
  }
  if (row.submenu != nullptr) return AddRows(*menu.addMenu(CaptionOf(row)), *row.submenu);
  QAction* action = menu.addAction(CaptionOf(row));
  action->setEnabled(row.enabled == nullptr || row.enabled(bar_));
  action->setCheckable(row.checked != nullptr);
  action->setChecked(row.checked != nullptr && row.checked(bar_));
  connect(action, &QAction::triggered, this, [this, run = row.run] { run(bar_); });
}

void DirFrame::ShowMenu(std::unique_ptr<QMenu> menu, QPoint place) {
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu.release()->popup(place);
}

}  // namespace kestri
