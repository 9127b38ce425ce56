// The day dialog in its two modes, three unit systems and two languages.
#include "language/built_in_texts.h"
#include "language/day_settings_texts.h"
#include "storage/day_file.h"
#include "windows/day_settings_window.h"

namespace kelvora {
namespace {

constexpr auto kLanguages = {&Make_Taal_English, &Make_Taal_Dutch};

// Imperial entry.

TEST_F(DaySettingsWindow, ImperialUsAsksForMonthDayFeetInchesAndPounds) {
  UseSystem("1");
  Open();
  EXPECT_EQ(dialog->findChild<QLineEdit*>("txt_lengte_m"), nullptr);
  EXPECT_EQ(Label("txt_lengte_i2_unit"), "Feet, inch");
  EXPECT_EQ(Label("txt_gewicht_unit"), "Lbs");
  EXPECT_EQ(Label("txt_streefgewicht_unit"), "Lbs");
  // Month first, each box with its own label above it.
  const auto x = [&](const char* name) {
    return Find<QWidget>(name)->mapTo(dialog.get(), QPoint()).x();
  };
  EXPECT_LT(x("pg_9_b"), x("pg_9_a"));
  EXPECT_LT(x("pg_9_a"), x("pg_9_c"));
  EXPECT_EQ(x("lbl_pg_9_b"), x("pg_9_b"));
  EXPECT_EQ(Label("lbl_pg_9_b"), "Month");
  EXPECT_EQ(Shown("pg_9_b"), "03");
  EXPECT_EQ(Shown("pg_9_a"), "05");
  EXPECT_EQ(Label("lbl_datuminfo"), "03-05-04");
}

TEST_F(DaySettingsWindow, ImperialUkAndMetricAskForTheDayFirst) {
  for (const char* system : {"0", "2"}) {
    UseSystem(system);
    Open();
    EXPECT_LT(Find<QWidget>("pg_9_a")->x(), Find<QWidget>("pg_9_b")->x());
    EXPECT_EQ(Label("lbl_datuminfo"), "05-03-04");
    EXPECT_EQ(Label("txt_gewicht_unit"), system[0] == '0' ? "KG " : "Lbs");
  }
}

TEST_F(DaySettingsWindow, TabFollowsTheBoxesOfImperialUs) {
  UseSystem("1");
  Open();
  Find<QLineEdit>("pg_0")->setFocus();
  QStringList order;
  for (int i = 0; i < 11; ++i) {
    order << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order.join(' '),
            "pg_0 pg_7 pg_8 txt_lengte_i1 txt_lengte_i2 txt_streefgewicht pg_9_b pg_9_a pg_9_c "
            "pg_11 txt_gewicht");
}

TEST_F(DaySettingsWindow, ADayTypedInPoundsAndFeetIsStoredInKilogramsAndMetres) {
  for (const char* system : {"1", "2"}) {
    UseSystem(system);
    Open();
    Click("Toolbar_control_2");
    Type("pg_0", system);
    Find<QComboBox>("pg_7")->setCurrentIndex(0);
    Type("pg_8", "42");
    Type("txt_lengte_i1", "5");
    EXPECT_EQ(Label("lbl_lengteinfo"), "");
    Type("txt_lengte_i2", "10");
    EXPECT_EQ(Label("lbl_lengteinfo"), "(5'10'' = 1.78 Meter)");
    Type("txt_streefgewicht", "154.32");
    Type("txt_gewicht", "160");
    // 160 pounds are 72.57478 kilograms and 11.43 stones.
    EXPECT_EQ(Label("lbl_gewichtinfo"), system[0] == '1'
                                            ? "(160.00 Lbs = 72.57 KG )"
                                            : "(160.00 Lbs = 72.57 KG  = 11.4 Stones)");
    Type("pg_9_b", "12");
    Type("pg_9_a", "31");
    Click("cmd_opslaan");
    ASSERT_TRUE(test.boxes.shown.empty()) << test.boxes.shown[0].text;
    EXPECT_EQ(PackBlock(test.program.store.L_gegevens),
              Packed(Text(system) + "~~~~~1.78~72.57478~Male~42~31-12-04~69.99837~Friday~~~~"));
    CloseDay(test.program);
  }
}

TEST_F(DaySettingsWindow, InchesAboveTwelveAreClearedOnLeaving) {
  UseSystem("2");
  Open();
  Type("txt_lengte_i1", "5");
  Type("txt_lengte_i2", "12");
  EXPECT_EQ(Shown("txt_lengte_i2"), "12");
  // An exact foot has an empty text for its inches.
  EXPECT_EQ(Label("lbl_lengteinfo"), "(6''' = 1.83 Meter)");
  Type("txt_lengte_i2", "13");
  EXPECT_EQ(Shown("txt_lengte_i2"), "");
  EXPECT_EQ(Label("lbl_lengteinfo"), "");
  Type("txt_lengte_i1", "x.67");
  EXPECT_EQ(Shown("txt_lengte_i1"), "6");
  Paste("txt_lengte_i2", "1.1 inch");
  EXPECT_EQ(Shown("txt_lengte_i2"), "11");
}

TEST_F(DaySettingsWindow, AnImperialUserWhoTypesNothingKeepsTheMetricValues) {
  UseSystem("1");
  AddUser("Anna");
  SetCurrentUser(test.program, "Anna");
  Open();
  EXPECT_EQ(Shown("txt_lengte_i1") + "|" + Shown("txt_lengte_i2"), "5|11");
  EXPECT_EQ(Shown("txt_gewicht"), "154.32");
  EXPECT_EQ(Shown("txt_streefgewicht"), "144.40");
  for (int i = 0; i < 20; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  Click("cmd_opslaan");
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kHeight], "1.80");
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kWeight], "70");
  EXPECT_EQ(Stored(ProfileField::goal_weight), "65.5");
}

