#include "browse/window_list.hpp"

#include <gtest/gtest.h>

#include "tests/browse/window_list_desk.hpp"

namespace kestri {
namespace {

class Windows : public ::testing::Test, protected WindowListDesk {
 protected:
  std::vector<std::string> Shown() const {
    std::vector<std::string> texts;
    for (const auto& row : windows.Rows()) texts.push_back(ToUtf8(row.text));
    return texts;
  }
  using Texts = std::vector<std::string>;
};

TEST_F(Windows, SingleInstanceListsOnlyItselfAndHasNowhereToGo) {
  StartWindow(1, 4711, u"/d/表.htm");
  const auto rows = windows.Rows();
  ASSERT_EQ(rows.size(), 1U);
  EXPECT_EQ(ToUtf8(rows[0].text), "表.htm : 1(Me)");
  EXPECT_TRUE(rows[0].own);
  EXPECT_FALSE(windows.SetFocus(rows[0]));
  EXPECT_TRUE(instances.broughtToFront.empty());
}

TEST_F(Windows, EveryRunningInstanceHasItsRowWithPathAndTitle) {
  StartWindow(1, 100, u"/d/a.htm");
  StartWindow(2, 4711, u"/d/b.htm");
  StartWindow(4, 400, u"/e/c.txt");
  EXPECT_EQ(Shown(), (Texts{"a.htm : 1", "b.htm : 2(Me)", "c.txt : 4"}));
  const auto row = windows.Rows().at(2);
  EXPECT_EQ(row.path, u"/e/c.txt");
  EXPECT_EQ(row.title, u"/e/c.txt" + CaptionTail(4));
  EXPECT_EQ(row.handle, 400);
}

TEST_F(Windows, DeadEntryHasNoRow) {
  Record(1, 100, u"/d/crashed.htm");
  StartWindow(2, 4711, u"/d/b.htm");
  EXPECT_EQ(Shown(), Texts{"b.htm : 2(Me)"});
}

TEST_F(Windows, EntryWhoseHandleNowBelongsToAnotherNumberHasNoRow) {
  StartWindow(2, 200, u"/d/b.htm");
  Record(1, 200, u"/d/crashed.htm");
  EXPECT_EQ(Shown(), Texts{"b.htm : 2"});
}

TEST_F(Windows, WindowWithoutADocumentIsNamedByItsNumber) {
  StartWindow(3, 300, u"");
  EXPECT_EQ(Shown(), Texts{"Win No #003 : 3"});
}

TEST_F(Windows, WindowThatIsStillLoadingHasItsRow) {
  Record(1, 100, u"/d/a.htm");
  instances.captions[100] = CaptionTail(1) + u" ＮＯＷ　ＬＯＡＤＩＮＧ";
  EXPECT_EQ(Shown(), Texts{"a.htm : 1"});
}

TEST_F(Windows, TitleEndsAtANull) {
  StartWindow(1, 100, u"/d/a.htm");
  instances.captions[100] += std::u16string(u"\0rest", 5);
  EXPECT_EQ(windows.Rows().at(0).title, u"/d/a.htm" + CaptionTail(1));
}

TEST_F(Windows, ListEndsAtTheLimitOfInstances) {
  StartWindow(5, 500, u"/d/five.htm");
  StartWindow(6, 600, u"/d/six.htm");
  EXPECT_EQ(Shown(), Texts{"five.htm : 5"});
  common.SetINI(u"Kestri", u"Setting", u"AppECount", u"6");
  EXPECT_EQ(Shown(), (Texts{"five.htm : 5", "six.htm : 6"}));
  common.SetINI(u"Kestri", u"Setting", u"AppECount", u"0");
  EXPECT_EQ(Shown(), Texts{});
}

TEST_F(Windows, OwnWindowIsListedBeyondALoweredLimit) {
  state.windowNumber = 7;
  StartWindow(7, 4711, u"/d/me.htm");
  EXPECT_EQ(Shown(), Texts{"me.htm : 7(Me)"});
}

TEST_F(Windows, ChosenWindowIsBroughtToTheFront) {
  StartWindow(1, 100, u"/d/a.htm");
  EXPECT_TRUE(windows.SetFocus(windows.Rows().at(0)));
  EXPECT_EQ(instances.broughtToFront, std::vector<std::int64_t>{100});
}

TEST_F(Windows, WindowThatWentAwayMeanwhileIsNoSwitch) {
  StartWindow(1, 100, u"/d/a.htm");
  const auto row = windows.Rows().at(0);
  instances.captions.clear();
  EXPECT_FALSE(windows.SetFocus(row));
}

TEST_F(Windows, WithoutALogTheListIsEmpty) {
  EXPECT_EQ(Shown(), Texts{});
}

}  // namespace
}  // namespace kestri
