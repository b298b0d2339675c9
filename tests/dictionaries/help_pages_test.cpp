#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "shell/common/code_page.hpp"
#include "shell/window/commands.hpp"

namespace kestri {
namespace {

std::string FileBytes(const std::string& name) {
  std::ifstream file(std::string(KESTRI_SOURCE_DIR) + "/data/Help/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class HelpPage : public ::testing::TestWithParam<const char*> {
 protected:
  const std::string bytes_ = FileBytes(GetParam());
};

TEST_P(HelpPage, IsShiftJisWithCrLfLineEnds) {
  ASSERT_FALSE(bytes_.empty());
  EXPECT_EQ(code_page::Encode(code_page::Decode(bytes_)), bytes_);
  EXPECT_EQ(bytes_.find('\t'), std::string::npos);
  for (std::size_t at = 0; (at = bytes_.find_first_of("\r\n", at)) != std::string::npos; at += 2) {
    ASSERT_EQ(bytes_.compare(at, 2, "\r\n"), 0) << "byte " << at;
  }
  EXPECT_EQ(bytes_.substr(bytes_.size() - 2), "\r\n");
}

INSTANTIATE_TEST_SUITE_P(Installed, HelpPage,
                         ::testing::Values("help.txt", "help.htm", "readme.txt", "history.txt"),
                         [](const auto& page) {
                           std::string name = page.param;
                           name[name.find('.')] = '_';
                           return name;
                         });

TEST(HelpPages, NameTheirEncodingForTheBrowser) {
  EXPECT_NE(FileBytes("help.htm").find("text/html; charset=Shift_JIS"), std::string::npos);
}

TEST(HelpPages, KeepTheTextWithinEightyColumns) {
  const std::string bytes = FileBytes("help.txt");
  for (std::size_t begin = 0, end; (end = bytes.find("\r\n", begin)) != std::string::npos; begin = end + 2) {
    EXPECT_LE(end - begin, 80u) << bytes.substr(begin, end - begin);
  }
}

TEST(HelpPages, ListTheKeyOfEveryMenuCommand) {
  const std::string text = FileBytes("help.txt");
  const std::string page = FileBytes("help.htm");
  for (const CommandRow& row : CommandRows()) {
    if (row.key.empty()) continue;
    EXPECT_NE(text.find("\r\n  " + std::string(row.key) + "  "), std::string::npos) << row.key;
    EXPECT_NE(page.find("<th>" + std::string(row.key) + "</th>"), std::string::npos) << row.key;
  }
}

}  // namespace
}  // namespace kestri
