// MainText over the real edit control, with recorders for everything around it, and keys that reach it as the
// view sends them.
#pragma once

#include <string>
#include <string_view>

#include "document/main_text.hpp"
#include "document/trp_string.hpp"
#include "tests/fakes/key_script.hpp"
#include "tests/fakes/main_text_recorder.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/visible_caret.hpp"

namespace kestri::fakes {

class MainTextKeys : public KeyTarget {
 public:
  explicit MainTextKeys(MainText& text) : text_(text) {}

  void Press(const Key& key) override {
    if (key.name == u"ime") return text_.CommitInput(key.text);
    if (key.control && !key.alt && PressShortcut(key)) return;
    const int shift = (key.shift ? kShift : 0) | (key.control ? kControl : 0) | (key.alt ? kAlt : 0);
    const int code = CodeOf(key);
    if (!text_.KeyDown(code, shift)) PressDown(key);
    text_.KeyUp(code, shift);
  }

 private:
  // Keys that the menu takes before the text sees them.
  bool PressShortcut(const Key& key) {
    if (key.name == u"X") return text_.Edit(0), true;
    if (key.name == u"C") return text_.Edit(1), true;
    if (key.name == u"V") return text_.Edit(2), true;
    if (key.name == u"A") return text_.Edit(5), true;
    if (key.name == u"Z") return text_.MenUNDO(0), true;
    if (key.name == u"Y") return text_.MenUNDO(1), true;
    return false;
  }

  static int CodeOf(const Key& key) {
    if (key.name == u"Tab") return kKeyTab;
    if (key.name == u"Home") return kKeyHome;
    if (key.name == u"End") return kKeyEnd;
    if (key.name == u"Delete") return kKeyDelete;
    return 0;
  }

  void PressDown(const Key& key) {
    constexpr std::array<std::pair<std::u16string_view, EditKey>, 9> moves = {
        {{u"Left", EditKey::Left},
         {u"Right", EditKey::Right},
         {u"Up", EditKey::Up},
         {u"Down", EditKey::Down},
         {u"Home", EditKey::Home},
         {u"End", EditKey::End},
         {u"PageUp", EditKey::PageUp},
         {u"PageDown", EditKey::PageDown},
         {u"Delete", EditKey::Delete}}};
    for (const auto& [name, move] : moves) {
      if (key.name == name) return text_.WM_KEYDOWN(move, {.shift = key.shift, .control = key.control});
    }
    text_.WM_CHAR(CharacterOf(key), 1);
  }

  static char16_t CharacterOf(const Key& key) {
    if (key.name == u"Enter") return 13;
    if (key.name == u"Tab") return 9;
    if (key.name == u"Esc") return 27;
    if (key.name == u"Backspace") return key.control ? 127 : 8;
    if (key.control && key.name == u"\\") return 28;
    return key.name.front();
  }

  MainText& text_;
};

class MainTextDesk : private EditControlEvents {
 public:
  MainTextDesk() {
    state.trpString = DefaultTrpString();
    control.SetEvents(this);
    text.InstallSubclass(1);
    journal.clear();
  }
  ~MainTextDesk() override { control.SetEvents(nullptr); }

  void Put(std::u16string_view row) {
    SetMarked(control, row);
    control.SetModified(false);
    state.modified = state.modifiedShown = 0;
    journal.clear();
  }
  void Press(std::u16string_view script) { PressAll(keys, script); }
  std::string Row() const { return ToUtf8(Marked(control)); }

  // Journal lines that begin with one of the words, in order.
  Journal Lines(std::initializer_list<std::string_view> words) const {
    Journal lines;
    for (const std::string& line : journal) {
      if (std::any_of(words.begin(), words.end(), [&](auto word) { return line.starts_with(word); }))
        lines.push_back(line);
    }
    return lines;
  }
  // What the user sees or hears.
  Journal Messages() const { return Lines({"status: ", "box: ", "beep", "popup: "}); }
  Journal Decor() const { return Lines({"paint", "reset caret memo"}); }

  void SetSetting(std::u16string_view key, std::u16string_view value) {
    common.SetINI(common.ExeName(), u"Setting", key, value);
  }

  Journal journal;
  FakeClipboard clipboard;
  BoxRecorder boxes{journal};
  BeepRecorder window{journal};
  MemoryFileSystem files;
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  MainTextRecorder host{journal};
  TagRecorder tags{journal};
  ApplicationState state;
  ClassCommon common{{files, environment, shell, clock, window}, PathStyle::Posix};
  EditControl control{clipboard};
  MainText text{control, state, common, host, tags, clipboard, boxes};
  MainTextKeys keys{text};

 private:
  void Change() override { text.Change(); }
};

}  // namespace kestri::fakes
