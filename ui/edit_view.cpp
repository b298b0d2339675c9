#include "ui/edit_view.hpp"

#include <QApplication>
#include <QMimeData>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleHints>
#include <QTimerEvent>
#include <algorithm>
#include <cmath>
#include <new>

#include "platform/qt/qt_text.hpp"
#include "ui/edit_view_accessible.hpp"
#include "ui/line_rows.hpp"
#include "ui/window_helpers.hpp"

namespace kestri {
namespace {

constexpr int kCaretWidth = 2;
constexpr QPoint kCaretUnknown(-9999, -9999);

QColor ToQColor(SchemeColor color) {
  return QColor(color.red, color.green, color.blue);
}

QColor Blend(const QColor& over, const QColor& under, double share) {
  const auto mix = [share](int a, int b) {
    return static_cast<int>(std::lround(a * share + b * (1 - share)));
  };
  return QColor(mix(over.red(), under.red()), mix(over.green(), under.green()),
                mix(over.blue(), under.blue()));
}

}  // namespace

EditView::EditView(EditControl& control, MainText& text, QWidget* parent)
    : QAbstractScrollArea(parent),
      control_(control),
      text_(text),
      layouts_(control),
      gutter_(new Gutter(this)),
      strip_(new PositionStrip(this)),
      teller_(std::make_unique<AccessibilityTeller>(*this)) {
  setFocusPolicy(Qt::StrongFocus);
  setAcceptDrops(true);
  setAttribute(Qt::WA_InputMethodEnabled);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  viewport()->setCursor(Qt::IBeamCursor);
  viewport()->setMouseTracking(true);
  gutter_->linePressed = [this](std::int32_t line, bool extend) {
    setFocus(Qt::MouseFocusReason);
    if (!extend) gutterAnchor_ = line;
    SelectLines(gutterAnchor_, line);
  };
  gutter_->lineDragged = [this](std::int32_t line) { SelectLines(gutterAnchor_, line); };
  RefreshColors();
  InstallEditViewAccessibility();
  control_.SetEvents(this);
  control_.SetColumnMetrics(this);
}

EditView::~EditView() {
  control_.SetEvents(nullptr);
  control_.SetColumnMetrics(nullptr);
}

// ---- look

void EditView::SetTextFont(std::u16string_view name, double points) {
  fontName_ = name;
  fontPoints_ = points;
  styleBuilt_ = false;
  if (isVisible()) RebuildStyle();
}

void EditView::RebuildStyle() {
  QFont font(familyOf ? familyOf(fontName_) : ToQt(fontName_));
  font.setStyleHint(QFont::Monospace);
  font.setKerning(false);
  font.setPixelSize(EvenPixelSize(fontPoints_, logicalDpiY()));
  TextStyle style = MakeTextStyle(font);
  layouts_.SetStyle(style);
  gutter_->SetStyle(style);
  strip_->SetStyle(style);
  caretWidth_ = std::max(kCaretWidth, this->style()->pixelMetric(QStyle::PM_TextCursorWidth, nullptr, this));
  styleBuilt_ = true;
  seenWidth_ = 0;
  RebuildMarks();
  LayOutFrame();
  ApplyInset();
  pending_.all = true;
  Schedule();
}

void EditView::RebuildMarks() {
  if (LineEndMarksShown() && styleBuilt_)
    marks_.BuildMarkImage(Style().font, eofMarkType_, devicePixelRatioF());
}

void EditView::SetColorScheme(const ColorScheme& scheme) {
  scheme_ = scheme;
  RefreshColors();
}

void EditView::RefreshColors() {
  const QPalette& desktop = palette();
  colors_.selectionFore = desktop.color(QPalette::HighlightedText);
  colors_.selectionBack = desktop.color(QPalette::Highlight);
  if (scheme_.fromPalette) {
    colors_.fore = desktop.color(QPalette::Text);
    colors_.back = desktop.color(QPalette::Base);
    colors_.guide = Blend(colors_.fore, colors_.back, 0.35);
  } else {
    colors_.fore = ToQColor(scheme_.fore);
    colors_.back = ToQColor(scheme_.back);
    colors_.guide = ToQColor(scheme_.guide);
  }
  viewport()->update();
}

void EditView::SetGuideLines(bool on) {
  guidesOn_ = on;
  guides_ = GuideLines();
  viewport()->update();
  Schedule();
}

void EditView::SetLineEndMarks(bool on, int eofMarkType) {
  marksOn_ = on;
  eofMarkType_ = eofMarkType;
  RebuildMarks();
  viewport()->update();
}

void EditView::InstallSubclass(int mode) {
  text_.InstallSubclass(mode);
  guides_ = GuideLines();
  RebuildMarks();
  LayOutFrame();
  viewport()->update();
  Schedule();
}

void EditView::LayOutFrame() {
  gutter_->setVisible(LineNumbersShown());
  strip_->setVisible(LineNumbersShown());
  const int left = LineNumbersShown() ? gutter_->WidthFor(control_.LineCount()) : 0;
  const int top = LineNumbersShown() ? strip_->StripHeight() : 0;
  if (viewportMargins() != QMargins(left, top, 0, 0)) setViewportMargins(left, top, 0, 0);
  PlaceFrame();
}

void EditView::PlaceFrame() {
  const QRect text = viewport()->geometry();
  const QMargins margins = viewportMargins();
  gutter_->setGeometry(text.left() - margins.left(), text.top(), margins.left(), text.height());
  strip_->setGeometry(text.left() - margins.left(), text.top() - margins.top(), text.width() + margins.left(),
                      margins.top());
}

// ---- geometry

std::int32_t EditView::FirstVisibleLine() const {
  return verticalScrollBar()->value();
}

int EditView::VisibleRows() const {
  return std::max(1, viewport()->height() / Style().rowHeight);
}

double EditView::TextLeft() const {
  return kTextMargin - horizontalScrollBar()->value();
}

int EditView::RowTop(std::int32_t line) const {
  return RowTopOf(line, FirstVisibleLine(), Style().rowHeight);
}

bool EditView::LineShows(std::int32_t line) const {
  return line >= FirstVisibleLine() && RowTop(line) < viewport()->height();
}

double EditView::XOf(Position position) {
  if (!styleBuilt_) RebuildStyle();
  const std::int32_t line = control_.LineOf(position);
  return layouts_.Line(line).XOf(position - control_.LineStart(line));
}

Position EditView::PositionAt(std::int32_t line, double x) {
  if (!styleBuilt_) RebuildStyle();
  line = std::clamp(line, 0, control_.LineCount() - 1);
  return control_.LineStart(line) + layouts_.Line(line).ColumnAt(x);
}

std::int32_t EditView::PageLines() {
  return std::max(1, VisibleRows() - 1);
}

Position EditView::PositionAtPoint(QPoint point) {
  Flush();
  const int row = static_cast<int>(std::floor(static_cast<double>(point.y()) / Style().rowHeight));
  return PositionAt(FirstVisibleLine() + row, point.x() - TextLeft());
}

QRect EditView::RectOf(Position position) {
  const std::int32_t line = control_.LineOf(position);
  const double x = XOf(position);
  const bool atEnd = position >= control_.LineEnd(line);
  const double width = atEnd ? Style().cell : std::abs(XOf(position + 1) - x);
  return QRect(NearPixels(std::floor(TextLeft() + x)), RowTop(line), NearPixels(std::ceil(width)),
               Style().rowHeight);
}

QRect EditView::CaretRect() {
  if (!styleBuilt_) RebuildStyle();
  const std::int32_t line = control_.LineOf(control_.Caret());
  const double x = Composing() ? layouts_.Line(line).XInInset(preeditCursor_) : XOf(control_.Caret());
  const int left = NearPixels(std::round(TextLeft() + x)) - caretWidth_ / 2;
  return QRect(left, RowTop(line), caretWidth_, Style().rowHeight);
}

QPoint EditView::GetCaretPixel() {
  Flush();
  if (!LineShows(control_.LineOf(control_.Caret()))) return kCaretUnknown;
  const QRect caret = CaretRect();
  if (!viewport()->rect().intersects(caret)) return kCaretUnknown;
  return viewport()->mapToGlobal(QPoint(caret.center().x(), caret.top() + caret.height()));
}

EditView::ScrollState EditView::ScrollPosition() {
  Flush();
  return {FirstVisibleLine(), horizontalScrollBar()->value()};
}

void EditView::SetScrollPosition(ScrollState state) {
  pending_.scrollCaret = false;  // where the view stands is told, not where the caret is
  pending_.startOver = false;
  Flush();
  UpdateScrollRanges();
  if (state.x > 0) NoteWidth(static_cast<double>(state.x) + viewport()->width() - kTextMargin);
  verticalScrollBar()->setValue(state.firstLine);
  horizontalScrollBar()->setValue(state.x);
}

void EditView::EnsureCaretVisible() {
  if (!styleBuilt_) RebuildStyle();
  UpdateScrollRanges();
  const std::int32_t line = control_.LineOf(control_.Caret());
  NoteWidth(layouts_.Line(line).Width());  // first: the horizontal bar may take a row
  const std::int32_t first = FirstVisibleLine();
  if (line < first) verticalScrollBar()->setValue(line);
  if (line >= first + VisibleRows()) verticalScrollBar()->setValue(line - VisibleRows() + 1);
  const QRect caret = CaretRect();
  const int width = viewport()->width();
  const int jump = width / 4;
  QScrollBar& bar = *horizontalScrollBar();
  if (caret.right() < kTextMargin) {
    const int x = caret.right() + bar.value() - kTextMargin;
    bar.setValue(x < width - jump ? 0 : x - jump);
  } else if (caret.right() >= width) {
    bar.setValue(bar.value() + caret.right() - width + jump);
  }
}

// ---- events

void EditView::scrollContentsBy(int dx, int dy) {
  pictureTimer_.stop();
  if (!anchoring_) {
    const bool near = std::abs(dx) < viewport()->width() && std::abs(dy) < VisibleRows();
    const int down = HeightOfRows(dy, Style().rowHeight);
    near ? viewport()->scroll(dx, down) : viewport()->update();
    CarryCaret(dx, down);
  }
  if (!flushing_) {
    UpdateDecor();
    if (hasFocus()) updateMicroFocus();
  }
}

// The caret goes with the text. One that was out of sight may have come into it.
void EditView::CarryCaret(int dx, int dy) {
  if (!shownCaret_.isNull()) shownCaret_.translate(dx, dy);
  if (flushing_) return;
  if (!viewport()->rect().intersects(shownCaret_)) shownCaret_ = CaretWhereItShows();
}

QRect EditView::CaretWhereItShows() {
  return LineShows(control_.LineOf(control_.Caret())) ? CaretRect() : QRect();
}

bool EditView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && OwnsKey(*static_cast<QKeyEvent*>(event))) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::Polish && !styleBuilt_) RebuildStyle();
  return QAbstractScrollArea::event(event);
}

