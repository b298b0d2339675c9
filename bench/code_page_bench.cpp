// Speed of the code page and of text search on 100 MB of typical Shift-JIS markup. Rates count Shift-JIS
// bytes.
#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <string>
#include <string_view>

#include "shell/common/code_page.hpp"
#include "shell/common/text_compare.hpp"
#include "shell/common/unit_search.hpp"

namespace {

using namespace kestri;

constexpr std::size_t kPageSize = 100'000'000;

constexpr std::array<std::u16string_view, 10> kLines = {
    u"<p class=\"text\">日本語で書いた文章の中に<b>強調</b>を入れて、改行のある段落にしました。</p>\r\n",
    u"<tr><td width=\"120\">項目</td><td>説明の文がここに入ります</td></tr>\r\n",
    u"<a href=\"../index.html\" target=\"_top\">目次へ戻る</a><br>\r\n",
    u"<!-- ここから本文 -->\r\n",
    u"　吾輩は猫である。名前はまだ無い。どこで生れたかとんと見当がつかぬ。何でも薄暗いじめじめした所で"
    u"ニャーニャー泣いていた事だけは記憶している。\r\n",
    u"<div style=\"margin:0 auto; width:640px; background-color:#FFFFFF;\">\r\n",
    u"<li>ﾎｰﾑﾍﾟｰｼﾞの更新履歴：２００３年４月１日\r\n",
    u"<img src=\"images/photo01.jpg\" alt=\"写真その一\" width=\"320\" height=\"240\" border=\"0\">\r\n",
    u"</div>\r\n",
    u"<h2>第三章　旅の支度と街道の様子</h2>\r\n"};

const std::string& Page() {
  static const std::string page = [] {
    std::mt19937 random(932);
    std::string bytes;
    bytes.reserve(kPageSize + 1000);
    while (bytes.size() < kPageSize) bytes += code_page::Encode(kLines[random() % kLines.size()]);
    return bytes;
  }();
  return page;
}

const std::u16string& Text() {
  static const std::u16string text = code_page::Decode(Page());
  return text;
}

void CountBytes(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) *
                          static_cast<std::int64_t>(Page().size()));
}

void Decode(benchmark::State& state) {
  Page();
  for (auto _ : state) benchmark::DoNotOptimize(code_page::Decode(Page()));
  CountBytes(state);
}

// As a file of known size is read: pieces of 64 KB into one text.
void DecodeStream(benchmark::State& state) {
  const std::string_view page = Page();
  for (auto _ : state) {
    code_page::Decoder decoder;
    std::u16string text;
    text.reserve(page.size());
    for (std::size_t at = 0; at < page.size(); at += 65536) decoder.Append(page.substr(at, 65536), text);
    decoder.Finish(text);
    benchmark::DoNotOptimize(text);
  }
  CountBytes(state);
}

// Pieces of 64 KB, each dropped after use, as a search through files does it.
void DecodePieces(benchmark::State& state) {
  const std::string_view page = Page();
  std::u16string text;
  for (auto _ : state) {
    code_page::Decoder decoder;
    for (std::size_t at = 0; at < page.size(); at += 65536) {
      text.clear();
      decoder.Append(page.substr(at, 65536), text);
      benchmark::DoNotOptimize(text.data());
    }
  }
  CountBytes(state);
}

void Encode(benchmark::State& state) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(code_page::Encode(Text()));
  CountBytes(state);
}

void EncodedLength(benchmark::State& state) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(code_page::EncodedLength(Text()));
  CountBytes(state);
}

void RoundTrips(benchmark::State& state) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(code_page::RoundTrips(Text()));
  CountBytes(state);
}

void ExactFind(benchmark::State& state, std::u16string_view find) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(unit_search::Find(Text(), find));
  CountBytes(state);
}

void FoldingFind(benchmark::State& state, std::u16string_view find) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(text_compare::Find(Text(), find, 0));
  CountBytes(state);
}

void FoldingFindLast(benchmark::State& state, std::u16string_view find) {
  Text();
  for (auto _ : state) benchmark::DoNotOptimize(text_compare::FindLast(Text(), find, Text().size()));
  CountBytes(state);
}

BENCHMARK(Decode)->Unit(benchmark::kMillisecond);
BENCHMARK(DecodeStream)->Unit(benchmark::kMillisecond);
BENCHMARK(DecodePieces)->Unit(benchmark::kMillisecond);
BENCHMARK(Encode)->Unit(benchmark::kMillisecond);
BENCHMARK(EncodedLength)->Unit(benchmark::kMillisecond);
BENCHMARK(RoundTrips)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ExactFind, OneUnit, u"\u6F23")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ExactFind, Ascii, u"hreflang")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ExactFind, Japanese, u"日本画")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FoldingFind, Ascii, u"hreflang")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FoldingFind, Tag, u"<table")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FoldingFind, Kana, u"ここでは")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FoldingFind, Japanese, u"日本画")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FoldingFindLast, Ascii, u"hreflang")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
