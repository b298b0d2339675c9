#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "platform/posix/posix_file_system.hpp"
#include "shell/common/code_page.hpp"
#include "tags/dictionaries.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {
namespace {

using ::testing::AllOf;
using ::testing::Each;
using ::testing::Ge;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kDataFolder = std::string(KESTRI_SOURCE_DIR) + "/data/";
constexpr std::size_t kValueBytes = 1023;  // what a reader's buffer holds

std::string FileBytes(const std::string& name) {
  std::ifstream file(kDataFolder + "DataFiles/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The file cut at each CR LF; what stands behind the last one is the last element.
std::vector<std::string> CutAtCrLf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::size_t begin = 0;
  for (std::size_t end; (end = bytes.find("\r\n", begin)) != std::string::npos; begin = end + 2) {
    lines.push_back(bytes.substr(begin, end - begin));
  }
  lines.push_back(bytes.substr(begin));
  return lines;
}

std::string NumberedKey(const std::string& prefix, int number) {
  const std::string digits = std::to_string(number);
  return prefix + std::string(3 - digits.size(), '0') + digits;
}

struct Layout {
  std::string file;
  std::vector<std::string> sections;
  std::string keyPrefix;
  int firstNumber;
};

void PrintTo(const Layout& layout, std::ostream* out) {
  *out << layout.file;
}

class StarterFile : public ::testing::TestWithParam<Layout> {
 protected:
  const std::string bytes_ = FileBytes(GetParam().file);
};

TEST_P(StarterFile, IsShiftJisByteForByte) {
  ASSERT_FALSE(bytes_.empty());
  EXPECT_EQ(code_page::Encode(code_page::Decode(bytes_)), bytes_);
  EXPECT_EQ(bytes_.find('\0'), std::string::npos);
}

TEST_P(StarterFile, EndsEveryLineWithCrLf) {
  const std::vector<std::string> lines = CutAtCrLf(bytes_);
  EXPECT_EQ(lines.back(), "");
  for (const std::string& line : lines) {
    EXPECT_EQ(line.find_first_of("\r\n"), std::string::npos) << line;
  }
}

TEST_P(StarterFile, NumbersTheRowsOfEverySectionWithoutHoles) {
  const Layout& layout = GetParam();
  std::vector<std::string> sections;
  std::vector<int> counts;
  for (const std::string& line : CutAtCrLf(bytes_)) {
    if (line.empty()) continue;
    if (line.front() == '[') {
      sections.push_back(line.substr(1, line.size() - 2));
      counts.push_back(0);
      continue;
    }
    ASSERT_FALSE(counts.empty()) << "a row stands before the first section";
    const std::string key = NumberedKey(layout.keyPrefix, layout.firstNumber + counts.back());
    ASSERT_EQ(line.substr(0, line.find('=')), key) << "in " << sections.back();
    ++counts.back();
  }
  EXPECT_EQ(sections, layout.sections);
  EXPECT_THAT(counts, Each(counts.front()));
}

TEST_P(StarterFile, HoldsOnlyValuesThatReachTheReaderUnchanged) {
  const ProfileContent content(bytes_);
  std::string section;
  for (const std::string& line : CutAtCrLf(bytes_)) {
    if (line.empty()) continue;
    if (line.front() == '[') {
      section = line.substr(1, line.size() - 2);
      continue;
    }
    const std::size_t equals = line.find('=');
    ASSERT_NE(equals, std::string::npos) << line;
    const std::string value = line.substr(equals + 1);
    EXPECT_EQ(content.Get(section, line.substr(0, equals)), value) << line;
    EXPECT_FALSE(value.empty()) << line;
    EXPECT_LE(value.size(), kValueBytes) << line;
    EXPECT_LE(code_page::Decode(value).size(), static_cast<std::size_t>(kMaxFieldLength)) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(Installed, StarterFile,
                         ::testing::Values(Layout{"SelectTAG.lib", {"NAME", "EXPLAIN", "DEFTAG"}, "", 1},
                                           Layout{"Option.lib", {"PRO", "EXPLAIN"}, "", 1},
                                           Layout{"Param.lib", {"PARAM"}, "", 1},
                                           Layout{"FabStr.lib", {"FabStr"}, "FabStr", 0}),
                         [](const auto& testCase) { return testCase.param.sections.front(); });

// The tables as the program reads them, with the data folder in the place of the program's folder.
class StarterTables : public ::testing::Test {
 protected:
  StarterTables() { environment_.executable = code_page::Decode(kDataFolder + "Kestri"); }

  PosixFileSystem files_;
  fakes::FakeEnvironment environment_;
  fakes::FakeShell shell_;
  fakes::FakeClock clock_;
  fakes::FakeWindowServices window_;

  Dictionaries Tables() {
    common_.emplace(Ports{files_, environment_, shell_, clock_, window_}, PathStyle::Posix);
    return Dictionaries(*common_);
  }

 private:
  std::optional<ClassCommon> common_;
};

std::vector<std::u16string> Lowered(std::vector<std::u16string> words) {
  for (std::u16string& word : words) word = LCase(word);
  return words;
}

template <typename Rows>
std::vector<std::u16string> NamesOf(const Rows& rows) {
  std::vector<std::u16string> names;
  for (const auto& row : rows) names.push_back(row.name);
  return names;
}

std::vector<std::u16string> Repeated(const std::vector<std::u16string>& words) {
  std::set<std::u16string> seen;
  std::vector<std::u16string> repeated;
  for (const std::u16string& word : Lowered(words)) {
    if (!seen.insert(word).second) repeated.push_back(word);
  }
  return repeated;
}

// The word that the popup selects after this was typed, as long as no other table stands before this one.
std::u16string FirstWithPrefix(const std::vector<std::u16string>& words, std::u16string_view typed) {
  const auto hit = std::find_if(words.begin(), words.end(), [&](const std::u16string& word) {
    return LCase(Left(word, Len(typed))) == LCase(typed);
  });
  return hit == words.end() ? std::u16string() : *hit;
}

void ExpectEachWordIsReachedByTypingIt(const std::vector<std::u16string>& words) {
  for (const std::u16string& word : words) EXPECT_EQ(FirstWithPrefix(words, word), word);
}

struct Typed {
  std::u16string_view keys;
  std::u16string_view selected;
};

void ExpectSelections(const std::vector<std::u16string>& words, std::initializer_list<Typed> table) {
  for (const Typed& row : table) {
    EXPECT_EQ(FirstWithPrefix(words, row.keys), row.selected) << code_page::Encode(row.keys);
  }
}

std::u16string_view InsideBrackets(std::u16string_view tag) {
  return Mid(tag, 2, Len(tag) - 2);
}

std::u16string_view FirstWord(std::u16string_view text) {
  const int blank = InStr(text, u" ");
  return blank == 0 ? text : Left(text, blank - 1);
}

std::vector<std::u16string> WordsOf(std::u16string_view text) {
  std::vector<std::u16string> words;
  while (!text.empty()) {
    const std::u16string_view word = FirstWord(text);
    words.emplace_back(word);
    text = Mid(text, Len(word) + 2);
  }
  return words;
}

TEST_F(StarterTables, OfferEachTagOnce) {
  const std::vector<std::u16string> names = NamesOf(Tables().Tags());
  EXPECT_THAT(names.size(), AllOf(Ge(130u), ::testing::Le(static_cast<std::size_t>(kMaxTableRows))));
  EXPECT_THAT(Repeated(names), IsEmpty());
}

TEST_F(StarterTables, ReachEveryTagByTypingItsName) {
  ExpectEachWordIsReachedByTypingIt(NamesOf(Tables().Tags()));
}

TEST_F(StarterTables, SelectTheMostUsedTagAfterItsFirstLetters) {
  ExpectSelections(NamesOf(Tables().Tags()), {
                                                 {u"!", u"!-- --"},      {u"!d", u"!DOCTYPE html"},
                                                 {u"a", u"A"},           {u"b", u"B"},
                                                 {u"bl", u"BLOCKQUOTE"}, {u"d", u"DIV"},
                                                 {u"f", u"FORM"},        {u"fo", u"FORM"},
                                                 {u"fr", u"FRAME"},      {u"h", u"H1"},
                                                 {u"he", u"HEAD"},       {u"i", u"I"},
                                                 {u"im", u"IMG"},        {u"in", u"INPUT"},
                                                 {u"l", u"LI"},          {u"m", u"META"},
                                                 {u"o", u"OL"},          {u"p", u"P"},
                                                 {u"sc", u"SCRIPT"},     {u"se", u"SELECT"},
                                                 {u"sp", u"SPAN"},       {u"st", u"STRONG"},
                                                 {u"t", u"TABLE"},       {u"te", u"TEMPLATE"},
                                             });
}

TEST_F(StarterTables, ExplainEveryTagInOneShortLine) {
  for (const TagRow& row : Tables().Tags()) {
    EXPECT_THAT(row.explain.size(), AllOf(Ge(8u), ::testing::Le(45u))) << code_page::Encode(row.name);
    EXPECT_EQ(InStr(row.explain, u" <"), 0) << "the hint is split there: " << code_page::Encode(row.name);
  }
}

TEST_F(StarterTables, GiveEveryTagADefaultTagOfItsOwnName) {
  for (const TagRow& row : Tables().Tags()) {
    ASSERT_EQ(Left(row.defTag, 1), u"<") << code_page::Encode(row.name);
    ASSERT_EQ(Right(row.defTag, 1), u">") << code_page::Encode(row.name);
    const std::u16string_view inside = InsideBrackets(row.defTag);
    EXPECT_EQ(InStr(inside, u">"), 0) << "one tag only: " << code_page::Encode(row.defTag);
    // Comment and declaration hold a blank in their names.
    const std::u16string_view name = Left(row.name, 1) == u"!" ? inside : FirstWord(inside);
    EXPECT_EQ(StrComp(name, row.name, Compare::Text), 0) << code_page::Encode(row.defTag);
  }
}

TEST_F(StarterTables, UseOnlyKnownAttributesInDefaultTags) {
  const Dictionaries tables = Tables();
  const std::vector<std::u16string> known = Lowered(NamesOf(tables.Options()));
  for (const TagRow& row : tables.Tags()) {
    std::u16string_view rest = InsideBrackets(row.defTag);
    for (int equals = InStr(rest, u"="); equals != 0; equals = InStr(rest, u"=")) {
      const std::u16string_view before = Left(rest, equals - 1);
      const std::u16string name(Mid(before, InStrRev(before, u" ") + 1));
      EXPECT_EQ(std::count(known.begin(), known.end(), LCase(name)), 1)
          << code_page::Encode(name) << " in " << code_page::Encode(row.defTag);
      const int closingQuote = InStr(equals + 2, rest, u"\"");
      ASSERT_NE(closingQuote, 0) << code_page::Encode(row.defTag);
      rest = Mid(rest, closingQuote + 1);
    }
  }
}

TEST_F(StarterTables, ShowTheCommentAsACandidate) {
  const std::vector<TagRow> rows = Tables().Tags();
  EXPECT_EQ(
      std::count_if(rows.begin(), rows.end(), [](const TagRow& row) { return IsCommentName(row.name); }), 1);
}

TEST_F(StarterTables, FindTheRowOfATagWrittenInSmallLetters) {
  const auto row = Tables().FindTag(u"img");
  ASSERT_TRUE(row);
  EXPECT_EQ(row->defTag, u"<IMG src=\"\" alt=\"\" width=\"\" height=\"\">");
}

TEST_F(StarterTables, OfferAttributesKeywordsAndEventHandlers) {
  const std::vector<OptionRow> rows = Tables().Options();
  const auto count = [&](AttributeKind kind) {
    return std::count_if(rows.begin(), rows.end(), [&](const OptionRow& row) { return row.kind == kind; });
  };
  EXPECT_GE(count(AttributeKind::Attribute), 230);
  EXPECT_GE(count(AttributeKind::EventHandler), 70);
  EXPECT_GE(count(AttributeKind::Keyword), 30);
  EXPECT_LE(rows.size(), static_cast<std::size_t>(kMaxTableRows));
  EXPECT_THAT(Repeated(NamesOf(rows)), IsEmpty());
}

TEST_F(StarterTables, WriteEveryEventHandlerInSmallLettersSoThatItsKindShows) {
  for (const OptionRow& row : Tables().Options()) {
    const bool handlerName = LCase(Left(row.name, 2)) == u"on";
    EXPECT_EQ(row.kind == AttributeKind::EventHandler, handlerName) << code_page::Encode(row.name);
    if (handlerName) {
      EXPECT_EQ(row.name, LCase(row.name));
    }
  }
}

TEST_F(StarterTables, ExplainEveryAttribute) {
  for (const OptionRow& row : Tables().Options()) {
    EXPECT_THAT(row.name, Not(IsEmpty()));
    EXPECT_THAT(row.explain, Not(IsEmpty())) << code_page::Encode(row.name);
  }
}

TEST_F(StarterTables, ReachEveryAttributeByTypingItsName) {
  const std::vector<std::u16string> names = NamesOf(Tables().Options());
  ExpectEachWordIsReachedByTypingIt(names);
  ExpectSelections(names, {{u"h", u"href"},
                           {u"s", u"src"},
                           {u"w", u"width"},
                           {u"on", u"onclick"},
                           {u"no", u"nohref"},
                           {u"vi", u"viewBox"}});
}

TEST_F(StarterTables, OfferEachValueOnce) {
  const std::vector<std::u16string> words = Tables().Params();
  EXPECT_THAT(words.size(), AllOf(Ge(220u), ::testing::Le(static_cast<std::size_t>(kMaxTableRows))));
  EXPECT_THAT(Repeated(words), IsEmpty());
  ExpectEachWordIsReachedByTypingIt(words);
}

struct EnumeratedAttribute {
  const char* name;
  std::u16string_view values;
};

void PrintTo(const EnumeratedAttribute& attribute, std::ostream* out) {
  *out << attribute.name;
}

// The values an author chooses from. Of a list's type "A" and "I" are missing: typing finds a value in either
// case, so that they could never be reached behind "a" and "i".
constexpr EnumeratedAttribute kEnumeratedAttributes[] = {
    {"align", u"left center right justify char top middle bottom baseline absmiddle absbottom texttop"},
    {"autocomplete", u"on off name username email tel cc-number cc-exp cc-csc postal-code one-time-code"},
    {"contenteditable", u"true false plaintext-only"},
    {"direction", u"left right up down"},
    {"enterkeyhint", u"enter done go next previous search send"},
    {"frame", u"void above below hsides vsides lhs rhs box border"},
    {"kind", u"subtitles captions descriptions chapters metadata"},
    {"method", u"get post dialog"},
    {"popover", u"auto hint manual"},
    {"referrerpolicy",
     u"no-referrer no-referrer-when-downgrade same-origin origin strict-origin origin-when-cross-origin "
     u"strict-origin-when-cross-origin unsafe-url"},
    {"rel",
     u"alternate author bookmark canonical dns-prefetch external first help icon index last license manifest "
     u"me modulepreload next nofollow noopener noreferrer opener preconnect prefetch preload prev "
     u"privacy-policy search stylesheet tag terms-of-service"},
    {"rules", u"none groups rows cols all"},
    {"sandbox",
     u"allow-downloads allow-forms allow-modals allow-orientation-lock allow-pointer-lock allow-popups "
     u"allow-popups-to-escape-sandbox allow-presentation allow-same-origin allow-scripts "
     u"allow-top-navigation allow-top-navigation-by-user-activation "
     u"allow-top-navigation-to-custom-protocols"},
    {"scope", u"row col rowgroup colgroup"},
    {"shape", u"default rect circle poly"},
    {"type_of_INPUT",
     u"hidden text search tel url email password date month week time datetime-local number range color "
     u"checkbox radio file submit image reset button"},
    {"type_of_lists", u"1 a i disc circle square"},
    {"valign", u"top middle bottom baseline"},
    {"colour",
     u"aliceblue antiquewhite aqua aquamarine azure beige bisque black blanchedalmond blue "
     u"blueviolet brown burlywood cadetblue chartreuse chocolate coral cornflowerblue cornsilk "
     u"crimson cyan darkblue darkcyan darkgoldenrod darkgray darkgreen darkgrey darkkhaki "
     u"darkmagenta darkolivegreen darkorange darkorchid darkred darksalmon darkseagreen "
     u"darkslateblue darkslategray darkslategrey darkturquoise darkviolet deeppink deepskyblue "
     u"dimgray dimgrey dodgerblue firebrick floralwhite forestgreen fuchsia gainsboro ghostwhite "
     u"gold goldenrod gray green greenyellow grey honeydew hotpink indianred indigo ivory khaki "
     u"lavender lavenderblush lawngreen lemonchiffon lightblue lightcoral lightcyan "
     u"lightgoldenrodyellow lightgray lightgreen lightgrey lightpink lightsalmon lightseagreen "
     u"lightskyblue lightslategray lightslategrey lightsteelblue lightyellow lime limegreen linen "
     u"magenta maroon mediumaquamarine mediumblue mediumorchid mediumpurple mediumseagreen "
     u"mediumslateblue mediumspringgreen mediumturquoise mediumvioletred midnightblue mintcream "
     u"mistyrose moccasin navajowhite navy oldlace olive olivedrab orange orangered orchid "
     u"palegoldenrod palegreen paleturquoise palevioletred papayawhip peachpuff peru pink plum "
     u"powderblue purple rebeccapurple red rosybrown royalblue saddlebrown salmon sandybrown "
     u"seagreen seashell sienna silver skyblue slateblue slategray slategrey snow springgreen "
     u"steelblue tan teal thistle tomato turquoise violet wheat white whitesmoke yellow yellowgreen"},
};

class EnumeratedValues : public StarterTables, public ::testing::WithParamInterface<EnumeratedAttribute> {};

TEST_P(EnumeratedValues, StandInTheTable) {
  const std::vector<std::u16string> table = Tables().Params();
  for (const std::u16string& value : WordsOf(GetParam().values)) {
    EXPECT_EQ(std::count(table.begin(), table.end(), value), 1) << code_page::Encode(value);
  }
}

INSTANTIATE_TEST_SUITE_P(OfEveryAttribute, EnumeratedValues, ::testing::ValuesIn(kEnumeratedAttributes),
                         [](const auto& testCase) { return std::string(testCase.param.name); });

TEST_F(StarterTables, SelectTheMostUsedValueAfterItsFirstLetters) {
  ExpectSelections(Tables().Params(), {
                                          {u"_", u"_blank"},
                                          {u"c", u"center"},
                                          {u"ca", u"canonical"},
                                          {u"col", u"col"},
                                          {u"g", u"get"},
                                          {u"h", u"hidden"},
                                          {u"ht", u"http://"},
                                          {u"l", u"left"},
                                          {u"mi", u"middle"},
                                          {u"nav", u"navy"},
                                          {u"p", u"post"},
                                          {u"r", u"right"},
                                          {u"sh", u"Shift_JIS"},
                                          {u"u", u"UTF-8"},
                                          {u"y", u"yes"},
                                      });
}

// The popup lists 0 to 7 behind the values: a typed border width must not become a percentage.
TEST_F(StarterTables, KeepOneDigitSelectableBeforeLongerNumbers) {
  const std::vector<std::u16string> words = Tables().Params();
  for (char16_t digit = u'0'; digit <= u'7'; ++digit) {
    const std::u16string hit = FirstWithPrefix(words, std::u16string(1, digit));
    EXPECT_TRUE(hit.empty() || hit.size() == 1) << code_page::Encode(hit);
  }
}

TEST_F(StarterTables, OfferJapaneseFavourites) {
  const std::vector<std::u16string> rows = Tables().Favourites();
  EXPECT_THAT(rows, ::testing::IsSupersetOf({u"トップページへ戻る", u"お問い合わせ"}));
  EXPECT_THAT(Repeated(rows), IsEmpty());
  for (const std::u16string& row : rows) EXPECT_FALSE(FavouriteRefusal(row)) << code_page::Encode(row);
}

}  // namespace
}  // namespace kestri
