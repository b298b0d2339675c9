#include "document/edit_control/edit_control.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/fakes/ports.hpp"
#include "tests/fakes/visible_caret.hpp"

namespace kestri {
namespace {

using fakes::FormatMarked;
using fakes::Marked;
using fakes::ParseMarked;
using fakes::SetMarked;

constexpr KeyModifiers kShift{.shift = true};
constexpr KeyModifiers kControl{.control = true};
constexpr KeyModifiers kControlShift{.shift = true, .control = true};

std::string Shown(std::u16string_view text) {
  return ToUtf8(text);
}

class EditControlTest : public testing::Test {
 protected:
  void Set(std::u16string_view row) { SetMarked(control_, row); }
  void Type(std::u16string_view keys) {
    for (const char16_t key : keys) control_.WM_CHAR(key);
  }
  std::string Now() const { return Shown(Marked(control_)); }

  fakes::FakeClipboard clipboard_;
  EditControl control_{clipboard_};
};

TEST(VisibleCaret, RowsComeBackAsTheyWere) {
  const std::u16string_view rows[] = {u"‸", u"a‸b", u"日本‸\n語", u"⟦あ\nい⟧う", u"⟦‸あ\nい⟧う", u"x\n‸"};
  for (const auto row : rows) {
    const auto marked = ParseMarked(row);
    EXPECT_EQ(FormatMarked(marked.text, marked.anchor, marked.caret), row) << Shown(row);
  }
}

TEST(VisibleCaret, TellsTextAndPositionsOfARow) {
  const auto marked = ParseMarked(u"a\n⟦‸日本⟧");
  EXPECT_EQ(marked.text, u"a\r\n日本");
  EXPECT_EQ(marked.anchor, 5);
  EXPECT_EQ(marked.caret, 3);
}

TEST_F(EditControlTest, TypedKeysLandAtTheCaret) {
  struct Row {
    std::u16string_view before, keys, after;
  };
  const Row rows[] = {
      {u"‸", u"<a href", u"<a href‸"},
      {u"日‸語", u"本", u"日本‸語"},
      {u"a‸b", u"\r", u"a\n‸b"},
      {u"a‸b", u"\n", u"a\n‸b"},
      {u"a‸b", u"\t", u"a\t‸b"},
      {u"a⟦bc⟧d", u"x", u"ax‸d"},
      {u"a⟦‸日本⟧d", u"語", u"a語‸d"},
      {u"‸x", u"\xD83D\xDE00", u"\xD83D\xDE00‸x"},
      {u"a‸b", u"\x01\x03\x16\x18\x1B\x1C\x7F", u"a‸b"},
      {u"a‸b", {u"\0", 1}, u"a‸b"},
  };
  for (const Row& row : rows) {
    Set(row.before);
    Type(row.keys);
    EXPECT_EQ(Now(), Shown(row.after)) << Shown(row.before);
  }
}

TEST_F(EditControlTest, BackspaceAndDeleteTakePairsAsOne) {
  struct Row {
    std::u16string_view before, afterBackspace, afterDelete;
  };
  const Row rows[] = {
      {u"ab‸cd", u"a‸cd", u"ab‸d"},
      {u"日本‸語", u"日‸語", u"日本‸"},
      {u"‸", u"‸", u"‸"},
      {u"a\n‸b", u"a‸b", u"a\n‸"},
      {u"a‸\nb", u"‸\nb", u"a‸b"},
      {u"😀‸😀", u"‸😀", u"😀‸"},
      {u"a⟦bc⟧d", u"a‸d", u"a‸d"},
      {u"a⟦‸b\nc⟧d", u"a‸d", u"a‸d"},
      {u"か\u3099‸が", u"か‸が", u"か\u3099‸"},
      {u"‸か\u3099x", u"‸か\u3099x", u"‸x"},
  };
  for (const Row& row : rows) {
    Set(row.before);
    control_.WM_CHAR(8);
    EXPECT_EQ(Now(), Shown(row.afterBackspace)) << Shown(row.before);
    Set(row.before);
    control_.WM_KEYDOWN(EditKey::Delete, {});
    EXPECT_EQ(Now(), Shown(row.afterDelete)) << Shown(row.before);
  }
}

TEST_F(EditControlTest, KeysMoveTheCaret) {
  using enum EditKey;
  struct Row {
    std::u16string_view before;
    EditKey key;
    KeyModifiers modifiers;
    std::u16string_view after;
  };
  const Row rows[] = {
      {u"a‸b", Left, {}, u"‸ab"},
      {u"‸ab", Left, {}, u"‸ab"},
      {u"ab‸", Right, {}, u"ab‸"},
      {u"a\n‸b", Left, {}, u"a‸\nb"},
      {u"a‸\nb", Right, {}, u"a\n‸b"},
      {u"😀‸", Left, {}, u"‸😀"},
      {u"‸か\u3099\u3099き", Right, {}, u"か\u3099\u3099‸き"},
      {u"か\u3099‸き", Left, {}, u"‸か\u3099き"},
      {u"‸e\u0301\u0323x", Right, {}, u"e\u0301\u0323‸x"},
      {u"辻\xDB40\xDD00‸", Left, {}, u"‸辻\xDB40\xDD00"},
      {u"\n‸\u0301x", Left, {}, u"‸\n\u0301x"},
      {u"‸\n\u0301x", Right, {}, u"\n‸\u0301x"},
      {u"\n\u0301‸x", Left, {}, u"\n‸\u0301x"},
      {u"‸👩\u200D💻x", Right, {}, u"👩\u200D💻‸x"},
      {u"‸a\u200Db", Right, {}, u"a\u200D‸b"},
      {u"a⟦bc⟧d", Left, {}, u"a‸bcd"},
      {u"a⟦bc⟧d", Right, {}, u"abc‸d"},
      {u"a⟦‸bc⟧d", Left, {}, u"a‸bcd"},
      {u"a⟦‸bc⟧d", Right, {}, u"abc‸d"},
      {u"a⟦bc⟧d", Right, kShift, u"a⟦bcd⟧"},
      {u"a⟦b⟧c", Left, kShift, u"a‸bc"},
      {u"a‸bc", Left, kShift, u"⟦‸a⟧bc"},
      {u"ab\ncd‸", Home, {}, u"ab\n‸cd"},
      {u"ab\n‸cd", End, {}, u"ab\ncd‸"},
      {u"a‸b\ncd", End, {}, u"ab‸\ncd"},
      {u"ab\ncd‸", Home, kControl, u"‸ab\ncd"},
      {u"‸ab\ncd", End, kControl, u"ab\ncd‸"},
      {u"ab\nc‸d", Home, kShift, u"ab\n⟦‸c⟧d"},
      {u"ab\nc‸d", Home, kControlShift, u"⟦‸ab\nc⟧d"},
      {u"ab‸\ncd", Down, {}, u"ab\ncd‸"},
      {u"ab\ncd‸", Up, {}, u"ab‸\ncd"},
      {u"a‸b\ncd", Up, {}, u"a‸b\ncd"},
      {u"ab\nc‸d", Down, {}, u"ab\nc‸d"},
      {u"a‸b\ncd", Down, kShift, u"a⟦b\nc⟧d"},
      {u"日本‸語\nabcdefg", Down, {}, u"日本語\nabcd‸efg"},
      {u"abc‸d\n日本語", Down, {}, u"abcd\n日‸本語"},
      {u"ｱｲ‸ｳ\nabc", Down, {}, u"ｱｲｳ\nab‸c"},
      {u"\t‸x\n0123456789", Down, {}, u"\tx\n01234567‸89"},
      {u"0123456‸\n\tx", Down, {}, u"0123456\n\t‸x"},
  };
  for (const Row& row : rows) {
    Set(row.before);
    control_.WM_KEYDOWN(row.key, row.modifiers);
    EXPECT_EQ(Now(), Shown(row.after)) << Shown(row.before);
  }
}

TEST_F(EditControlTest, UpAndDownKeepTheColumnTheySetOutFrom) {
  Set(u"abcde‸f\nab\n\nabcdef");
  for (int i = 0; i < 3; ++i) control_.WM_KEYDOWN(EditKey::Down, {});
  EXPECT_EQ(Now(), Shown(u"abcdef\nab\n\nabcde‸f"));
  for (int i = 0; i < 2; ++i) control_.WM_KEYDOWN(EditKey::Up, {});
  control_.WM_KEYDOWN(EditKey::End, {});
  control_.WM_KEYDOWN(EditKey::Up, {});
  EXPECT_EQ(Now(), Shown(u"ab‸cdef\nab\n\nabcdef"));
}

TEST_F(EditControlTest, TypingTakesANewColumn) {
  Set(u"abcdef‸\nab\nabcdef");
  control_.WM_KEYDOWN(EditKey::Down, {});
  Type(u"x");
  control_.WM_KEYDOWN(EditKey::Down, {});
  EXPECT_EQ(Now(), Shown(u"abcdef\nabx\nabc‸def"));
}

TEST_F(EditControlTest, PageKeysMoveByPagesAndStopAtTheEnds) {
  std::u16string text;
  for (int i = 0; i < 50; ++i) text += u"行目\r\n";
  control_.SetText(text);
  control_.SetSelStart(1);
  control_.WM_KEYDOWN(EditKey::PageDown, {});
  EXPECT_EQ(control_.LineOf(control_.Caret()), 20);
  EXPECT_EQ(control_.Caret(), control_.LineStart(20) + 1);
  for (int i = 0; i < 5; ++i) control_.WM_KEYDOWN(EditKey::PageDown, {});
  EXPECT_EQ(control_.Caret(), control_.Length());
  control_.WM_KEYDOWN(EditKey::PageUp, {});
  EXPECT_EQ(control_.Caret(), control_.LineStart(30) + 1);
}

class PixelMetrics : public ColumnMetrics {
 public:
  explicit PixelMetrics(const EditControl& control) : control_(control) {}
  double XOf(Position position) override {
    ++asked;
    return 7.5 * (position - control_.LineStart(control_.LineOf(position)));
  }
  Position PositionAt(std::int32_t line, double x) override {
    const auto column = static_cast<Position>(x / 7.5);
    return std::min(control_.LineStart(line) + column, control_.LineEnd(line));
  }
  std::int32_t PageLines() override { return 2; }
  int asked = 0;

