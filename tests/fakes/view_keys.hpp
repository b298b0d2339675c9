// Keys as the keyboard sends them to a widget.
#pragma once

#include <QApplication>
#include <QInputMethodEvent>
#include <QTest>
#include <map>

#include "tests/fakes/key_script.hpp"

namespace kestri::fakes {

class ViewKeys : public KeyTarget {
 public:
  explicit ViewKeys(QWidget& view) : view_(view) {}

  void Press(const Key& key) override {
    if (key.name == u"ime") {
      QInputMethodEvent commit;
      commit.setCommitString(Text(key.text));
      QApplication::sendEvent(&view_, &commit);
      return;
    }
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ControlModifier, key.control);
    modifiers.setFlag(Qt::ShiftModifier, key.shift);
    modifiers.setFlag(Qt::AltModifier, key.alt);
    const auto [code, typed] = CodeAndText(key);
    const QString text = key.control || key.alt ? QString() : typed;
    QTest::sendKeyEvent(QTest::Click, &view_, code, text, modifiers);
  }

  static QString Text(std::u16string_view text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
  }

 private:
  static std::pair<Qt::Key, QString> CodeAndText(const Key& key) {
    static const std::map<std::u16string, std::pair<Qt::Key, QString>> named = {
        {u"Enter", {Qt::Key_Return, "\r"}},    {u"Tab", {Qt::Key_Tab, "\t"}},
        {u"Esc", {Qt::Key_Escape, "\x1b"}},    {u"Backspace", {Qt::Key_Backspace, "\b"}},
        {u"Delete", {Qt::Key_Delete, "\x7f"}}, {u"Left", {Qt::Key_Left, ""}},
        {u"Right", {Qt::Key_Right, ""}},       {u"Up", {Qt::Key_Up, ""}},
        {u"Down", {Qt::Key_Down, ""}},         {u"Home", {Qt::Key_Home, ""}},
        {u"End", {Qt::Key_End, ""}},           {u"PageUp", {Qt::Key_PageUp, ""}},
        {u"PageDown", {Qt::Key_PageDown, ""}}};
    const auto found = named.find(key.name);
    if (found != named.end()) return found->second;
    const QString text = Text(key.name);
    return {static_cast<Qt::Key>(text.toUpper()[0].unicode()), text};
  }

  QWidget& view_;
};

}  // namespace kestri::fakes
