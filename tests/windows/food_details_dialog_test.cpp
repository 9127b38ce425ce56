// What the details of one food look like, and how they come and go.
#include <gtest/gtest.h>

#include "core/frame/main_window.h"
#include "windows/food_details_window.h"

namespace kelvora {
namespace {

TEST_F(FoodDetailsWindow, ShowsThePortionFirst) {
  Open();
  EXPECT_EQ(test.program.windows.food_details, dialog.get());
  EXPECT_EQ(test.program.windows.Find(WindowId::food_details), dialog.get());
  EXPECT_EQ(dialog->windowTitle(), "Food item details");
  EXPECT_EQ(Texts(kDescriptionNames), QStringList({"Bread", "2 slices", "Bakery", "Brood"}));
  EXPECT_EQ(Box("txt_gram")->text(), "50");
  EXPECT_EQ(Box("txt_oz")->text(), "1.8");  // 1.7637
  EXPECT_EQ(Texts(kPortionNames),
            QStringList({"500", "120", "1.00", "0.50", "0.200", "4.00", "22.50"}));
  EXPECT_EQ(Texts(kPer100Names),
            QStringList({"1000", "240", "2.00", "1.00", "0.400", "8.00", "45.00"}));
  auto* const tabs = Find<QTabWidget>("TabStrip");
  EXPECT_EQ(tabs->tabText(0), "Per 50");
  EXPECT_EQ(tabs->tabText(1), "Edit (Per 100 grams)");
  EXPECT_TRUE(Find("Frame_a")->isVisible());
  EXPECT_FALSE(Find("Frame_b")->isVisible());
  EXPECT_EQ(Label("Frame_a_heading"), "Nutrition value per 2 slices (of) 50 Gram:");
  EXPECT_FALSE(Enabled("cmd_bewerk"));
  EXPECT_TRUE(Enabled("cmd_opslaan"));
  EXPECT_TRUE(Enabled("cmd_annuleer"));
  EXPECT_EQ(Words("cmd_bewerk"), "Edit (per 100 grams)");
  EXPECT_EQ(Words("cmd_opslaan"), "Save");
  EXPECT_EQ(Words("cmd_annuleer"), "Cancel");
  EXPECT_EQ(Words("chk_favo"), "Add to 'favourites list'");
  EXPECT_FALSE(Find<QCheckBox>("chk_favo")->isChecked());
}

// Per 50 grams 28.2 grams of it: 1 / 28.2 = 3.546 %, 0.5 gives 1.773, 0.2 gives 0.709, 4 gives
// 14.184 and 22.5 gives 79.787.
TEST_F(FoodDetailsWindow, ShowsTheComposition) {
  Open();
  EXPECT_EQ(Label("lbl_composition"), "Composition:");
  EXPECT_EQ(Label("pBar_caption_0"), "Unsaturated fats: 1 [3.55%]");
  EXPECT_EQ(Label("pBar_caption_1"), "Saturated fats: 0.5 [1.77%]");
  EXPECT_EQ(Label("pBar_caption_2"), "Sodium: 0.2 [0.71%]");
  EXPECT_EQ(Label("pBar_caption_3"), "Proteins: 4 [14.18%]");
  EXPECT_EQ(Label("pBar_caption_4"), "Carbohydrates: 22.5 [79.79%]");
}

// The colour of a bar reaches as far as its share of the width.
TEST_F(FoodDetailsWindow, ABarIsFilledByItsShare) {
  Open(LineOf({.product = "Oil", .gram = "100", .fat_u = "75", .fat_s = "25"}));
  const auto filled = [&](const char* name, QRgb colour) {
    const QImage image = Find(name)->grab().toImage();
    int count = 0;
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixel(x, image.height() / 2) == colour ? 1 : 0;
    }
    return 100.0 * count / image.width();
  };
  EXPECT_NEAR(filled("pBar_0", 0xFFE8A2A2), 75, 1.5);
  EXPECT_NEAR(filled("pBar_1", 0xFFC14747), 25, 1.5);
  EXPECT_EQ(filled("pBar_4", 0xFFFF7C3B), 0);
}

TEST_F(FoodDetailsWindow, TheSecondTabShowsTheValuesPer100Grams) {
  Open();
  ShowTab(1);
  EXPECT_FALSE(Find("Frame_a")->isVisible());
  EXPECT_TRUE(Find("Frame_b")->isVisible());
  EXPECT_EQ(Label("Frame_b_heading"), "Nutritional value per 100 grams:");
  EXPECT_TRUE(Enabled("cmd_bewerk"));
  ShowTab(0);
  EXPECT_FALSE(Enabled("cmd_bewerk"));
}

TEST_F(FoodDetailsWindow, SpeaksDutchWithCommas) {
  test.program.settings[Setting::opt_gramoz] = "1";
  OpenInDutch();
  EXPECT_EQ(dialog->windowTitle(), "Details van het voedingsmiddel");
  EXPECT_EQ(Label("lbl_bVar_0"), "Voedingsmiddel:");
  EXPECT_EQ(Find<QTabWidget>("TabStrip")->tabText(1), "Bewerken (Per 100 gram)");
  EXPECT_EQ(Label("Frame_a_heading"), "Voedingswaarde per 2 slices (van) 1,8 oz :");
  EXPECT_EQ(Label("Frame_b_heading"), "Voedingswaarde per 100 gram:");
  EXPECT_EQ(Label("pBar_caption_4"), "Koolhydraten: 22,5 [79,79%]");
  EXPECT_EQ(Box("bVar_9")->text(), "22,50");
  EXPECT_EQ(Words("cmd_bewerk"), "Bewerken (per 100 gram)");
  ShowTab(1);
  Click("cmd_bewerk");
  EXPECT_EQ(Words("cmd_bewerk"), "(Opslaan)");
  EXPECT_EQ(Words("cmd_opslaan") + Words("cmd_annuleer"), "OpslaanAnnuleren");
  Type("oVar_6", "50.5");
  EXPECT_EQ(Box("oVar_6")->text(), "50,5");
  Click("cmd_bewerk");
  EXPECT_EQ(Own()[0], Packed("Bread|2 slices|50|500|120|4,00|1,00|0,50|25,25|0,200|Bakery|Brood|"));
  EXPECT_EQ(Said(), "Het voedingsmiddel Bread is opgeslagen in 'mijn eigen lijst'.");
}

TEST_F(FoodDetailsWindow, AnotherLanguageReachesTheOpenWindow) {
  Open();
  Make_Taal_Dutch(test.program.texts);
  dialog->Set_Taal();
  EXPECT_EQ(dialog->windowTitle(), "Details van het voedingsmiddel");
  EXPECT_EQ(Label("Frame_a_heading"), "Voedingswaarde per 2 slices (van) 50 Gram:");
  EXPECT_EQ(Label("pBar_caption_3"), "Eiwitten: 4 [14.18%]");
}

TEST_F(FoodDetailsWindow, OnlyEditingUnlocksDescriptionAndValues) {
  const auto locked = [&](const auto& names) {
    return std::ranges::all_of(names, [&](const char* name) { return Box(name)->isReadOnly(); });
  };
  const auto unlocked = [&](const auto& names) {
    return std::ranges::none_of(names, [&](const char* name) { return Box(name)->isReadOnly(); });
  };
  Open();
  EXPECT_TRUE(locked(kDescriptionNames) && locked(kPer100Names) && locked(kPortionNames));
  EXPECT_FALSE(Box("txt_gram")->isReadOnly() || Box("txt_oz")->isReadOnly());
  ShowTab(1);
  Type("oVar_0", "7");
  EXPECT_EQ(Box("oVar_0")->text(), "1000");
  Click("cmd_bewerk");
  EXPECT_TRUE(unlocked(kDescriptionNames) && unlocked(kPer100Names) && locked(kPortionNames));
  EXPECT_EQ(Words("cmd_bewerk"), "(Save)");
  EXPECT_FALSE(Enabled("cmd_opslaan"));
  EXPECT_TRUE(Box("oVar_0")->hasFocus());
}

TEST_F(FoodDetailsWindow, EditingChangesFoodAndSavesItAtOnce) {
  OpenForEditing();
  Type("bVar_0", "Toast");
  Type("bVar_10", "Home");
  Type("bVar_11", "");
  Type("oVar_0", "1100");
  Type("oVar_5", "9.25");
  EXPECT_EQ(Box("bVar_3")->text(), "500") << "the portion follows at the end";
  Click("cmd_bewerk");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.windows.food_details, nullptr);
  // 1100 / 2 = 550 and 9.25 / 2 = 4.625, which rounds up.
  ASSERT_EQ(Own().Count(), 1u);
  EXPECT_EQ(Own()[0], Packed("Toast|2 slices|50|550|120|4.63|1.00|0.50|22.50|0.200|Home||"));
  EXPECT_EQ(Said(), "The food item Toast has been saved in 'my own list'.");
}

