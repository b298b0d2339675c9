// The insertion helpers, paste and the input method.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

using fakes::MainTextDesk;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

struct TabRow {
  std::int16_t level;
  int subclass;
  std::u16string text;
  std::u16string expanded;
};

TEST(ExpandTabs, TurnsEachTabIntoTheLevelsBlanks) {
  for (const TabRow& row : {TabRow{1, 1, u"a\tb", u"a    b"}, TabRow{1, 1, u"\t\t", u"        "},
                            TabRow{2, 1, u"あ\t", u"あ        "}, TabRow{4, 1, u"\t", u"                "},
                            TabRow{0, 1, u"a\tb", u"a\tb"}, TabRow{1, 0, u"a\tb", u"a\tb"},
                            TabRow{1, 1, u"", u""}, TabRow{1, 1, u"a b", u"a b"}}) {
    MainTextDesk desk;
    desk.state.tabSpaceCount = row.level;
    desk.text.InstallSubclass(row.subclass);
    EXPECT_EQ(desk.text.ExpandTabs(row.text), row.expanded) << ToUtf8(row.text) << row.level << row.subclass;
  }
}

class RedrawWatch : public EditControlEvents {
 public:
  void RedrawSwitched(bool on) override { seen += on ? "on " : "off "; }
  void TextReplaced(const TextChange&) override { seen += "text "; }
  void ScrollCaret() override { seen += "scroll "; }
  std::string seen;
};

TEST(ReplaceSelRaw, WithoutRedrawIsFramed) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  RedrawWatch watch;
  desk.control.SetEvents(&watch);
  desk.text.ReplaceSelRaw(u"b\t", false, true);
  EXPECT_TRUE(watch.seen.starts_with("off text ")) << watch.seen;
  EXPECT_TRUE(watch.seen.ends_with("on scroll ")) << watch.seen;
  EXPECT_EQ(desk.Row(), "ab\t‸");
}

TEST(ReplaceSelRaw, WithRedrawRunsBare) {
  MainTextDesk desk;
  desk.Put(u"a‸");
  RedrawWatch watch;
  desk.control.SetEvents(&watch);
  desk.text.ReplaceSelRaw(u"b", true, true);
  EXPECT_EQ(watch.seen.find("off"), std::string::npos);
  EXPECT_EQ(desk.Row(), "ab‸");
}

TEST(ReplaceSelHwnd, ExpandsTabs) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.ReplaceSelHwnd(u"\t日本\n", true, true);
  EXPECT_EQ(ToUtf8(desk.control.Text()), "a    日本\nc");
}

TEST(ReplaceSelKeep, SelectsWhatItPutIn) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.ReplaceSelKeep(u"日\t本", false, true);
  EXPECT_EQ(desk.Row(), "a⟦日    本⟧c");
  EXPECT_THAT(desk.journal, Not(Contains("focus text")));
}

TEST(ReplaceSelKeep, WithRedrawFocusesTheTextAndRefreshes) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.text.ReplaceSelKeep(u"a", true, true);
  EXPECT_THAT(desk.Lines({"focus text"}), ElementsAre("focus text"));
  EXPECT_EQ(desk.journal.back(), "paint all rows");
}

TEST(ReplaceSelKeep, OfAnEmptyTextSelectsNothing) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.ReplaceSelKeep(u"", false, false);
  EXPECT_EQ(desk.Row(), "a‸c");
}

struct LinesRow {
  std::u16string before;
  std::u16string after;
};

TEST(SelectWholeLines, WidensToTheLineEnds) {
  for (const LinesRow& row :
       {LinesRow{u"a\nb⟦c⟧d\ne", u"a\n⟦bcd⟧\ne"}, LinesRow{u"a⟦b\nc⟧d\ne", u"⟦ab\ncd⟧\ne"},
        LinesRow{u"⟦a\n⟧b\nc", u"⟦a\nb⟧\nc"}, LinesRow{u"a\n⟦bc⟧\nd", u"a\n⟦bc⟧\nd"},
        LinesRow{u"a\nb‸c", u"a\n⟦bc⟧"}, LinesRow{u"a\n‸\nb", u"a\n‸\nb"}, LinesRow{u"‸", u"‸"},
        LinesRow{u"春\n⟦夏⟧秋", u"春\n⟦夏秋⟧"}}) {
    MainTextDesk desk;
    desk.Put(row.before);
    desk.text.SelectWholeLines();
    EXPECT_EQ(desk.Row(), ToUtf8(row.after));
  }
}

