// The dialog for a new food, as a user meets it: through names, keys and clicks.
#include "windows/new_food_window.h"

namespace kelvora {
namespace {

TEST_F(NewFoodWindow, ShowsItsFramesAndTwoWeightsOfHundredGrams) {
  Open();
  EXPECT_EQ(test.program.windows.new_food, dialog.get());
  EXPECT_EQ(dialog->windowTitle(), "Add new food item");
  EXPECT_EQ(Find<QLabel>("lbl_info")->text(),
            "Enter the nutritional values as printed on the package.\n"
            "Kelvora FOOD calculates the values for the weight of the new food item.");
  QStringList frames;
  for (const auto* group : dialog->findChildren<QGroupBox*>()) frames << group->title();
  EXPECT_EQ(frames.join('|'),
            "Original nutritional value:|Nutritional value of the new food item:");
  EXPECT_EQ(Shown("txt_sGram") + Shown("txt_sOz") + Shown("txt_dGram") + Shown("txt_dOz"),
            "1003.51003.5");
  EXPECT_EQ(Shown("txt_dNaam") + Unit() + Values("txt_s").trimmed() + Values("txt_d").trimmed(),
            "");
  EXPECT_TRUE(Find<QLineEdit>("txt_sGram")->hasFocus());
  const auto* const units = Find<QComboBox>("combo_dEenheid");
  QStringList offered;
  for (int i = 0; i < units->count(); ++i) offered << units->itemText(i);
  EXPECT_EQ(offered.join('|'), "1 piece|1 spoon|1 glass|1 dish|1 slice, for");
  EXPECT_FALSE(Find<QAbstractButton>("chk_kj")->isChecked());
  EXPECT_EQ(Find<QAbstractButton>("chk_kj")->text(), "KCal = Kj");
  EXPECT_EQ(Find<QAbstractButton>("chk_inet")->text(), "Add (also) to internet database.");
  EXPECT_EQ(Find<QAbstractButton>("cmd_opslaan")->text(), "Add");
  EXPECT_EQ(Find<QAbstractButton>("cmd_annuleer")->text(), "Cancel");
}

TEST_F(NewFoodWindow, NamesItsValuesInTheirOrder) {
  struct Row {
    const char* name;
    const char* english;
    const char* dutch;
  };
  const std::vector<Row> rows = {
      {"lbl_txt_%1Gewicht", nullptr, nullptr},
      {"lbl_txt_%1_0", "Kilojoules:", "Kilojoules:"},
      {"lbl_txt_%1_1", "Kilocalories:", "Kilocalorieën:"},
      {"lbl_txt_%1_2", "Saturated fat:", "Verzadigd vet:"},
      {"lbl_txt_%1_3", "Unsaturated fat:", "Onverzadigd vet:"},
      {"lbl_txt_%1_4", "Protein:", "Eiwit:"},
      {"lbl_txt_%1_5", "Carbohydrates:", "Koolhydraten:"},
      {"lbl_txt_%1_6", "Sodium:", "Natrium:"},
  };
  Open();
  for (const bool dutch : {false, true}) {
    if (dutch) Make_Taal_Dutch(test.program.texts);
    dialog->Set_Taal();
    for (const char* side : {"s", "d"}) {
      for (const Row& row : rows) {
        const auto* const label = Find<QLabel>(QString(row.name).arg(side));
        if (row.english == nullptr) continue;
        EXPECT_EQ(label->text(), QString::fromUtf8(dutch ? row.dutch : row.english));
      }
    }
    EXPECT_EQ(Find<QLabel>("lbl_sodium_warning")->text(),
              dutch ? "(Let op: 1 mg is 0,001 gram)" : "(Beware: 1mg  = 0.001 gram)");
  }
  EXPECT_EQ(dialog->windowTitle(), "Nieuw voedingsmiddel toevoegen");
  EXPECT_EQ(Find<QComboBox>("combo_dEenheid")->itemText(4), "1 plakje, voor");
}

TEST_F(NewFoodWindow, AnotherLanguageLeavesWhatWasTyped) {
  Open();
  FillIn();
  Make_Taal_Dutch(test.program.texts);
  dialog->Set_Taal();
  EXPECT_EQ(Shown("txt_dNaam") + Unit() + Shown("txt_s_0"), "Soup1 plate1000");
}

TEST_F(NewFoodWindow, EveryControlHasAnAccessibleNameOfItsOwn) {
  Open();
  QSet<QString> names;
  int controls = 0;
  for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
    if (widget->parentWidget() == Find("combo_dEenheid")) continue;
    ++controls;
    names << widget->accessibleName();
  }
  // Four weights, fourteen values, name, unit, two ticks, two buttons.
  EXPECT_EQ(controls, 24);
  EXPECT_EQ(names.size(), 24);
  EXPECT_FALSE(names.contains(QString()));
  EXPECT_TRUE(names.contains("Original nutritional value: Sodium:"));
  EXPECT_TRUE(names.contains("These values are for: oz"));
}

TEST_F(NewFoodWindow, TabGoesInReadingOrder) {
  KnowAServer();
  Open();
  QStringList order;
  for (int i = 0; i < 24; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(' '),
            "txt_sGram txt_sOz txt_s_0 txt_s_1 chk_kj txt_s_2 txt_s_3 txt_s_4 txt_s_5 txt_s_6 "
            "txt_dNaam combo_dEenheid txt_dGram txt_dOz txt_d_0 txt_d_1 txt_d_2 txt_d_3 txt_d_4 "
            "txt_d_5 txt_d_6 chk_inet cmd_opslaan cmd_annuleer");
  // On the way through every box nothing became another weight.
  EXPECT_EQ(Shown("txt_sGram") + Shown("txt_dGram"), "100100");
}

TEST_F(NewFoodWindow, TypingAndPastingPassTheFilters) {
  Open();
  for (const char* box : {"txt_sGram", "txt_dGram"}) {
    Type(box, "1a2.3,4-");
    EXPECT_EQ(Shown(box), "1234") << box;
    Paste(box, QString::fromUtf8("½ 35,0 g"));
    EXPECT_EQ(Shown(box), "350") << box;
  }
  for (const char* box : {"txt_sOz", "txt_dOz", "txt_s_0", "txt_s_6"}) {
    test.locale.separator = ".";
    TypeOnly(box, "1a,2-5e");
    EXPECT_EQ(Shown(box), "1.25") << box;
    test.locale.separator = ",";
    Paste(box, QString::fromUtf8("3¾.5\n1"));
    EXPECT_EQ(Shown(box), "3,51") << box;
  }
}

TEST_F(NewFoodWindow, CalculatedValuesTakeNoTyping) {
  Open();
  FillIn();
  EXPECT_EQ(Values("txt_d"), "350 84 0.00 0.00 0.00 0.00 0.000");
  for (int i = 0; i < 7; ++i) {
    auto* const box = Find<QLineEdit>(QStringLiteral("txt_d_%1").arg(i));
    box->setFocus();
    QTest::keyClicks(box, "9");
  }
  EXPECT_EQ(Values("txt_d"), "350 84 0.00 0.00 0.00 0.00 0.000");
}

TEST_F(NewFoodWindow, LeavingABoxCalculates) {
  Open();
  TypeOnly("txt_s_0", "1000");
  EXPECT_EQ(Shown("txt_d_0"), "0");  // since the weight was left
  Find("txt_dNaam")->setFocus();
  EXPECT_EQ(Shown("txt_d_0"), "1000");
  Type("txt_dGram", "35");
  EXPECT_EQ(Shown("txt_d_0"), "350");
  EXPECT_EQ(Shown("txt_dOz"), "1.2");
  Type("txt_sGram", "50");
  EXPECT_EQ(Shown("txt_d_0"), "700");
  Type("txt_sGram", "0");
  Type("txt_s_0", "9");
  EXPECT_EQ(Shown("txt_d_0"), "700");
}

TEST_F(NewFoodWindow, OuncesBecomeGramsWhenTheyAreTyped) {
  Open();
  Type("txt_s_0", "1000");
  Type("txt_dOz", "3.5");
  EXPECT_EQ(Shown("txt_dGram"), "99");
  EXPECT_EQ(Shown("txt_d_0"), "990");
  Type("txt_dOz", "");
  EXPECT_EQ(Shown("txt_dGram"), "");
  Type("txt_dGram", "35");
  Type("txt_dGram", "");
  EXPECT_EQ(Shown("txt_dOz"), "");
  // The next calculation takes the weight of the package, and shows that it does.
  Type("txt_s_0", "420");
  EXPECT_EQ(Shown("txt_dGram") + " " + Shown("txt_dOz") + " " + Shown("txt_d_0"), "100 3.5 420");
}

TEST_F(NewFoodWindow, EnergiesFollowEachOtherWhileTheyAreLinked) {
  Open();
  Type("txt_s_0", "840");
  EXPECT_EQ(Shown("txt_s_1"), "");
  Click("chk_kj");
  EXPECT_EQ(Shown("txt_d_0"), "840");
  Type("txt_s_0", "420");
  EXPECT_EQ(Shown("txt_s_1") + " " + Shown("txt_d_1"), "100 100");
  Type("txt_s_1", "200");
  EXPECT_EQ(Shown("txt_s_0") + " " + Shown("txt_d_0"), "840 840");
  Click("chk_kj");
  Type("txt_s_1", "5");
  EXPECT_EQ(Shown("txt_s_0"), "840");
}

TEST_F(NewFoodWindow, AddWritesTheFoodAndMakesRoomForTheNext) {
  Open();
  FillIn();
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "The food item has been saved in the 'own food list'.");
  ASSERT_EQ(OwnList().Count(), 1u);
  EXPECT_EQ(OwnList()[0], Packed("Soup|1 plate|35|350|84|0.00|0.00|0.00|0.00|0.000|0||"));
  EXPECT_TRUE(FileExists(CustomFile(test.program.paths, "Anna")));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Shown("txt_dNaam") + Unit() + Shown("txt_s_0") + Shown("txt_s_1"), "");
  EXPECT_EQ(Shown("txt_sGram") + Shown("txt_dGram") + Shown("txt_dOz"), "1001003.5");
  EXPECT_EQ(Values("txt_d"), "0 0 0.00 0.00 0.00 0.00 0.000");
  EXPECT_TRUE(Find("txt_sGram")->hasFocus());
}

