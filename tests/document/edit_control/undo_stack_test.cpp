#include "document/edit_control/undo_stack.hpp"

#include <gtest/gtest.h>

namespace kestri {
namespace {

Selection At(Position caret) {
  return {caret, caret};
}

void Type(UndoStack& undo, Position at, std::u16string_view text) {
  const auto end = at + static_cast<Position>(text.size());
  undo.Record({EditKind::Typing, at, {}, text, At(at), At(end)});
}

void Backspace(UndoStack& undo, Position at, std::u16string_view erased) {
  const auto end = at + static_cast<Position>(erased.size());
  undo.Record({EditKind::Erasing, at, {erased, {}}, {}, At(end), At(at)});
}

void Delete(UndoStack& undo, Position at, std::u16string_view erased) {
  undo.Record({EditKind::Erasing, at, {erased, {}}, {}, At(at), At(at)});
}

void Insert(UndoStack& undo, Position at, std::u16string_view text) {
  const auto end = at + static_cast<Position>(text.size());
  undo.Record({EditKind::Single, at, {}, text, At(at), At(end)});
}

int StepsToUndo(UndoStack& undo) {
  int steps = 0;
  while (undo.Undo()) ++steps;
  return steps;
}

TEST(UndoStack, AnEmptyOneGivesNothing) {
  UndoStack undo;
  EXPECT_FALSE(undo.CanUndo());
  EXPECT_FALSE(undo.CanRedo());
  EXPECT_EQ(undo.Undo(), nullptr);
  EXPECT_EQ(undo.Redo(), nullptr);
}

TEST(UndoStack, TypingOfOneWordIsOneStep) {
  UndoStack undo;
  Type(undo, 3, u"語");
  Type(undo, 4, u"で");
  Type(undo, 5, u"す");
  const UndoStep* step = undo.Undo();
  ASSERT_NE(step, nullptr);
  ASSERT_EQ(step->changes.size(), 1u);
  EXPECT_EQ(step->changes[0].inserted, 3);
  EXPECT_EQ(step->text, u"語です");
  EXPECT_EQ(step->before, At(3));
  EXPECT_EQ(step->after, At(6));
  EXPECT_EQ(undo.Undo(), nullptr);
}

TEST(UndoStack, ABlankAfterAWordClosesIt) {
  UndoStack undo;
  Position at = 0;
  for (const char16_t unit : std::u16string_view(u"  ab c　日\td")) Type(undo, at++, {&unit, 1});
  std::vector<std::u16string> words;
  while (const UndoStep* step = undo.Undo()) words.push_back(step->text);
  EXPECT_EQ(words, (std::vector<std::u16string>{u"d", u"日\t", u"c　", u"  ab "}));
}

TEST(UndoStack, ALineEndClosesTheTyping) {
  UndoStack undo;
  Type(undo, 0, u"a");
  Type(undo, 1, u"\r\n");
  Type(undo, 3, u"\r\n");
  Type(undo, 5, u"b");
  EXPECT_EQ(StepsToUndo(undo), 3);
}

TEST(UndoStack, TypingElsewhereOrOverASelectionBeginsAnew) {
  UndoStack undo;
  Type(undo, 0, u"a");
  Type(undo, 5, u"b");
  undo.Record({EditKind::Typing, 6, {u"x", {}}, u"c", {6, 7}, At(7)});
  Type(undo, 7, u"d");
  EXPECT_EQ(StepsToUndo(undo), 3);
}

TEST(UndoStack, AClosedRunIsNotJoined) {
  UndoStack undo;
  Type(undo, 0, u"a");
  undo.CloseRun();
  Type(undo, 1, u"b");
  EXPECT_EQ(StepsToUndo(undo), 2);
}

TEST(UndoStack, ARunOfBackspacesIsOneStepAndSelectsWhatComesBack) {
  UndoStack undo;
  Backspace(undo, 5, u"f");
  Backspace(undo, 4, u"e");
  Backspace(undo, 2, u"\r\n");
  const UndoStep* step = undo.Undo();
  ASSERT_NE(step, nullptr);
  EXPECT_EQ(step->changes.size(), 3u);
  EXPECT_EQ(step->before, (Selection{2, 6}));
  EXPECT_EQ(step->after, At(2));
  EXPECT_EQ(undo.Undo(), nullptr);
}

TEST(UndoStack, ARunOfDeletesIsOneStepWithTheCaretWhereItWas) {
  UndoStack undo;
  Delete(undo, 1, u"b");
  Delete(undo, 1, u"c");
  const UndoStep* step = undo.Undo();
  ASSERT_NE(step, nullptr);
  EXPECT_EQ(step->before, (Selection{3, 1}));
  EXPECT_EQ(undo.Undo(), nullptr);
}

TEST(UndoStack, ErasingElsewhereBeginsAnew) {
  UndoStack undo;
  Delete(undo, 1, u"b");
  Delete(undo, 7, u"c");
  Backspace(undo, 3, u"d");
  EXPECT_EQ(StepsToUndo(undo), 3);
}

TEST(UndoStack, TypingAndErasingDoNotMix) {
  UndoStack undo;
  Type(undo, 0, u"a");
  Backspace(undo, 0, u"a");
  Type(undo, 0, u"b");
  EXPECT_EQ(StepsToUndo(undo), 3);
}

TEST(UndoStack, EachInsertionOfTheProgramIsOneStep) {
  UndoStack undo;
  Insert(undo, 0, u"<b>");
  Insert(undo, 3, u"</b>");
  Type(undo, 7, u"x");
  EXPECT_EQ(StepsToUndo(undo), 3);
}

TEST(UndoStack, AScopeIsOneStepWithTheSelectionAroundIt) {
  UndoStack undo;
  undo.OpenScope({1, 4});
  Insert(undo, 9, u"a");
  undo.OpenScope(At(10));
  Type(undo, 0, u"b");
  undo.CloseScope(At(1));
  EXPECT_FALSE(undo.CanUndo());
  Backspace(undo, 0, u"b");
  undo.CloseScope({2, 3});
  const UndoStep* step = undo.Undo();
  ASSERT_NE(step, nullptr);
  EXPECT_EQ(step->changes.size(), 3u);
  EXPECT_EQ(step->text, u"abb");
  EXPECT_EQ(step->before, (Selection{1, 4}));
  EXPECT_EQ(step->after, (Selection{2, 3}));
  EXPECT_EQ(undo.Undo(), nullptr);
}

TEST(UndoStack, TypingJoinsNoScopeBeforeIt) {
  UndoStack undo;
  undo.OpenScope(At(0));
  Type(undo, 0, u"a");
  undo.CloseScope(At(1));
  Type(undo, 1, u"b");
  EXPECT_EQ(StepsToUndo(undo), 2);
}

TEST(UndoStack, AScopeWithoutEditsIsNoStepButClosesTheTyping) {
  UndoStack undo;
  Type(undo, 0, u"a");
  undo.OpenScope(At(1));
  undo.CloseScope(At(1));
  Type(undo, 1, u"b");
  EXPECT_EQ(StepsToUndo(undo), 2);
}

TEST(UndoStack, ClearingInsideAScopeKeepsWhatFollows) {
  UndoStack undo;
  undo.OpenScope({0, 5});
  Insert(undo, 0, u"a");
  undo.Clear();
  Insert(undo, 3, u"b");
  undo.CloseScope(At(4));
  const UndoStep* step = undo.Undo();
  ASSERT_NE(step, nullptr);
  EXPECT_EQ(step->text, u"b");
  EXPECT_EQ(step->before, At(3));
  EXPECT_EQ(undo.Undo(), nullptr);
}

TEST(UndoStack, RedoGivesTheStepsBackUntilTheNextEdit) {
  UndoStack undo;
  Insert(undo, 0, u"a");
  Insert(undo, 1, u"b");
  undo.Undo();
  undo.Undo();
  ASSERT_NE(undo.Redo(), nullptr);
  EXPECT_TRUE(undo.CanRedo());
  Insert(undo, 1, u"c");
  EXPECT_FALSE(undo.CanRedo());
  EXPECT_EQ(undo.Undo()->text, u"c");
  EXPECT_EQ(undo.Undo()->text, u"a");
}

TEST(UndoStack, TypingAfterAnUndoJoinsNothing) {
  UndoStack undo;
  Type(undo, 0, u"a");
  undo.Undo();
  undo.Redo();
  Type(undo, 1, u"b");
  EXPECT_EQ(StepsToUndo(undo), 2);
}

}  // namespace
}  // namespace kestri