bool HasLoneLineEnd(const std::u16string& text) {
  const std::u16string rest = Replace(text, kCrLf, u"");
  return rest.find_first_of(kCrLf) != std::u16string::npos;
}

struct PasteRow {
  std::u16string clipboard;
  std::u16string before;
  std::u16string after;
  std::int16_t level = 1;
  int subclass = 1;
};

TEST(Paste, GoesInWithBlanksForTabsAndCrLfForEveryLineEnd) {
  for (const PasteRow& row :
       {PasteRow{u"\ta\tb", u"x‸", u"x    a    b‸"}, PasteRow{u"\ta", u"‸", u"        a‸", 2},
        PasteRow{u"\ta", u"‸", u"\ta‸", 0}, PasteRow{u"\ta", u"‸", u"\ta‸", 1, 0},
        PasteRow{u"a\nb\n", u"‸", u"a\nb\n‸"}, PasteRow{u"a\rb", u"‸", u"a\nb‸"},
        PasteRow{u"a\r\nb", u"‸", u"a\nb‸"}, PasteRow{u"a\r\r\nb\n\rc", u"‸", u"a\n\nb\n\nc‸"},
        PasteRow{u"a\nb", u"‸", u"a\nb‸", 1, 0}, PasteRow{u"\n", u"a‸b", u"a\n‸b"},
        PasteRow{u"日本", u"a⟦bc⟧d", u"a日本‸d"}, PasteRow{u"", u"a⟦b⟧", u"a⟦b⟧"}}) {
    MainTextDesk desk;
    desk.state.tabSpaceCount = row.level;
    desk.text.InstallSubclass(row.subclass);
    desk.clipboard.text = row.clipboard;
    desk.Put(row.before);
    desk.text.WM_PASTE();
    EXPECT_EQ(desk.Row(), ToUtf8(row.after));
    EXPECT_FALSE(HasLoneLineEnd(desk.control.Text())) << ToUtf8(row.clipboard);
  }
}

TEST(Paste, IsOneUndoStep) {
  MainTextDesk desk;
  desk.clipboard.text = u"\ta\n\tb";
  desk.Put(u"x⟦y⟧z");
  desk.Press(u"{Ctrl+V}{Ctrl+Z}");
  EXPECT_EQ(desk.Row(), "x⟦y⟧z");
}

TEST(Paste, IntoAReadOnlyDocumentDoesNothing) {
  MainTextDesk desk;
  desk.clipboard.text = u"a";
  desk.Put(u"‸");
  desk.control.SetLocked(true);
  desk.text.WM_PASTE();
  EXPECT_EQ(desk.Row(), "‸");
}

TEST(Paste, OfALargeTextIsAskedForFirst) {
  MainTextDesk desk;
  desk.clipboard.text = std::u16string(16000, u'亜') + u"a";
  desk.Put(u"‸");
  desk.text.WM_PASTE();
  EXPECT_EQ(desk.control.Length(), 0);
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  const MessageRequest& box = desk.boxes.asked[0];
  EXPECT_EQ(box.text,
            u"32KB以上のﾃｷｽﾄが貼り付けられようとしています\r\n"
            u"Kestrile は 32KB以上のﾃｷｽﾄを編集する事を推奨していません\r\nそのまま作業を進めますか？");
  EXPECT_EQ(box.buttons, MessageButtons::YesNo);
  EXPECT_EQ(box.defaultButton, 2);
  EXPECT_EQ(box.icon, MessageIcon::Exclamation);
  desk.boxes.answers = {MessageAnswer::Yes};
  desk.text.WM_PASTE();
  EXPECT_EQ(desk.control.Length(), 16001);
}

TEST(Paste, Of32000BytesIsNotAskedFor) {
  MainTextDesk desk;
  desk.clipboard.text = std::u16string(16000, u'亜');
  desk.Put(u"‸");
  desk.text.WM_PASTE();
  EXPECT_EQ(desk.control.Length(), 16000);
  EXPECT_TRUE(desk.boxes.asked.empty());
}

