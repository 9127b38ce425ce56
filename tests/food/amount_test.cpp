#include "food/amount.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using Kind = Amount::Kind;

struct Said {
  std::string_view typed;
  Amount amount;
};

TEST(ReadAmount, KnowsPortionsAndWeights) {
  for (const Said& said : {
           Said{"", {Kind::portions, 1}},
           Said{"   ", {Kind::portions, 1}},
           Said{"2", {Kind::portions, 2}},
           Said{"2x", {Kind::portions, 2}},
           Said{" 2 X ", {Kind::portions, 2}},
           Said{"2\xD7", {Kind::portions, 2}},  // the multiplication sign
           Said{"20", {Kind::portions, 20}},
           Said{"1/2", {Kind::portions, 1, 2}},
           Said{"3/2x", {Kind::portions, 3, 2}},
           Said{"0.5", {Kind::portions, 0.5}},
           Said{"0,5", {Kind::portions, 0.5}},
           Said{".5", {Kind::portions, 0.5}},
           Said{"1.25 x", {Kind::portions, 1.25}},
           Said{"150g", {Kind::grams, 150}},
           Said{"150 g", {Kind::grams, 150}},
           Said{"150 G", {Kind::grams, 150}},
           Said{"150gr", {Kind::grams, 150}},
           Said{"150 gram", {Kind::grams, 150}},
           Said{"12,5 g", {Kind::grams, 12.5}},
           Said{"10000g", {Kind::grams, 10000}},
           Said{"21 g", {Kind::grams, 21}},
       }) {
    const auto read = ReadAmount(said.typed);
    ASSERT_TRUE(std::holds_alternative<Amount>(read)) << said.typed;
    EXPECT_EQ(std::get<Amount>(read), said.amount) << said.typed;
  }
}

// An ounce is 28.35 grams (28.349523): 5 are 141.7, 352 are 9979.0 and 353 are 10007.4.
TEST(ReadAmount, MakesWholeGramsOfOunces) {
  EXPECT_EQ(std::get<Amount>(ReadAmount("5 oz")), (Amount{Kind::grams, 142}));
  EXPECT_EQ(std::get<Amount>(ReadAmount("1/2oz")), (Amount{Kind::grams, 14}));
  EXPECT_EQ(std::get<Amount>(ReadAmount("352oz")), (Amount{Kind::grams, 9979}));
  EXPECT_EQ(std::get<AmountFault>(ReadAmount("353oz")), AmountFault::too_much);
  EXPECT_EQ(std::get<AmountFault>(ReadAmount("0.01 oz")), AmountFault::none_said);
  EXPECT_EQ(std::get<AmountFault>(ReadAmount("999999999oz")), AmountFault::too_much);
}

TEST(ReadAmount, RefusesWhatSaysNoAmount) {
  for (const std::string_view typed :
       {"0",   "0g",      "0.0", "0/5",   "1/0",   "x",     "g",     "abc",     "2 y",
        "2kg", "2 grams", "1 2", "-1",    "+1",    "1e3",   "1.2.3", "1,000.5", ".",
        ",",   "/2",      "1/",  "1/2/3", "1.5/2", "1/2.5", "2xx",   "\xBD",    "1234567890123"}) {
    const auto read = ReadAmount(typed);
    ASSERT_TRUE(std::holds_alternative<AmountFault>(read)) << typed;
    EXPECT_EQ(std::get<AmountFault>(read), AmountFault::none_said) << typed;
  }
}

TEST(ReadAmount, RefusesTooMuch) {
  for (const std::string_view typed : {"21", "20.1", "20,001x", "41/2", "10000.5 g", "10001g"}) {
    const auto read = ReadAmount(typed);
    ASSERT_TRUE(std::holds_alternative<AmountFault>(read)) << typed;
    EXPECT_EQ(std::get<AmountFault>(read), AmountFault::too_much) << typed;
  }
}

TEST(Amounts, AreWholePortionsOrNot) {
  EXPECT_EQ(WholePortions({}), 1u);
  EXPECT_EQ(WholePortions({Kind::portions, 4, 2}), 2u);
  EXPECT_EQ(WholePortions({Kind::portions, 20}), 20u);
  EXPECT_EQ(WholePortions({Kind::portions, 0.5}), std::nullopt);
  EXPECT_EQ(WholePortions({Kind::portions, 1, 3}), std::nullopt);
  EXPECT_EQ(WholePortions({Kind::grams, 35}), std::nullopt);
}

TEST(Amounts, AreToldInNamesByTheirNumberAndUnit) {
  EXPECT_EQ(AmountText({Kind::grams, 150}, "."), "150 g");
  EXPECT_EQ(AmountText({Kind::grams, 12.5}, ","), "12,5 g");
  EXPECT_EQ(AmountText({Kind::portions, 1, 2}, "."), "0.5 x");
  EXPECT_EQ(AmountText({Kind::portions, 1, 2}, ","), "0,5 x");
  EXPECT_EQ(AmountText({Kind::portions, 3, 8}, "."), "0.375 x");
  EXPECT_EQ(AmountText({Kind::portions, 2, 6}, "."), "1/3 x");
  EXPECT_EQ(AmountText({Kind::portions, 0.5, 3}, "."), "1/6 x");
  EXPECT_EQ(AmountText({Kind::portions, 0.3333}, "."), "0.3333 x");
}

}  // namespace
}  // namespace kelvora
