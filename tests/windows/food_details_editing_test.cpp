// Changing the details of one food, as a user does: with keys and clicks.
#include <gtest/gtest.h>

#include "windows/food_details_window.h"

namespace kelvora {
namespace {

struct WrongEntry {
  const char* box;
  const char* typed;
  const char* said;
};
class WrongEntries : public FoodDetailsWindow, public testing::WithParamInterface<WrongEntry> {};
INSTANTIATE_TEST_SUITE_P(
    FoodDetailsWindow, WrongEntries,
    testing::Values(
        WrongEntry{"bVar_0", "",
                   "You didn't enter all the required fields.\nPlease fill in the "
                   "missing fields and try again."},
        WrongEntry{"bVar_1", "slice.",
                   "You didn't enter all the required fields.\nPlease fill in the "
                   "missing fields and try again."},
        WrongEntry{"oVar_6", ".5",
                   "You didn't enter all the required fields.\nPlease fill in the missing fields "
                   "and try again.\n\nFill in a '0' (Zero) when you don't know the value."},
        WrongEntry{"bVar_11", "\u00BD liter",
                   "Some fields contain 'illegal' characters.\nThe characters half and "
                   "three-quarter are not allowed.\nRemove the characters and try again."}));

TEST_P(WrongEntries, KeepTheEditGoing) {
  OpenForEditing();
  Type(GetParam().box, QString::fromUtf8(GetParam().typed));
  Click("cmd_bewerk");
  EXPECT_EQ(Said(), GetParam().said);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Words("cmd_bewerk"), "(Save)");
  EXPECT_FALSE(Enabled("cmd_opslaan"));
  EXPECT_EQ(Box(GetParam().box)->text(), QString::fromUtf8(GetParam().typed));
  EXPECT_FALSE(Box(GetParam().box)->isReadOnly());
  EXPECT_TRUE(Box(GetParam().box)->hasFocus());
  EXPECT_TRUE(Box(GetParam().box)->isVisible());
  EXPECT_TRUE(Own().Empty());
}

TEST_F(FoodDetailsWindow, AStoredWeightThatIsNotWholeIsRefused) {
  Open(LineOf({.product = "Jam", .gram = "12.5", .kj = "100", .kcal = "24"}));
  ShowTab(1);
  Click("cmd_bewerk");
  Click("cmd_bewerk");
  EXPECT_EQ(Said(),
            "The food weight field can only contain whole numbers.\n"
            "Change the number and press 'save' again.");
  EXPECT_TRUE(Box("txt_gram")->hasFocus());
  Type("txt_gram", "12");
  Click("cmd_bewerk");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kGram), "12");
}

TEST_F(FoodDetailsWindow, APastedDescriptionOfAnyLengthIsRefusedPast900Characters) {
  OpenForEditing();
  Paste("bVar_0", QString(20'000, 'W'));
  Click("cmd_bewerk");
  EXPECT_EQ(Said(),
            "The item that you are trying to save contains too much data.\n"
            "Enter a shorter description and try again.\n"
            "Remove the characters and try again.");
  EXPECT_LE(dialog->width(), 1024);
  EXPECT_TRUE(Box("bVar_0")->hasFocus());
  // What stands beside the name: 8 + 2 + 3 + 3 + 4 + 4 + 5 + 4 + 5 + 6 + 5 = 49, and eleven "-".
  Paste("bVar_0", QString(841, 'W'));
  Click("cmd_bewerk");
  EXPECT_TRUE(dialog->isVisible());
  Paste("bVar_0", QString(840, 'W'));
  Click("cmd_bewerk");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kProduct), Text(840, 'W'));
}

TEST_F(FoodDetailsWindow, WeightBoxesFollowEachOther) {
  Open();
  Type("txt_gram", "100");
  EXPECT_EQ(Box("txt_oz")->text(), "3.5");
  EXPECT_EQ(Texts(kPortionNames),
            QStringList({"1000", "240", "2.00", "1.00", "0.400", "8.00", "45.00"}));
  EXPECT_EQ(Box("oVar_0")->text(), "1000");
  EXPECT_EQ(Find<QTabWidget>("TabStrip")->tabText(0), "Per 100");
  EXPECT_EQ(Label("Frame_a_heading"), "Nutrition value per 2 slices (of) 100 Gram:");
  EXPECT_EQ(Label("pBar_caption_3"), "Proteins: 8 [14.18%]");
  Type("txt_oz", "7");  // 198.4 grams
  EXPECT_EQ(Box("txt_gram")->text(), "198");
  EXPECT_EQ(Box("bVar_3")->text(), "1980");
  Type("txt_oz", "");
  EXPECT_EQ(Box("txt_gram")->text(), "");
  Type("txt_gram", "5");
  Type("txt_gram", "");
  EXPECT_EQ(Box("txt_oz")->text(), "");
  EXPECT_EQ(Find<QTabWidget>("TabStrip")->tabText(0), "Per 5");
}

TEST_F(FoodDetailsWindow, PassingThroughTheWeightChangesNothing) {
  Open();
  for (const char* name : {"txt_gram", "txt_oz"}) {
    Box(name)->setFocus();
    QTest::keyClick(Box(name), Qt::Key_Tab);
  }
  EXPECT_EQ(Box("txt_gram")->text(), "50");
  Click("cmd_opslaan");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_TRUE(Own().Empty());
}