void EditView::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) RefreshColors();
}

void EditView::resizeEvent(QResizeEvent*) {
  pictureTimer_.stop();
  PlaceFrame();
  if (!styleBuilt_) return;
  UpdateScrollRanges();
  Schedule();
}

void EditView::paintEvent(QPaintEvent* event) {
  // Whatever scrolled in here has moved pixels that were about to be painted.
  if (pending_.any && !Frozen()) viewport()->update();
  Flush();
  if (LineEndMarksShown() && marks_.DevicePixelRatio() != devicePixelRatioF()) RebuildMarks();
  QPainter painter(viewport());
  TextScene scene{.control = control_,
                  .layouts = layouts_,
                  .marks = LineEndMarksShown() ? &marks_ : nullptr,
                  .colors = colors_,
                  .firstLine = FirstVisibleLine(),
                  .textLeft = TextLeft(),
                  .guides = ShownGuides()};
  PaintedRows painted;
  for (const QRect& dirty : event->region()) {
    const PaintedRows part = PaintRows(painter, dirty, scene);
    painted.widest = std::max(painted.widest, part.widest);
    painted.moved = painted.moved || part.moved;
  }
  painter.setClipping(false);
  PaintCaret(painter);
  paintedPixel_ = viewport()->mapTo(window(), event->region().begin()->center());
  pictureTimer_.start(0, this);
  layouts_.Trim(scene.firstLine, scene.firstLine + VisibleRows());
  if (painted.widest > seenWidth_ || (painted.moved && !event->rect().contains(viewport()->rect()))) {
    seenWidth_ = std::max(seenWidth_, painted.widest);
    pending_.all = pending_.all || painted.moved;
    Schedule();
  }
}

