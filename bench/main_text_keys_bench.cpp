// One key in the middle of a large document, through all the key rules.
#include <benchmark/benchmark.h>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kLine = u"    <li><a href=\"index.html\">吾輩は猫である</a></li>\r\n";

void Fill(fakes::MainTextDesk& desk, std::int64_t megabytes) {
  std::u16string text;
  while (static_cast<std::int64_t>(text.size()) < megabytes * 1'000'000) text += kLine;
  desk.control.SetText(std::move(text));
  const Position middle = desk.control.LineStart(desk.control.LineCount() / 2) + 20;
  desk.control.MoveCaret(middle, EditControl::Extend::No);
  desk.control.PrepareEditAtCaret();
}

void PressKeys(benchmark::State& state, std::u16string_view script) {
  fakes::MainTextDesk desk;
  Fill(desk, state.range(0));
  const std::vector<fakes::Key> keys = fakes::ParseKeys(script);
  for (auto _ : state) {
    for (const fakes::Key& key : keys) desk.keys.Press(key);
    desk.journal.clear();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(keys.size()));
}

BENCHMARK_CAPTURE(PressKeys, Letter, u"a")->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PressKeys, EnterBackspaces, u"{Enter}{Backspace*5}")
    ->Arg(1)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PressKeys, TabUndo, u"{Tab}{Ctrl+Z}")->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PressKeys, HomeEnd, u"{Home}{End}")->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PressKeys, TagOpen, u"<{Backspace}")->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(PressKeys, BlockIndent, u"{Home}{Shift+Down*3}{Tab}{Ctrl+Z}{Left}")
    ->Arg(1)
    ->Arg(100)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
