// A key from its event to painted pixels, in documents of all sizes; scrolling; very long lines.
#include <benchmark/benchmark.h>

#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

constexpr int kMegabyte = 1 << 20;

std::u16string Page(std::size_t units) {
  std::u16string text;
  text.reserve(units + 100);
  while (text.size() < units) text += u"<p class=\"note\">日本語の段落と ASCII の文字。</p>\r\n<br>\r\n";
  return text;
}

void PressAndPaint(EditViewDesk& desk, Qt::Key key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&desk.view, &press);
  QCoreApplication::processEvents();
}

// Two keys.
void TypeAndErase(EditViewDesk& desk) {
  PressAndPaint(desk, Qt::Key_X, QStringLiteral("x"));
  PressAndPaint(desk, Qt::Key_Backspace, QStringLiteral("\b"));
}

void InTheMiddle(EditViewDesk& desk, std::size_t units) {
  desk.desk.state.htmlNAVkeyB_AUTO = 0;
  desk.view.resize(1000, 700);
  desk.PutText(Page(units));
  EditControl& control = desk.Control();
  control.SetSelStart(control.LineStart(control.LineCount() / 2) + 3);
  desk.view.ScrollCaret();
  control.PrepareEditAtCaret();
  desk.Settle();
}

void KeyToPainted(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, static_cast<std::size_t>(state.range(0)) * kMegabyte);
  for (auto _ : state) TypeAndErase(desk);
}
BENCHMARK(KeyToPainted)->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);

void EnterToPainted(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, static_cast<std::size_t>(state.range(0)) * kMegabyte);
  for (auto _ : state) PressAndPaint(desk, Qt::Key_Return, QStringLiteral("\r"));
}
BENCHMARK(EnterToPainted)->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);

void ArrowToPainted(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, kMegabyte);
  bool down = true;
  for (auto _ : state) PressAndPaint(desk, (down = !down) ? Qt::Key_Down : Qt::Key_Up, QString());
}
BENCHMARK(ArrowToPainted)->Unit(benchmark::kMicrosecond);

void PageDownToPainted(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, 100 * kMegabyte);
  for (auto _ : state) PressAndPaint(desk, Qt::Key_PageDown, QString());
}
BENCHMARK(PageDownToPainted)->Unit(benchmark::kMicrosecond);

void KeyWithGuideLines(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, kMegabyte);
  desk.view.SetGuideLines(true);
  for (auto _ : state) TypeAndErase(desk);
}
BENCHMARK(KeyWithGuideLines)->Unit(benchmark::kMicrosecond);

void WholeViewPainted(benchmark::State& state) {
  EditViewDesk desk;
  InTheMiddle(desk, kMegabyte);
  for (auto _ : state) {
    desk.view.viewport()->update();
    QCoreApplication::processEvents();
  }
}
BENCHMARK(WholeViewPainted)->Unit(benchmark::kMicrosecond);

// One line of ten million characters.
void KeyInALongLine(benchmark::State& state) {
  EditViewDesk desk;
  desk.desk.state.htmlNAVkeyB_AUTO = 0;
  std::u16string line;
  while (line.size() < 10'000'000) line += u"<td>漢字とASCII</td>";
  desk.PutText(line);
  desk.Control().SetSelStart(5'000'000);
  desk.view.ScrollCaret();
  desk.Control().PrepareEditAtCaret();
  desk.Settle();
  for (auto _ : state) TypeAndErase(desk);
}
BENCHMARK(KeyInALongLine)->Unit(benchmark::kMicrosecond);

void ScrollALongLine(benchmark::State& state) {
  EditViewDesk desk;
  std::u16string line;
  while (line.size() < 10'000'000) line += u"<td>漢字とASCII</td>";
  desk.PutText(line);
  int x = 0;
  for (auto _ : state) {
    desk.view.SetScrollPosition({0, x += 300});
    QCoreApplication::processEvents();
  }
}
BENCHMARK(ScrollALongLine)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
