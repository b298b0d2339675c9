// Every word that a window shows or tells, and those among them that are English.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>
#include <QWidget>

namespace kestri::fakes {

inline void AddWordsOf(const QWidget& widget, QStringList& words) {
  words << widget.toolTip() << widget.accessibleName();
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) words << label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) words << button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) words << group->title();
  if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i) words << tabs->tabText(i);
  }
  const auto* header = qobject_cast<const QHeaderView*>(&widget);
  for (int i = 0; header != nullptr && i < header->count(); ++i) {
    words << header->model()->headerData(i, header->orientation()).toString();
  }
}

inline QStringList ShownWords(const QWidget& window) {
  QStringList words;
  for (const QWidget* child : window.findChildren<QWidget*>()) AddWordsOf(*child, words);
  for (const QAction* action : window.findChildren<QAction*>()) words << action->text();
  words.removeAll(QString());
  return words;
}

// Words with two Latin letters in a row that are neither a mnemonic nor among those that Japanese dialogs
// use.
inline QStringList EnglishWords(const QStringList& words) {
  static const QRegularExpression latin(QStringLiteral("[A-Za-z]{2,}"));
  static const QRegularExpression usual(
      QStringLiteral("\\b(OK|HTML|PDF|mm|in|pt|pc|DD|CC|ANSI)\\b|\\(&[A-Z]\\)|<[^>]*>"));
  QStringList english;
  for (const QString& word : words) {
    QString rest = word;
    rest.remove(u'&').remove(usual);
    if (rest.contains(latin)) english << word;
  }
  return english;
}

}  // namespace kestri::fakes
