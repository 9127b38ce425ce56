#include "food_server/submission_form.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace kelvora::server {
namespace {

// As the desktop program sends it, with another name and one value changed.
std::string Query(std::string_view name, std::string_view key = {}, std::string_view value = {}) {
  std::string query = "naam=" + std::string(name);
  for (const auto& [known, plain] :
       std::initializer_list<std::pair<std::string_view, std::string_view>>{
           {"kj", "1000"},
           {"kcal", "238"},
           {"vvet", "1.50"},
           {"ovet", "2.25"},
           {"kdr", "30.00"},
           {"ew", "10.00"},
           {"nat", "0.100"},
           {"opmerking", "Kelvora FOOD"},
           {"gepost", "piet"}}) {
    query.append("&").append(known).append("=").append(known == key ? value : plain);
  }
  return query;
}

std::string ReasonOf(const std::string& query) {
  const auto read = ReadSubmission(query);
  const auto* const refusal = std::get_if<Refusal>(&read);
  return refusal == nullptr ? std::string() : refusal->reason;
}

std::string FoodOf(const std::string& query) {
  const auto read = ReadSubmission(query);
  const auto* const food = std::get_if<SubmittedFood>(&read);
  return food == nullptr ? ReasonOf(query) : Utf8FromText(food->food);
}

TEST(SubmissionForm, BecomesALineOfAHundredGrams) {
  EXPECT_EQ(FoodOf(Query("Muesli")),
            "Muesli½100 gram½100½1000½238½10.00½2.25½1.50½30.00½0.100½0½½");
  EXPECT_EQ(std::get<SubmittedFood>(ReadSubmission(Query("Muesli"))).sender, "piet");
}

TEST(SubmissionForm, TakesTheSeparatorOfAnySystem) {
  EXPECT_EQ(FoodOf(Query("Muesli", "vvet", "1,5")),
            "Muesli½100 gram½100½1000½238½10.00½2.25½1.5½30.00½0.100½0½½");
}

TEST(SubmissionForm, DecodesNothing) {
  EXPECT_EQ(FoodOf(Query("100%+%41 zo")).substr(0, 11), "100%+%41 zo");
  EXPECT_EQ(FoodOf(Query("cr\xE8me")).substr(0, 6), "crème");
  EXPECT_EQ(FoodOf(Query("cr\xC3\xA8me")).substr(0, 6), "crème");
}

TEST(SubmissionForm, AnAmpersandCutsTheName) {
  EXPECT_EQ(FoodOf(Query("M&M's")), "M½100 gram½100½1000½238½10.00½2.25½1.50½30.00½0.100½0½½");
  EXPECT_TRUE(HoldsUnknownPiece(Query("M&M's")));
  EXPECT_FALSE(HoldsUnknownPiece(Query("Muesli")));
  EXPECT_EQ(ReasonOf(Query("&nuts")), "naam is empty");
  EXPECT_EQ(ReasonOf(Query("a&kj=5")), "kj is there twice");
}

TEST(SubmissionForm, RefusesWhatIsMissing) {
  EXPECT_EQ(ReasonOf(""), "naam is missing");
  EXPECT_EQ(ReasonOf("naam=x"), "kj is missing");
  std::string query = Query("Muesli");
  query.resize(query.rfind('&'));
  EXPECT_EQ(ReasonOf(query), "gepost is missing");
  EXPECT_EQ(ReasonOf(Query("Muesli", "gepost", "")), "");
  EXPECT_EQ(ReasonOf(Query("Muesli", "opmerking", "")), "");
}

TEST(SubmissionForm, RefusesNamesThatNoFoodCanHave) {
  for (const char* const name : {"a\xBD", "a\xBE", "a\xBC", "a\nb", "a\x7F"}) {
    EXPECT_EQ(ReasonOf(Query(name)), "naam has a character that no text can have") << name;
  }
  EXPECT_EQ(ReasonOf(Query("\xD0\xB1\xD0\xBE")), "naam has a letter that Windows-1252 lacks");
  EXPECT_EQ(ReasonOf(Query("   ")), "naam is empty");
  EXPECT_EQ(ReasonOf(Query(std::string(120, 'x'))), "");
  EXPECT_EQ(ReasonOf(Query(std::string(121, 'x'))), "naam is too long");
  EXPECT_EQ(ReasonOf(Query("x", "gepost", std::string(101, 'x'))), "gepost is too long");
}

TEST(SubmissionForm, RefusesAmountsThatNoFoodCanHave) {
  for (const char* const amount : {"", "-1", "1e2", "1.2.3", "1,2,3", "nan", "0x1", ".", ",", "+1",
                                   "1 2", "1000000000", "4001", "%31"}) {
    EXPECT_EQ(ReasonOf(Query("x", "kj", amount)), "kj is no amount that 100 grams of food can have")
        << amount;
  }
  for (const char* const amount : {"0", "4000", "0,5", ".5", "5.", " 7 "}) {
    EXPECT_EQ(ReasonOf(Query("x", "kj", amount)), "") << amount;
  }
  EXPECT_EQ(ReasonOf(Query("x", "nat", "40.1")),
            "nat is no amount that 100 grams of food can have");
  // 1.50 + 2.25 + 30 + 10 + 0.1 stand beside it: 57.15 more make 101, a trace for rounding.
  EXPECT_EQ(ReasonOf(Query("x", "vvet", "58.65")), "");
  EXPECT_EQ(ReasonOf(Query("x", "vvet", "58.66")), "the nutrients weigh more than the food");
}

}  // namespace
}  // namespace kelvora::server
