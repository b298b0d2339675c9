// The edit control with a page of 100 million UTF-16 units in short lines.
#include <benchmark/benchmark.h>

#include <string>
#include <string_view>

#include "document/edit_control/edit_control.hpp"
#include "document/edit_control/gap_buffer.hpp"
#include "document/edit_control/line_index.hpp"

namespace {

using namespace kestri;

constexpr std::size_t kUnits = 100'000'000;
constexpr std::size_t kSpare = 64 * 1024;

class NoClipboard : public Clipboard {
 public:
  std::u16string Text() override { return {}; }
  void SetText(std::u16string_view) override {}
};

std::u16string Page(std::size_t units) {
  constexpr std::u16string_view kLines =
      u"<p>日本語の<a href=\"index.html\">ページ</a>を書く人のための、\r\n"
      u"<br>\r\n"
      u"  <li class=\"menu\">エディタです。これは普通の長さの行で、HTMLの本文が続きます。</li>\r\n";
  std::u16string page;
  page.reserve(units + kSpare);
  while (page.size() + kLines.size() <= units) page += kLines;
  return page;
}

struct LoadedControl {
  LoadedControl() { control.SetText(Page(kUnits)); }
  NoClipboard clipboard;
  EditControl control{clipboard};

  void GoToMiddle() {
    control.SetSelStart(control.LineStart(control.LineCount() / 2));
    control.PrepareEditAtCaret();
  }
};

void CountBytes(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kUnits * sizeof(char16_t)));
}

void IndexLines(benchmark::State& state) {
  GapBuffer text;
  text.Assign(Page(kUnits));
  for (auto _ : state) {
    LineIndex lines;
    lines.Rebuild(text);
    benchmark::DoNotOptimize(lines.LineCount());
  }
  CountBytes(state);
}
BENCHMARK(IndexLines)->Unit(benchmark::kMillisecond);

void SetText(benchmark::State& state) {
  NoClipboard clipboard;
  for (auto _ : state) {
    state.PauseTiming();
    std::u16string page = Page(kUnits);
    {
      EditControl control(clipboard);
      state.ResumeTiming();
      control.SetText(std::move(page));
      state.PauseTiming();
    }
    state.ResumeTiming();
  }
  CountBytes(state);
}
BENCHMARK(SetText)->Unit(benchmark::kMillisecond);

void TypeInTheMiddle(benchmark::State& state) {
  LoadedControl loaded;
  loaded.GoToMiddle();
  for (auto _ : state) {
    loaded.control.WM_CHAR(u'あ');
    loaded.control.WM_CHAR(8);
  }
  state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(TypeInTheMiddle)->Unit(benchmark::kMicrosecond)->Iterations(20'000);

void EnterInTheMiddle(benchmark::State& state) {
  LoadedControl loaded;
  loaded.GoToMiddle();
  for (auto _ : state) {
    loaded.control.WM_CHAR(13);
    loaded.control.WM_CHAR(8);
  }
  state.SetItemsProcessed(2 * state.iterations());
}
BENCHMARK(EnterInTheMiddle)->Unit(benchmark::kMicrosecond)->Iterations(20'000);

void MoveTheGapByHalfTheText(benchmark::State& state) {
  LoadedControl loaded;
  for (auto _ : state) {
    loaded.control.SetSelStart(0);
    loaded.control.PrepareEditAtCaret();
    loaded.GoToMiddle();
  }
}
BENCHMARK(MoveTheGapByHalfTheText)->Unit(benchmark::kMillisecond);

void FindMissingWord(benchmark::State& state) {
  LoadedControl loaded;
  loaded.GoToMiddle();
  const auto compare = static_cast<Compare>(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(loaded.control.Find(u"エデンの園", 0, compare));
  CountBytes(state);
}
BENCHMARK(FindMissingWord)->ArgName("text_compare")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void FindLastMissingWord(benchmark::State& state) {
  LoadedControl loaded;
  loaded.GoToMiddle();
  const Position end = loaded.control.Length();
  for (auto _ : state) benchmark::DoNotOptimize(loaded.control.FindLast(u"エデンの園", end));
  CountBytes(state);
}
BENCHMARK(FindLastMissingWord)->Unit(benchmark::kMillisecond);

void UndoAndRedoOneStep(benchmark::State& state) {
  LoadedControl loaded;
  loaded.GoToMiddle();
  loaded.control.EM_REPLACESEL(true, u"<table>\r\n</table>\r\n");
  for (auto _ : state) {
    loaded.control.EM_UNDO();
    loaded.control.EM_REDO();
  }
}
BENCHMARK(UndoAndRedoOneStep)->Unit(benchmark::kMicrosecond);

void ReplaceAtEveryThirdLineAndUndo(benchmark::State& state) {
  NoClipboard clipboard;
  EditControl control(clipboard);
  control.SetText(Page(10'000'000));
  for (auto _ : state) {
    {
      const EditScope scope(control);
      for (Position at = control.Find(u"<br>", 0); at >= 0; at = control.Find(u"<br>", at + 6)) {
        control.EM_SETSEL(at, at + 4);
        control.EM_REPLACESEL(true, u"<br />");
      }
    }
    control.EM_UNDO();
  }
}
BENCHMARK(ReplaceAtEveryThirdLineAndUndo)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
