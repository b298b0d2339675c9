// The view over the real edit control and rules, shown on the offscreen platform, with keys that arrive as
// events.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTextCharFormat>

#include "tests/fakes/main_text_desk.hpp"
#include "ui/edit_view.hpp"

namespace kestri::fakes {

// Records what MainText asks for and passes on what is the view's.
class ViewHost : public MainTextRecorder {
 public:
  using MainTextRecorder::MainTextRecorder;
  void DocumentModified() override {}
  void SetTextHidden(bool hidden) override {
    if (view) view->SetTextHidden(hidden);
  }
  void PaintTextDecor(Decor rows) override {
    if (view) view->PaintTextDecor(rows);
  }
  void ResetCaretMemo() override {
    if (view) view->ResetCaretMemo();
  }
  EditView* view = nullptr;
};

// Keys as the keyboard sends them.
class ViewKeys : public KeyTarget {
 public:
  explicit ViewKeys(EditView& view) : view_(view) {}

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

  EditView& view_;
};

class EditViewDesk {
 public:
  EditViewDesk() {
    host.view = &view;
    text.InstallSubclass(1);
    view.familyOf = [](std::u16string_view) { return QStringLiteral("IPAGothic"); };
    view.SetTextFont(u"ＭＳ ゴシック", 14);
    view.resize(640, 400);
    view.show();
    view.activateWindow();
    view.setFocus();
    Settle();
  }
  ~EditViewDesk() { host.view = nullptr; }

  void Put(std::u16string_view row) {
    SetMarked(desk.control, row);
    view.Flush();
    desk.journal.clear();
  }
  void PutText(std::u16string text_) {
    desk.control.SetText(std::move(text_));
    view.Flush();
  }
  void Press(std::u16string_view script) { PressAll(keys, script); }
  std::string Row() const { return ToUtf8(Marked(desk.control)); }
  void Settle() {
    view.Flush();
    QCoreApplication::processEvents();
  }
  bool Noted(std::string_view line) const {
    return std::find(desk.journal.begin(), desk.journal.end(), line) != desk.journal.end();
  }
  EditControl& Control() { return desk.control; }

  MainTextDesk desk;  // its own MainText is left aside
  ViewHost host{desk.journal};
  MainText text{desk.control, desk.state, desk.common, host, desk.tags, desk.clipboard, desk.boxes};
  EditView view{desk.control, text};
  ViewKeys keys{view};
};

}  // namespace kestri::fakes

// Every test program of the view ends with this.
#define KESTRI_VIEW_TEST_MAIN()                                                                  \
  int main(int argc, char** argv) {                                                              \
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen"); \
    testing::InitGoogleTest(&argc, argv);                                                        \
    QApplication application(argc, argv);                                                        \
    QApplication::setStyle("Fusion");                                                            \
    return RUN_ALL_TESTS();                                                                      \
  }
