// What the commands ask, tell and hand over, in which order. What stands on the pages is tested by
// itself.
#include "output/printing.h"

#include <gtest/gtest.h>

#include "core/frame/commands.h"
#include "language/built_in_texts.h"
#include "output/page_lines.h"
#include "output/report_fixture.h"

namespace kelvora {
namespace {

constexpr std::string_view kQuestion =
    "The paper is too small for the whole page; print what fits on it?";

struct PrintingTest : testing::Test {
  ReportProgram test;

  PrintingTest() {
    test.OpenDay("Anna");
    test.printers.names = {"Ink", "Laser"};
    test.program.settings[Setting::combo_printer] = "Laser";
  }
  void EatFoods(int different) {
    for (int i = 0; i < different; ++i) {
      test.program.store.L_ochtend.Add(LineOf({.product = "Food " + std::to_string(i)}));
    }
  }
  [[nodiscard]] const std::vector<Box>& Boxes() const { return test.boxes.shown; }
  [[nodiscard]] const std::vector<PrintJob>& Jobs() const { return test.printing.jobs; }
  void ExpectFailure(std::string_view words, std::string_view code) {
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].text,
              "An error occured.\n\n" + Text(words) + "\nBrelux CODE:" + Text(code));
    EXPECT_TRUE(Jobs().empty());
    EXPECT_FALSE(test.pointer.waiting);
  }
};

TEST_F(PrintingTest, TheDayGoesToThePrinterOfTheSettings) {
  Print_Day(test.program);
  ASSERT_EQ(Jobs().size(), 1u);
  EXPECT_EQ(Jobs()[0].printer, "Laser");
  EXPECT_EQ(Jobs()[0].title, "Kelvora FOOD Summary of this day");
  EXPECT_EQ(Jobs()[0].sheet.medium, "iso_a4_210x297mm");
  EXPECT_EQ(test.printing.asked_for, std::vector<Text>{"Laser"});
  const std::string page = LinesOf(Jobs()[0].page);
  EXPECT_TRUE(
      page.starts_with("200 600 10b [Kelvora FOOD Summary of this day]\n"
                       "10706 600 10b [05-03-04]\n"));
  EXPECT_TRUE(
      page.ends_with("200 5950 6bi [Printed with Kelvora FOOD on 3/5/04]\n"
                     "11106 5950 6bi [2:07 PM]\n"));
  EXPECT_TRUE(Boxes().empty());
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(PrintingTest, TheTravelFormGoesThereToo) {
  Make_Taal_Dutch(test.program.texts);
  Print_Travel_Form(test.program);
  ASSERT_EQ(Jobs().size(), 1u);
  EXPECT_EQ(Jobs()[0].printer, "Laser");
  EXPECT_EQ(Jobs()[0].title, "Kelvora reisformulier");
  EXPECT_TRUE(LinesOf(Jobs()[0].page).starts_with("200 600 10b [Kelvora reisformulier]\n"));
  EXPECT_TRUE(Boxes().empty());
}

TEST_F(PrintingTest, TheMenuEntriesGiveTheCommands) {
  RunCommand(test.program, Command::mnu_print_dag);
  RunCommand(test.program, Command::mnu_print_reis);
  ASSERT_EQ(Jobs().size(), 2u);
  EXPECT_EQ(Jobs()[0].title, "Kelvora FOOD Summary of this day");
  EXPECT_EQ(Jobs()[1].title, "Kelvora travel form");
}

// Where text can't hold the locale's short form.
TEST_F(PrintingTest, WithoutAShortFormDateAndTimeStandInDigits) {
  test.locale.has_short_form = false;
  Print_Day(test.program);
  ASSERT_EQ(Jobs().size(), 1u);
  EXPECT_TRUE(LinesOf(Jobs()[0].page)
                  .ends_with("[Printed with Kelvora FOOD on 05-03-2004]\n"
                             "11106 5950 6bi [14:07]\n"));
}

struct NoPrinterTest : PrintingTest, testing::WithParamInterface<const char*> {};

TEST_P(NoPrinterTest, NothingIsPrintedAndTheUserIsSentToTheSettings) {
  test.program.settings[Setting::combo_printer] = GetParam();
  for (void (*print)(Program&) : {Print_Day, Print_Travel_Form}) {
    test.boxes.shown.clear();
    print(test.program);
    ASSERT_EQ(Boxes().size(), 1u);
    EXPECT_EQ(Boxes()[0].title, "Kelvora FOOD");
    EXPECT_EQ(Boxes()[0].icon, BoxIcon::warning);
    EXPECT_EQ(Boxes()[0].buttons, BoxButtons::ok);
    EXPECT_EQ(Boxes()[0].text,
              "Kelvora FOOD couldn't find a printer.\n"
              "Select a printer in the settings screen and try again.");
    EXPECT_TRUE(Jobs().empty());
    EXPECT_TRUE(test.printing.asked_for.empty());
  }
}

// Only the exact name is the name.
INSTANTIATE_TEST_SUITE_P(Names, NoPrinterTest,
                         testing::Values("", "laser", "Laser ", "Lase", "Laser2", "Laser/draft"));

TEST_F(PrintingTest, ASystemWithoutPrintersSaysSoInDutchToo) {
  Make_Taal_Dutch(test.program.texts);
  test.printers.names.clear();
  Print_Travel_Form(test.program);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text,
            "Kelvora FOOD kan geen printer vinden voor deze functie.\n"
            "Selecteer een printer in het instellingenscherm en probeer opnieuw.");
}

