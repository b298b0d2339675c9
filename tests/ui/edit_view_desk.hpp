// The view over the real edit control and rules, shown on the offscreen platform, with keys that arrive as
// events.
#pragma once

#include <QApplication>
#include <QTest>
#include <QTextCharFormat>

#include "tests/fakes/main_text_desk.hpp"
#include "tests/fakes/view_keys.hpp"
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
    if (failing) throw std::runtime_error("no memory for the picture");
    if (view) view->PaintTextDecor(rows);
  }
  void ResetCaretMemo() override {
    if (view) view->ResetCaretMemo();
  }
  EditView* view = nullptr;
  bool failing = false;
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