void EditView::PaintCaret(QPainter& painter) {
  if (dropCaret_ >= 0) {
    const QRect place = RectOf(dropCaret_);
    painter.fillRect(QRect(place.left(), place.top(), kCaretWidth, place.height()), colors_.fore);
  }
  if (caretLit_ && hasFocus() && (!Composing() || preeditCursorShown_))
    painter.fillRect(shownCaret_, colors_.fore);
}

void EditView::RestartBlink() {
  if (!hasFocus()) return;
  caretLit_ = true;
  const int period = QApplication::cursorFlashTime();
  period > 0 ? blinkTimer_.start(period / 2, this) : blinkTimer_.stop();
}

// It may copy the document; where there is no room for that the next key press does it, or says so.
void EditView::PrepareNextEdit() {
  try {
    control_.PrepareEditAtCaret();
  } catch (const std::bad_alloc&) {
    return;
  }
}

void EditView::timerEvent(QTimerEvent* event) {
  if (event->timerId() == blinkTimer_.timerId()) {
    caretLit_ = !caretLit_;
    viewport()->update(shownCaret_);
  } else if (event->timerId() == pictureTimer_.timerId()) {
    pictureTimer_.stop();
    AwaitPictureRead(*window(), paintedPixel_);
  } else if (event->timerId() == idleTimer_.timerId()) {
    idleTimer_.stop();
    PrepareNextEdit();
  } else if (event->timerId() == autoScrollTimer_.timerId()) {
    AutoScroll();
  } else {
    QAbstractScrollArea::timerEvent(event);
  }
}

void EditView::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  Schedule();
  RestartBlink();
  viewport()->update(shownCaret_);
}

void EditView::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  blinkTimer_.stop();
  caretLit_ = false;
  viewport()->update(shownCaret_);
}

}  // namespace kestri