// A4 is 16838 twips high. The last line of the page, of 6 points, stands 5950 and 300 for each row
// from the top and takes 134: with 35 rows 16584, with 36 16884.
TEST_F(PrintingTest, ADayOfThirtyFiveRowsFitsOnA4) {
  EatFoods(35);
  Print_Day(test.program);
  EXPECT_TRUE(Boxes().empty());
  EXPECT_EQ(Jobs().size(), 1u);
}

TEST_F(PrintingTest, ADayOfThirtySixRowsIsAskedAboutAndNotPrintedWithoutAYes) {
  EatFoods(36);
  Print_Day(test.program);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].title, "Kelvora FOOD");
  EXPECT_EQ(Boxes()[0].icon, BoxIcon::question);
  EXPECT_EQ(Boxes()[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(Boxes()[0].text, kQuestion);
  EXPECT_TRUE(Jobs().empty());
}

TEST_F(PrintingTest, ALongDayIsSentOnWhole) {
  EatFoods(50);
  test.boxes.answers = {BoxAnswer::yes};
  Print_Day(test.program);
  ASSERT_EQ(Jobs().size(), 1u);
  // 50 rows of 300 twips below 5950.
  EXPECT_TRUE(LinesOf(Jobs()[0].page).ends_with("\n11106 20950 6bi [2:07 PM]\n"));
}

// Letter is 15840 twips high; the form's last row of the evening stands at 16100.
TEST_F(PrintingTest, TheTravelFormIsAskedAboutOnLetter) {
  test.printing.sheet = {.width = 12240, .height = 15840, .medium = "na_letter_8.5x11in"};
  Print_Travel_Form(test.program);
  ASSERT_EQ(Boxes().size(), 1u);
  EXPECT_EQ(Boxes()[0].text, kQuestion);
  EXPECT_TRUE(Jobs().empty());
}

// A6 is 5953 twips wide and 8391 high: the details at 8000 begin beyond its edge.
TEST_F(PrintingTest, BothPagesAreAskedAboutOnA6) {
  test.printing.sheet = {.width = 5953, .height = 8391, .medium = "iso_a6_105x148mm"};
  Print_Day(test.program);
  Print_Travel_Form(test.program);
  EXPECT_EQ(Boxes().size(), 2u);
  EXPECT_TRUE(Jobs().empty());
}

// A3 is 16838 by 23811: 59 rows end at 23784.
TEST_F(PrintingTest, ALongDayFitsOnA3) {
  test.printing.sheet = {.width = 16838, .height = 23811, .medium = "iso_a3_297x420mm"};
  EatFoods(59);
  Print_Day(test.program);
  EXPECT_TRUE(Boxes().empty());
  ASSERT_EQ(Jobs().size(), 1u);
  // The right edge of an A3 is 16538.
  EXPECT_TRUE(LinesOf(Jobs()[0].page).ends_with("\n16038 23650 6bi [2:07 PM]\n"));
}

// Of a sheet of 10000 by 20000, 500 twips on each side leave 0.9 of the width. What fits on the
// sheet fits within its margins: nothing is asked.
TEST_F(PrintingTest, ThePageIsMadeForTheSheetAndThenPutWithinItsMargins) {
  test.printing.sheet = {
      .width = 10000, .height = 20000, .left = 500, .top = 400, .right = 500, .bottom = 400};
  Print_Travel_Form(test.program);
  EXPECT_TRUE(Boxes().empty());
  ASSERT_EQ(Jobs().size(), 1u);
  const auto& title = std::get<PrintedText>(Jobs()[0].page[0]);
  EXPECT_EQ(title.font.points, 9);
  EXPECT_EQ(title.x, 680);  // 500 + 200 x 0.9
  EXPECT_EQ(title.y, 940);  // 400 + 600 x 0.9
  const auto& line = std::get<PrintedLine>(Jobs()[0].page[1]);
  EXPECT_EQ(line.to_x, 9230);  // 500 + 9700 x 0.9
}

TEST_F(PrintingTest, WhatThePrintingSystemSaysIsTold) {
  test.printing.no_print = std::make_exception_ptr(std::runtime_error("No paper today."));
  Print_Day(test.program);
  ExpectFailure("No paper today.", "#FF10-0");
  test.boxes.shown.clear();
  Print_Travel_Form(test.program);
  ExpectFailure("No paper today.", "#FF10-1");
}

// A printer may go after it was found.
TEST_F(PrintingTest, APrinterThatTellsNoSheetFails) {
  test.printing.no_sheet =
      std::make_exception_ptr(std::runtime_error("The printer or class does not exist."));
  Print_Day(test.program);
  ExpectFailure("The printer or class does not exist.", "#FF10-0");
}

TEST_F(PrintingTest, ASystemThatGivesNoAnswerIsNoSystemWithoutPrinters) {
  test.printers.no_names =
      std::make_exception_ptr(std::system_error(std::make_error_code(std::errc::timed_out)));
  Print_Travel_Form(test.program);
  ExpectFailure("Connection timed out", "#FF10-1");
}

TEST_F(PrintingTest, AnAmountThatCantBePrintedFailsTheDayAndNotTheForm) {
  test.program.store.L_avond.Add(LineOf({.product = "Soup", .gram = Text(40, '9')}));
  Print_Day(test.program);
  ExpectFailure("Numerical result out of range", "#FF10-0");
  Print_Travel_Form(test.program);
  EXPECT_EQ(Jobs().size(), 1u);
}

TEST_F(PrintingTest, NothingOfTheDayChanges) {
  EatFoods(3);
  const Text before = PackBlock(test.program.store.L_ochtend);
  Print_Day(test.program);
  EXPECT_EQ(PackBlock(test.program.store.L_ochtend), before);
  EXPECT_FALSE(test.program.day.FileChanged);
}

}  // namespace
}  // namespace kelvora