TEST_F(NewFoodWindow, EnterAddsFromAnyBoxWithWhatWasTypedThere) {
  Open();
  FillIn("Soup");
  TypeOnly("txt_dGram", "70");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  FillIn("Stew");
  TypeOnly("txt_s_0", "2000");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  FillIn("Pie");
  TypeOnly("combo_dEenheid", "1 piece");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  FillIn("Cake");
  TypeOnly("txt_dNaam", "Tart");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  ASSERT_EQ(OwnList().Count(), 4u);
  EXPECT_TRUE(OwnList()[0].starts_with(Packed("Soup|1 plate|70|700|168|")));
  EXPECT_TRUE(OwnList()[1].starts_with(Packed("Stew|1 plate|35|700|84|")));
  EXPECT_TRUE(OwnList()[2].starts_with(Packed("Pie|1 piece|35|")));
  EXPECT_TRUE(OwnList()[3].starts_with(Packed("Tart|1 plate|35|")));
}

TEST_F(NewFoodWindow, AUnitIsChosenOrTypedAsItIs) {
  Open();
  FillIn();
  auto* const unit = Find<QComboBox>("combo_dEenheid");
  Type("combo_dEenheid", "1 p");
  EXPECT_EQ(Unit(), "1 p");
  unit->setFocus();
  unit->setCurrentIndex(-1);
  QTest::keyClick(unit, Qt::Key_Down);
  QTest::keyClick(unit, Qt::Key_Down);
  EXPECT_EQ(Unit(), "1 spoon");
  Click("cmd_opslaan");
  EXPECT_EQ(FieldOf(OwnList()[0], FoodField::kUnit), "1 spoon");
}

