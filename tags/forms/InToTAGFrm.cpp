#include "tags/forms/InToTAGFrm.hpp"

#include <QApplication>
#include <QFrame>
#include <QListView>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/candidate_delegate.hpp"
#include "tags/forms/candidate_model.hpp"
#include "tags/forms/tip_line.hpp"
#include "ui/editor_style.hpp"

namespace kestri {
namespace {

constexpr int kSlideMilliseconds = 100;
constexpr int kVisibleRows = 12;
constexpr int kFullWidthColumns = 28;  // of the first size
constexpr QSize kSmallest{160, 90};

QRect ToRect(const PixelRect& rect) {
  return {rect.left, rect.top, rect.width, rect.height};
}

}  // namespace

InToTAGFrm::InToTAGFrm(QWidget* parent)
    : QWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus) {
  setObjectName(QStringLiteral("InToTAGFrm"));
  setAccessibleName(QStringLiteral("タグ補完の候補"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setFocusPolicy(Qt::NoFocus);
  slide_.setDuration(kSlideMilliseconds);
  slide_.setStartValue(0.0);
  slide_.setEndValue(1.0);
  connect(&slide_, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& share) { PaintSlide(share.toDouble()); });
  connect(&slide_, &QVariantAnimation::finished, this, &InToTAGFrm::FinishSlide);
}

InToTAGFrm::~InToTAGFrm() = default;

void InToTAGFrm::Build() {
  if (body_ != nullptr) return;
  QFont uiFont = QApplication::font();
  uiFont.setFamilies(uiFont.families() << QStringLiteral("IPAGothic"));
  setFont(uiFont);
  body_ = new QFrame(this);
  body_->setFrameStyle(QFrame::Box | QFrame::Plain);
  QPalette edged = body_->palette();
  edged.setColor(QPalette::Dark, EdgeColor(edged));
  body_->setPalette(edged);
  body_->setForegroundRole(QPalette::Dark);
  body_->setAutoFillBackground(true);
  BuildList();
  tipLine_ = new TipLine(body_);
  tipLine_->gripped = [this] { sizeAtGrip_ = size(); };
  tipLine_->gripMoved = [this](QPoint moved) { Resize(moved); };
  auto* layout = new QVBoxLayout(body_);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->setSpacing(0);
  layout->addWidget(list_, 1);
  layout->addWidget(tipLine_);
  preferred_ = FirstSize();
  body_->resize(preferred_);
  layout->activate();
}

void InToTAGFrm::BuildList() {
  list_ = new QListView(body_);
  list_->setObjectName(QStringLiteral("List"));
  list_->setAccessibleName(QStringLiteral("候補の一覧"));
  list_->setFrameStyle(QFrame::NoFrame);
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setUniformItemSizes(true);
  list_->setSelectionMode(QAbstractItemView::SingleSelection);
  list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  model_ = new CandidateModel(list_);
  list_->setModel(model_);
  list_->setItemDelegate(new CandidateDelegate(*model_, list_));
  connect(list_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) {
            if (logic_ != nullptr && !selecting_ && current.isValid()) logic_->ItemClick(current.row());
          });
  connect(list_, &QListView::doubleClicked, this, [this](const QModelIndex& index) {
    if (logic_ != nullptr) logic_->DoubleClick(index.row());
  });
}

QSize InToTAGFrm::FirstSize() const {
  const int rows = kVisibleRows * CandidateDelegate::RowHeight(list_->font());
  const int frame = 2 * body_->frameWidth();
  const int width = kFullWidthColumns * fontMetrics().horizontalAdvance(QChar(u'漢'));
  return {width + frame, rows + tipLine_->sizeHint().height() + frame};
}

void InToTAGFrm::TakeKeysOf(QWidget* textView) {
  if (textView_ != nullptr) textView_->removeEventFilter(this);
  textView_ = textView;
  if (textView_ != nullptr) textView_->installEventFilter(this);
}

PixelSize InToTAGFrm::Size() {
  Build();
  return {preferred_.width(), preferred_.height()};
}

