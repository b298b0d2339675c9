// Reading the dictionaries' profile files: 999 rows of three columns.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/profile_file.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

std::string Dictionary() {
  std::string bytes;
  for (const char* section : {"NAME", "EXPLAIN", "DEFTAG"}) {
    bytes += std::string("[") + section + "]\r\n";
    for (int row = 0; row < 999; ++row) {
      char key[8];
      std::snprintf(key, sizeof key, "%03d", row);
      bytes += std::string(key) + "=\"<IMG SRC=\x93\xFA\x96{ ALT=x WIDTH=100 HEIGHT=100>\"\r\n";
    }
  }
  return bytes;
}

void ReadThreeColumns(benchmark::State& state) {
  const fakes::TemporaryFolder folder;
  folder.Write("SelectTAG.lib", Dictionary());
  PosixFileSystem files;
  const ProfileFile profiles(files);
  const std::u16string path = folder.Text(u"SelectTAG.lib");
  for (auto _ : state) {
    const ProfileContent content = profiles.Load(path);
    for (const char* section : {"NAME", "EXPLAIN", "DEFTAG"}) {
      if (content.Section(section).size() != 999) state.SkipWithError("rows are missing");
    }
  }
}
BENCHMARK(ReadThreeColumns)->Unit(benchmark::kMillisecond);

void ReadOneKeyOfTheLastSection(benchmark::State& state) {
  const fakes::TemporaryFolder folder;
  folder.Write("SelectTAG.lib", Dictionary());
  PosixFileSystem files;
  const ProfileFile profiles(files);
  const std::u16string path = folder.Text(u"SelectTAG.lib");
  for (auto _ : state) benchmark::DoNotOptimize(profiles.Get(path, u"DEFTAG", u"998", u"", 1024));
}
BENCHMARK(ReadOneKeyOfTheLastSection)->Unit(benchmark::kMicrosecond);

void WriteOneSetting(benchmark::State& state) {
  const fakes::TemporaryFolder folder;
  folder.Write("Kestri.ini", "[Setting]\r\nAct=0\r\n");
  PosixFileSystem files;
  const ProfileFile profiles(files);
  const std::u16string path = folder.Text(u"Kestri.ini");
  int number = 0;
  for (auto _ : state) profiles.Set(path, u"Setting", u"Act", ToText(++number));
}
BENCHMARK(WriteOneSetting)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
