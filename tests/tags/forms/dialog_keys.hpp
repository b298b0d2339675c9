// What the tests of the pickers' dialogs share: keys to whatever has the focus, answers to a modal dialog,
// and the looks that every dialog must keep.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>

namespace kestri::fakes {

inline void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

// The next modal dialog is given to the answer. Whatever that leaves open is closed, so that no test hangs.
template <typename Form>
void AnswerModal(std::function<void(Form&)> answer) {
  QTimer::singleShot(0, [answer = std::move(answer)] {
    auto* form = qobject_cast<Form*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    QApplication::setActiveWindow(form);
    answer(*form);
    if (form->isVisible()) {
      ADD_FAILURE() << "the dialog stayed open";
      form->reject();
    }
  });
}

inline std::set<QChar> OwnMnemonics(const QWidget& form) {
  std::set<QChar> mnemonics;
  const auto take = [&](const QString& text) {
    const qsizetype at = text.indexOf(QLatin1Char('&'));
    if (at < 0) return;
    EXPECT_TRUE(mnemonics.insert(text[at + 1].toUpper()).second) << qPrintable(text);
  };
  for (const QLabel* label : form.findChildren<QLabel*>()) take(label->text());
  for (const QAbstractButton* button : form.findChildren<QAbstractButton*>()) take(button->text());
  return mnemonics;
}

// Buttons and labels have the room they ask for, and stand inside the form.
inline void ExpectNothingCut(const QWidget& form, const QWidget* scrolled = nullptr) {
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    const bool asks = qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLabel*>(widget);
    if (!asks || widget == scrolled || !widget->isVisible()) continue;
    EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << qPrintable(widget->objectName());
    EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << qPrintable(widget->objectName());
    const QRect place(widget->mapTo(&form, QPoint()), widget->size());
    EXPECT_TRUE(form.rect().contains(place)) << qPrintable(widget->objectName());
  }
}

// Every letter of the application twice as large while this stands.
class DoubledLetters {
 public:
  DoubledLetters() : before_(QApplication::font()) {
    QFont doubled = before_;
    doubled.setPointSizeF(before_.pointSizeF() * 2);
    QApplication::setFont(doubled);
  }
  ~DoubledLetters() { QApplication::setFont(before_); }

 private:
  QFont before_;
};

}  // namespace kestri::fakes
