// The commands of the edit menu on a selection of 10 MB, from the choice to the text in the control.
#include "document/text_transforms.hpp"

#include <benchmark/benchmark.h>

#include <functional>

#include "tests/fakes/main_text_desk.hpp"

namespace kestri {
namespace {

constexpr std::size_t kSelected = 10'000'000;  // characters
constexpr std::u16string_view kPage =
    u"<li><a href=\"index.html\">吾輩は猫である。Ｎａｍｅはまだナイ</a></li>\r\n";
constexpr std::u16string_view kShortLines = u"ab\r\n";

using Command = void (*)(TextTransforms&);

void OnSelection(benchmark::State& state, std::u16string_view line, Command command) {
  fakes::MainTextDesk desk;
  TextTransforms transforms(desk.text, desk.state, desk.common, desk.host);
  std::u16string text;
  while (text.size() < kSelected) text += line;
  for (auto _ : state) {
    state.PauseTiming();
    desk.control.SetText(text);
    desk.control.EM_SETSEL(0, desk.control.Length());
    desk.journal.clear();
    state.ResumeTiming();
    command(transforms);
  }
}

#define ON_BOTH(name, ...)                                                                                 \
  BENCHMARK_CAPTURE(OnSelection, name, kPage, __VA_ARGS__)->Unit(benchmark::kMillisecond)->Iterations(10); \
  BENCHMARK_CAPTURE(OnSelection, name##_ShortLines, kShortLines, __VA_ARGS__)                              \
      ->Unit(benchmark::kMillisecond)                                                                      \
      ->Iterations(10)

ON_BOTH(Indent, [](TextTransforms& transforms) { transforms.HighEdit(0); });
ON_BOTH(Unindent, [](TextTransforms& transforms) { transforms.HighEdit(1); });
ON_BOTH(UpperCase, [](TextTransforms& transforms) { transforms.HighEdit(4); });
ON_BOTH(LowerCase, [](TextTransforms& transforms) { transforms.HighEdit(5); });
ON_BOTH(Wide, [](TextTransforms& transforms) { transforms.HighEdit(6); });
ON_BOTH(Narrow, [](TextTransforms& transforms) { transforms.HighEdit(7); });
ON_BOTH(Katakana, [](TextTransforms& transforms) { transforms.HighEdit(8); });
ON_BOTH(Hiragana, [](TextTransforms& transforms) { transforms.HighEdit(9); });
ON_BOTH(FreeIndent, [](TextTransforms& transforms) { transforms.FreeIndent({}); });
ON_BOTH(FreeUnindent, [](TextTransforms& transforms) {
  FreeIndentChoice less;
  less.direction = IndentDirection::Less;
  transforms.FreeIndent(less);
});
ON_BOTH(LineCode, [](TextTransforms& transforms) { transforms.LineCode(2); });
ON_BOTH(SpecialCharacter, [](TextTransforms& transforms) { transforms.ToM(0); });
ON_BOTH(ColorName, [](TextTransforms& transforms) { transforms.Color(0); });
ON_BOTH(FontName, [](TextTransforms& transforms) { transforms.nFont(2); });
ON_BOTH(DateAndTime, [](TextTransforms& transforms) { transforms.Day(6); });
ON_BOTH(Brackets, [](TextTransforms& transforms) { transforms.KakkoMenu(11); });

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