TEST_F(NewFoodWindow, CancelAndEscapeKeepNothing) {
  for (const bool escape : {false, true}) {
    Open();
    FillIn();
    if (escape) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    } else {
      Click("cmd_annuleer");
    }
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(test.program.windows.new_food, nullptr);
    EXPECT_TRUE(OwnList().Empty());
    EXPECT_FALSE(FileExists(CustomFile(test.program.paths, "Anna")));
    EXPECT_TRUE(test.boxes.shown.empty());
  }
}

TEST_F(NewFoodWindow, ClosingInTheMiddleOfABoxTellsNothingMore) {
  for (const bool deleted : {false, true}) {
    Open();
    TypeOnly("txt_dGram", QString(50, '9'));
    if (deleted) {
      dialog.reset();
    } else {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
      // A desktop may take the focus from the hidden box only now.
      QFocusEvent left(QEvent::FocusOut, Qt::OtherFocusReason);
      QApplication::sendEvent(Find<QLineEdit>("txt_dGram"), &left);
    }
    EXPECT_TRUE(test.boxes.shown.empty());
    EXPECT_EQ(test.program.windows.new_food, nullptr);
  }
}

TEST_F(NewFoodWindow, AWeightBeyondAllBoundsTellsSoAndTheDialogGoesOn) {
  Open();
  Type("txt_dGram", QString(50, '9'));
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[0].text.ends_with("Brelux CODE:#FF11-3"));
  EXPECT_TRUE(test.boxes.shown[1].text.ends_with("Brelux CODE:#F1-0"));
  EXPECT_EQ(Shown("txt_dOz"), "");
  FillIn();
  Click("cmd_opslaan");
  EXPECT_EQ(OwnList().Count(), 1u);
}

