// Unit conversions, day counts, sums and RoundTo against results worked out with Python: exact
// fractions for the singles, decimal for the texts. The table and its columns:
// tests/oracles/make_single_steps.py.
#include <algorithm>
#include <gtest/gtest.h>

#include "nutrition/numbers.h"
#include "nutrition/totals.h"
#include "nutrition/units.h"
#include "oracles/table.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::string_view kFailure = "failure ";

struct Case {
  Text first;
  Text second;
  std::string result;
};

Text Replaced(Text text, char what, char with) {
  std::ranges::replace(text, what, with);
  return text;
}

class SingleStepsOracle : public testing::Test {
 protected:
  // Calls `convert(first, second, context)` for every row of the function, under both separators,
  // and expects the row's text, and a box with the failure's code where there is one.
  template <class Conversion>
  void ExpectTable(std::string_view function, Conversion convert) {
    for (const char separator : {'.', ','}) {
      test.locale.separator = separator;
      for (const Case& row : CasesOf(function)) {
        SCOPED_TRACE(std::string(function) + " of " + row.first + " and " + row.second);
        const bool fails = row.result.starts_with(kFailure);
        test.boxes.shown.clear();
        const Text result = convert(row.first, row.second, UnitsOf(test.program));
        EXPECT_EQ(result, fails ? Text() : Replaced(row.result, '.', separator));
        EXPECT_EQ(test.boxes.shown.size(), fails ? 1u : 0u);
        if (fails && !test.boxes.shown.empty()) {
          const std::string code = row.result.substr(kFailure.size());
          EXPECT_TRUE(test.boxes.shown[0].text.ends_with(code)) << test.boxes.shown[0].text;
        }
      }
    }
  }

  // The same for a function of one text, which it normalises.
  template <class Conversion>
  void ExpectTableOfOne(std::string_view function, Conversion convert) {
    ExpectTable(function, [&](Text first, const Text&, const UnitContext& context) {
      const Text normalised = Replaced(first, ',', '.');
      const Text result = convert(first, context);
      EXPECT_EQ(first, normalised);
      return result;
    });
  }

  static std::vector<Case> CasesOf(std::string_view function) {
    std::vector<Case> cases;
    for (const TableRow& row : ReadTable("single_steps.tsv", "function first second result")) {
      if (row[0] == function) cases.push_back({row[1], row[2], row[3]});
    }
    EXPECT_GE(cases.size(), 280u) << function;
    return cases;
  }

  TestProgram test;
};

TEST_F(SingleStepsOracle, LbsToKg) {
  ExpectTableOfOne("Lbs_To_Kg", Lbs_To_Kg);
}

TEST_F(SingleStepsOracle, KgToLbs) {
  ExpectTableOfOne("Kg_To_Lbs", Kg_To_Lbs);
}

TEST_F(SingleStepsOracle, KgToStones) {
  ExpectTableOfOne("Kg_To_Stones", Kg_To_Stones);
}

TEST_F(SingleStepsOracle, GramToOz) {
  ExpectTableOfOne("Gram_To_Oz", Gram_To_Oz);
}

TEST_F(SingleStepsOracle, OzToGram) {
  ExpectTableOfOne("Oz_To_Gram", Oz_To_Gram);
}

TEST_F(SingleStepsOracle, MeterToFeetAndInches) {
  ExpectTable("Meter_To_Feet_Inch", [](Text metres, const Text& part, const UnitContext& context) {
    const Text normalised = Replaced(metres, ',', '.');
    const auto height_part = part == "0" ? HeightPart::feet : HeightPart::inches;
    const Text result = Meter_To_Feet_Inch(metres, height_part, context);
    EXPECT_EQ(metres, normalised);
    return result;
  });
}

TEST_F(SingleStepsOracle, FeetAndInchesToMeter) {
  ExpectTable("Feet_Inch_To_Meter", Feet_Inch_To_Meter);
}

TEST_F(SingleStepsOracle, BodyMassIndex) {
  ExpectTable("Bereken_BMI", [](Text height, Text weight, const UnitContext& context) {
    return Bereken_BMI(height, weight, context);
  });
}

TEST_F(SingleStepsOracle, DaysBetweenTwoDates) {
  ExpectTable("Dagen_Tussen",
              [](const Text& first, const Text& second, const UnitContext& context) {
                const auto days = Dagen_Tussen(first, second, context);
                return days ? std::to_string(*days) : Text();
              });
}

TEST_F(SingleStepsOracle, SumsOfAList) {
  for (const Case& row : CasesOf("SumOf")) {
    TextList lines;
    TextList fields;
    for (std::size_t from = 0; from <= row.first.size();) {
      const std::size_t to = std::min(row.first.find(';', from), row.first.size());
      const Text number = row.first.substr(from, to - from);
      lines.Add(LineOf({.product = "Soup", .gram = number, .fat_s = number, .sodium = number}));
      from = to + 1;
    }
    if (row.result == "failure") {
      EXPECT_THROW((void)SumOf(lines, fields), std::system_error) << row.first;
      continue;
    }
    const Amounts sum = SumOf(lines, fields);
    for (const float amount : {sum.gram, sum.fat_s, sum.sodium}) {
      EXPECT_EQ(amount, NumberOf(row.result)) << row.first;
    }
    EXPECT_EQ(sum.kj, 0);
  }
}

TEST_F(SingleStepsOracle, RoundTo) {
  for (const Case& row : CasesOf("RoundTo")) {
    const auto value = static_cast<float>(NumberOf(row.first));
    ASSERT_EQ(value, NumberOf(row.first));
    EXPECT_EQ(RoundTo(value, std::stoi(row.second)), NumberOf(row.result))
        << row.first << " " << row.second;
  }
}

}  // namespace
}  // namespace kelvora