// Typing and pasting.

TEST_F(DaySettingsWindow, APasteIsFilteredBeforeItIsCut) {
  Open();
  Paste("txt_gewicht", "w e i g h t: 70,5 kilograms");
  EXPECT_EQ(Shown("txt_gewicht"), "70.5");
  Paste("pg_8", "age 42 years");
  EXPECT_EQ(Shown("pg_8"), "42");
  Paste("pg_0", QString(40, 'x'));
  EXPECT_EQ(Shown("pg_0"), QString(30, 'x'));
  Paste("pg_0", QString::fromUtf8("Zoë Łuk"));
  EXPECT_EQ(Shown("pg_0"), QString::fromUtf8("Zoë uk"));
}

TEST_F(DaySettingsWindow, AFullBoxTakesNoFurtherKeyAnywhere) {
  Open();
  auto* const box = Find<QLineEdit>("txt_gewicht");
  box->setFocus();
  QTest::keyClicks(box, "123456");
  box->setCursorPosition(1);
  QTest::keyClicks(box, "9.");
  EXPECT_EQ(box->text(), "123456");
  EXPECT_EQ(box->cursorPosition(), 1);
}

TEST_F(DaySettingsWindow, TheGenderTakesNoTyping) {
  Open();
  auto* const gender = Find<QComboBox>("pg_7");
  gender->setFocus();
  QTest::keyClicks(gender, "Female");
  EXPECT_EQ(gender->currentIndex(), -1);
  QTest::keyClick(gender, Qt::Key_Down);
  EXPECT_EQ(gender->currentText(), "Male");
}

// Day settings.