 private:
  const EditControl& control_;
};

TEST_F(EditControlTest, AViewTellsHowWideTextStands) {
  PixelMetrics metrics(control_);
  control_.SetColumnMetrics(&metrics);
  Set(u"日本‸語\na\nabcdef");
  control_.WM_KEYDOWN(EditKey::PageDown, {});
  EXPECT_EQ(Now(), Shown(u"日本語\na\nab‸cdef"));
  control_.WM_KEYDOWN(EditKey::Up, {});
  control_.WM_KEYDOWN(EditKey::Up, {});
  EXPECT_EQ(Now(), Shown(u"日本‸語\na\nabcdef"));
  EXPECT_EQ(metrics.asked, 1);
}

TEST_F(EditControlTest, ControlRightGoesToTheNextWord) {
  struct Row {
    std::u16string_view text;
    std::vector<Position> stops;
  };
  const Row rows[] = {
      {u"abc  def_1 x", {5, 11, 12}},
      {u"<a href=\"x\">", {1, 3, 7, 8, 9, 10, 11, 12}},
      {u"これは漢字とカタカナーです。", {3, 5, 6, 11, 13, 14}},
      {u"ＡＢＣ１２abcｱｲｳ", {5, 8, 11}},
      {u"日本　語\t\tx", {3, 6, 7}},
      {u"ab\n  cd\n", {2, 4, 6, 8, 10}},
      {u"😀😀", {2, 4}},
      {u"が\u3099ぎ漢", {3, 4}},
      {u"佐々木さん", {3, 5}},
  };
  for (const Row& row : rows) {
    Set(row.text);
    control_.SetSelStart(0);
    std::vector<Position> stops;
    while (control_.Caret() < control_.Length()) {
      control_.WM_KEYDOWN(EditKey::Right, kControl);
      stops.push_back(control_.Caret());
    }
    EXPECT_EQ(stops, row.stops) << Shown(row.text);
  }
}

TEST_F(EditControlTest, ControlLeftGoesToTheStartOfTheWord) {
  struct Row {
    std::u16string_view text;
    std::vector<Position> stops;
  };
  const Row rows[] = {
      {u"abc  def_1 x", {11, 5, 0}},
      {u"これは漢字とカタカナーです。", {13, 11, 6, 5, 3, 0}},
      {u"ab  \n  cd\n", {10, 8, 6, 4, 0}},
      {u"😀。。", {3, 2, 0}},
      {u"  ", {0}},
  };
  for (const Row& row : rows) {
    Set(row.text);
    std::vector<Position> stops;
    while (control_.Caret() > 0) {
      control_.WM_KEYDOWN(EditKey::Left, kControl);
      stops.push_back(control_.Caret());
    }
    EXPECT_EQ(stops, row.stops) << Shown(row.text);
  }
}

TEST_F(EditControlTest, WordsAreDeletedAsOneStep) {
  Set(u"<b>太字の‸文字 </b>");
  control_.DeleteWordLeft();
  EXPECT_EQ(Now(), Shown(u"<b>太字‸文字 </b>"));
  control_.DeleteWordLeft();
  control_.WM_KEYDOWN(EditKey::Delete, kControl);
  EXPECT_EQ(Now(), Shown(u"<b>‸</b>"));
  EXPECT_TRUE(control_.EM_UNDO());
  EXPECT_EQ(Now(), Shown(u"<b>⟦‸文字 ⟧</b>"));
  EXPECT_TRUE(control_.EM_UNDO());
  EXPECT_EQ(Now(), Shown(u"<b>⟦太字⟧文字 </b>"));
  EXPECT_TRUE(control_.EM_UNDO());
  EXPECT_EQ(Now(), Shown(u"<b>太字⟦の⟧文字 </b>"));
}

TEST_F(EditControlTest, DeletingAWordWithASelectionDeletesTheSelection) {
  Set(u"ab ⟦cd⟧ ef");
  control_.DeleteWordLeft();
  EXPECT_EQ(Now(), Shown(u"ab ‸ ef"));
  Set(u"ab ⟦cd⟧ ef");
  control_.WM_KEYDOWN(EditKey::Delete, kControl);
  EXPECT_EQ(Now(), Shown(u"ab ‸ ef"));
}

// Undo

TEST_F(EditControlTest, UndoTakesTypingBackWordByWord) {
  Set(u"‸");
  Type(u"Hello big  world\rまた　明日");
  const std::u16string_view rows[] = {u"Hello big  world\nまた　‸", u"Hello big  world\n‸", u"Hello big  ‸",
                                      u"Hello ‸", u"‸"};
  for (const auto row : rows) {
    EXPECT_TRUE(control_.EM_UNDO());
    EXPECT_EQ(Now(), Shown(row));
  }
  EXPECT_FALSE(control_.EM_UNDO());
  for (int i = 0; i < 5; ++i) EXPECT_TRUE(control_.EM_REDO());
  EXPECT_EQ(Now(), Shown(u"Hello big  world\nまた　明日‸"));
  EXPECT_FALSE(control_.EM_REDO());
}

TEST_F(EditControlTest, UndoSelectsWhatComesBack) {
  Set(u"abc⟦‸def⟧");
  Type(u"xy");
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"abc⟦‸def⟧"));
  Set(u"ab\ncd‸");
  for (int i = 0; i < 4; ++i) control_.WM_CHAR(8);
  EXPECT_EQ(Now(), Shown(u"a‸"));
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"a⟦b\ncd⟧"));
  control_.EM_REDO();
  EXPECT_EQ(Now(), Shown(u"a‸"));
  Set(u"a‸bcd");
  for (int i = 0; i < 2; ++i) control_.WM_KEYDOWN(EditKey::Delete, {});
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"a⟦‸bc⟧d"));
}

