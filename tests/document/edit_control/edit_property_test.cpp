// Long random walks of edits, undos and redos. After every step the control agrees with a plain string that
// is edited in the simplest way and with whole-text snapshots for undo.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "document/edit_control/edit_control.hpp"
#include "document/edit_control/text_boundaries.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

constexpr std::size_t kLargestText = 160;

class Model {
 public:
  std::u16string text;
  Selection selection;
  std::u16string clipboard;

  void SetText(std::u16string value) {
    text = std::move(value);
    selection = {};
    Forget();
  }
  void Forget() {
    steps_.clear();
    done_ = 0;
    runOpen_ = false;
  }

  void Select(Position anchor, Position caret) {
    const Selection wanted = Snapped(anchor, caret);
    if (wanted != selection) runOpen_ = false;
    selection = wanted;
  }
  void MoveByKey(Position caret, bool extend) {
    selection = Snapped(extend ? selection.anchor : caret, caret);
  }

  void ReplaceSel(std::u16string_view inserted) { Edit(selection, inserted, Kind::Single); }

  void Type(std::u16string_view typed) {
    const bool blank = IsBlank(typed[0]);
    const bool joins = runOpen_ && runKind_ == Kind::Typing && selection.Empty() &&
                       selection.caret == runEnd_ && !(runHasWord_ && runEndsBlank_ && !blank);
    const Position end = selection.Start() + static_cast<Position>(typed.size());
    Edit(selection, typed, Kind::Typing, joins);
    runHasWord_ = (joins && runHasWord_) || !blank;
    runEndsBlank_ = blank;
    runEnd_ = end;
    if (typed == u"\r\n") runOpen_ = false;
  }

  enum class Side { Left, Right };
  void Erase(Side side, Position to) {
    if (!selection.Empty()) return ReplaceSel({});
    if (to == selection.caret) return;
    const bool joins = runOpen_ && runKind_ == Kind::Erasing && (to == runEnd_ || selection.caret == runEnd_);
    if (!joins) {
      erasedOnTheLeft_ = side == Side::Left;
      erased_ = 0;
    }
    const Selection range{to, selection.caret};
    erased_ += range.End() - range.Start();
    Edit(range, {}, Kind::Erasing, joins);
    runEnd_ = range.Start();
    if (scope_) return;
    const Selection back{runEnd_, runEnd_ + erased_};
    steps_.back().before = erasedOnTheLeft_ ? back : Selection{back.caret, back.anchor};
  }
  void EraseWord(Position to) {
    if (!selection.Empty()) return ReplaceSel({});
    if (to != selection.caret) Edit({to, selection.caret}, {}, Kind::Single);
  }