TEST_F(DaySettingsWindow, DaySettingsShowTheOpenDayAndLockItsUser) {
  BeginDayOfAnna();
  AddUser("Bert");
  test.program.store.L_gegevens.Replace(HeaderRow::kDate, "31-12-99");
  test.program.store.L_gegevens.Replace(HeaderRow::kWeight, "72");
  test.program.store.L_gegevens.Replace(HeaderRow::kAge, "41");
  test.program.store.L_gegevens.Replace(HeaderRow::kWeekday, "Sunday");
  for (const char* system : {"0", "1", "2"}) {
    UseSystem(system);
    Open();
    EXPECT_EQ(dialog->windowTitle(), "Change settings for this day");
    EXPECT_TRUE(Label("lbl_info").startsWith("Change fields and press 'save'"));
    EXPECT_EQ(Find<QAbstractButton>("cmd_opslaan")->text(), "Save");
    for (const char* name : {"pg_0", "lst_users", "Toolbar_control_2", "Toolbar_control_3"}) {
      EXPECT_FALSE(Find<QWidget>(name)->isEnabled()) << name;
    }
    EXPECT_EQ(Find<QListWidget>("lst_users")->currentItem()->text(), "Anna");
    EXPECT_EQ(Shown("pg_0"), "Anna");
    EXPECT_EQ(Shown("pg_8"), "41");
    EXPECT_EQ(Shown("pg_9_a") + Shown("pg_9_b") + Shown("pg_9_c"), "311299");
    EXPECT_EQ(Shown("pg_11"), "Sunday");
    EXPECT_EQ(Shown("txt_gewicht"), system[0] == '0' ? "72" : "158.73");  // times 2.2046225
    EXPECT_EQ(Label("lbl_datuminfo"), system[0] == '1' ? "12-31-99" : "31-12-99");
    EXPECT_TRUE(Find<QLineEdit>("txt_gewicht")->hasFocus());
    CloseNow();
  }
}

TEST_F(DaySettingsWindow, DaySettingsAreSavedIntoTheOpenDay) {
  BeginDayOfAnna();
  const Text file = test.program.store.KV_bestand;
  test.core.opened.clear();
  Open();
  Type("txt_gewicht", "71");
  Type("pg_9_a", "17");
  Find<QLineEdit>("txt_gewicht")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(test.program.windows.day_settings, nullptr);
  EXPECT_EQ(PackBlock(test.program.store.L_gegevens),
            Packed("Anna~Street 1~~~~1.80~71~Female~42~17-03-04~65.5~Wednesday~~~~"));
  EXPECT_EQ(test.program.store.KV_bestand, file);
  EXPECT_TRUE(test.program.day.FileChanged);
  EXPECT_TRUE(test.core.opened.empty());
}

TEST_F(DaySettingsWindow, CancelledDaySettingsLeaveDayAndProfileAsTheyWere) {
  BeginDayOfAnna();
  const Text header = PackBlock(test.program.store.L_gegevens);
  const Rec_Profile profile = test.program.profile;
  Open();
  Type("txt_gewicht", "71");
  ShowTab(2);
  QTest::keyClick(Find<QSlider>("Slider_ew"), Qt::Key_Right);
  EXPECT_NE(test.program.profile, profile);
  Click("cmd_annuleer");
  EXPECT_EQ(PackBlock(test.program.store.L_gegevens), header);
  EXPECT_EQ(test.program.profile, profile);
  EXPECT_FALSE(test.program.day.FileChanged);
  EXPECT_TRUE(test.program.store.DayIsOpen());
}

TEST_F(DaySettingsWindow, SpeaksDutchInBothModes) {
  Make_Taal_Dutch(test.program.texts);
  UseSystem("1");
  AddUser("Anna");
  Open();
  EXPECT_EQ(dialog->windowTitle(), "Begin een nieuwe dag");
  EXPECT_EQ(Find<QTabWidget>("TabStrip1")->tabText(2), "Voedingswaarden");
  EXPECT_EQ(Label("lbl_pg_9_b"), "Maand");
  ClickUser("Anna");
  Click("Toolbar_control_3");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].title, "Verwijderen van Anna?");
  EXPECT_EQ(test.boxes.shown[0].text,
            "Je gaat Anna verwijderen, weet je het zeker?\nAlle bestanden van deze persoon worden "
            "dan ook verwijderd.");
  Type("pg_8", "12");
  Click("cmd_opslaan");
  ASSERT_EQ(test.boxes.shown.size(), 2u);
  EXPECT_TRUE(test.boxes.shown[1].text.starts_with("De leeftijd is niet ingevoerd."));
  Type("pg_8", "13");
  Click("cmd_opslaan");
  EXPECT_EQ(test.program.store.L_gegevens[HeaderRow::kAge], "13");
  test.program.day.DayDialogMode = DayDialogMode::day_settings;
  Open();
  EXPECT_EQ(dialog->windowTitle(), "Instellingen van deze dag wijzigen");
  EXPECT_EQ(Find<QAbstractButton>("cmd_opslaan")->text(), "Opslaan");
  EXPECT_EQ(Find<QComboBox>("pg_7")->currentText(), "Female");
}

