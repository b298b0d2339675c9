// Resident memory of one editor process through many documents.
//
//   editing_memory [CYCLES]   MB after 50 cycles, after half and after all of them, and the growth in percent
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "tests/shell/forms/editing_cycles.hpp"

namespace {

constexpr int kWarm = 50;

double ResidentMegabytes() {
  long pages = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> pages >> resident;
  return static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  const int cycles = argc > 1 ? std::atoi(argv[1]) : 1000;
  kestri::fakes::EditingCycles editing;
  double warm = 0, half = 0;
  for (int cycle = 1; cycle <= cycles; ++cycle) {
    if (!editing.RunOne()) {
      std::fprintf(stderr, "cycle %d failed\n", cycle);
      return 1;
    }
    if (cycle == kWarm) warm = ResidentMegabytes();
    if (cycle == cycles / 2) half = ResidentMegabytes();
  }
  const double all = ResidentMegabytes();
  std::printf("%.1f %.1f %.1f %.1f\n", warm, half, all, (all - warm) / warm * 100);
  return 0;
}
