#include "tags/candidate_list.hpp"

#include <algorithm>

#include "shell/common/text_compare.hpp"

namespace kestri {
namespace {

constexpr std::int32_t kTagColor = RGB(0, 0, 255);
constexpr std::int32_t kAttributeColor = RGB(0, 0, 0);
constexpr std::int32_t kEventHandlerColor = RGB(150, 0, 0);
constexpr std::int32_t kKeywordColor = RGB(0, 150, 0);
constexpr std::int32_t kValueColor = RGB(100, 100, 100);

constexpr int kFirstNumber = -1;
constexpr int kLastNumber = 7;

using Rows = std::vector<CandidateRow>;

std::u16string Tip(std::u16string_view kind, std::u16string_view explain) {
  return std::u16string(kind).append(explain);
}

CandidateRow CommentRow() {
  return {u"!-- --", u"ﾀｸﾞ:ｺﾒﾝﾄ", kModeTag, CandidateIcon::Tag, kTagColor};
}

// Both spellings of the comment are one candidate.
void AddTags(Rows& rows, const std::vector<TagRow>& tags) {
  bool hasComment = false;
  for (const TagRow& tag : tags) {
    if (!IsCommentName(tag.name)) {
      rows.push_back({tag.name, Tip(u"ﾀｸﾞ:", tag.explain), kModeTag, CandidateIcon::Tag, kTagColor});
    } else if (!hasComment) {
      rows.push_back(CommentRow());
      hasComment = true;
    }
  }
}

CandidateRow AttributeRow(const OptionRow& option) {
  switch (option.kind) {
    case AttributeKind::EventHandler:
      return {option.name, Tip(u"ｲﾍﾞﾝﾄﾊﾝﾄﾞﾗ:", option.explain), kModeAttribute, CandidateIcon::EventHandler,
              kEventHandlerColor};
    case AttributeKind::Keyword:
      return {option.name, Tip(u"ｷｰﾜｰﾄﾞ:", option.explain), kModeAttribute, CandidateIcon::Keyword,
              kKeywordColor};
    case AttributeKind::Attribute:
      break;
  }
  return {option.name, Tip(u"属性:", option.explain), kModeAttribute, CandidateIcon::Attribute,
          kAttributeColor};
}

void AddValue(Rows& rows, std::u16string text, std::u16string_view tip, CandidateIcon icon) {
  rows.push_back({std::move(text), std::u16string(tip), kModeValue, icon, kValueColor});
}

void AddNumbers(Rows& rows) {
  for (int number = kFirstNumber; number <= kLastNumber; ++number) {
    AddValue(rows, ToText(number), u"", CandidateIcon::Value);
  }
}

void LowerCase(Rows& rows) {
  for (CandidateRow& row : rows) row.text = LCase(row.text);
}

bool IsOn(const ClassCommon& common, std::u16string_view key) {
  return ToLong(common.GetINI(common.ExeName(), u"Setting", key, u"0")).value_or(0) != 0;
}

}  // namespace

CandidateSources ReadCandidateSources(const ClassCommon& common) {
  return {.lowerCase = IsOn(common, u"InputUL"),
          .fonts = IsOn(common, u"ValFont"),
          .favourites = IsOn(common, u"ValFabStr"),
          .userFile = common.GetINI(common.ExeName(), u"USERINTO", u"FILE", u"")};
}

std::vector<CandidateRow> BuildCandidates(const Dictionaries& dictionaries, const CandidateSources& sources,
                                          const ScreenFonts& screenFonts) {
  Rows rows;
  AddTags(rows, dictionaries.Tags());
  for (const OptionRow& option : dictionaries.Options()) rows.push_back(AttributeRow(option));
  for (std::u16string& word : dictionaries.Params())
    AddValue(rows, std::move(word), u"", CandidateIcon::Value);
  if (sources.lowerCase) LowerCase(rows);
  if (sources.fonts && screenFonts) {
    for (std::u16string& font : screenFonts())
      AddValue(rows, std::move(font), u"(ﾌｫﾝﾄ)", CandidateIcon::Font);
  }
  AddNumbers(rows);
  if (sources.favourites) {
    for (std::u16string& word : dictionaries.Favourites()) {
      AddValue(rows, std::move(word), u"(お気に入り)", CandidateIcon::Favourite);
    }
  }
  if (sources.userFile.empty()) return rows;
  for (UserWordRow& word : dictionaries.UserWords(sources.userFile)) {
    rows.push_back(
        {std::move(word.key), std::move(word.hints), kModeUser, CandidateIcon::UserWord, kValueColor});
  }
  return rows;
}

int FindItem(const std::vector<CandidateRow>& rows, std::u16string_view search) {
  const auto hit = std::ranges::find_if(
      rows, [&](const CandidateRow& row) { return text_compare::StartsWithIgnoringCase(row.text, search); });
  return hit == rows.end() ? -1 : static_cast<int>(hit - rows.begin());
}

}  // namespace kestri
