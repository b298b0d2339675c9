// The locator as the keys call it, in a document of ten million characters.
#include <benchmark/benchmark.h>

#include "tags/tag_locator.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

constexpr std::size_t kDocument = 10'000'000;

void LocateAt(benchmark::State& state, std::u16string text, Position caret) {
  fakes::FakeClipboard clipboard;
  EditControl control(clipboard);
  control.SetText(std::move(text));
  control.SetSelStart(caret);
  for (auto _ : state) benchmark::DoNotOptimize(CaretTagKind(control, kLookOnly, Compare::Binary));
}

void TagEveryFewCharacters(benchmark::State& state) {
  std::u16string text;
  while (text.size() < kDocument) text += u"<p align=\"left\">本文の一行です。</p>\r\n";
  const auto middle = static_cast<Position>(text.find(u"align", text.size() / 2));
  LocateAt(state, std::move(text), middle);
}
BENCHMARK(TagEveryFewCharacters)->Unit(benchmark::kMicrosecond);

void NoDelimiterAnywhere(benchmark::State& state) {
  LocateAt(state, std::u16string(kDocument, u'本'), kDocument / 2);
}
BENCHMARK(NoDelimiterAnywhere)->Unit(benchmark::kMicrosecond);

void OneTagAroundEverything(benchmark::State& state) {
  LocateAt(state, u"<" + std::u16string(kDocument, u'本') + u">", kDocument / 2);
}
BENCHMARK(OneTagAroundEverything)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