TEST_F(FoodDetailsWindow, AWeightCountsWhenSaveIsPressedAtOnce) {
  for (const bool by_enter : {true, false}) {
    Own().Clear();
    Open();
    Box("txt_gram")->setFocus();
    Box("txt_gram")->selectAll();
    QTest::keyClicks(Box("txt_gram"), "100");
    by_enter ? QTest::keyClick(Box("txt_gram"), Qt::Key_Return) : Click("cmd_opslaan");
    EXPECT_FALSE(dialog->isVisible());
    ASSERT_EQ(Own().Count(), 1u);
    EXPECT_EQ(FieldOf(Own()[0], FoodField::kKj), "1000");
  }
}

TEST_F(FoodDetailsWindow, NumberBoxesTakeNumbersOnly) {
  OpenForEditing();
  Type("txt_gram", "1,2.5e3g");
  EXPECT_EQ(Box("txt_gram")->text(), "1253");
  Type("txt_oz", "a3,5");
  EXPECT_EQ(Box("txt_oz")->text(), "3.5");
  Paste("txt_gram", "1e30");
  EXPECT_EQ(Box("txt_gram")->text(), "130");
  Paste("oVar_2", "-1,5 g\u00BD");
  EXPECT_EQ(Box("oVar_2")->text(), "1.5");
  // Nothing of it is a number, and so nothing happens.
  const QString before = Box("oVar_3")->text();
  EXPECT_NE(before, "");
  Paste("oVar_3", "half");
  EXPECT_EQ(Box("oVar_3")->text(), before);
}

TEST_F(FoodDetailsWindow, TheFavouriteBoxIsKept) {
  Open();
  Click("chk_favo");
  Click("cmd_opslaan");
  EXPECT_EQ(test.program.store.Favorites_list[0], kBread);
  EXPECT_TRUE(Own().Empty());
  Open();
  EXPECT_TRUE(Find<QCheckBox>("chk_favo")->isChecked());
}

TEST_F(FoodDetailsWindow, ANoToTheSodiumLeavesTheEditEnded) {
  OpenForEditing();
  Type("oVar_4", "0.501");
  Click("cmd_bewerk");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Do you want to keep the value of sodium?");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Words("cmd_bewerk"), "Edit");
  EXPECT_TRUE(Enabled("cmd_opslaan"));
  EXPECT_TRUE(Box("oVar_4")->isReadOnly());
  EXPECT_EQ(Box("bVar_7")->text(), "0.251");  // 0.2505
  EXPECT_TRUE(Own().Empty());
  test.boxes.answers = {BoxAnswer::yes};
  Click("cmd_opslaan");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(Own().Count(), 1u);
}

TEST_F(FoodDetailsWindow, AFoodWithoutEnergyReadsZeroWhileItIsEditedAndCanBeSaved) {
  const Text tea = LineOf({.product = "Tea", .unit = "1 cup", .gram = "150"});
  Own().Add(tea);
  Open(tea, "custom");
  ShowTab(1);
  EXPECT_EQ(Box("oVar_0")->text() + Box("oVar_1")->text(), "");
  Click("cmd_bewerk");
  EXPECT_EQ(Box("oVar_0")->text() + Box("oVar_1")->text(), "00");
  Type("bVar_11", "Green");
  Click("cmd_bewerk");
  EXPECT_TRUE(test.boxes.shown.empty());
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kRemark), "Green");
}

TEST_F(FoodDetailsWindow, ANoToReplacingAnotherFoodKeepsTheDialogOpen) {
  Own().Add(LineOf({.product = "Bread"}));
  Open();
  ShowTab(1);
  Click("cmd_bewerk");
  Type("oVar_0", "1100");
  Click("cmd_bewerk");
  EXPECT_EQ(Said(),
            "You have another food item with the name \"Bread\".\nDo you want to replace it?");
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Own()[0], LineOf({.product = "Bread"}));
  EXPECT_TRUE(Enabled("cmd_opslaan"));
  test.boxes.answers = {BoxAnswer::yes};
  Click("cmd_opslaan");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kKj), "550");
}

TEST_F(FoodDetailsWindow, EscapeAndCancelSaveNothing) {
  for (const bool by_key : {true, false}) {
    OpenForEditing();
    Type("bVar_0", "Toast");
    Type("txt_gram", "100");
    by_key ? QTest::keyClick(dialog.get(), Qt::Key_Escape) : Click("cmd_annuleer");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test.program.windows.food_details, nullptr);
    EXPECT_TRUE(Own().Empty());
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

// Begun with the keyboard as well: the button that begins an edit then has the focus.
TEST_F(FoodDetailsWindow, EnterEndsAnEdit) {
  Open();
  ShowTab(1);
  Find("cmd_bewerk")->setFocus();
  QTest::keyClick(Find("cmd_bewerk"), Qt::Key_Space);
  QTest::keyClicks(Box("oVar_0"), "1100");
  QTest::keyClick(Box("oVar_0"), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  ASSERT_EQ(Own().Count(), 1u);
  EXPECT_EQ(FieldOf(Own()[0], FoodField::kKj), "550");
}

}  // namespace
}  // namespace kelvora