TEST_F(NewFoodWindow, ABoxThatIsWrongGetsTheFocusWithItsTextSelected) {
  struct Case {
    const char* box;
    const char* typed;
  };
  for (const Case& row :
       {Case{"txt_dNaam", "  "}, Case{"combo_dEenheid", ""}, Case{"txt_dGram", "0"},
        Case{"txt_dOz", ".5"}, Case{"txt_sGram", "0"}, Case{"txt_sOz", "1..5"},
        Case{"txt_s_0", ".5"}, Case{"txt_s_3", "1..5"}, Case{"txt_s_6", "5."}}) {
    SCOPED_TRACE(row.box);
    Open();
    FillIn();
    Type(row.box, row.typed);
    Find("chk_kj")->setFocus();
    test.boxes.shown.clear();
    Click("cmd_opslaan");
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    EXPECT_TRUE(test.boxes.shown[0].text.starts_with("You did not enter all the required"));
    QWidget* const focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    EXPECT_EQ(focused->objectName(), row.box);
    const auto* const combo = qobject_cast<QComboBox*>(focused);
    const auto* const edit = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(focused);
    EXPECT_EQ(edit->selectedText(), edit->text());
    EXPECT_TRUE(OwnList().Empty());
  }
}

TEST_F(NewFoodWindow, ANoToTheSodiumAndANameThatExistsLeadToTheirBoxes) {
  Open();
  FillIn();
  Type("txt_s_6", "250");
  Click("cmd_opslaan");
  EXPECT_TRUE(Find("txt_s_6")->hasFocus());
  Type("txt_s_6", "0.2");
  test.program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  Click("cmd_opslaan");
  EXPECT_TRUE(Find("txt_dNaam")->hasFocus());
}

TEST_F(NewFoodWindow, WithoutAServerItsTickIsOffAndSaysWhy) {
  Stored(Setting::chk_internet) = Stored(Setting::chk_addinternet) = "1";
  Open();
  const auto* const chk_inet = Find<QAbstractButton>("chk_inet");
  EXPECT_FALSE(chk_inet->isChecked());
  EXPECT_FALSE(chk_inet->isEnabled());
  EXPECT_EQ(chk_inet->toolTip(), "No food server is known to this program.");
  Make_Taal_Dutch(test.program.texts);
  dialog->Set_Taal();
  EXPECT_EQ(chk_inet->toolTip(), "Dit programma kent geen voedingsserver.");
  FillIn();
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "Het voedingsmiddel is opgeslagen in de 'eigen voedingsmiddelenlijst'.");
  EXPECT_EQ(Stored(Setting::chk_addinternet), "1");
}

TEST_F(NewFoodWindow, TheInternetTickFollowsTheSettingsAndChangesThemAtOnce) {
  KnowAServer();
  Stored(Setting::chk_addinternet) = "1";
  Open();
  auto* const chk_inet = Find<QAbstractButton>("chk_inet");
  EXPECT_TRUE(chk_inet->isChecked());
  EXPECT_TRUE(chk_inet->isEnabled());
  EXPECT_FALSE(FileExists(test.program.paths.SettingsFile));
  for (const char* expected : {"0", "1", "0"}) {
    Click("chk_inet");
    EXPECT_EQ(Stored(Setting::chk_addinternet), expected);
    Stored(Setting::chk_addinternet) = "?";
    ASSERT_TRUE(ReadSettingsFile(test.program));
    EXPECT_EQ(Stored(Setting::chk_addinternet), expected);
  }
}

TEST_F(NewFoodWindow, WithoutTheInternetItsTickIsOff) {
  Stored(Setting::chk_internet) = "0";
  Stored(Setting::chk_addinternet) = "1";
  Open();
  EXPECT_FALSE(Find<QAbstractButton>("chk_inet")->isChecked());
  EXPECT_FALSE(Find("chk_inet")->isEnabled());
  EXPECT_EQ(Stored(Setting::chk_addinternet), "0");
  FillIn();
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text, "The food item has been saved in the 'own food list'.");
}

}  // namespace
}  // namespace kelvora
