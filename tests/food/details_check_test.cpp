#include "food/details_check.h"

#include <gtest/gtest.h>
#include <ostream>

#include "language/built_in_texts.h"
#include "support/test_program.h"

namespace kelvora {

void PrintTo(DetailsError error, std::ostream* out) {
  *out << "error " << static_cast<int>(error);
}

namespace {

using enum DetailsError;

struct Boxes {
  PortionBoxes bVar{"Bread", "1 slice", "35",   "350",   "84", "1.00",
                    "0.50",  "0.400",   "3.00", "15.00", "0",  ""};
  ValueBoxes oVar{"1000", "239", "2.86", "1.43", "1.143", "8.57", "42.86"};
};

std::optional<DetailsError> ErrorOf(const Boxes& boxes) {
  return CheckDetails(boxes.bVar, boxes.oVar);
}

TEST(DetailsCheck, AFoodThatIsFilledInPasses) {
  EXPECT_EQ(ErrorOf({}), std::nullopt);
}

struct Typed {
  std::string_view text;
  bool incomplete;
};
constexpr std::array kTyped = {
    Typed{"", true},       Typed{",", true},      Typed{".", true},     Typed{",5", true},
    Typed{".5", true},     Typed{"5,", true},     Typed{"5.", true},    Typed{"5,,5", true},
    Typed{"5..5", true},   Typed{"5,5,,5", true}, Typed{"5,5", false},  Typed{"5.5", false},
    Typed{"5.5.5", false}, Typed{"5,5,5", false}, Typed{"5,.5", false}, Typed{"0", false},
    Typed{" ", false},     Typed{"1e30", false},
};

TEST(DetailsCheck, NameAndUnitMustBeFilledInWithoutMarksAtTheirEdges) {
  for (const std::size_t box : {PortionBox::kProduct, PortionBox::kUnit}) {
    for (const auto& [text, incomplete] : kTyped) {
      Boxes boxes;
      boxes.bVar[box] = text;
      EXPECT_EQ(ErrorOf(boxes) == fields_missing, incomplete) << box << ": " << text;
      EXPECT_EQ(ErrorOf(boxes).has_value(), incomplete) << box << ": " << text;
    }
  }
}

TEST(DetailsCheck, EachValueMustBeFilledInWithoutMarksAtItsEdges) {
  for (std::size_t value = 0; value < kValueCount; ++value) {
    for (const auto& [text, incomplete] : kTyped) {
      Boxes boxes;
      boxes.oVar[value] = text;
      EXPECT_EQ(ErrorOf(boxes) == values_missing, incomplete) << value << ": " << text;
      EXPECT_EQ(ErrorOf(boxes).has_value(), incomplete) << value << ": " << text;
    }
  }
}

struct Weight {
  std::string_view gram;
  std::optional<DetailsError> error;
};
class Weights : public testing::TestWithParam<Weight> {};

INSTANTIATE_TEST_SUITE_P(
    DetailsCheck, Weights,
    testing::Values(Weight{"12", std::nullopt}, Weight{"12.5", weight_not_whole},
                    Weight{"12,5", weight_not_whole}, Weight{"1,2,5", weight_not_whole},
                    Weight{"1,.5", weight_not_whole}, Weight{"12.0", weight_not_whole},
                    Weight{"12.", fields_missing}, Weight{",5", fields_missing},
                    Weight{"1,,5", fields_missing}, Weight{"1..5", fields_missing},
                    Weight{"", fields_missing}, Weight{"0", std::nullopt},
                    Weight{"1e30", std::nullopt}, Weight{"-1", std::nullopt},
                    Weight{"1000000000000000000000000000000", std::nullopt}));

TEST_P(Weights, MustBeWhole) {
  Boxes boxes;
  boxes.bVar[PortionBox::kGram] = GetParam().gram;
  EXPECT_EQ(ErrorOf(boxes), GetParam().error);
}

TEST(DetailsCheck, TheValuesOfThePortionAreNotLookedAt) {
  Boxes boxes;
  for (std::size_t value = 0; value < kValueCount; ++value) boxes.bVar[PortionBoxOf(value)] = ",";
  boxes.bVar[PortionBox::kGroup] = "";
  EXPECT_EQ(ErrorOf(boxes), std::nullopt);
}

TEST(DetailsCheck, NoBoxMayHoldATerminator) {
  for (std::size_t box = 0; box < PortionBox::kCount; ++box) {
    for (const char terminator : {kFieldEnd, kLineEnd}) {
      Boxes boxes;
      boxes.bVar[box] += terminator;
      EXPECT_EQ(ErrorOf(boxes), illegal_characters) << box;
    }
  }
  Boxes quarter;
  quarter.bVar[PortionBox::kRemark] = "¼ litre"_w;
  EXPECT_EQ(ErrorOf(quarter), std::nullopt);
}

// The test text is the twelve boxes and eleven "-" between them: those of a food with nothing in
// the box that is filled have 5 + 7 + 2 + 3 + 2 + 4 + 4 + 5 + 4 + 5 + 1 + 0 = 42 characters less
// those of that box.
TEST(DetailsCheck, ATestTextOf900CharactersPassesAndOneOf901DoesNot) {
  for (const std::size_t box :
       {PortionBox::kProduct, PortionBox::kUnit, PortionBox::kGroup, PortionBox::kRemark}) {
    Boxes boxes;
    const std::size_t others = 42 - boxes.bVar[box].size() + 11;
    for (const char letter : {'W', '\xE9', '-'}) {
      boxes.bVar[box] = Text(900 - others, letter);
      EXPECT_EQ(ErrorOf(boxes), std::nullopt) << box;
      boxes.bVar[box] += letter;
      EXPECT_EQ(ErrorOf(boxes), too_much_data) << box;
      boxes.bVar[box] = Text(100'000, letter);
      EXPECT_EQ(ErrorOf(boxes), too_much_data) << box;
    }
  }
}

TEST(DetailsCheck, TheTestsRunInTheirOrder) {
  Boxes boxes;
  boxes.bVar[PortionBox::kRemark] = Text(1000, 'r');
  boxes.bVar[PortionBox::kGroup] = "¾"_w;
  boxes.oVar[6] = "";
  boxes.bVar[PortionBox::kGram] = "12.5";
  boxes.bVar[PortionBox::kUnit] = "";
  EXPECT_EQ(ErrorOf(boxes), fields_missing);
  boxes.bVar[PortionBox::kUnit] = "1 slice";
  EXPECT_EQ(ErrorOf(boxes), weight_not_whole);
  boxes.bVar[PortionBox::kGram] = "12";
  EXPECT_EQ(ErrorOf(boxes), values_missing);
  boxes.oVar[6] = "0";
  EXPECT_EQ(ErrorOf(boxes), illegal_characters);
  boxes.bVar[PortionBox::kGroup] = "0";
  EXPECT_EQ(ErrorOf(boxes), too_much_data);
  boxes.bVar[PortionBox::kRemark] = "";
  EXPECT_EQ(ErrorOf(boxes), std::nullopt);
}

TEST(DetailsCheck, EachErrorHasItsEnglishWords) {
  TextTables texts;
  Make_Taal_English(texts);
  EXPECT_EQ(TextOf(texts, fields_missing),
            "You didn't enter all the required fields.\n"
            "Please fill in the missing fields and try again.");
  EXPECT_EQ(TextOf(texts, weight_not_whole),
            "The food weight field can only contain whole numbers.\n"
            "Change the number and press 'save' again.");
  EXPECT_EQ(TextOf(texts, values_missing),
            "You didn't enter all the required fields.\n"
            "Please fill in the missing fields and try again.\n\n"
            "Fill in a '0' (Zero) when you don't know the value.");
  EXPECT_EQ(TextOf(texts, illegal_characters),
            "Some fields contain 'illegal' characters.\n"
            "The characters half and three-quarter are not allowed.\n"
            "Remove the characters and try again.");
  EXPECT_EQ(TextOf(texts, too_much_data),
            "The item that you are trying to save contains too much data.\n"
            "Enter a shorter description and try again.\n"
            "Remove the characters and try again.");
}

TEST(DetailsCheck, EachErrorHasItsDutchWords) {
  TextTables texts;
  Make_Taal_Dutch(texts);
  EXPECT_EQ(TextOf(texts, fields_missing),
            "Je hebt niet alle verplichte velden ingevuld.\n"
            "Vul de ontbrekende velden in en probeer het opnieuw.");
  EXPECT_EQ(TextOf(texts, weight_not_whole),
            "Het gewicht van het voedingsmiddel kan alleen een heel getal zijn.\n"
            "Wijzig het getal en druk nog een keer op 'opslaan'.");
  EXPECT_EQ(TextOf(texts, values_missing),
            "Je hebt niet alle voedingswaarden ingevuld.\n"
            "Vul de ontbrekende waarden in en probeer het opnieuw.\n\n"
            "Vul een '0' (nul) in als je de waarde niet weet.");
  EXPECT_EQ(TextOf(texts, illegal_characters),
            "Sommige velden bevatten 'ongeldige' tekens.\n"
            "De tekens half en driekwart zijn niet toegestaan.\n"
            "Verwijder deze tekens en probeer het opnieuw.");
  EXPECT_EQ(TextOf(texts, too_much_data),
            "Het voedingsmiddel dat je wilt opslaan, bevat te veel gegevens.\n"
            "Vul een kortere omschrijving in en probeer het opnieuw.\n"
            "Haal een aantal tekens weg en probeer het opnieuw.");
}

}  // namespace
}  // namespace kelvora