TEST_F(FoodDetailsWindow, TabGoesInReadingOrder) {
  OpenForEditing();
  Box("bVar_0")->setFocus();
  QStringList order;
  for (int i = 0; i < 17; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order,
            QStringList({"bVar_0", "bVar_1", "txt_gram", "txt_oz", "bVar_10", "bVar_11",
                         "qt_tabwidget_tabbar", "oVar_0", "oVar_1", "oVar_2", "oVar_3", "oVar_4",
                         "oVar_5", "oVar_6", "chk_favo", "cmd_bewerk", "cmd_annuleer"}));
}

TEST_F(FoodDetailsWindow, EveryControlHasAnAccessibleName) {
  Open();
  for (const QLineEdit* box : dialog->findChildren<QLineEdit*>()) {
    EXPECT_FALSE(box->accessibleName().isEmpty()) << box->objectName().toStdString();
  }
  for (const char* name : {"TabStrip", "Frame_a", "Frame_b", "pBar", "pBar_0", "pBar_4"}) {
    EXPECT_FALSE(Find(name)->accessibleName().isEmpty()) << name;
  }
  EXPECT_EQ(Box("oVar_4")->accessibleName(), "Sodium per 100 grams");
  EXPECT_EQ(Box("bVar_7")->accessibleName(), "Sodium of the portion");
  EXPECT_EQ(Find("pBar")->accessibleName(), "Share of each nutrient in the food item");
}

