// Every box that the dialog for a new food shows, in both languages, and how much room its own
// words have.
#include "windows/new_food_window.h"

namespace kelvora {
namespace {

class NewFoodMessages : public NewFoodWindow {
 protected:
  void ExpectBox(const char* title_and_text, BoxIcon icon) {
    ASSERT_EQ(test.boxes.shown.size(), 1u);
    const Box& box = test.boxes.shown[0];
    EXPECT_EQ((ToQt(box.title) + "|" + ToQt(box.text)).toStdString(), title_and_text);
    EXPECT_EQ(box.icon, icon);
    test.boxes.shown.clear();
  }
  // In each language: opens the dialog, fills it in, spoils it, presses "Add", expects the box.
  template <class Spoil>
  void ForBothLanguages(Spoil spoil, BoxIcon icon, const char* english, const char* dutch) {
    for (const auto& [make, text] :
         {std::pair{&Make_Taal_English, english}, std::pair{&Make_Taal_Dutch, dutch}}) {
      make(test.program.texts);
      Open();
      FillIn();
      spoil();
      Click("cmd_opslaan");
      ExpectBox(text, icon);
      EXPECT_TRUE(dialog->isVisible());
    }
  }
};

TEST_F(NewFoodMessages, SomethingIsMissing) {
  ForBothLanguages([&] { Type("txt_dNaam", ""); }, BoxIcon::error,
                   "Kelvora FOOD|You did not enter all the required nutritional values. \n"
                   "Please enter the missing values and press 'Add' again.\n\n"
                   "Look at the box \"Name\".",
                   "Kelvora FOOD|Je hebt niet alle verplichte gegevens en voedingswaarden "
                   "ingevuld. \nVul de ontbrekende waarden in en druk nog een keer op "
                   "'Toevoegen'.\n\nKijk naar het vak \"Naam\".");
  EXPECT_EQ(Unit() + Shown("txt_dGram") + Shown("txt_s_0"), "1 plate351000");
  EXPECT_TRUE(OwnList().Empty());
}

TEST_F(NewFoodMessages, AHalfWasPasted) {
  ForBothLanguages(
      [&] { Paste("txt_dNaam", QString::fromUtf8("½ apple")); }, BoxIcon::error,
      "Kelvora FOOD|Some fields contain 'illegal' characters.\n"
      "The characters half and three-quarter and other 'exotic' characters can not be used.\n"
      "Remove the 'illegal' characters and try again.\n\nLook at the box \"Name\".",
      "Kelvora FOOD|Sommige velden bevatten 'ongeldige' tekens.\n"
      "De tekens half en driekwart en andere 'vreemde' tekens kun je niet gebruiken.\n"
      "Verwijder de 'ongeldige' tekens en probeer het opnieuw.\n\nKijk naar het vak \"Naam\".");
  EXPECT_EQ(Shown("txt_dNaam"), QString::fromUtf8("½ apple"));
  EXPECT_TRUE(OwnList().Empty());
}

TEST_F(NewFoodMessages, TheNameIsTooLong) {
  ForBothLanguages([&] { Paste("txt_dNaam", QString(900, 'a')); }, BoxIcon::error,
                   "Kelvora FOOD|The food item contains to much data.\n"
                   "Please use a shorter description.\n\nLook at the box \"Name\".",
                   "Kelvora FOOD|Het voedingsmiddel bevat te veel gegevens.\n"
                   "Gebruik een kortere omschrijving.\n\nKijk naar het vak \"Naam\".");
  // Behind the name stands "-1 plate-35-350-84-0.00-0.00-0.00-0.00-0.000-0--": 48 characters.
  Paste("txt_dNaam", QString(852, 'a'));
  Click("cmd_opslaan");
  ASSERT_EQ(OwnList().Count(), 1u);
  EXPECT_EQ(OwnList()[0].size(), 900u);
}

TEST_F(NewFoodMessages, SodiumInMilligrams) {
  ForBothLanguages(
      [&] {
        Type("txt_dGram", "100");
        Type("txt_s_6", "250");
      },
      BoxIcon::question,
      "High sodium value!|The sodium value is very high.\n\n"
      "The value in the sodium field is 250.000\n"
      "Sodium must be entered in gram. 1 gram is 1000 milligram.\n\n"
      "Are you sure that the current value of Sodium is correct?",
      "Hoge natriumwaarde!|De natriumwaarde is erg hoog.\n\n"
      "De waarde in het veld natrium is 250.000\n"
      "Natrium vul je in grammen in. 1 gram is 1000 milligram.\n\n"
      "Weet je zeker dat de ingevulde waarde voor natrium klopt?");
  EXPECT_TRUE(OwnList().Empty());
  EXPECT_EQ(Shown("txt_s_6"), "250");
}

TEST_F(NewFoodMessages, TheNameExists) {
  test.program.store.Custom_list.Add(LineOf({.product = "Soup"}));
  ForBothLanguages([] {}, BoxIcon::error,
                   "Kelvora FOOD|The name of the food item already exists.\n"
                   "Choose another name and press 'Add' again.",
                   "Kelvora FOOD|Er bestaat al een voedingsmiddel met deze naam.\n"
                   "Kies een andere naam en druk nog een keer op 'Toevoegen'.");
  EXPECT_EQ(OwnList().Count(), 1u);
}

TEST_F(NewFoodMessages, TheFoodIsSaved) {
  ForBothLanguages([&] { test.program.store.Custom_list.Clear(); }, BoxIcon::information,
                   "Kelvora FOOD|The food item has been saved in the 'own food list'.",
                   "Kelvora FOOD|Het voedingsmiddel is opgeslagen in de 'eigen "
                   "voedingsmiddelenlijst'.");
}

TEST_F(NewFoodMessages, TheFoodIsSavedButNotSent) {
  Stored(Setting::chk_addinternet) = "1";
  KnowAServer();
  for (const auto& [make, text] :
       {std::pair{&Make_Taal_English,
                  "Error #504|The new food item is saved in the 'my own list' but not added to "
                  "the internet database.\nCheck your internet connection and try again."},
        std::pair{&Make_Taal_Dutch,
                  "Fout #504|Het nieuwe voedingsmiddel is opgeslagen in 'mijn eigen lijst', maar "
                  "niet toegevoegd aan de internetdatabase.\n"
                  "Controleer je internetverbinding en probeer het opnieuw."}}) {
    make(test.program.texts);
    test.program.store.Custom_list.Clear();
    Open();
    FillIn();
    Click("cmd_opslaan");
    test.transfers.Fail();
    ExpectBox(text, BoxIcon::error);
    EXPECT_TRUE(dialog->isVisible());
  }
  EXPECT_EQ(OwnList().Count(), 1u);
  EXPECT_EQ(Stored(Setting::SubmitCount), "0");
}

TEST_F(NewFoodMessages, NothingIsClippedAndRowsAreLevelInEitherLanguage) {
  for (void (*make)(TextTables&) : {&Make_Taal_English, &Make_Taal_Dutch}) {
    make(test.program.texts);
    Open();
    QApplication::processEvents();
    EXPECT_LE(dialog->width(), 1000);
    EXPECT_LE(dialog->height(), 720);
    int labels = 0;
    for (const auto* label : dialog->findChildren<QLabel*>()) {
      ++labels;
      if (label->wordWrap()) {
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
      } else {
        EXPECT_GE(label->width(), label->sizeHint().width()) << label->objectName().toStdString();
      }
    }
    EXPECT_EQ(labels, 38);
    for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
      EXPECT_GE(button->width(), button->sizeHint().width());
    }
    for (const auto* group : dialog->findChildren<QGroupBox*>()) {
      EXPECT_GE(group->width(), group->fontMetrics().horizontalAdvance(group->title()) + 16);
    }
    const auto top = [&](const QString& name) {
      return Find(name)->mapTo(dialog.get(), QPoint(0, 0)).y();
    };
    EXPECT_EQ(top("txt_sGram"), top("txt_dGram"));
    for (int i = 0; i < 7; ++i) {
      EXPECT_EQ(top(QStringLiteral("txt_s_%1").arg(i)), top(QStringLiteral("txt_d_%1").arg(i)));
    }
  }
}

}  // namespace
}  // namespace kelvora
