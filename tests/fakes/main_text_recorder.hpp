// Recorders around MainText: everything it asks of its surroundings goes, in order, into one journal of
// lines.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "document/main_text.hpp"
#include "document/tag_assistance.hpp"
#include "shell/common/text.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri::fakes {

using Journal = std::vector<std::string>;

class MainTextRecorder : public MainTextHost {
 public:
  explicit MainTextRecorder(Journal& journal) : journal_(journal) {}

  void MessageToStatusBar(std::u16string_view text) override { Note("status: ", text); }
  void SetStatusPane(int pane, std::u16string_view text) override {
    Note("pane " + std::to_string(pane) + ": ", text);
  }
  void DocumentModified() override {}
  void SetTextHidden(bool hidden) override { journal_.push_back(hidden ? "hide text" : "show text"); }
  void FocusText() override { journal_.push_back("focus text"); }
  void BringToFront() override { journal_.push_back("bring to front"); }
  void ShowTextMenu() override { journal_.push_back("text menu"); }
  void PaintTextDecor(Decor rows) override {
    journal_.push_back(rows == Decor::Full ? "paint all rows" : "paint changed rows");
  }
  void ResetCaretMemo() override { journal_.push_back("reset caret memo"); }
  void SetDragMode(bool drag) override { journal_.push_back(drag ? "drag on" : "drag off"); }
  void OpenDroppedFile(std::u16string_view path) override { Note("open here: ", path); }
  void OpenInNewInstance(std::u16string_view path) override { Note("open anew: ", path); }

 private:
  void Note(const std::string& what, std::u16string_view text) { journal_.push_back(what + ToUtf8(text)); }
  Journal& journal_;
};

class TagRecorder : public TagAssistance {
 public:
  explicit TagRecorder(Journal& journal) : journal_(journal) {}

  std::int16_t CaretTagKind(std::int16_t mode, Compare compare) override {
    askedMode = mode;
    askedCompare = compare;
    return caretTagKind;
  }
  void Preset(std::int32_t mode) override {
    if (failing) throw std::runtime_error("dictionary went away");
    preset_ = mode;
    journal_.push_back("preset: " + std::to_string(mode));
  }
  void ShowPopup() override { journal_.push_back("popup: " + std::to_string(preset_)); }
  void UnloadPopups() override { journal_.push_back("unload popups"); }
  bool HintVisible() override { return hintVisible; }
  void seTagHide() override { journal_.push_back("hide hint"); }
  void seTagHint() override {
    if (failingHints) throw std::runtime_error("dictionary went away");
    journal_.push_back("check hint");
  }
  bool seTagHintPriSet() override {
    journal_.push_back("set hint");
    return true;
  }
  void DismissHint() override { journal_.push_back("dismiss hint"); }

  std::int16_t caretTagKind = 0;
  std::int16_t askedMode = 0;
  Compare askedCompare = Compare::Text;
  bool hintVisible = false;
  bool failing = false;
  bool failingHints = false;

 private:
  Journal& journal_;
  std::int32_t preset_ = 0;
};

class BoxRecorder : public FakeMessageBox {
 public:
  explicit BoxRecorder(Journal& journal) : journal_(journal) {}
  MessageAnswer Ask(const MessageRequest& request) override {
    journal_.push_back("box: " + ToUtf8(request.text));
    return FakeMessageBox::Ask(request);
  }

 private:
  Journal& journal_;
};

class BeepRecorder : public FakeWindowServices {
 public:
  explicit BeepRecorder(Journal& journal) : journal_(journal) {}
  void Beep() override { journal_.push_back("beep"); }

 private:
  Journal& journal_;
};

}  // namespace kestri::fakes