TEST_F(EditControlTest, ASelectionMessageClosesTheTypingEvenWhenTheCaretComesBack) {
  Set(u"‸");
  Type(u"ab");
  control_.SetSelStart(0);
  control_.SetSelStart(2);
  Type(u"cd");
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"ab‸"));
}

TEST_F(EditControlTest, TypingGoesOnWhenKeysBringTheCaretBack) {
  Set(u"‸x");
  Type(u"ab");
  control_.WM_KEYDOWN(EditKey::Left, {});
  control_.WM_KEYDOWN(EditKey::Right, {});
  Type(u"cd");
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"‸x"));
}

TEST_F(EditControlTest, EachInsertionOfTheProgramIsOneStep) {
  Set(u"⟦太字⟧");
  control_.EM_REPLACESEL(true, u"<b>太字</b>");
  control_.EM_REPLACESEL(true, u"<br>");
  Type(u"x");
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"<b>太字</b><br>‸"));
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"<b>太字</b>‸"));
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"⟦太字⟧"));
}

TEST_F(EditControlTest, AnInsertionWithoutUndoEmptiesTheBuffer) {
  Set(u"‸");
  Type(u"ab");
  control_.EM_UNDO();
  control_.EM_REPLACESEL(false, u"c");
  EXPECT_FALSE(control_.EM_CANUNDO());
  EXPECT_FALSE(control_.EM_CANREDO());
  EXPECT_FALSE(control_.EM_UNDO());
  Type(u"d");
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"c‸"));
}