TEST(PasteAt, GoesInAtThePlaceAsAPasteWould) {
  struct Row {
    std::u16string text;
    std::u16string before;
    Position at;
    std::u16string after;
    std::int16_t level = 1;
  };
  for (const Row& row :
       {Row{u"\tx", u"a⟦b⟧cd", 3, u"abc    x‸d"}, Row{u"\tx", u"ab‸", 0, u"\tx‸ab", 0},
        Row{u"1\r2\n3\r\n4", u"ab‸", 1, u"a1\n2\n3\n4‸b"}, Row{u"", u"a⟦b⟧c", 0, u"a⟦b⟧c"}}) {
    MainTextDesk desk;
    desk.state.tabSpaceCount = row.level;
    desk.Put(row.before);
    desk.text.PasteAt(row.at, row.text);
    EXPECT_EQ(desk.Row(), ToUtf8(row.after));
    EXPECT_FALSE(HasLoneLineEnd(desk.control.Text()));
  }
}

TEST(PasteAt, OfALargeTextIsAskedForAndRefusedLeavesTheCaret) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.PasteAt(0, std::u16string(32001, u'x'));
  EXPECT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.Row(), "a⟦b⟧c");
  desk.boxes.answers = {MessageAnswer::Yes};
  desk.text.PasteAt(0, std::u16string(32001, u'x'));
  EXPECT_EQ(desk.control.Length(), 32004);
}

TEST(PasteAt, IntoAReadOnlyDocumentBeeps) {
  MainTextDesk desk;
  desk.Put(u"a‸b");
  desk.control.SetLocked(true);
  desk.text.PasteAt(0, u"x");
  EXPECT_EQ(desk.Row(), "a‸b");
  EXPECT_THAT(desk.Messages(), ElementsAre("beep", "status: 読み取り専用で開かれています"));
}

TEST(CommitInput, GoesInAsOneUndoStep) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧c");
  desk.text.CommitInput(u"日本語 < =");
  EXPECT_EQ(desk.Row(), "a日本語 < =‸c");
  desk.text.EM_UNDO();
  EXPECT_EQ(desk.Row(), "a⟦b⟧c");
}

TEST(CommitInput, OpensNoPopup) {
  MainTextDesk desk;
  desk.tags.caretTagKind = -1;
  desk.Put(u"<a‸>");
  desk.text.KeyDown(0, 0);
  desk.text.CommitInput(u" ");
  desk.text.CommitInput(u"<");
  EXPECT_EQ(desk.Row(), "<a <‸>");
  EXPECT_THAT(desk.Lines({"preset", "popup"}), IsEmpty());
}

TEST(CommitInput, IntoAReadOnlyDocumentDoesNothing) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧");
  desk.control.SetLocked(true);
  desk.text.CommitInput(u"日本");
  EXPECT_EQ(desk.Row(), "a⟦b⟧");
}

TEST(CommitInput, OfNothingLeavesTheSelection) {
  MainTextDesk desk;
  desk.Put(u"a⟦b⟧");
  desk.text.CommitInput(u"");
  EXPECT_EQ(desk.Row(), "a⟦b⟧");
}

TEST(CommitInput, BringsTheSignsThatTheCodePageHas) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.text.CommitInput(u"\u301C\u2212\u2014\u2016\u00A2\u00A3\u00AC\u00A5");
  EXPECT_EQ(desk.control.Text(), u"\uFF5E\uFF0D\u2015\u2225\uFFE0\uFFE1\uFFE2\u00A5");
}

TEST(Paste, BringsTheSignsThatTheCodePageHas) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.clipboard.text = u"10\u301C20\n";
  desk.text.WM_PASTE();
  desk.text.PasteAt(0, u"\u2212");
  EXPECT_EQ(desk.control.Text(), u"\uFF0D10\uFF5E20\r\n");
}

TEST(CommitInput, OfSeveralLinesEndsThemWithCrLf) {
  MainTextDesk desk;
  desk.Put(u"‸");
  desk.text.CommitInput(u"一\n二");
  EXPECT_EQ(ToUtf8(desk.control.Text()), "一\r\n二");
}

}  // namespace
}  // namespace kestri
