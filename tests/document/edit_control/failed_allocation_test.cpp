// Whatever allocation fails: an edit happens as a whole or not at all.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <new>
#include <string>

#include "document/edit_control/edit_control.hpp"
#include "tests/fakes/ports.hpp"

namespace {

int allocationsLeft = -1;  // until one fails; negative: none does

}  // namespace

// Not inlined: the compiler would take the pair of malloc and free for a mismatch with the library's own.
[[gnu::noinline]] void* operator new(std::size_t size) {
  if (allocationsLeft == 0) throw std::bad_alloc();
  if (allocationsLeft > 0) --allocationsLeft;
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* block) noexcept {
  std::free(block);
}
[[gnu::noinline]] void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}

namespace kestri {
namespace {

constexpr int kMostAllocations = 200;

// How far undo and redo reach, and what they bring back.
std::u16string UndoneAndRedone(EditControl& control) {
  std::u16string seen;
  int steps = 0;
  for (; control.EM_UNDO(); ++steps) seen += control.Text() + u"|";
  for (; steps > 0; --steps) control.EM_REDO();
  while (control.EM_REDO()) {
    seen += control.Text() + u"|";
    ++steps;
  }
  for (; steps > 0; --steps) control.EM_UNDO();
  return seen;
}

class FailedAllocation : public testing::Test {
 protected:
  using Step = std::function<void(EditControl&)>;

  // The edit is tried with its first allocation failing, then with its second, until it succeeds.
  void EveryFailureLeavesEverything(const Step& prepare, const Step& edit, std::u16string_view expected) {
    int number = 0;
    for (bool done = false; !done; ++number) {
      ASSERT_LT(number, kMostAllocations);
      EditControl control(clipboard);
      EditControl twin(clipboard);
      prepare(control);
      prepare(twin);
      done = Succeeds(control, edit, number);
      EXPECT_TRUE(control.CheckInvariants()) << number;
      if (done) {
        EXPECT_EQ(control.Text(), expected);
      } else {
        ExpectSame(control, twin, number);
      }
    }
    failures_ += number - 1;
  }

  void TearDown() override { EXPECT_GT(failures_, 0) << "nothing was allocated"; }

  static bool Succeeds(EditControl& control, const Step& edit, int allocations) {
    allocationsLeft = allocations;
    try {
      edit(control);
      allocationsLeft = -1;
      return true;
    } catch (const std::bad_alloc&) {
      allocationsLeft = -1;
      return false;
    }
  }

  static void ExpectSame(EditControl& control, EditControl& twin, int number) {
    EXPECT_EQ(control.Text(), twin.Text()) << number;
    EXPECT_EQ(control.Anchor(), twin.Anchor()) << number;
    EXPECT_EQ(control.Caret(), twin.Caret()) << number;
    EXPECT_EQ(control.Modified(), twin.Modified()) << number;
    EXPECT_EQ(UndoneAndRedone(control), UndoneAndRedone(twin)) << number;
    EXPECT_TRUE(control.CheckInvariants()) << number;
  }

  int failures_ = 0;
  fakes::FakeClipboard clipboard;
  const std::u16string lines_ = [] {
    std::u16string lines;
    for (int i = 0; i < 5000; ++i) lines += u"ab\r\n";
    return lines;
  }();
};

TEST_F(FailedAllocation, AReplacedSelection) {
  EveryFailureLeavesEverything(
      [](EditControl& control) {
        control.SetText(u"one\r\ntwo\r\nthree");
        control.EM_SETSEL(2, 9);
      },
      [this](EditControl& control) { control.EM_REPLACESEL(true, lines_); }, u"on" + lines_ + u"three");
}

TEST_F(FailedAllocation, AReplacementThatForgetsUndo) {
  EveryFailureLeavesEverything(
      [](EditControl& control) {
        control.SetText(u"one\r\ntwo");
        control.EM_REPLACESEL(true, u"zero ");
        control.EM_SETSEL(0, 4);
      },
      [this](EditControl& control) { control.EM_REPLACESEL(false, lines_); }, lines_ + u" one\r\ntwo");
}

TEST_F(FailedAllocation, AKeyOfARun) {
  for (const std::size_t length : {0UL, 1UL, 7UL, 15UL, 1023UL, 1024UL}) {
    EveryFailureLeavesEverything(
        [&](EditControl& control) {
          control.SetText(u"one\r\n");
          for (std::size_t i = 0; i < length; ++i) control.WM_CHAR(u'x');
        },
        [](EditControl& control) { control.WM_CHAR(13); }, std::u16string(length, u'x') + u"\r\none\r\n");
  }
}

TEST_F(FailedAllocation, ADeletedSelection) {
  EveryFailureLeavesEverything(
      [this](EditControl& control) {
        control.SetText(lines_);
        control.EM_SETSEL(1, static_cast<Position>(lines_.size()));
      },
      [](EditControl& control) { control.WM_CLEAR(); }, u"a");
}

TEST_F(FailedAllocation, AnEditWhereStepsWereUndone) {
  EveryFailureLeavesEverything(
      [](EditControl& control) {
        for (const auto* word : {u"one ", u"two ", u"three "}) control.EM_REPLACESEL(true, word);
        control.EM_UNDO();
        control.EM_UNDO();
      },
      [](EditControl& control) { control.EM_REPLACESEL(true, std::u16string(2000, u'x')); },
      u"one " + std::u16string(2000, u'x'));
}

// Line feeds that end no line need room in the search for those that do.
TEST_F(FailedAllocation, AStepOfSeveralPiecesTakenBack) {
  const std::u16string feeds(2000, u'\n');
  const std::u16string text = u"a\r" + feeds + u"b\r" + feeds + u"c";
  const Step erase = [&](EditControl& control) {
    control.SetText(std::u16string(text));
    const EditScope oneStep(control);
    for (const Position at : {2004, 2}) {
      control.EM_SETSEL(at, at + 2000);
      control.EM_REPLACESEL(true, u"");
    }
  };
  EveryFailureLeavesEverything(
      erase, [](EditControl& control) { control.EM_UNDO(); }, text);
}

TEST_F(FailedAllocation, ALoadedText) {
  EveryFailureLeavesEverything(
      [](EditControl& control) {
        control.SetText(u"one\r\ntwo");
        control.EM_SETSEL(1, 6);
        control.EM_REPLACESEL(true, u"x");
      },
      [this](EditControl& control) { control.WM_SETTEXT(lines_); }, lines_);
}

}  // namespace
}  // namespace kestri