  void BeginScope() {
    runOpen_ = false;
    scope_ = Step{.textBefore = text, .before = selection, .textAfter = {}, .after = {}};
    scopeEdited_ = false;
  }
  void EndScope() {
    if (scopeEdited_) {
      scope_->textAfter = text;
      scope_->after = selection;
      Push(*scope_);
    }
    scope_.reset();
  }

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < steps_.size(); }
  void Undo() {
    runOpen_ = false;
    const Step& step = steps_[--done_];
    text = step.textBefore;
    selection = step.before;
  }
  void Redo() {
    runOpen_ = false;
    const Step& step = steps_[done_++];
    text = step.textAfter;
    selection = step.after;
  }

  bool Inside(Position position) const {
    const auto at = static_cast<std::size_t>(position);
    return position > 0 && at < text.size() && IsPair(text[at - 1], text[at]);
  }

 private:
  enum class Kind { Single, Typing, Erasing };
  struct Step {
    std::u16string textBefore;
    Selection before;
    std::u16string textAfter;
    Selection after;
  };

  Selection Snapped(Position anchor, Position caret) const {
    const auto length = static_cast<Position>(text.size());
    anchor = std::clamp(anchor, 0, length);
    caret = std::clamp(caret, 0, length);
    const bool empty = anchor == caret;
    if (Inside(anchor)) anchor += anchor > caret ? 1 : -1;
    if (Inside(caret)) caret += caret > anchor && !empty ? 1 : -1;
    return empty ? Selection{anchor, anchor} : Selection{anchor, caret};
  }

  void Edit(Selection range, std::u16string_view inserted, Kind kind, bool joins = false) {
    if (range.Empty() && inserted.empty()) return;
    Step step{.textBefore = text, .before = range, .textAfter = {}, .after = {}};
    const auto at = static_cast<std::size_t>(range.Start());
    text.replace(at, static_cast<std::size_t>(range.End()) - at, inserted);
    Position caret = range.Start() + static_cast<Position>(inserted.size());
    if (Inside(caret)) caret += inserted.empty() ? -1 : 1;
    selection = {caret, caret};
    step.textAfter = text;
    step.after = selection;
    if (scope_) {
      scopeEdited_ = true;
    } else if (joins) {
      steps_.back().textAfter = text;
      steps_.back().after = selection;
    } else {
      Push(step);
    }
    runOpen_ = kind != Kind::Single && !scope_;
    runKind_ = kind;
  }

  void Push(const Step& step) {
    steps_.resize(done_);
    steps_.push_back(step);
    done_ = steps_.size();
  }

  std::vector<Step> steps_;
  std::size_t done_ = 0;
  std::optional<Step> scope_;
  bool scopeEdited_ = false;
  bool runOpen_ = false;
  Kind runKind_ = Kind::Single;
  Position runEnd_ = 0;
  bool runHasWord_ = false;
  bool runEndsBlank_ = false;
  bool erasedOnTheLeft_ = false;
  Position erased_ = 0;
};

// A host that knows the text only by what it is told.
class Mirror : public EditControlEvents {
 public:
  explicit Mirror(const EditControl& control) : control_(control) {}

  void TextReplaced(const TextChange& change) override {
    text.replace(static_cast<std::size_t>(change.at), static_cast<std::size_t>(change.removed),
                 control_.Slice(change.at, change.inserted));
    lines += change.linesInserted - change.linesRemoved;
    EXPECT_EQ(change.firstLine, control_.LineOf(change.at));
    EXPECT_GE(change.linesRemoved, 0);
    EXPECT_GE(change.linesInserted, 0);
    EXPECT_EQ(text, control_.Text());
    EXPECT_EQ(lines, control_.LineCount());
  }
  void SelectionChanged() override {
    selection = {control_.Anchor(), control_.Caret()};
    ++selectionEvents;
  }
  void Change() override { ++changeEvents; }

  std::u16string text;
  std::int32_t lines = 1;
  Selection selection;
  int selectionEvents = 0;
  int changeEvents = 0;

 private:
  const EditControl& control_;
};

class Walk {
 public:
  explicit Walk(unsigned seed) : random_(seed) { control_.SetEvents(&mirror_); }

