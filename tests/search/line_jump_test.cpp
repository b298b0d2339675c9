#include "search/line_jump.hpp"

#include <gtest/gtest.h>

#include "tests/search/line_jump_desk.hpp"

namespace kestri {
namespace {

class Jump : public ::testing::Test, protected LineJumpDesk {
 protected:
  std::string Told() const { return window.messages.empty() ? "(none)" : ToUtf8(window.messages.back()); }
};

TEST_F(Jump, CaretGoesToTheHeadOfTheLineAndTheStatusBarIsCleared) {
  control.EM_SETSEL(0, 2);
  EXPECT_TRUE(jump.JumpTo(u"2"));
  EXPECT_EQ(control.SelStart(), 5);
  EXPECT_EQ(control.SelLength(), 0);
  EXPECT_EQ(Told(), "");
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(Jump, CaretIsScrolledIntoView) {
  struct Scrolls : EditControlEvents {
    void ScrollCaret() override { ++count; }
    int count = 0;
  } scrolls;
  control.SetEvents(&scrolls);
  jump.JumpTo(u"3");
  control.SetEvents(nullptr);
  EXPECT_EQ(scrolls.count, 1);
}

TEST_F(Jump, FirstAndLastLineExist) {
  EXPECT_TRUE(jump.JumpTo(u"1"));
  EXPECT_EQ(control.SelStart(), 0);
  EXPECT_TRUE(jump.JumpTo(u"3"));
  EXPECT_EQ(control.SelStart(), 10);
}

TEST_F(Jump, LineOneExistsInAnEmptyText) {
  control.SetText(u"");
  EXPECT_TRUE(jump.JumpTo(u"1"));
}

struct Refusal {
  const char16_t* typed;
  const char* message;
};

TEST_F(Jump, LinesOutsideTheTextAreRefusedByTheirNumber) {
  control.EM_SETSEL(2, 2);
  for (const auto& [typed, message] :
       {Refusal{u"0", "0行目が見つかりません"}, Refusal{u"4", "4行目が見つかりません"},
        Refusal{u"-3", "-3行目が見つかりません"}, Refusal{u"2147483647", "2147483647行目が見つかりません"},
        Refusal{u"1,000", "1000行目が見つかりません"}}) {
    EXPECT_FALSE(jump.JumpTo(typed));
    EXPECT_EQ(Told(), message);
  }
  EXPECT_EQ(control.SelStart(), 2);
}

TEST_F(Jump, WhatIsNoNumberIsRefused) {
  for (const char16_t* typed : {u"", u" ", u"two", u"2a", u"1 2", u"--2", u"+-2", u"1.2.3", u"inf", u"nan",
                                u"-", u".", u"二", u",2"}) {
    window.messages.clear();
    EXPECT_FALSE(jump.JumpTo(typed)) << ToUtf8(typed);
    EXPECT_EQ(Told(), "行数は数字で指定してください") << ToUtf8(typed);
  }
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(Jump, NumbersAreTakenAsTheUserWritesThem) {
  for (const char16_t* typed : {u"2", u" 2 ", u"+2", u"２", u"　２　", u"2.0", u"1.5", u"2.5", u"002"}) {
    control.EM_SETSEL(0, 0);
    EXPECT_TRUE(jump.JumpTo(typed)) << ToUtf8(typed);
    EXPECT_EQ(control.SelStart(), 5) << ToUtf8(typed);
  }
}

TEST_F(Jump, OverflowIsToldInABox) {
  for (const std::u16string& typed :
       {std::u16string(u"2147483648"), std::u16string(u"-2147483649"), std::u16string(400, u'9')}) {
    boxes.asked.clear();
    EXPECT_FALSE(jump.JumpTo(typed));
    ASSERT_EQ(boxes.asked.size(), 1U);
    EXPECT_EQ(ToUtf8(boxes.asked[0].text), "入力値がｵｰﾊﾞｰﾌﾛｰしました");
    EXPECT_EQ(boxes.asked[0].icon, MessageIcon::Exclamation);
  }
  EXPECT_TRUE(window.messages.empty());
}

TEST_F(Jump, LastNumberComesBack) {
  EXPECT_EQ(jump.LastNumber(), u"");
  jump.RememberNumber(u"120");
  EXPECT_EQ(jump.LastNumber(), u"120");
  EXPECT_EQ(common.GetINI(u"Kestri", u"LineIndexFrm", u"No", u""), u"120");
}

TEST_F(Jump, PastedLineBreakForgesNoSetting) {
  jump.RememberNumber(u"1\r\n[Setting]");
  EXPECT_EQ(jump.LastNumber(), u"1  [Setting]");
}

}  // namespace
}  // namespace kestri
