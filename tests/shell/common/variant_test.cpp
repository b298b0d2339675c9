#include "shell/common/variant.hpp"

#include <gtest/gtest.h>

#include <array>

namespace kestri {
namespace {

TEST(Variants, AreEqualOnlyInTheSameKind) {
  EXPECT_TRUE(ChkDatReturnBool(std::int32_t{1}, std::int32_t{1}));
  EXPECT_FALSE(ChkDatReturnBool(std::int32_t{1}, std::int32_t{2}));
  EXPECT_FALSE(ChkDatReturnBool(std::int32_t{1}, 1.0));
  EXPECT_FALSE(ChkDatReturnBool(std::int32_t{1}, true));
  EXPECT_FALSE(ChkDatReturnBool(std::u16string(u"1"), std::int32_t{1}));
  EXPECT_TRUE(ChkDatReturnBool(std::u16string(u"a"), std::u16string(u"a")));
  EXPECT_TRUE(ChkDatReturnBool(Variant(), Variant()));
  EXPECT_FALSE(ChkDatReturnBool(Variant(), std::int32_t{0}));
}

TEST(Variants, ArrangementFormatFillsEveryElement) {
  std::array<Variant, 3> elements{true, 2.5, std::u16string(u"x")};
  ArrangementFormat(std::int32_t{7}, elements);
  for (const Variant& element : elements) EXPECT_EQ(element, Variant(std::int32_t{7}));
  Variant single;
  ArrangementFormat(std::u16string(u"y"), single);
  EXPECT_EQ(single, Variant(std::u16string(u"y")));
}

TEST(Variants, VariantFormatReplacesTheContent) {
  Variant target = 1.5;
  VariantFormat(target, std::u16string(u"text"));
  EXPECT_EQ(target, Variant(std::u16string(u"text")));
}

TEST(Variants, GetSubProcAddressIsTheIdentity) {
  const auto procedure = +[](int number) { return number + 1; };
  EXPECT_EQ(GetSubProcAddress(procedure), procedure);
}

}  // namespace
}  // namespace kestri
