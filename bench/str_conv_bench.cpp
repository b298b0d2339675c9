// The six conversions on 10 MB of typical Shift-JIS markup: alone, and as the command that replaces the
// selection.
#include <benchmark/benchmark.h>

#include <string>

#include "document/edit_control/edit_control.hpp"
#include "document/str_conv.hpp"
#include "shell/common/code_page.hpp"

namespace {

using namespace kestri;

constexpr std::size_t kBytes = 10'000'000;

class NoClipboard : public Clipboard {
 public:
  std::u16string Text() override { return {}; }
  void SetText(std::u16string_view) override {}
};

const std::u16string& Page() {
  static const std::u16string page = [] {
    const std::u16string_view lines =
        u"<p class=\"text\">日本語で書いた文章の中に<b>強調</b>を入れて、段落にしました。</p>\r\n"
        u"<li>ﾎｰﾑﾍﾟｰｼﾞの更新履歴：２００３年４月１日</li>\r\n"
        u"<tr><td width=\"120\">カタカナのガギグゲゴ</td><td>説明の文</td></tr>\r\n";
    const std::size_t bytes = code_page::Encode(lines).size();
    std::u16string text;
    for (std::size_t size = 0; size < kBytes; size += bytes) text += lines;
    return text;
  }();
  return page;
}

void Convert(benchmark::State& state, Conversion conversion) {
  Page();
  for (auto _ : state) benchmark::DoNotOptimize(StrConv(Page(), conversion));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBytes));
}
BENCHMARK_CAPTURE(Convert, UpperCase, Conversion::UpperCase)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Convert, LowerCase, Conversion::LowerCase)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Convert, Wide, Conversion::Wide)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Convert, Narrow, Conversion::Narrow)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Convert, Katakana, Conversion::Katakana)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Convert, Hiragana, Conversion::Hiragana)->Unit(benchmark::kMillisecond);

void ReplaceWholeSelection(benchmark::State& state, Conversion conversion) {
  NoClipboard clipboard;
  EditControl control(clipboard);
  for (auto _ : state) {
    state.PauseTiming();
    control.SetText(Page());
    control.EM_SETSEL(0, -1);
    state.ResumeTiming();
    control.EM_REPLACESEL(true, StrConv(control.SelText(), conversion));
  }
}
BENCHMARK_CAPTURE(ReplaceWholeSelection, Wide, Conversion::Wide)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ReplaceWholeSelection, Narrow, Conversion::Narrow)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
