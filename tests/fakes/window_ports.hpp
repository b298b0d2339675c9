// Fakes of the ports that only the main window uses.
#pragma once

#include <utility>
#include <vector>

#include "platform/input_method_tools.hpp"
#include "platform/ui_effects.hpp"
#include "shell/window/load_progress.hpp"

namespace kestri::fakes {

class FakeInputMethodTools : public InputMethodTools {
 public:
  bool ShowProperties() override { return there; }
  bool RegisterWord() override { return there; }
  bool ShowPad() override { return there; }
  bool Reconvert() override { return there; }
  bool there = false;
};

class FakeUiEffects : public UiEffects {
 public:
  void SetAnimation(std::int16_t value, std::int32_t which) override { calls.emplace_back(value, which); }
  std::vector<std::pair<std::int16_t, std::int32_t>> calls;
};

class RecordedProgress : public LoadProgress {
 public:
  void Show(std::u16string_view text) override { texts.emplace_back(text); }
  std::vector<std::u16string> texts;
};

}  // namespace kestri::fakes