// Everything fits a screen of 1024 by 768, and no words are cut off, in either language.
TEST_F(FoodDetailsWindow, NothingIsClipped) {
  for (const bool dutch : {false, true}) {
    dutch ? OpenInDutch() : Open();
    for (const int tab : {0, 1}) {
      ShowTab(tab);
      QApplication::processEvents();
      EXPECT_LE(dialog->width(), 1000);
      EXPECT_LE(dialog->height(), 700);
      for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        if (!label->isVisible()) continue;
        const bool wraps = label->wordWrap();
        const int needed = label->fontMetrics().horizontalAdvance(label->text());
        EXPECT_TRUE(wraps || needed <= label->width()) << label->text().toStdString();
        EXPECT_LE(label->heightForWidth(label->width()), label->height());
      }
      for (const QPushButton* button : dialog->findChildren<QPushButton*>()) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
      }
    }
  }
}

TEST_F(FoodDetailsWindow, TheWeightsStandTogether) {
  Open();
  const QRect gram = Find("txt_gram_unit")->geometry();
  EXPECT_LE(gram.left() - Box("txt_gram")->geometry().right(), 20);
  EXPECT_LE(Box("txt_oz")->x() - gram.left(), Find("txt_gram_unit")->sizeHint().width() + 30);
}

TEST_F(FoodDetailsWindow, AnEndlessLineMakesNoEndlessWindow) {
  const Text endless(900, 'W');
  const Text digits(30, '7');
  Open(LineOf({.product = endless,
               .unit = endless,
               .gram = digits,
               .kj = digits,
               .fat_u = digits,
               .group = endless,
               .remark = endless}));
  EXPECT_LE(dialog->width(), 1000);
  EXPECT_LE(dialog->minimumSizeHint().width(), 1000);
  // As much of it as is drawn of any text; the boxes have all.
  EXPECT_TRUE(Label("Frame_a_heading").contains(QString(400, 'W')));
  EXPECT_EQ(Label("Frame_a_heading").size(), 500);
  EXPECT_EQ(Box("bVar_0")->text(), QString(900, 'W'));
}

TEST_F(FoodDetailsWindow, TheMainWindowShowsItModally) {
  MainWindow window(test.program);
  bool seen = false;
  QTimer::singleShot(0, &window, [&] {
    auto* const shown = qobject_cast<FoodDetailsDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(shown, nullptr);
    seen = true;
    EXPECT_EQ(test.program.windows.food_details, shown);
    window.ShowItem("custom", kBread);  // a second one doesn't come up
    EXPECT_EQ(shown->findChild<QLineEdit*>("bVar_0")->text(), "Bread");
    test.program.windows.food_details->CloseWindow();
  });
  window.ShowItem("zoeken", kBread);
  EXPECT_TRUE(seen);
  EXPECT_EQ(test.program.windows.food_details, nullptr);
}

}  // namespace
}  // namespace kelvora
