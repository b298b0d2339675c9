// Reading and writing full tables of 999 rows, and building the candidate list from them.
#include <benchmark/benchmark.h>

#include "tags/candidate_list.hpp"
#include "tests/fakes/common_world.hpp"

namespace kestri {
namespace {

struct FullTables : fakes::MemoryWorld {
  FullTables() {
    files.contents[u"/opt/Kestrile/Kestri"] = "";
    std::vector<TagRow> tags;
    std::vector<OptionRow> options;
    std::vector<std::u16string> params;
    for (int row = 1; row <= kMaxTableRows; ++row) {
      const std::u16string number = ToText(row);
      tags.push_back(
          {u"TAG" + number, u"この要素の短い説明です" + number, u"<TAG" + number + u" class=\"\">"});
      options.push_back({u"attr" + number, u"属性の短い説明です", AttributeKind::Attribute});
      params.push_back(u"value" + number);
    }
    dictionaries.WriteTags(tags);
    dictionaries.WriteOptions(options);
    dictionaries.WriteParams(params);
  }

  Dictionaries dictionaries{common};
};

void ReadTagTable(benchmark::State& state) {
  const FullTables tables;
  for (auto _ : state) benchmark::DoNotOptimize(tables.dictionaries.Tags());
}
BENCHMARK(ReadTagTable)->Unit(benchmark::kMicrosecond);

void FindLastTag(benchmark::State& state) {
  const FullTables tables;
  for (auto _ : state) benchmark::DoNotOptimize(tables.dictionaries.FindTag(u"tag999"));
}
BENCHMARK(FindLastTag)->Unit(benchmark::kMicrosecond);

void WriteTagTable(benchmark::State& state) {
  const FullTables tables;
  const auto rows = tables.dictionaries.Tags();
  for (auto _ : state) benchmark::DoNotOptimize(tables.dictionaries.WriteTags(rows));
}
BENCHMARK(WriteTagTable)->Unit(benchmark::kMicrosecond);

void BuildCandidateList(benchmark::State& state) {
  const FullTables tables;
  for (auto _ : state) benchmark::DoNotOptimize(BuildCandidates(tables.dictionaries, {}, {}));
}
BENCHMARK(BuildCandidateList)->Unit(benchmark::kMicrosecond);

void JumpThroughAllRows(benchmark::State& state) {
  const FullTables tables;
  const auto rows = BuildCandidates(tables.dictionaries, {}, {});
  for (auto _ : state) benchmark::DoNotOptimize(FindItem(rows, u"no such row"));
}
BENCHMARK(JumpThroughAllRows)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
