#include "shell/forms/status_panes.hpp"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>
#include <algorithm>

#include "ui/plain_tip.hpp"

namespace kestri {
namespace {

constexpr int kPadding = 5;  // pixels on each side

struct PaneRow {
  const char16_t* name;
  const char16_t* widest;    // empty: the pane takes what is left
  const char16_t* smallest;  // what must be read in a narrow window
};

constexpr std::array<PaneRow, 6> kPanes = {
    {{u"メッセージ", u"", u"保存"},
     {u"状態", u"現在のﾃｷｽﾄの総ｻｲｽﾞは 999,999.99ｷﾛﾊﾞｲﾄ (999,999,999ﾊﾞｲﾄ) です", u"変更あり"},
     {u"改行コード", u"CR+LF", u"CR+LF"},
     {u"文書の種類", u"HTML", u"HTML"},
     {u"カーソル位置", u"99999行 9999列", u"999行 99列"},
     {u"時刻", u"00:00:00 AM", u"00:00:00 AM"}}};

}  // namespace

StatusPane::StatusPane(const QString& name, Qt::Alignment alignment, QWidget* parent)
    : QWidget(parent), alignment_(alignment) {
  setAccessibleName(name);
}

int StatusPane::WidthOf(const QString& text) const {
  return qCeil(QFontMetricsF(font()).horizontalAdvance(text)) + 2 * kPadding;
}

QSize StatusPane::sizeHint() const {
  return {std::clamp(WidthOf(text_), minimumWidth(), maximumWidth()), fontMetrics().height()};
}

void StatusPane::SetText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  setAccessibleDescription(text);
  if (sizeHint().width() != width()) updateGeometry();
  update();
}

void StatusPane::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect room = rect().adjusted(kPadding, 0, -kPadding, 0);
  const bool cut = WidthOf(text_) > width();
  painter.drawText(room, static_cast<int>(alignment_ | Qt::TextSingleLine | Qt::TextDontClip),
                   cut ? fontMetrics().elidedText(text_, Qt::ElideRight, room.width()) : text_);
}

bool StatusPane::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const bool cut = WidthOf(text_) > width();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? PlainTip(text_) : QString(), this);
  return true;
}

StatusPanes::StatusPanes(QWidget* parent) : QStatusBar(parent) {
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    const PaneRow& row = kPanes[i];
    const QString widest = QString::fromUtf16(row.widest);
    const bool stretches = widest.isEmpty();
    panes_[i] = new StatusPane(QString::fromUtf16(row.name),
                               Qt::AlignVCenter | (stretches ? Qt::AlignLeft : Qt::AlignHCenter), this);
    panes_[i]->setMinimumWidth(panes_[i]->WidthOf(QString::fromUtf16(row.smallest)));
    panes_[i]->setMaximumWidth(stretches ? QWIDGETSIZE_MAX : panes_[i]->WidthOf(widest));
    panes_[i]->setSizePolicy(stretches ? QSizePolicy::Ignored : QSizePolicy::Preferred, QSizePolicy::Fixed);
    addWidget(panes_[i], stretches ? 1 : 0);
  }
}

StatusPane* StatusPanes::At(int pane) const {
  if (pane < 1 || pane > static_cast<int>(panes_.size())) return nullptr;
  return panes_[static_cast<std::size_t>(pane - 1)];
}

void StatusPanes::SetPane(int pane, const QString& text) {
  if (StatusPane* label = At(pane)) label->SetText(text);
}

QString StatusPanes::Pane(int pane) const {
  const StatusPane* label = At(pane);
  return label == nullptr ? QString() : label->Text();
}

}  // namespace kestri