TEST_F(EditControlTest, TheUndoBufferCanBeEmptied) {
  Set(u"‸");
  Type(u"ab");
  control_.EM_EMPTYUNDOBUFFER();
  EXPECT_FALSE(control_.EM_CANUNDO());
  control_.EM_REPLACESEL(true, u"c");
  control_.SetText(u"d");
  EXPECT_FALSE(control_.EM_CANUNDO());
}

TEST_F(EditControlTest, AScopeIsOneStepWithTheSelectionBeforeIt) {
  Set(u"一\n‸二\n三");
  {
    const EditScope scope(control_);
    control_.EM_SETSEL(0, 0);
    for (int i = 0; i < 3; ++i) {
      const EditScope inner(control_);
      control_.EM_REPLACESEL(true, u"<p>");
      control_.SetSelStart(control_.EM_LINEINDEX(i + 1));
    }
    control_.EM_SETSEL(0, 3);
    EXPECT_FALSE(control_.EM_UNDO());
  }
  EXPECT_EQ(Now(), Shown(u"⟦<p>⟧一\n<p>二\n<p>三"));
  EXPECT_TRUE(control_.EM_UNDO());
  EXPECT_EQ(Now(), Shown(u"一\n‸二\n三"));
  EXPECT_FALSE(control_.EM_CANUNDO());
  EXPECT_TRUE(control_.EM_REDO());
  EXPECT_EQ(Now(), Shown(u"⟦<p>⟧一\n<p>二\n<p>三"));
}

TEST_F(EditControlTest, AnEmptyReplacementLeavesUndoAndModifiedAlone) {
  Set(u"a‸");
  control_.EM_REPLACESEL(true, u"");
  EXPECT_FALSE(control_.EM_CANUNDO());
  EXPECT_FALSE(control_.Modified());
}

TEST_F(EditControlTest, ControlZCharacterIsUndo) {
  Set(u"‸");
  Type(u"ab\x1A");
  EXPECT_EQ(Now(), Shown(u"‸"));
}

TEST_F(EditControlTest, PartsOfTheTextItselfCanBeInserted) {
  Set(u"日本語‸");
  control_.EM_REPLACESEL(true, control_.FirstPiece());
  EXPECT_EQ(Now(), Shown(u"日本語日本語‸"));
  control_.EM_SETSEL(0, 3);
  control_.EM_REPLACESEL(true, control_.FirstPiece().substr(4));
  EXPECT_EQ(Now(), Shown(u"本語‸日本語"));
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"⟦日本語⟧日本語"));
}

TEST_F(EditControlTest, JoiningCrAndLfLeavesTheCaretOutside) {
  control_.SetText(u"a\rx\nb");
  control_.SetSelStart(3);
  control_.WM_CHAR(8);
  EXPECT_EQ(control_.LineCount(), 2);
  EXPECT_EQ(control_.Caret(), 1);
  control_.EM_UNDO();
  EXPECT_EQ(control_.LineCount(), 1);
  control_.SetText(u"a\nb");
  control_.SetSelStart(1);
  control_.EM_REPLACESEL(true, u"\r");
  EXPECT_EQ(control_.Caret(), 3);
  EXPECT_EQ(control_.LineCount(), 2);
  EXPECT_TRUE(control_.CheckInvariants());
}

