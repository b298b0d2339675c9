#include "tests/fakes/key_script.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kestri::fakes {
namespace {

using testing::ElementsAre;

TEST(KeyScript, ReadsPlainCharactersAndNames) {
  EXPECT_THAT(ParseKeys(u"<あ{Enter} {Tab}"),
              ElementsAre(Key{u"<"}, Key{u"あ"}, Key{u"Enter"}, Key{u" "}, Key{u"Tab"}));
}

TEST(KeyScript, ReadsModifiers) {
  EXPECT_THAT(
      ParseKeys(u"{Ctrl+Backspace}{Shift+Ctrl+Left}{Alt+x}"),
      ElementsAre(Key{.name = u"Backspace", .control = true},
                  Key{.name = u"Left", .control = true, .shift = true}, Key{.name = u"x", .alt = true}));
}

TEST(KeyScript, RepeatsAKey) {
  EXPECT_EQ(ParseKeys(u"{Left*3}").size(), 3u);
}

TEST(KeyScript, ReadsBracesAsKeys) {
  EXPECT_THAT(ParseKeys(u"{{}{}}"), ElementsAre(Key{u"{"}, Key{u"}"}));
}

TEST(KeyScript, ReadsTheInputMethodsText) {
  EXPECT_THAT(ParseKeys(u"{ime:日本}"), ElementsAre(Key{.name = u"ime", .text = u"日本"}));
}

TEST(KeyScript, PassesOverLineEnds) {
  EXPECT_THAT(ParseKeys(u"a\nb\r\n"), ElementsAre(Key{u"a"}, Key{u"b"}));
}

TEST(KeyScript, RefusesNamesThatAreNoKeys) {
  EXPECT_THROW(ParseKeys(u"{Entr}"), std::invalid_argument);
  EXPECT_THROW(ParseKeys(u"{Ctrl+}"), std::invalid_argument);
  EXPECT_THROW(ParseKeys(u"a{Enter"), std::invalid_argument);
}

}  // namespace
}  // namespace kestri::fakes
