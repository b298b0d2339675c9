// What many documents in one window leave behind in memory.
#include <gtest/gtest.h>
#include <malloc.h>

#include "tests/shell/forms/editing_cycles.hpp"

namespace kestri {
namespace {

std::size_t HeapBytes() {
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

TEST(EditingMemory, AHundredMoreDocumentsLeaveTheHeapAsItIs) {
  constexpr int kWarm = 14 * fakes::EditingCycles::kPages;  // the same page is open at both looks
  fakes::EditingCycles editing;
  for (int i = 0; i < kWarm; ++i) ASSERT_TRUE(editing.RunOne()) << i;
  const std::size_t before = HeapBytes();
  for (int i = 0; i < kWarm; ++i) ASSERT_TRUE(editing.RunOne()) << i;
  EXPECT_LT(HeapBytes(), before + before / 20) << "from " << before << " bytes";
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