// Locked

TEST_F(EditControlTest, ALockedControlRefusesKeysButTakesInsertions) {
  clipboard_.text = u"貼付";
  Set(u"a⟦bc⟧d");
  control_.EM_REPLACESEL(true, u"BC");
  control_.EM_SETSEL(1, 3);
  control_.SetLocked(true);
  Type(u"x\b\r\x1A");
  control_.WM_KEYDOWN(EditKey::Delete, {});
  control_.WM_KEYDOWN(EditKey::Delete, kControl);
  control_.WM_KEYDOWN(EditKey::Delete, kShift);
  control_.DeleteWordLeft();
  control_.WM_CUT();
  control_.WM_CLEAR();
  control_.WM_PASTE();
  EXPECT_FALSE(control_.EM_UNDO());
  EXPECT_EQ(Now(), Shown(u"a⟦BC⟧d"));
  EXPECT_EQ(clipboard_.text, u"貼付");
  control_.WM_COPY();
  EXPECT_EQ(clipboard_.text, u"BC");
  control_.EM_REPLACESEL(true, u"x");
  EXPECT_EQ(Now(), Shown(u"ax‸d"));
  control_.WM_KEYDOWN(EditKey::Home, {});
  EXPECT_EQ(Now(), Shown(u"‸axd"));
  control_.SetLocked(false);
  EXPECT_TRUE(control_.EM_UNDO());
  control_.SetLocked(true);
  EXPECT_FALSE(control_.EM_REDO());
}

// Clipboard

TEST_F(EditControlTest, CutCopyPasteAndClear) {
  Set(u"日⟦本\n⟧語");
  control_.WM_COPY();
  EXPECT_EQ(clipboard_.text, u"本\r\n");
  control_.WM_CUT();
  EXPECT_EQ(Now(), Shown(u"日‸語"));
  control_.WM_PASTE();
  EXPECT_EQ(Now(), Shown(u"日本\n‸語"));
  control_.EM_SETSEL(0, 2);
  control_.WM_CLEAR();
  EXPECT_EQ(Now(), Shown(u"‸\n語"));
  EXPECT_EQ(clipboard_.text, u"本\r\n");
  control_.EM_SETSEL(2, 3);
  control_.WM_KEYDOWN(EditKey::Delete, kShift);
  EXPECT_EQ(Now(), Shown(u"\n‸"));
  EXPECT_EQ(clipboard_.text, u"語");
}

TEST_F(EditControlTest, WithoutASelectionTheClipboardStaysAndNothingIsDeleted) {
  clipboard_.text = u"keep";
  Set(u"a‸b");
  control_.WM_COPY();
  control_.WM_CUT();
  control_.WM_CLEAR();
  control_.WM_KEYDOWN(EditKey::Delete, kShift);
  EXPECT_EQ(clipboard_.text, u"keep");
  EXPECT_EQ(Now(), Shown(u"a‸b"));
  EXPECT_FALSE(control_.EM_CANUNDO());
}

TEST_F(EditControlTest, AnEmptyClipboardPastesNothing) {
  Set(u"a⟦b⟧c");
  control_.WM_PASTE();
  EXPECT_EQ(Now(), Shown(u"a⟦b⟧c"));
}

// Properties

TEST_F(EditControlTest, SelectionPropertiesAreClampedAndKeepPairsWhole) {
  control_.SetText(u"ab\r\n\xD83D\xDE00z");
  control_.SetSelStart(-5);
  EXPECT_EQ(control_.SelStart(), 0);
  control_.SetSelStart(99);
  EXPECT_EQ(control_.SelStart(), 7);
  control_.SetSelStart(3);
  EXPECT_EQ(control_.SelStart(), 2);
  control_.SetSelLength(1);
  EXPECT_EQ(control_.SelText(), u"\r\n");
  control_.SetSelLength(3);
  EXPECT_EQ(control_.SelText(), u"\r\n\xD83D\xDE00");
  control_.SetSelLength(INT32_MAX);
  EXPECT_EQ(control_.SelLength(), 5);
  control_.SetSelLength(-1);
  EXPECT_EQ(control_.SelLength(), 0);
  control_.SetSelStart(5);
  EXPECT_EQ(control_.SelStart(), 4);
}

TEST_F(EditControlTest, MovingTheCaretKeepsOrDropsTheAnchor) {
  control_.SetText(u"abc\r\ndef");
  control_.MoveCaret(2, EditControl::Extend::No);
  control_.MoveCaret(6, EditControl::Extend::Yes);
  EXPECT_EQ(Now(), Shown(u"ab⟦c\nd⟧ef"));
  control_.MoveCaret(0, EditControl::Extend::Yes);
  EXPECT_EQ(Now(), Shown(u"⟦‸ab⟧c\ndef"));
  control_.MoveCaret(4, EditControl::Extend::Yes);
  EXPECT_EQ(Now(), Shown(u"ab⟦c\n⟧def"));
  control_.MoveCaret(4, EditControl::Extend::No);
  EXPECT_EQ(Now(), Shown(u"abc‸\ndef"));
}