void InToTAGFrm::ShowAt(const PopupPlacement& placement, Animation animation) {
  Build();
  StopSlide();
  placement_ = placement;
  shown_ = true;
  qApp->installEventFilter(this);
  if (animation == Animation::Slide) {
    body_->resize(ToRect(placement.window).size());
    StartSlide(Slide::Out);
  } else {
    setGeometry(ToRect(placement.window));
  }
  show();
}

void InToTAGFrm::Hide(Animation animation, Opens opened) {
  if (!shown_) return;
  shown_ = false;
  qApp->removeEventFilter(this);
  StopSlide();
  placement_.opens = opened;
  if (animation == Animation::Slide) {
    StartSlide(Slide::Back);
  } else {
    hide();
  }
}

void InToTAGFrm::StartSlide(Slide slide) {
  sliding_ = slide;
  PaintSlide(0);
  slide_.start();
}

void InToTAGFrm::StopSlide() {
  slide_.stop();
  sliding_ = Slide::None;
}

// Opening downward the lower end of the body comes first, opening upward its upper end.
void InToTAGFrm::PaintSlide(double share) {
  if (sliding_ == Slide::None) return;
  const QRect full = ToRect(placement_.window);
  const double shown = sliding_ == Slide::Out ? share : 1 - share;
  const int height = std::max(1, qRound(full.height() * shown));
  const bool down = placement_.opens == Opens::Down;
  setGeometry(full.left(), down ? full.top() : full.bottom() + 1 - height, full.width(), height);
  body_->move(0, down ? height - full.height() : 0);
}

void InToTAGFrm::FinishSlide() {
  const bool goes = sliding_ == Slide::Back;
  sliding_ = Slide::None;
  if (goes) hide();
  body_->move(0, 0);
  setGeometry(ToRect(placement_.window));
}

void InToTAGFrm::resizeEvent(QResizeEvent*) {
  if (body_ == nullptr || sliding_ != Slide::None) return;
  body_->setGeometry(rect());
}

// The edge towards the text stays where it is.
void InToTAGFrm::Resize(QPoint moved) {
  const QSize wanted = (sizeAtGrip_ + QSize(moved.x(), moved.y())).expandedTo(kSmallest);
  QRect now = geometry();
  if (placement_.opens == Opens::Up) {
    now.setTop(now.bottom() + 1 - wanted.height());
    now.setWidth(wanted.width());
  } else {
    now.setSize(wanted);
  }
  preferred_ = wanted;
  placement_.window = {now.left(), now.top(), now.width(), now.height()};
  setGeometry(now);
}

void InToTAGFrm::SetRows(const std::vector<CandidateRow>& rows) {
  Build();
  model_->SetRows(rows);
}

void InToTAGFrm::SetListVisible(bool visible) {
  Build();
  list_->setUpdatesEnabled(visible);
}

void InToTAGFrm::MarkMode(std::int32_t mode) {
  model_->SetMode(mode);
}

void InToTAGFrm::SetCurrent(int row) {
  const QScopedValueRollback<bool> programsOwn(selecting_, true);
  list_->selectionModel()->setCurrentIndex(model_->index(row), QItemSelectionModel::ClearAndSelect);
}

void InToTAGFrm::Select(int row) {
  SetCurrent(row);
  if (row >= 0) list_->scrollTo(model_->index(row), QAbstractItemView::EnsureVisible);
}

void InToTAGFrm::SelectAtTop(int row) {
  SetCurrent(row);
  list_->scrollTo(model_->index(row), QAbstractItemView::PositionAtTop);
}

int InToTAGFrm::RowsPerPage() {
  return std::max(1, list_->viewport()->height() / CandidateDelegate::RowHeight(list_->font()));
}

void InToTAGFrm::ShowTip(std::u16string_view text, const CandidateIcon* icon) {
  Build();
  tipLine_->SetTip(ToQt(text), icon == nullptr ? std::nullopt : std::optional(*icon));
}

}  // namespace kestri
