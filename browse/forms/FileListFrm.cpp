#include "browse/forms/FileListFrm.hpp"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "browse/forms/page_icon.hpp"
#include "platform/qt/qt_text.hpp"

namespace kestri {
namespace {

constexpr std::array kBothViews = {FileListView::Recent, FileListView::New};
constexpr QSize kStartSize(680, 440);  // logical pixels
constexpr int kComment = 2;            // columns of FormatView and FileView
constexpr int kPath = 3;

QStringList Cells(std::span<const std::u16string> texts) {
  QStringList cells;
  for (const std::u16string& text : texts) cells.append(ToQt(text));
  return cells;
}

QStringList ColumnNames(FileListView view) {
  QStringList names;
  for (const std::u16string_view name : FileList::Columns(view)) names.append(ToQt(name));
  return names;
}

// By the file's type; the theme may lack an icon for it.
QIcon RowIcon(const FileList::Row& row) {
  const QIcon page = PageIcon(ToQt(row.extension));
  return row.iconName.empty() ? page : QIcon::fromTheme(ToQt(row.iconName), page);
}

}  // namespace

FileListFrm::FileListFrm(FileList& list, FileListStart start, QWidget* owner)
    : QDialog(owner),
      list_(list),
      shown_(new QStackedWidget),
      check1_(new QCheckBox(QStringLiteral("起動時にこのｳｨﾝﾄﾞｳを表示する(&W)"))),
      check2_(new QCheckBox(QStringLiteral("詳細"))) {
  list_.Load(start);
  for (const FileListView view : kBothViews) MakeOption(view);
  MakeBoxes();
  MakeButtons();
  Arrange();
  SetViewStyle();
  option1_[Index(start.view)]->setChecked(true);
  ShownList().setFocus();
  resize(kStartSize);
}

void FileListFrm::MakeOption(FileListView view) {
  auto* option = new QRadioButton(ToQt(FileList::OptionCaption(view)));
  auto* rows = new TwoStyleList(ColumnNames(view));
  rows->setAccessibleName(ToQt(FileList::Caption(view)));
  option1_[Index(view)] = option;
  views_[Index(view)] = rows;
  shown_->addWidget(rows);
  option->installEventFilter(this);
  connect(option, &QRadioButton::toggled, this, [this, view](bool on) {
    if (on) Choose(view);
  });
  connect(rows, &TwoStyleList::RowChosen, this, [this] { OK(); });
}

void FileListFrm::MakeBoxes() {
  check1_->setCheckState(list_.Check1() == FileList::StartBox::Grey ? Qt::PartiallyChecked
                         : list_.Check1() == FileList::StartBox::On ? Qt::Checked
                                                                    : Qt::Unchecked);
  check2_->setChecked(list_.Check2());
  connect(check1_, &QCheckBox::clicked, this, [this] {
    check1_->setTristate(false);
    list_.SetCheck1(check1_->isChecked() ? FileList::StartBox::On : FileList::StartBox::Off);
  });
  connect(check2_, &QCheckBox::toggled, this, [this](bool details) {
    list_.SetCheck2(details);
    SetViewStyle();
  });
}

void FileListFrm::MakeButtons() {
  hotButton1_ = {new HotButton(QStringLiteral("&OK")), new HotButton(QStringLiteral("&CANCEL"))};
  hotButton1_[0]->setDefault(true);
  hotButton1_[1]->setAutoDefault(false);
  connect(hotButton1_[0], &HotButton::clicked, this, [this] { OK(); });
  connect(hotButton1_[1], &HotButton::clicked, this, &QDialog::reject);
}

void FileListFrm::Arrange() {
  auto* options = new QHBoxLayout;
  for (QRadioButton* option : option1_) options->addWidget(option);
  options->addStretch();
  options->addWidget(check2_);
  auto* foot = new QHBoxLayout;
  foot->addWidget(check1_);
  foot->addStretch();
  for (HotButton* button : hotButton1_) foot->addWidget(button);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(options);
  layout->addWidget(shown_, 1);
  layout->addLayout(foot);
  setTabOrder(option1_[1], shown_);
}

void FileListFrm::Choose(FileListView view) {
  list_.Choose(view);
  setWindowTitle(ToQt(FileList::Caption(view)));
  shown_->setCurrentWidget(views_[Index(view)]);
  if (ShownList().Model().rowCount() == 0) Fill(view);
}

void FileListFrm::Fill(FileListView view) {
  TwoStyleList& rows = *views_[Index(view)];
  for (const FileList::Row& row : list_.Rows(view)) {
    const QStringList cells = Cells(row.cells);
    const bool isNew = view == FileListView::New;
    const QString folder = QFileInfo(cells[kPath]).dir().dirName();
    rows.AddRow(RowIcon(row), cells, isNew ? cells[kComment] : folder, cells[isNew ? kComment : kPath]);
  }
  rows.FinishFilling();
}

void FileListFrm::SetViewStyle() {
  using Style = TwoStyleList::Style;
  for (TwoStyleList* view : views_) view->SetStyle(list_.Check2() ? Style::Report : Style::LargeIcons);
}

void FileListFrm::OK() {
  if (list_.OK(ShownList().SelectedRow()) == FileList::Outcome::Closes) accept();
}

void FileListFrm::done(int result) {
  list_.Unload();
  QDialog::done(result);
}

// An option's mnemonic leads straight into its list.
bool FileListFrm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Shortcut) {
    static_cast<QRadioButton*>(watched)->setChecked(true);
    ShownList().setFocus();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace kestri