TEST_F(EditControlTest, SetTextStartsAfresh) {
  Set(u"a⟦b⟧");
  Type(u"x");
  EXPECT_TRUE(control_.Modified());
  control_.SetText(u"新しい");
  EXPECT_FALSE(control_.Modified());
  EXPECT_EQ(Now(), Shown(u"‸新しい"));
  control_.SetModified(true);
  control_.WM_SETTEXT(u"別");
  EXPECT_EQ(Now(), Shown(u"‸別"));
  EXPECT_FALSE(control_.Modified());
}

TEST_F(EditControlTest, UndoingIsAChangeToo) {
  Set(u"‸");
  Type(u"a");
  control_.SetModified(false);
  control_.EM_UNDO();
  EXPECT_TRUE(control_.Modified());
}

// Lines

TEST_F(EditControlTest, ReadingIsClampedToTheText) {
  Set(u"ab\n日本\n");
  EXPECT_EQ(control_.LineCount(), 3);
  EXPECT_EQ(control_.LineStart(1), 4);
  EXPECT_EQ(control_.LineEnd(1), 6);
  EXPECT_EQ(control_.LineEnd(2), 8);
  EXPECT_EQ(control_.LineStart(-1), 0);
  EXPECT_EQ(control_.LineStart(9), 8);
  EXPECT_EQ(control_.LineOf(100), 2);
  EXPECT_EQ(control_.At(4), u'日');
  EXPECT_EQ(control_.At(8), 0);
  EXPECT_EQ(control_.At(-1), 0);
  EXPECT_EQ(control_.Slice(-3, 2), u"ab");
  EXPECT_EQ(control_.Slice(5, 99), u"本\r\n");
}

TEST_F(EditControlTest, LineMessagesAnswerForLinesThatDoNotExist) {
  Set(u"ab\n日本");
  EXPECT_EQ(control_.EM_LINEINDEX(2), -1);
  EXPECT_EQ(control_.EM_LINEINDEX(-2), -1);
  EXPECT_EQ(control_.EM_LINEINDEX(-1), 4);
  EXPECT_EQ(control_.EM_LINEFROMCHAR(-1), 1);
  EXPECT_EQ(control_.EM_GETLINE(2, 10), "");
  EXPECT_EQ(control_.EM_GETLINE(-1, 10), "");
}

TEST_F(EditControlTest, ALineIsGivenInCodePage932CutAtWholeCharacters) {
  control_.SetText(u"a日本ｱ\r\n表😀b");
  EXPECT_EQ(control_.EM_GETLINE(0, 100), "a\x93\xFA\x96{\xB1");
  EXPECT_EQ(control_.EM_GETLINE(0, 3), "a\x93\xFA");
  EXPECT_EQ(control_.EM_GETLINE(0, 4), "a\x93\xFA");
  EXPECT_EQ(control_.EM_GETLINE(0, 0), "");
  EXPECT_TRUE(control_.EM_GETLINE(1, 100).starts_with("\x95\\"));
  EXPECT_TRUE(control_.EM_GETLINE(1, 100).ends_with("b"));
}

// Search

TEST_F(EditControlTest, FindsAcrossTheGap) {
  control_.SetText(u"日本語のページ、日本語の本");
  for (Position gap = 0; gap <= control_.Length(); ++gap) {
    control_.SetSelStart(gap);
    control_.PrepareEditAtCaret();
    EXPECT_EQ(control_.Find(u"日本語", 0), 0) << gap;
    EXPECT_EQ(control_.Find(u"日本語", 1), 8) << gap;
    EXPECT_EQ(control_.Find(u"日本語", 9), -1) << gap;
    EXPECT_EQ(control_.FindLast(u"日本語", 13), 8) << gap;
    EXPECT_EQ(control_.FindLast(u"日本語", 11), 8) << gap;
    EXPECT_EQ(control_.FindLast(u"日本語", 10), 0) << gap;
    EXPECT_EQ(control_.FindLast(u"日本語", 2), -1) << gap;
    EXPECT_EQ(control_.Find(u"ﾍﾟｰｼﾞ", 0), -1) << gap;
    EXPECT_EQ(control_.Find(u"ﾍﾟｰｼﾞ", 0, Compare::Text), 4) << gap;
    EXPECT_EQ(control_.FindLast(u"ぺーじ", 13, Compare::Text), 4) << gap;
  }
}

TEST_F(EditControlTest, ATextHitIsNotCutInTwoByTheGap) {
  control_.SetText(u"ｶﾞｷﾞｶｷ");
  for (Position gap = 0; gap <= control_.Length(); ++gap) {
    control_.SetSelStart(gap);
    control_.PrepareEditAtCaret();
    EXPECT_EQ(control_.Find(u"カ", 0, Compare::Text), 4) << gap;
    EXPECT_EQ(control_.Find(u"ギ", 0, Compare::Text), 2) << gap;
    EXPECT_EQ(control_.FindLast(u"き", 5, Compare::Text), -1) << gap;
    EXPECT_EQ(control_.FindLast(u"が", 6, Compare::Text), 0) << gap;
    EXPECT_EQ(control_.Find(u"ﾞ", 0, Compare::Text), -1) << gap;
    EXPECT_EQ(control_.FindLast(u"ﾞ", 6, Compare::Text), -1) << gap;
  }
}

