// What a printed day shows of values that nobody would type. The sheet is 10700 twips wide, so that
// its columns stand at thousandths of 10000.
#include "output/day_page_fixture.h"

namespace kelvora {
namespace {

TEST_F(DayPageTest, WithoutADateShowsNone) {
  OpenDay("");
  EXPECT_NE(Page(10700).find("\n9500 600 10b []\n"), std::string::npos);
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(DayPageTest, ADateThatIsNoneIsToldUnderItsOwnCodeAndMissing) {
  OpenDay("soon");
  EXPECT_NE(Page(10700).find("\n8000 1100 10 [Date: ]\n"), std::string::npos);
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("\nBrelux CODE:#FF11-8"));
}

// In feet a height of 0 has no decimals to make inches of.
TEST_F(DayPageTest, AHeightOfZeroIsToldUnderItsOwnCodeAndThePageGoesOn) {
  test.program.settings[Setting::opt_system] = "1";
  SetProfile({{ProfileField::height, "0"}});
  OpenDay();
  EXPECT_NE(Page(10700).find("\n8000 1300 10 [Height: ''' Feet, inch]\n"), std::string::npos);
  ASSERT_FALSE(test.boxes.shown.empty());
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("\nBrelux CODE:#FF11-5"));
}

TEST_F(DayPageTest, FieldsThatAreMissingPrintAsNothingOrZero) {
  OpenDay();
  EXPECT_EQ(Row("Soup|"), R"(400 3200 8 [Soup]
4000 3200 8 []
5500 3200 8 [1]
5800 3200 8 [0]
6500 3200 8 [0]
7000 3200 8 [0]
7500 3200 8 [0]
8000 3200 8 [0]
8600 3200 8 [0]
9100 3200 8 [0.000]
9900 3200 8 [0]
)");
}

// A single holds 1.0005 as 1.00049996. Number text has seven digits at most; halves go away from
// zero, and what rounds to zero has no sign. No exponent is read.
TEST_F(DayPageTest, NumbersAreNeverCutAndHaveNoThousandsSeparators) {
  OpenDay();
  EXPECT_EQ(Row("Soup|a pan|1234567.5|12345678|1e3|-0.4|99999.5|x|0.5|1,0005|0||"),
            R"(400 3200 8 [Soup]
4000 3200 8 [a pan]
5500 3200 8 [1]
5800 3200 8 [1234568]
6500 3200 8 [12345678]
7000 3200 8 [1]
7500 3200 8 [100000]
8000 3200 8 [0]
8600 3200 8 [0]
9100 3200 8 [1.000]
9900 3200 8 [1]
)");
}

TEST_F(DayPageTest, ALineThatComesFiftyTimesIsOneRow) {
  OpenDay();
  const std::string tea = "Tea|1 cup|0.1|0|0|0|0|0|0|0|0||";
  for (int i = 0; i < 49; ++i) Eat(DayPart::evening, tea);
  EXPECT_TRUE(Row(tea).starts_with(
      "400 3200 8 [Tea]\n4000 3200 8 [1 cup]\n5500 3200 8 [50]\n5800 3200 8 [5]\n6500"));
}

TEST_F(DayPageTest, AnAmountThatASingleCantHoldEndsThePage) {
  OpenDay();
  Eat(DayPart::morning, "Soup|a pan|" + std::string(40, '9') + "|0|0|0|0|0|0|0|0||");
  EXPECT_THROW((void)Page(10700), std::system_error);
}

}  // namespace
}  // namespace kelvora