  void Step() {
    mirror_.selectionEvents = mirror_.changeEvents = 0;
    if (model_.text.size() > kLargestText) return Shrink();
    if (Chance(2'000)) return SetText();
    if (Chance(25)) return Scope();
    AnyEdit();
  }

  void ExpectAgreement() {
    ASSERT_EQ(control_.Text(), model_.text);
    ASSERT_EQ((Selection{control_.Anchor(), control_.Caret()}), model_.selection);
    ASSERT_EQ(control_.EM_CANUNDO(), model_.CanUndo());
    ASSERT_EQ(control_.EM_CANREDO(), model_.CanRedo());
    ASSERT_EQ(clipboard_.text, model_.clipboard);
    ASSERT_EQ(mirror_.text, model_.text);
    ASSERT_EQ(mirror_.selection, model_.selection);
    ASSERT_TRUE(control_.CheckInvariants());
    ExpectLines();
    if (Chance(4)) ExpectSearches();
  }

 private:
  int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  bool Chance(int oneIn) { return Number(oneIn) == 0; }
  Position Place() { return Number(static_cast<int>(model_.text.size()) + 1); }
  bool Flag() { return Chance(2); }

  char16_t Unit() {
    static constexpr std::u16string_view kUnits =
        u"aabB1_  \t　あいアー漢字Ａ。<\"\r\n\r\n\n\r\u3099\uFE0F\xD83D\xDE00ｶﾞ";
    return kUnits[static_cast<std::size_t>(Number(static_cast<int>(kUnits.size())))];
  }
  std::u16string Units(int atMost) {
    std::u16string units;
    for (int count = Number(atMost + 1); count > 0; --count)
      units += Chance(5) ? std::u16string(kCrLf) : std::u16string(1, Unit());
    return units;
  }

  // The same text with the gap elsewhere: boundaries must not depend on it.
  GapBuffer Copy() {
    GapBuffer copy;
    copy.Assign(model_.text);
    return copy;
  }

  void AnyEdit() {
    switch (Number(16)) {
      case 0:
        return ReplaceSel();
      case 1:
        return Select();
      case 2:
        return MoveCaret();
      case 3:
      case 4:
        return Type();
      case 5:
        return TypeWord();
      case 6:
      case 7:
        return Backspace();
      case 8:
        return Delete();
      case 9:
        return DeleteWord();
      case 10:
        return MoveByKey();
      case 11:
      case 12:
        return Undo();
      case 13:
        return Redo();
      case 14:
        return CutOrPaste();
      default:
        control_.PrepareEditAtCaret();
    }
  }

  void ReplaceSel() {
    const std::u16string units = Units(8);
    const bool canUndo = !Chance(40);
    control_.EM_REPLACESEL(canUndo, units);
    model_.ReplaceSel(units);
    if (!canUndo) model_.Forget();
  }
  void Select() {
    const Position start = Place(), end = Place();
    control_.EM_SETSEL(start, end);
    model_.Select(start, end);
  }
  void MoveCaret() {
    const Position to = Place();
    const bool extend = Flag();
    control_.MoveCaret(to, extend ? EditControl::Extend::Yes : EditControl::Extend::No);
    model_.Select(extend ? model_.selection.anchor : to, to);
  }
  void Type(char16_t unit) {
    control_.WM_CHAR(unit);
    if (unit == u'\r' || unit == u'\n') {
      model_.Type(kCrLf);
    } else {
      model_.Type({&unit, 1});
    }
  }
  void Type() { Type(Unit()); }
  void TypeWord() {
    for (int count = Number(6); count > 0; --count) Type(Unit());
  }
  void Backspace() {
    const Position to = PreviousCodePoint(Copy(), model_.selection.caret);
    control_.WM_CHAR(8);
    model_.Erase(Model::Side::Left, to);
  }
  void Delete() {
    const Position to = NextCaretStop(Copy(), model_.selection.caret);
    control_.WM_KEYDOWN(EditKey::Delete, {});
    model_.Erase(Model::Side::Right, to);
  }
  void DeleteWord() {
    if (Flag()) {
      const Position to = NextWord(Copy(), model_.selection.caret);
      control_.WM_KEYDOWN(EditKey::Delete, {.control = true});
      model_.EraseWord(to);
    } else {
      const Position to = PreviousWord(Copy(), model_.selection.caret);
      control_.DeleteWordLeft();
      model_.EraseWord(to);
    }
  }
  void MoveByKey() {
    const bool left = Flag(), extend = Flag();
    const Selection& selection = model_.selection;
    Position to = left ? PreviousCaretStop(Copy(), selection.caret) : NextCaretStop(Copy(), selection.caret);
    if (!selection.Empty() && !extend) to = left ? selection.Start() : selection.End();
    control_.WM_KEYDOWN(left ? EditKey::Left : EditKey::Right, {.shift = extend});
    model_.MoveByKey(to, extend);
  }
  void Undo() {
    ASSERT_EQ(control_.EM_UNDO(), model_.CanUndo());
    if (model_.CanUndo()) model_.Undo();
  }
  void Redo() {
    ASSERT_EQ(control_.EM_REDO(), model_.CanRedo());
    if (model_.CanRedo()) model_.Redo();
  }
  void CutOrPaste() {
    if (Flag()) {
      control_.WM_PASTE();
      if (!model_.clipboard.empty()) model_.ReplaceSel(model_.clipboard);
    } else if (!model_.selection.Empty()) {
      const Selection& selection = model_.selection;
      model_.clipboard = model_.text.substr(static_cast<std::size_t>(selection.Start()),
                                            static_cast<std::size_t>(selection.End() - selection.Start()));
      control_.WM_CUT();
      model_.ReplaceSel({});
    }
  }
  void SetText() {
    const std::u16string text = Units(60);
    control_.SetText(text);
    model_.SetText(text);
  }
  void Shrink() {
    const Position from = Place();
    control_.EM_SETSEL(from, from + 100);
    model_.Select(from, from + 100);
    control_.EM_REPLACESEL(true, u"");
    model_.ReplaceSel({});
    if (Chance(8)) SetText();
  }
  void Scope() {
    const EditScope scope(control_);
    model_.BeginScope();
    for (int count = Number(6); count > 0; --count) {
      switch (Number(4)) {
        case 0:
          Type();
          break;
        case 1:
          Backspace();
          break;
        case 2:
          Select();
          break;
        default: {
          const EditScope inner(control_);
          const std::u16string units = Units(5);
          control_.EM_REPLACESEL(true, units);
          model_.ReplaceSel(units);
        }
      }
    }
    model_.EndScope();
  }

  void ExpectLines() {
    std::int32_t line = 0;
    for (std::size_t i = 0; i <= model_.text.size(); ++i) {
      if (i >= 2 && model_.text[i - 2] == u'\r' && model_.text[i - 1] == u'\n') {
        ASSERT_EQ(control_.LineStart(++line), static_cast<Position>(i));
      }
      ASSERT_EQ(control_.LineOf(static_cast<Position>(i)), line);
    }
    ASSERT_EQ(control_.LineCount(), line + 1);
  }
  void ExpectSearches() {
    const Position at = Place();
    const auto some =
        model_.text.substr(static_cast<std::size_t>(Place()), static_cast<std::size_t>(1 + Number(3)));
    const std::u16string find = Flag() && !some.empty() ? some : Units(2) + Unit();
    ASSERT_EQ(control_.Find(find, at),
              static_cast<Position>(model_.text.find(find, static_cast<std::size_t>(at))));
    const auto before = std::u16string_view(model_.text).substr(0, static_cast<std::size_t>(at));
    ASSERT_EQ(control_.FindLast(find, at), static_cast<Position>(before.rfind(find)));
    for (const Compare compare : {Compare::Binary, Compare::Text}) {
      EditControl whole(clipboard_);
      whole.SetText(model_.text);
      ASSERT_EQ(control_.Find(find, at, compare), whole.Find(find, at, compare));
      ASSERT_EQ(control_.FindLast(find, at, compare), whole.FindLast(find, at, compare));
    }
  }

  std::mt19937 random_;
  fakes::FakeClipboard clipboard_;
  EditControl control_{clipboard_};
  Mirror mirror_{control_};
  Model model_;
};

class EditWalk : public testing::TestWithParam<unsigned> {};

TEST_P(EditWalk, AgreesWithAPlainStringAtEveryStep) {
  Walk walk(GetParam());
  for (int step = 0; step < 10'000; ++step) {
    walk.Step();
    walk.ExpectAgreement();
    ASSERT_FALSE(HasFailure()) << "step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditWalk, testing::Range(1u, 11u));

}  // namespace
}  // namespace kestri