// The look.

TEST_F(DaySettingsWindow, EveryControlOfEveryTabHasAnAccessibleName) {
  for (const char* system : {"0", "1"}) {
    UseSystem(system);
    Open();
    int controls = 0;
    for (const auto* widget : dialog->findChildren<QWidget*>()) {
      const bool is_control = qobject_cast<const QLineEdit*>(widget) != nullptr ||
                              qobject_cast<const QSlider*>(widget) != nullptr ||
                              qobject_cast<const QComboBox*>(widget) != nullptr ||
                              qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
                              qobject_cast<const QToolButton*>(widget) != nullptr;
      if (!is_control || widget->objectName().startsWith("qt_") ||
          widget->objectName().startsWith("Scroll")) {
        continue;
      }
      ++controls;
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
    EXPECT_EQ(controls, system[0] == '0' ? 34 : 35);
    CloseNow();
  }
}

TEST_F(DaySettingsWindow, FieldsStandBelowEachOtherWhicheverCaptionIsTheLongest) {
  using namespace day_settings_text;
  const QString widest(30, 'm');
  for (const TextId longest :
       {kName, kGender, kAge, kHeight, kGoalWeight, kDate, kWeekday, kWeight}) {
    Make_Taal_English(test.program.texts);
    test.program.texts[longest] = FromQt(widest);
    Open();
    const auto left = [this](const char* field) {
      return Find<QWidget>(field)->mapTo(dialog.get(), QPoint(0, 0)).x();
    };
    for (const char* field :
         {"pg_7", "pg_8", "txt_lengte_m", "txt_streefgewicht", "pg_9_a", "pg_11", "txt_gewicht"}) {
      EXPECT_EQ(left(field), left("pg_0")) << field << " beside text " << longest.index;
    }
    EXPECT_GT(left("pg_0") - left("lbl_pg_0"), dialog->fontMetrics().horizontalAdvance(widest));
    CloseNow();
  }
}

TEST_F(DaySettingsWindow, NothingIsClippedOnAnyTab) {
  AddUser("Anna");
  SetCurrentUser(test.program, "Anna");
  for (const auto make : kLanguages) {
    for (const char* system : {"0", "1", "2"}) {
      make(test.program.texts);
      UseSystem(system);
      Open();
      EXPECT_LE(dialog->width(), 1000);
      EXPECT_LE(dialog->height(), 720);
      int labels = 0;
      for (int tab = 0; tab < 3; ++tab) {
        ShowTab(tab);
        QApplication::processEvents();
        for (const auto* label : dialog->findChildren<QLabel*>()) {
          if (!label->isVisible()) continue;
          ++labels;
          if (label->wordWrap()) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width()));
          } else {
            EXPECT_GE(label->width(), label->sizeHint().width())
                << label->objectName().toStdString();
          }
        }
        for (const auto* button : dialog->findChildren<QAbstractButton*>()) {
          if (button->isVisible() && !qobject_cast<const QToolButton*>(button)) {
            EXPECT_GE(button->width(), button->sizeHint().width())
                << button->objectName().toStdString();
          }
        }
      }
      EXPECT_GE(labels, 35);
      // Every short box has room for as many digits as it takes.
      for (const DayField& field : DayFields()) {
        const auto* const box = dialog->findChild<QLineEdit*>(ToQt(field.name));
        if (box == nullptr || field.limit > 10) continue;
        const auto digits = QString(static_cast<qsizetype>(field.limit), '0');
        EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(digits) + 8) << field.name;
      }
      CloseNow();
    }
  }
}

}  // namespace
}  // namespace kelvora
