#include "search/document_reports.hpp"

#include <gtest/gtest.h>

#include "shell/common/text.hpp"
#include "tests/fakes/document_recorder.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

class Reports : public ::testing::Test {
 protected:
  std::string Bytes() {
    ShowTotalBytes(control, window);
    return ToUtf8(window.panes[2]);
  }

  fakes::FakeClipboard clipboard;
  EditControl control{clipboard};
  fakes::DocumentRecorder window;
};

TEST_F(Reports, IndexOfTheCaretAndOfTheEndStandInTheSecondPane) {
  control.SetText(u"abc\r\n表");
  control.EM_SETSEL(1, 3);
  ShowTotalIndex(control, window);
  EXPECT_EQ(ToUtf8(window.panes[2]), "1(ｲﾝﾃﾞｯｸｽ) / 6(総ｲﾝﾃﾞｯｸｽ)");
  EXPECT_EQ(control.SelLength(), 0);
}

TEST_F(Reports, WholeTextIsCountedInBytesOfTheCodePage) {
  control.SetText(u"abc\r\n表ｱ");
  EXPECT_EQ(Bytes(), "現在のﾃｷｽﾄの総ｻｲｽﾞは 0.01ｷﾛﾊﾞｲﾄ (8ﾊﾞｲﾄ) です");
}

TEST_F(Reports, EmptyTextHasNoBytes) {
  EXPECT_EQ(Bytes(), "現在のﾃｷｽﾄの総ｻｲｽﾞは 0.00ｷﾛﾊﾞｲﾄ (0ﾊﾞｲﾄ) です");
}

TEST_F(Reports, SelectionIsCountedAlone) {
  control.SetText(u"abc表示def");
  control.EM_SETSEL(2, 5);
  EXPECT_EQ(Bytes(), "ｾﾙのﾃｷｽﾄｻｲｽﾞは 0.01ｷﾛﾊﾞｲﾄ (5ﾊﾞｲﾄ) です");
}

TEST_F(Reports, LargeSizesHaveTheirThousandsSeparated) {
  control.SetText(std::u16string(1'234'567, u'a'));
  EXPECT_EQ(Bytes(), "現在のﾃｷｽﾄの総ｻｲｽﾞは 1,234.57ｷﾛﾊﾞｲﾄ (1,234,567ﾊﾞｲﾄ) です");
}

TEST_F(Reports, EverySelectionAroundTheGapHasTheBytesOfItsText) {
  control.SetText(u"a表b示c");
  for (Position gap = 0; gap <= 5; ++gap) {
    control.EM_SETSEL(gap, gap);
    control.PrepareEditAtCaret();
    for (Position begin = 0; begin < 5; ++begin) {
      for (Position end = begin + 1; end <= 5; ++end) {
        control.EM_SETSEL(begin, end);
        int bytes = 0;
        for (const char16_t unit : control.SelText()) bytes += unit < 0x80 ? 1 : 2;
        const std::string expected = "(" + std::to_string(bytes) + "ﾊﾞｲﾄ)";
        EXPECT_NE(Bytes().find(expected), std::string::npos) << gap << ' ' << begin << ' ' << end;
      }
    }
  }
}

}  // namespace
}  // namespace kestri
