// What commands of the menus ask, tell and keep when something stands in their way.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QListWidget>
#include <new>

#include "shell/forms/HTMLfrm.hpp"
#include "tests/shell/forms/editor_desk.hpp"
#include "tests/tags/forms/dialog_keys.hpp"

namespace kestri {
namespace {

using fakes::AnswerModal;
using fakes::EditorDesk;
using fakes::PressKey;

class Commands : public testing::Test {
 protected:
  std::u16string Kept(std::u16string_view key) {
    return desk.common->GetINI(u"Kestri", u"Setting", key, u"(unset)");
  }
  EditorDesk desk;
};

// Help.

class Help : public Commands {
 protected:
  void SetUp() override {
    desk.files.CreateFolder(desk.folder.Text(u"Help"));
    for (const char* name : kNames) desk.folder.Write(std::string("Help/") + name, "x");
    desk.Open();
  }
  static constexpr const char* kNames[] = {"help.txt", "help.htm", "readme.txt", "history.txt"};
};

TEST_F(Help, EachCommandOpensItsFile) {
  for (int i = 0; i < 4; ++i) {
    desk.shell.opened.clear();
    desk.Run("MenH2", i);
    ASSERT_EQ(desk.shell.opened.size(), 1u) << kNames[i];
    EXPECT_EQ(ToUtf8(desk.shell.opened[0].first), desk.folder.Path(std::string("Help/") + kNames[i]));
  }
}

TEST_F(Help, AVanishedFileIsToldInTheStatusBarAndNothingIsOpened) {
  for (int i = 0; i < 4; ++i) {
    std::filesystem::remove(desk.folder.Path(std::string("Help/") + kNames[i]));
    desk.window->Panes().SetPane(StatusPanes::kMessage, {});
    desk.Run("MenH2", i);
    EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("ﾍﾙﾌﾟﾌｧｲﾙが見つかりません [ ")) << kNames[i];
  }
  EXPECT_TRUE(desk.shell.opened.empty());
  EXPECT_TRUE(desk.boxes.asked.empty());
}

TEST_F(Help, AFileThatNoProgramTakesIsToldToo) {
  desk.shell.opens = false;
  desk.Run("MenH2", 0);
  EXPECT_TRUE(desk.Pane(StatusPanes::kMessage).starts_with("ﾍﾙﾌﾟﾌｧｲﾙを開けません [ "));
}

// Errors that a command raises.

class RaisedError : public Commands {
 protected:
  void SetUp() override {
    desk.folder.Write("page.htm", "x\r\n");
    desk.Open();
    ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"page.htm")));
    desk.Put(u"一行目\r\n⟦二⟧行目");
    desk.state.modified = 0;
  }
  void ExpectToldAndUnchanged() {
    ASSERT_EQ(desk.boxes.asked.size(), 1u);
    EXPECT_EQ(desk.boxes.asked[0].text, u"不明なｴﾗｰが発生しました");
    EXPECT_EQ(desk.boxes.asked[0].caption, u"Kestrile");
    EXPECT_EQ(desk.boxes.asked[0].icon, MessageIcon::Exclamation);
    EXPECT_EQ(desk.boxes.asked[0].buttons, MessageButtons::Ok);
    EXPECT_EQ(desk.Row(), "一行目\r\n⟦二⟧行目");
    EXPECT_EQ(desk.state.modified, 0);
    EXPECT_EQ(desk.folder.Read("page.htm"), "x\r\n");
  }
};

TEST_F(RaisedError, OutOfMemoryInACommandOfTheMenusIsToldAndTheDocumentStays) {
  desk.shell.outOfMemory = true;
  desk.Run("MenFileM", 6);
  ExpectToldAndUnchanged();
}

TEST_F(RaisedError, ThroughTheMenuItemItselfIsToldTheSame) {
  desk.shell.outOfMemory = true;
  desk.window->Commands().Action(*FindCommand("MenFileM", 6))->trigger();
  ExpectToldAndUnchanged();
}

TEST_F(RaisedError, WhileTheAvailabilityIsAskedIsToldToo) {
  CommandRow row = *FindCommand("MenFileM", 6);
  row.enabled = [](const EditorCommands&) -> bool { throw std::bad_alloc(); };
  desk.window->Commands().Run(row);
  ExpectToldAndUnchanged();
}

TEST_F(RaisedError, TheNextCommandRunsAgain) {
  desk.shell.outOfMemory = true;
  desk.Run("MenFileM", 6);
  desk.shell.outOfMemory = false;
  desk.Run("HighEdit", 0);
  EXPECT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_NE(desk.Row(), "一行目\r\n⟦二⟧行目");
}

// The font.

class Font : public Commands {
 protected:
  void SetUp() override {
    desk.Set(u"Setting", u"FontSize", u"14");
    desk.Set(u"Setting", u"FontName", u"ＭＳ ゴシック");
    desk.Open();
    before = desk.window->TextView().Style().font;
  }
  // Chooses another row and 24 points, then ends the dialog.
  void AskFont(Qt::Key end) {
    AnswerModal<FontFrm>([this, end](FontFrm& form) {
      EXPECT_EQ(form.windowTitle(), QStringLiteral("ﾌｫﾝﾄの選択"));
      auto* list = form.findChild<QListWidget*>(QStringLiteral("FontView"));
      list->setCurrentRow(list->currentRow() == 0 ? 1 : 0);
      form.findChild<QComboBox*>(QStringLiteral("FontSizeCombo"))->setCurrentText(QStringLiteral("24"));
      chosen = form.Shown();
      list->setFocus();
      PressKey(end);
    });
    desk.Run("MenV2", 0);
  }
  QFont before;
  FontChoice chosen;
};

TEST_F(Font, TheChosenOneReachesTheTextAndTheSettings) {
  AskFont(Qt::Key_Return);
  ASSERT_EQ(chosen.size, 24);
  const QFont shown = desk.window->TextView().Style().font;
  EXPECT_EQ(shown.family(), ToQt(chosen.name));
  EXPECT_GT(shown.pixelSize(), before.pixelSize());
  EXPECT_EQ(Kept(u"FontName"), chosen.name);
  EXPECT_EQ(Kept(u"FontSize"), u"24");
  desk.window->close();
  EXPECT_EQ(Kept(u"FontName"), chosen.name) << "the close writes the same";
  EXPECT_EQ(Kept(u"FontSize"), u"24");
}

TEST_F(Font, CancelLeavesTextAndSettings) {
  AskFont(Qt::Key_Escape);
  ASSERT_EQ(chosen.size, 24);
  EXPECT_EQ(desk.window->TextView().Style().font, before);
  EXPECT_EQ(Kept(u"FontName"), u"ＭＳ ゴシック");
  EXPECT_EQ(Kept(u"FontSize"), u"14");
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
