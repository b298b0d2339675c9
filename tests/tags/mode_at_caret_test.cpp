#include "tags/mode_at_caret.hpp"

#include <gtest/gtest.h>

#include "shell/common/text.hpp"
#include "tests/fakes/ports.hpp"
#include "tests/fakes/visible_caret.hpp"

namespace kestri {
namespace {

struct Row {
  const char16_t* text;
  std::int32_t mode;
};

class ModeAtCaretTest : public testing::TestWithParam<Row> {};

TEST_P(ModeAtCaretTest, FitsThePlace) {
  fakes::FakeClipboard clipboard;
  EditControl control(clipboard);
  fakes::SetMarked(control, GetParam().text);
  EXPECT_EQ(ModeAtCaret(control), GetParam().mode) << ToUtf8(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Rows, ModeAtCaretTest,
                         testing::Values(Row{u"‸", 1}, Row{u"本文‸", 1}, Row{u"<‸", 1}, Row{u"<a‸", 1},
                                         Row{u"<a‸ href>", 1}, Row{u"</‸>", 1}, Row{u"<!-- あ ‸-->", 1},
                                         Row{u"<a ‸", 2}, Row{u"<a hr‸>", 2}, Row{u"<a\nhr‸>", 2},
                                         Row{u"<a href=\"x\" ‸>", 2}, Row{u"<a href=\"x\"‸>", 2},
                                         Row{u"<a b=c d‸>", 2}, Row{u"<a href=‸", 3}, Row{u"<a href= ‸>", 3},
                                         Row{u"<a href=x‸>", 3}, Row{u"<a href=\"‸\">", 3},
                                         Row{u"<a href=\"あ い‸\">", 3}, Row{u"<a href='x‸'>", 3},
                                         Row{u"<a>‸", 1}, Row{u"<a href=\"x\">‸</a>", 1}));

}  // namespace
}  // namespace kestri
