#include "tests/gallery/layout_checks.hpp"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QStyle>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

namespace kestri::gallery {
namespace {

QString Named(const QWidget& widget, const QString& text) {
  QString name = QString::fromLatin1(widget.metaObject()->className());
  if (!widget.objectName().isEmpty()) name += QLatin1Char(' ') + widget.objectName();
  return name + QStringLiteral(" \"%1\"").arg(text);
}

QString TextOf(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  if (const auto* list = qobject_cast<const QComboBox*>(&widget)) return list->currentText();
  return {};
}

// A button that shows only its icon has its text for the screen reader.
bool ShowsText(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QToolButton*>(&widget))
    return button->icon().isNull() || button->toolButtonStyle() != Qt::ToolButtonIconOnly;
  return !TextOf(widget).isEmpty();
}

bool MadeToBeShortened(const QLabel& label) {
  return label.minimumSizeHint().width() == 0 &&
         (label.toolTip() == label.text() ||
          label.fontMetrics().horizontalAdvance(label.text()) <= label.width());
}

// The style widens short push buttons; only their text must find room.
bool IsCutPushButton(const QPushButton& button) {
  const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
  const int margin = button.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &button);
  const int icon = button.icon().isNull() ? 0 : button.iconSize().width() + margin;
  return text.width() + icon + margin > button.width() || text.height() > button.height();
}

bool IsCut(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) return IsCutPushButton(*button);
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->wordWrap()) return label->heightForWidth(label->width()) > label->height();
    if (MadeToBeShortened(*label)) return false;
  }
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
    return group->fontMetrics().horizontalAdvance(group->title()) > group->width();
  const QSize wanted = widget.sizeHint();
  return wanted.width() > widget.width() || wanted.height() > widget.height();
}

template <typename Kind>
QList<const Kind*> Visible(const QWidget& window) {
  QList<const Kind*> visible;
  for (const Kind* widget : window.findChildren<Kind*>())
    if (widget->isVisibleTo(&window) && widget->window() == &window) visible.append(widget);
  return visible;
}

// Texts by the key that they answer to.
class KeyHolders {
 public:
  void Add(const QString& text, const QString& holder) {
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (!key.isEmpty()) holders_[key.toString()].append(holder);
  }
  QStringList Clashes() const {
    QStringList clashes;
    for (auto at = holders_.begin(); at != holders_.end(); ++at) {
      if (at->size() > 1)
        clashes << QStringLiteral("clash of %1: %2").arg(at.key(), at->join(QStringLiteral(" and ")));
    }
    return clashes;
  }

 private:
  QMap<QString, QStringList> holders_;
};

QStringList ClashesOf(const QList<QAction*>& actions) {
  KeyHolders holders;
  for (const QAction* action : actions) {
    if (action->isVisible() && !action->isSeparator())
      holders.Add(action->text(), QStringLiteral("\"%1\"").arg(action->text()));
  }
  return holders.Clashes();
}

// A place for typing or choosing. What only shows a value and what the keyboard cannot enter is none.
bool IsField(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  const bool inside = qobject_cast<const QComboBox*>(parent) != nullptr ||
                      qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
  if (inside || (widget.focusPolicy() & Qt::TabFocus) == 0) return false;
  if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) return !line->isReadOnly();
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr;
}

bool TakesTab(const QWidget& widget, const QWidget& window) {
  return widget.isVisibleTo(&window) && widget.isEnabledTo(&window) && widget.window() == &window &&
         widget.focusProxy() == nullptr && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// Of radio buttons that exclude each other Tab reaches one, arrow keys the others.
bool AreOneChoice(const QWidget* a, const QWidget* b) {
  const auto* first = qobject_cast<const QRadioButton*>(a);
  const auto* second = qobject_cast<const QRadioButton*>(b);
  return first != nullptr && second != nullptr && first->autoExclusive() && second->autoExclusive() &&
         first->parentWidget() == second->parentWidget() && first->group() == second->group();
}

}  // namespace

QStringList CutTexts(const QWidget& window) {
  QStringList cut;
  for (const QWidget* widget : Visible<QWidget>(window)) {
    if (!ShowsText(*widget) || TextOf(*widget).isEmpty() || !IsCut(*widget)) continue;
    cut << QStringLiteral("cut: %1 has %2x%3 of %4x%5")
               .arg(Named(*widget, TextOf(*widget)))
               .arg(widget->width())
               .arg(widget->height())
               .arg(widget->sizeHint().width())
               .arg(widget->sizeHint().height());
  }
  return cut;
}

QStringList ClashingMnemonics(const QWidget& window) {
  KeyHolders holders;
  for (const QLabel* label : Visible<QLabel>(window))
    if (label->buddy() != nullptr) holders.Add(label->text(), Named(*label, label->text()));
  for (const QAbstractButton* button : Visible<QAbstractButton>(window))
    if (ShowsText(*button)) holders.Add(button->text(), Named(*button, button->text()));
  for (const QGroupBox* group : Visible<QGroupBox>(window))
    holders.Add(group->title(), Named(*group, group->title()));
  for (const QTabBar* tabs : Visible<QTabBar>(window))
    for (int i = 0; i < tabs->count(); ++i) holders.Add(tabs->tabText(i), Named(*tabs, tabs->tabText(i)));
  return holders.Clashes().replaceInStrings(QRegularExpression(QStringLiteral("^")),
                                            QStringLiteral("clash: "));
}

QStringList ClashingMnemonics(const QMenu& menu) {
  return ClashesOf(menu.actions());
}

QStringList ClashingMnemonics(const QMenuBar& bar) {
  return ClashesOf(bar.actions());
}

QStringList FieldsWithoutMnemonic(const QWidget& window) {
  QSet<const QWidget*> labelled;
  for (const QLabel* label : Visible<QLabel>(window))
    if (!QKeySequence::mnemonic(label->text()).isEmpty()) labelled.insert(label->buddy());
  QStringList without;
  int fields = 0;
  for (const QWidget* widget : Visible<QWidget>(window)) {
    if (!IsField(*widget)) continue;
    ++fields;
    if (!labelled.contains(widget))
      without << QStringLiteral("no mnemonic: ") + Named(*widget, TextOf(*widget));
  }
  return fields == 1 ? QStringList() : without;
}

QStringList FieldsOutOfReach(QWidget& window) {
  QSet<const QWidget*> waiting;
  for (const QWidget* widget : window.findChildren<QWidget*>())
    if (TakesTab(*widget, window)) waiting.insert(widget);
  for (qsizetype presses = 2 * waiting.size() + 2; presses > 0; --presses) {
    QWidget* focus = QApplication::focusWidget();
    waiting.removeIf([&](const QWidget* widget) { return widget == focus || AreOneChoice(widget, focus); });
    QTest::keyClick(focus == nullptr ? &window : focus, Qt::Key_Tab);
  }
  QStringList lost;
  for (const QWidget* widget : waiting)
    lost << QStringLiteral("out of reach: ") + Named(*widget, TextOf(*widget));
  return lost;
}

QStringList NoDefaultButton(const QWidget& window) {
  if (qobject_cast<const QDialog*>(&window) == nullptr) return {};
  for (const QPushButton* button : Visible<QPushButton>(window))
    if (button->isDefault() || button->autoDefault()) return {};
  return {QStringLiteral("no default button")};
}

}  // namespace kestri::gallery
