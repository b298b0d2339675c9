// Opening and saving pages of short lines through the whole document routine, without a window.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

#include "document/document.hpp"
#include "platform/posix/posix_file_system.hpp"
#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"
#include "tests/fakes/document_recorder.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

constexpr std::int64_t kMegabyte = 1'000'000;

std::string Page(std::int64_t size, std::u16string_view row) {
  const std::string line = code_page::Encode(row) + "\r\n";
  std::string page;
  page.reserve(static_cast<std::size_t>(size) + line.size());
  while (static_cast<std::int64_t>(page.size()) < size) page += line;
  return page;
}

double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

class YesBox : public MessageBox {
 public:
  MessageAnswer Ask(const MessageRequest&) override { return MessageAnswer::Yes; }
};

class Editor {
 public:
  Editor() {
    std::string pattern = (std::filesystem::temp_directory_path() / "kestri-bench-XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
    environment_.executable = FromUtf8((folder_ / "Kestri").string());
    environment_.folders[SystemFolder::Windows] = FromUtf8(folder_.string());
    common_.emplace(Ports{files_, environment_, shell_, clock_, services_}, PathStyle::Posix);
    document_.emplace(control_, state_, *common_, boxes_, dialogs_, window_, fallbacks_);
  }
  ~Editor() { std::filesystem::remove_all(folder_); }

  std::u16string MakePage(std::int64_t size, std::u16string_view row) {
    const auto path = folder_ / "page.htm";
    std::ofstream(path, std::ios::binary) << Page(size, row);
    return FromUtf8(path.string());
  }
  bool Open(const std::u16string& path) { return document_->OpenDocument(path, ReadOnly::No); }
  bool Save(const std::u16string& path) { return document_->WriteDocument(path); }
  void TypeInTheMiddle() {
    control_.SetSelStart(control_.Length() / 2);
    control_.WM_CHAR(u'x');
  }
  ApplicationState& State() { return state_; }

 private:
  std::filesystem::path folder_;
  PosixFileSystem files_;
  fakes::FakeEnvironment environment_;
  fakes::FakeShell shell_;
  fakes::FakeClock clock_;
  fakes::FakeWindowServices services_;
  fakes::FakeClipboard clipboard_;
  fakes::FakeFileDialog dialogs_;
  fakes::DocumentRecorder window_;
  NoFallbacks fallbacks_;
  YesBox boxes_;
  ApplicationState state_;
  EditControl control_{clipboard_};
  std::optional<ClassCommon> common_;
  std::optional<Document> document_;
};

constexpr std::u16string_view kMarkupRow =
    u"<p class=\"main\">A line of markup, as it stands in most pages.</p>";
constexpr std::u16string_view kJapaneseRow =
    u"<p>吾輩は猫である。名前はまだ無い。<br>どこで生れたか・頓と見当がつかぬ。</p>";

void OpenPage(benchmark::State& run, std::u16string_view row) {
  for (auto _ : run) {
    run.PauseTiming();
    std::optional<Editor> editor(std::in_place);
    const auto path = editor->MakePage(run.range(0) * kMegabyte, row);
    run.ResumeTiming();
    if (!editor->Open(path)) run.SkipWithError("not opened");
    run.PauseTiming();
    editor.reset();
    run.ResumeTiming();
  }
  run.SetBytesProcessed(run.iterations() * run.range(0) * kMegabyte);
  run.counters["peak_MB"] = PeakMegabytes();
}
void OpenMarkup(benchmark::State& run) {
  OpenPage(run, kMarkupRow);
}
void OpenJapanese(benchmark::State& run) {
  OpenPage(run, kJapaneseRow);
}

void SavePage(benchmark::State& run, std::u16string_view row, std::u16string_view lineEnd) {
  Editor editor;
  const auto path = editor.MakePage(run.range(0) * kMegabyte, row);
  if (!editor.Open(path)) run.SkipWithError("not opened");
  editor.TypeInTheMiddle();
  for (auto _ : run) {
    editor.State().lineEnd = lineEnd;
    if (!editor.Save(path)) run.SkipWithError("not saved");
  }
  run.SetBytesProcessed(run.iterations() * run.range(0) * kMegabyte);
  run.counters["peak_MB"] = PeakMegabytes();
}
void SaveMarkup(benchmark::State& run) {
  SavePage(run, kMarkupRow, u"CR+LF");
}
void SaveMarkupAsLf(benchmark::State& run) {
  SavePage(run, kMarkupRow, u"LF");
}
void SaveJapanese(benchmark::State& run) {
  SavePage(run, kJapaneseRow, u"CR+LF");
}

BENCHMARK(OpenMarkup)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(OpenJapanese)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveMarkup)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveMarkupAsLf)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SaveJapanese)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace kestri

BENCHMARK_MAIN();