TEST_F(EditControlTest, ATextHitInALongTextIsTheSameWhereverTheGapIs) {
  std::u16string voiced;
  for (int i = 0; i < 60; ++i) voiced += u"ｶﾞ";
  struct Row {
    std::u16string only, find;
  };
  for (const Row& row : {Row{u"ｶ", u"か"}, Row{u"ﾞ", u"゛"}}) {
    control_.SetText(voiced + row.only + u"x" + voiced);
    for (Position gap = 0; gap <= control_.Length(); ++gap) {
      control_.SetSelStart(gap);
      control_.PrepareEditAtCaret();
      EXPECT_EQ(control_.Find(row.find, 0, Compare::Text), 120) << gap;
      EXPECT_EQ(control_.Find(row.find, 121, Compare::Text), -1) << gap;
      EXPECT_EQ(control_.FindLast(row.find, control_.Length(), Compare::Text), 120) << gap;
      EXPECT_EQ(control_.FindLast(row.find, 120, Compare::Text), -1) << gap;
    }
  }
}

TEST_F(EditControlTest, SearchesFromOutsideTheTextAndForNothing) {
  control_.SetText(u"aba");
  EXPECT_EQ(control_.Find(u"a", -7), 0);
  EXPECT_EQ(control_.Find(u"a", 3), -1);
  EXPECT_EQ(control_.Find(u"a", 99), -1);
  EXPECT_EQ(control_.FindLast(u"a", 99), 2);
  EXPECT_EQ(control_.FindLast(u"a", 0), -1);
  EXPECT_EQ(control_.FindLast(u"a", -1), -1);
  EXPECT_EQ(control_.Find(u"abab", 0), -1);
  EXPECT_EQ(control_.Find(u"", 1), 1);
  EXPECT_EQ(control_.Find(u"", 3), -1);
  EXPECT_EQ(control_.FindLast(u"", 2), 2);
  EXPECT_EQ(control_.FindLast(u"", 0), -1);
}

// Events

class Recorder : public EditControlEvents {
 public:
  explicit Recorder(const EditControl& control) : control_(control) {}
  void TextReplaced(const TextChange& change) override {
    last = change;
    log += "T";
    textSeen = control_.Text();
    EXPECT_TRUE(control_.CheckInvariants());
  }
  void SelectionChanged() override {
    log += "S";
    EXPECT_TRUE(control_.CheckInvariants());
  }
  void ScrollCaret() override { log += "V"; }
  void RedrawSwitched(bool on) override { log += on ? "+" : "-"; }
  void Change() override { log += "C"; }

  std::string TakeLog() { return std::exchange(log, {}); }
  TextChange last;
  std::u16string textSeen;

 private:
  const EditControl& control_;
  std::string log;
};

class EditControlEventsTest : public EditControlTest {
 protected:
  EditControlEventsTest() { control_.SetEvents(&events_); }
  Recorder events_{control_};
};

TEST_F(EditControlEventsTest, EachMessageTellsEachThingOnce) {
  clipboard_.text = u"p";
  Set(u"ab‸c");
  events_.TakeLog();
  const auto told = [&](auto&& message) {
    message();
    return events_.TakeLog();
  };
  EXPECT_EQ(told([&] { control_.WM_CHAR(u'x'); }), "TSCV");
  EXPECT_EQ(told([&] { control_.WM_CHAR(8); }), "TSCV");
  EXPECT_EQ(told([&] { control_.WM_CHAR(u'\x01'); }), "V");
  EXPECT_EQ(told([&] { control_.WM_KEYDOWN(EditKey::Delete, {}); }), "TCV");
  EXPECT_EQ(told([&] { control_.WM_KEYDOWN(EditKey::Delete, {}); }), "V");
  EXPECT_EQ(told([&] { control_.WM_KEYDOWN(EditKey::Left, {}); }), "SV");
  EXPECT_EQ(told([&] { control_.EM_SETSEL(0, 1); }), "S");
  EXPECT_EQ(told([&] { control_.EM_SETSEL(0, 1); }), "");
  EXPECT_EQ(told([&] { control_.WM_CUT(); }), "TSCV");
  EXPECT_EQ(told([&] { control_.WM_PASTE(); }), "TSCV");
  EXPECT_EQ(told([&] { control_.EM_REPLACESEL(true, u"yz"); }), "TSC");
  EXPECT_EQ(told([&] { control_.EM_REPLACESEL(true, u""); }), "");
  EXPECT_EQ(told([&] { control_.EM_UNDO(); }), "TSCV");
  EXPECT_EQ(told([&] { control_.EM_REDO(); }), "TSCV");
  EXPECT_EQ(told([&] { control_.EM_REDO(); }), "");
  EXPECT_EQ(told([&] { control_.EM_SCROLLCARET(); }), "V");
  EXPECT_EQ(told([&] { control_.WM_SETREDRAW(false); }), "-");
  EXPECT_EQ(told([&] { control_.WM_SETREDRAW(true); }), "+");
  EXPECT_EQ(told([&] { control_.WM_SETTEXT(u"q"); }), "TSC");
  EXPECT_EQ(told([&] { control_.SetText(u"q"); }), "T");
  EXPECT_EQ(told([&] { control_.PrepareEditAtCaret(); }), "");
}

