#include "shell/forms/status_panes.hpp"

#include <QFontMetrics>

namespace kestri {
namespace {

// A label whose long text is cut with dots instead of widening the window.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }
};

int WidthOf(const QLabel& label, const QString& widest) {
  constexpr int kPadding = 14;  // pixels, frame included
  return label.fontMetrics().horizontalAdvance(widest) + kPadding;
}

}  // namespace

StatusPanes::StatusPanes(QWidget* parent) : QStatusBar(parent) {
  static const std::array<const char16_t*, 5> kNames = {u"メッセージ", u"状態", u"改行コード", u"文書の種類",
                                                        u"時刻"};
  static const std::array<const char16_t*, 5> kWidest = {u"", u"99999(ｲﾝﾃﾞｯｸｽ) / 99999", u"CR+LF", u"HTML",
                                                         u"00:00:00 AM"};
  setContentsMargins(4, 0, 0, 0);
  for (std::size_t i = 0; i < panes_.size(); ++i) {
    panes_[i] = new ElidedLabel(this);
    panes_[i]->setTextFormat(Qt::PlainText);
    panes_[i]->setAccessibleName(QString::fromUtf16(kNames[i]));
    const QString widest = QString::fromUtf16(kWidest[i]);
    if (!widest.isEmpty()) {
      panes_[i]->setFixedWidth(WidthOf(*panes_[i], widest));
      panes_[i]->setAlignment(Qt::AlignCenter);
    }
    addWidget(panes_[i], widest.isEmpty() ? 1 : 0);
  }
}

void StatusPanes::SetPane(int pane, const QString& text) {
  if (pane < 1 || pane > static_cast<int>(panes_.size())) return;
  QLabel* label = panes_[static_cast<std::size_t>(pane - 1)];
  if (label->text() == text) return;
  label->setText(text);
  label->setToolTip(label->fontMetrics().horizontalAdvance(text) > label->width() ? text : QString());
}

QString StatusPanes::Pane(int pane) const {
  if (pane < 1 || pane > static_cast<int>(panes_.size())) return {};
  return panes_[static_cast<std::size_t>(pane - 1)]->text();
}

}  // namespace kestri
