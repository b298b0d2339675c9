#include "document/lossy_characters.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class Lossy : public testing::Test {
 protected:
  std::vector<std::pair<char32_t, int>> Found() const {
    std::vector<std::pair<char32_t, int>> found;
    for (const LossyCharacter& one : LossyCharacters(control)) {
      found.emplace_back(one.character, static_cast<int>(one.position));
    }
    return found;
  }

  fakes::FakeClipboard clipboard;
  EditControl control{clipboard};
};

TEST_F(Lossy, ATextOfTheCodePageHasNone) {
  EXPECT_THAT(Found(), IsEmpty());
  control.SetText(u"<p>表①ｱ\r\n・？");
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(Lossy, EachIsNamedOnceAtItsFirstPlace) {
  control.SetText(u"aé表é𠮷😀𠮷é");
  EXPECT_THAT(Found(), ElementsAre(Pair(U'é', 1), Pair(U'𠮷', 4), Pair(U'😀', 6)));
}

TEST_F(Lossy, EveryPlaceOfTheGapGivesTheSame) {
  const std::u16string text = u"a😀é𠮷b";
  for (const int gap : {0, 1, 3, 4, 6, 7}) {
    control.SetText(text);
    control.EM_SETSEL(gap, gap);
    control.EM_REPLACESEL(false, u"x");
    control.EM_SETSEL(gap, gap + 1);
    control.EM_REPLACESEL(false, u"");
    ASSERT_EQ(control.Text(), text);
    EXPECT_THAT(Found(), ElementsAre(Pair(U'😀', 1), Pair(U'é', 3), Pair(U'𠮷', 4))) << gap;
  }
}

TEST_F(Lossy, APairAroundTheGapIsOneCharacter) {
  control.SetText(std::u16string{u'a', char16_t(0xDE00), u'b'});
  control.EM_SETSEL(1, 1);
  control.EM_REPLACESEL(false, std::u16string{char16_t(0xD83D)});
  ASSERT_EQ(control.FirstPiece().size(), 2U);
  EXPECT_THAT(Found(), ElementsAre(Pair(U'😀', 1)));
}

TEST_F(Lossy, ALoneSurrogateStandsForItself) {
  const std::u16string text{u'a', char16_t(0xDE00), u'b', char16_t(0xD83D), u'c', char16_t(0xD83D)};
  control.SetText(text);
  EXPECT_THAT(Found(), ElementsAre(Pair(char32_t(0xDE00), 1), Pair(char32_t(0xD83D), 3)));
}

TEST_F(Lossy, AnEndOfFileMarkIsOneOfThem) {
  for (const int gap : {0, 1, 2, 3, 4, 5, 6}) {
    control.SetText(
        u"a😀\x1A"
        u"é\x1A");
    control.EM_SETSEL(gap, gap);
    control.EM_REPLACESEL(false, u"x");
    control.EM_SETSEL(control.SelStart() - 1, control.SelStart());
    control.EM_REPLACESEL(false, u"");
    EXPECT_THAT(Found(), ElementsAre(Pair(U'😀', 1), Pair(char32_t(0x1A), 3), Pair(U'é', 4))) << gap;
  }
  control.SetText(u"a\x1A");
  EXPECT_THAT(Found(), ElementsAre(Pair(char32_t(0x1A), 1)));
}

}  // namespace
}  // namespace kestri