TEST_F(EditControlEventsTest, ALockedControlTellsNothing) {
  Set(u"ab‸c");
  control_.SetLocked(true);
  events_.TakeLog();
  control_.WM_CHAR(u'x');
  control_.WM_KEYDOWN(EditKey::Delete, {});
  control_.EM_UNDO();
  EXPECT_EQ(events_.TakeLog(), "");
}

TEST_F(EditControlEventsTest, AReplacementTellsItsLines) {
  Set(u"a\nb⟦1\n2\n3⟧c\nd");
  control_.EM_REPLACESEL(true, u"x\r\ny");
  EXPECT_EQ(events_.last.at, 4);
  EXPECT_EQ(events_.last.removed, 7);
  EXPECT_EQ(events_.last.inserted, 4);
  EXPECT_EQ(events_.last.firstLine, 1);
  EXPECT_EQ(events_.last.linesRemoved, 2);
  EXPECT_EQ(events_.last.linesInserted, 1);
  EXPECT_EQ(events_.textSeen, u"a\r\nbx\r\nyc\r\nd");
}

TEST_F(EditControlEventsTest, AStepOfManyChangesIsToldAsOneReplacementThatCoversThem) {
  Set(u"一\n二\n三\n四‸");
  {
    const EditScope scope(control_);
    for (const std::int32_t line : {2, 1}) {
      control_.SetSelStart(control_.LineStart(line));
      control_.EM_REPLACESEL(true, u"\r\n");
    }
  }
  events_.TakeLog();
  control_.EM_UNDO();
  EXPECT_EQ(events_.TakeLog(), "TSCV");
  EXPECT_EQ(events_.last.at, 3);
  EXPECT_EQ(events_.last.removed, 7);
  EXPECT_EQ(events_.last.inserted, 3);
  EXPECT_EQ(events_.last.firstLine, 1);
  EXPECT_EQ(events_.last.linesRemoved, 3);
  EXPECT_EQ(events_.last.linesInserted, 1);
}

TEST_F(EditControlEventsTest, ReplacingTheWholeTextTellsAllItsLines) {
  control_.SetText(u"a\r\nb\r\nc");
  control_.SetText(u"x\r\n");
  EXPECT_EQ(events_.last.removed, 7);
  EXPECT_EQ(events_.last.inserted, 3);
  EXPECT_EQ(events_.last.linesRemoved, 2);
  EXPECT_EQ(events_.last.linesInserted, 1);
}

class Meddler : public EditControlEvents {
 public:
  explicit Meddler(EditControl& control) : control_(control) {}
  void TextReplaced(const TextChange&) override {
    if (control_.At(control_.Caret() - 1) == u'<') control_.EM_REPLACESEL(true, u">");
  }

 private:
  EditControl& control_;
};

TEST_F(EditControlTest, AHostMayEditWithinAnEvent) {
  Meddler meddler(control_);
  control_.SetEvents(&meddler);
  Set(u"‸");
  Type(u"<");
  EXPECT_EQ(Now(), Shown(u"<>‸"));
  EXPECT_TRUE(control_.CheckInvariants());
  control_.SetEvents(nullptr);
  control_.EM_UNDO();
  EXPECT_EQ(Now(), Shown(u"<‸"));
}

// Large texts

TEST_F(EditControlTest, KeysInALargeTextCopyNothing) {
  std::u16string text;
  text.reserve(8'000'100);
  for (int i = 0; i < 1'000'000; ++i) text += u"日本語ab\r\n";
  const char16_t* storage = text.data();
  control_.SetText(std::move(text));
  control_.SetSelStart(control_.LineStart(500'000));
  for (const char16_t key : std::u16string_view(u"<p>\r\b\b本文")) control_.WM_CHAR(key);
  EXPECT_EQ(control_.FirstPiece().data(), storage);
  EXPECT_EQ(control_.LineCount(), 1'000'001);
  EXPECT_EQ(control_.Slice(control_.LineStart(500'000), 4), u"<p本文");
  EXPECT_TRUE(control_.CheckInvariants());
}

TEST_F(EditControlTest, AThousandInsertionsInOneScopeAreUndoneAtOnce) {
  std::u16string text;
  for (int i = 0; i < 1'000; ++i) text += u"行\r\n";
  control_.SetText(text);
  {
    const EditScope scope(control_);
    for (std::int32_t line = 0; line < 1'000; ++line) {
      control_.SetSelStart(control_.LineStart(line));
      control_.EM_REPLACESEL(true, u"<br>");
    }
  }
  EXPECT_EQ(control_.Length(), 7'000);
  control_.EM_UNDO();
  EXPECT_EQ(control_.Text(), text);
  EXPECT_FALSE(control_.EM_CANUNDO());
}

}  // namespace
}  // namespace kestri
