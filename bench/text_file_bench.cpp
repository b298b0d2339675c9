// A 100 MB page of mixed Japanese and tags, to the disk and back.
#include <benchmark/benchmark.h>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/class_common.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

constexpr std::size_t kBytes = 100'000'000;

std::u16string Page() {
  const std::u16string line = u"<p class=\"text\">吾輩は猫である。名前はまだ無い。</p>\r\n";
  const std::size_t lines = kBytes / static_cast<std::size_t>(ClassCommon::GetTextByte(line));
  std::u16string text;
  text.reserve(lines * line.size());
  for (std::size_t i = 0; i < lines; ++i) text += line;
  return text;
}

struct Desk {
  fakes::TemporaryFolder folder;
  PosixFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices window;
  ClassCommon common{{files, environment, shell, clock, window}, PathStyle::Posix};
};

void Save100MB(benchmark::State& state) {
  Desk desk;
  const std::u16string text = Page();
  const std::u16string_view all = text;
  const auto lineEnd = static_cast<LineEnd>(state.range(0));
  for (auto _ : state) {
    const bool saved = desk.common.WriteTextPieces(
        desk.folder.Text(u"page.htm"), all.substr(0, all.size() / 2), all.substr(all.size() / 2), lineEnd);
    if (!saved) state.SkipWithError("not saved");
  }
}
BENCHMARK(Save100MB)->Arg(0)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

void Read100MB(benchmark::State& state) {
  Desk desk;
  desk.common.WriteTextFile(desk.folder.Text(u"page.htm"), Page());
  for (auto _ : state) {
    std::u16string text;
    if (!desk.common.ReadTextFile(desk.folder.Text(u"page.htm"), text, -1)) state.SkipWithError("not read");
    benchmark::DoNotOptimize(text.data());
  }
}
BENCHMARK(Read100MB)->Unit(benchmark::kMillisecond)->UseRealTime();

// What the disk itself allows: the same bytes written and synced without any conversion.
void WriteAndSyncBytes(benchmark::State& state) {
  Desk desk;
  const std::string block(1 << 18, 'x');
  for (auto _ : state) {
    desk.files.Replace(desk.folder.Text(u"raw"), [&](const FileSystem::ByteConsumer& write) {
      for (std::size_t done = 0; done < kBytes; done += block.size()) {
        if (!write(block)) return false;
      }
      return true;
    });
  }
}
BENCHMARK(WriteAndSyncBytes)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
