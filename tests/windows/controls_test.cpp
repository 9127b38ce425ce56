// Every control of the windows: the name by which it is found, what is read aloud of it, and its
// tip. The lists are written from the tables of texts, not from the windows; a control that loses
// one of the three, or that nobody listed, is told. In which order Tab goes is tested elsewhere.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "core/frame/arrangement.h"
#include "core/frame/data_window.h"
#include "core/frame/main_window.h"
#include "days/browser_dialog.h"
#include "days/day_settings_dialog.h"
#include "days/popup_window.h"
#include "days/take_over_dialog.h"
#include "days/wizard_dialog.h"
#include "food/food_details_dialog.h"
#include "food/import/food_import_dialog.h"
#include "food/new_food_dialog.h"
#include "food/other_amount_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "output/export_dialog.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"
#include "windows/carrying_windows.h"
#include "windows/written_days.h"

namespace kelvora {
namespace {

QString ReadAloud(const QWidget& widget) {
  if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  return widget.windowTitle();
}

// Words that are shown need no name, and parts of the toolkit's own widgets have names of its own.
bool IsListed(const QWidget& widget) {
  if (qobject_cast<const QLabel*>(&widget) != nullptr) return false;
  if (qobject_cast<const QMenu*>(&widget) != nullptr) return false;
  const QString name = widget.objectName();
  return !name.isEmpty() && !name.startsWith(QLatin1String("qt_")) &&
         !name.startsWith(QLatin1String("Scroll"));
}

// A line for each: the name | what is read aloud | the tip.
QStringList ControlsOf(const QWidget& window) {
  QApplication::processEvents();
  QStringList lines;
  const auto add = [&lines](const QWidget& widget) {
    if (!IsListed(widget)) return;
    const QStringList line = {widget.objectName(), ReadAloud(widget), widget.toolTip()};
    lines << line.join(QStringLiteral(" | ")).trimmed();
  };
  add(window);
  for (const QWidget* widget : window.findChildren<const QWidget*>()) {
    if (widget->window() == window.window()) add(*widget);
  }
  return lines;
}

// The lines that one of two lists has and the other lacks.
void ExpectControls(const QWidget& window, const char* expected) {
  QStringList missing = QString::fromUtf8(expected).trimmed().split(QLatin1Char('\n'));
  for (const QString& line : ControlsOf(window)) {
    if (!missing.removeOne(line)) ADD_FAILURE() << "not listed: " << line.toStdString();
  }
  for (const QString& line : missing) ADD_FAILURE() << "not there: " << line.toStdString();
}

class Controls : public testing::Test {
 protected:
  TestProgram test;
  Program& program = test.program;
};

class ControlsOfADay : public Controls {
 protected:
  ControlsOfADay() {
    program.profile[ProfileField::type_prioriteit] = "1";
    window.Set_Taal();
    window.show();
    test.OpenDay("Anna");
    ApplyChosenArrangement(program);
  }
  const QWidget& Child(const char* name) {
    return *window.findChild<QWidget*>(QLatin1String(name));
  }

  MainWindow window{test.program};
};

TEST_F(ControlsOfADay, OfTheFoodLists) {
  ExpectControls(Child("KV_tb_lijsten"), R"(
KV_tb_lijsten | Food items |
Toolbar | Food items |
Toolbar_1 | Standard list | Search the food items of all categories (Alt+1)
Toolbar_2 | My own list | Food items that you made yourself (Alt+2)
Toolbar_3 | Favourites list | Food items that you use often (Alt+3)
Toolbar_4 | Internet list | Search for food items on the food server (Alt+4)
Pic_zoek |  |
combo_cat | Select a food item category: | Show the food items of one category
txt_zoeken | Search food item (enter a food item and press ENTER): | Press ENTER to search in the remarks as well
cmd_often | Often | Show what you ate most in the last 60 days
Pic_internet |  |
txt_internet | Search food item on internet (enter a food item and press ENTER): | No food server is known to this program.
LV_browse_zoeken | Standard list | Drop a consumption here to remove it from the day
LV_browse_eigen | My own list | Drop a consumption here to remove it from the day
LV_browse_favo | Favourites list | Drop a consumption here to add it to the favourites list
LV_browse_internet | Internet | Drop a consumption here to remove it from the day
Pic_toevoegen | Add a new food item |
txt_amount | Amount: | How much: 2, 1/2, 150 g or 5 oz. Nothing here means one portion.
Pic_opties | Food item options |
StatusBar | Status bar |
ProgressBar | Filling the list |
)");
}

TEST_F(ControlsOfADay, OfTheConsumptions) {
  ExpectControls(Child("KV_tb_vmiddag"), R"(
KV_tb_vmiddag | Afternoon consumptions Friday 05-03-04 |
Toolbar | Panels below the list |
Toolbar_1 | Nutrition count | Nutrition count
Toolbar_2 | Make 1 food item of the food items below | Make 1 food item of the food items below
Toolbar_control | Selected food item |
Toolbar_control_1 | Selected food item +1 | Selected food item +1
Toolbar_control_2 | Selected food item -1 | Selected food item -1
Toolbar_control_4 | Remove selected food item | Remove selected food item
LV_consumpties | Afternoon consumptions |
Info_bar | Nutrition count |
Pic_SP | Make 1 food item of the food items below |
txt_nfo_8 | Name |
txt_nfo_7 | Unit |
cmd_opslaan | Save |
StatusBar | Status bar |
)");
}

TEST_F(ControlsOfADay, OfTheComparison) {
  window.OpenWindow(WindowId::comparison);
  ExpectControls(Child("KV_tb_weegschaal"), R"(
KV_tb_weegschaal | Food comparison |
TabStrip | Food comparison |
page_a |  |
Frame_1_1_a | Food item 1: |
Pic_drop_1 | Drag food item 1 to this field | Drag food item 1 to this field
Frame_2_1_a | Food item 2: |
Pic_drop_2 | Drag food item 2 to this field | Drag food item 2 to this field
Frame_1_2_a | Details 1: |
Frame_2_2_a | Details 2: |
page_b |  |
Frame_1_1_b | Food item 1: |
Pic_drop_1_b | Drag food item 1 to this field | Drag food item 1 to this field
Frame_2_1_b | Food item 2: |
Pic_drop_2_b | Drag food item 2 to this field | Drag food item 2 to this field
Frame_1_2_b | Details 1 (per 100 grams) |
Frame_2_2_b | Details 2 (per 100 grams) |
page_help |  |
Frame_hulp | Help |
)");
}

TEST_F(ControlsOfADay, OfSeveralDays) {
  WriteDays(program, 2);
  for (std::size_t i = 0; i < 7; ++i) {
    program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
  }
  window.OpenWindow(WindowId::multi_day);
  ASSERT_TRUE(
      QTest::qWaitFor([this] { return Child("KV_tb_meerdaags").windowTitle() == "Trend"; }));
  Child("KV_tb_meerdaags").findChild<QAbstractButton*>(QStringLiteral("Toolbar_3"))->click();
  // Foods of 100 to 700 kilojoules on both days: 1400 of 5600 are 25 percent.
  ExpectControls(Child("KV_tb_meerdaags"), R"(
KV_tb_meerdaags | Trend |
body |  |
Toolbar | Views of the trend window |
Toolbar_1 | Trend line | Generate a trend line for the current user
Toolbar_2 | Rec. nutrition | Recommended nutrition's
Toolbar_3 | Top 5 diagram | Top 5 consumptions
Toolbar_4 | Consumption list | Summary of all consumptions
panels |  |
Pic_grafiekbox | Trend lines of all days |
Pic_Grafiek_top | Time lines of the days |
Pic_txt | Percentage of the highest value of each line |
Pic_Grafiek | Trend lines of all days |
Pic_dates | 01-03-04 - 02-03-04 |
Pic_trendlijnen |  |
Pic_trendlijnen_1 | Weight and energy |
Bar_kleur_0 |  |
Teken_lijn_0 | Food weight | Show the line of the food weight
Bar_kleur_1 |  |
Teken_lijn_1 | Energy, Kj / Kcal | Show the line of the energy
Bar_kleur_2 |  |
Teken_lijn_2 | Your weight | Show the line of your own weight
Pic_trendlijnen_2 | Fats |
Bar_kleur_3 |  |
Teken_lijn_3 | Fat, unsaturated | Show the line of the unsaturated fat
Bar_kleur_4 |  |
Teken_lijn_4 | Fat, saturated | Show the line of the saturated fat
Pic_trendlijnen_3 | Other nutrients |
Bar_kleur_5 |  |
Teken_lijn_5 | Carbohydrates | Show the line of the carbohydrates
Bar_kleur_6 |  |
Teken_lijn_6 | Protein | Show the line of the protein
Bar_kleur_7 |  |
Teken_lijn_7 | Sodium | Show the line of the sodium
Teken_dag | Draw time lines | Draw a vertical line for every day
Pic_Behoefte | Recommended nutrition and your average per day |
pic_n_0 | Energy, Kj: 100 Kj, 100% | Energy, Kj: 100 Kj, 100%
pic_g_0 | Energy, Kj used: 1500 Kj, 1500% | Energy, Kj used: 1500 Kj, 1500%
pic_n_1 | Energy, Kcal: 100 Kcal, 100% | Energy, Kcal: 100 Kcal, 100%
pic_g_1 | Energy, Kcal used: 358.5 Kcal, 358.5% | Energy, Kcal used: 358.5 Kcal, 358.5%
pic_n_2 | Unsaturated fats: 100 gram, 100% | Unsaturated fats: 100 gram, 100%
pic_g_2 | Unsaturated fat used: 10 Gram 10% | Unsaturated fat used: 10 Gram 10%
pic_n_3 | Saturated fats: 100 gram, 100% | Saturated fats: 100 gram, 100%
pic_g_3 | Saturated fat used: 5 Gram 5% | Saturated fat used: 5 Gram 5%
pic_n_4 | Sodium: 100 gram, 100% | Sodium: 100 gram, 100%
pic_g_4 | Sodium used: 2 Gram 2% | Sodium used: 2 Gram 2%
pic_n_5 | Protein: 100 gram, 100% | Protein: 100 gram, 100%
pic_g_5 | Protein used: 50 Gram 50% | Protein used: 50 Gram 50%
pic_n_6 | Carbohydrates: 100 gram, 100% | Carbohydrates: 100 gram, 100%
pic_g_6 | Carbohydrates used: 100 Gram 100% | Carbohydrates used: 100 Gram 100%
Pic_top5 | Pie chart for: (Energy, Kj) |
Graph_pie | Pie chart for: (Energy, Kj) |
lbl_piecolor_0 | 7: 1400 Kj , 25% |
lbl_piecolor_1 | 6: 1200 Kj , 21% |
lbl_piecolor_2 | 5: 1000 Kj , 18% |
lbl_piecolor_3 | 4: 800 Kj , 14% |
lbl_piecolor_4 | 3: 600 Kj , 11% |
lbl_piecolor_5 | Remaining consumptions: 10% |
Pic_uittreksel |  |
LV_uittreksel | Consumptions of all days |
StatusBar | Status bar |
ProgressBar | Progress of the summary |
)");
}

TEST_F(Controls, OfTheDetailsOfAFood) {
  // Without food there is nothing to share: 0 of 0 grams.
  const FoodDetailsDialog dialog(program, "zoeken", LineOf({.product = "Water", .unit = "1 glass"}),
                                 nullptr);
  ExpectControls(dialog, R"(
KV_foodpopup | Food item details |
bVar_0 | Food item: |
bVar_1 | Unit: |
txt_gram | Weight: gram | The weight of the portion in whole grams
txt_oz | Weight: oz | The weight of the portion in ounces
bVar_10 | Food group: |
bVar_11 | Remarks: |
TabStrip | Choose between the values of the portion and those per 100 grams | Choose between the values of the portion and those per 100 grams
Frame_a | Nutrition value per 1 glass (of) 0 Gram: |
bVar_3 | Kilojoules of the portion |
bVar_4 | Kilocalories of the portion |
bVar_5 | Unsaturated fat of the portion |
bVar_6 | Saturated fat of the portion |
bVar_7 | Sodium of the portion |
bVar_8 | Protein of the portion |
bVar_9 | Carbohydrates of the portion |
Frame_b | Nutritional value per 100 grams: |
oVar_0 | Kilojoules per 100 grams |
oVar_1 | Kilocalories per 100 grams |
oVar_2 | Unsaturated fat per 100 grams |
oVar_3 | Saturated fat per 100 grams |
oVar_4 | Sodium per 100 grams | Fill in sodium in grams: 1 gram is 1000 milligram
oVar_5 | Protein per 100 grams |
oVar_6 | Carbohydrates per 100 grams |
pBar | Share of each nutrient in the food item | Share of each nutrient in the food item
pBar_0 | Unsaturated fats: 0 [0.00%] |
pBar_1 | Saturated fats: 0 [0.00%] |
pBar_2 | Sodium: 0 [0.00%] |
pBar_3 | Proteins: 0 [0.00%] |
pBar_4 | Carbohydrates: 0 [0.00%] |
chk_favo | Add to 'favourites list' | Tick the box to keep this food item in the favourites list
cmd_bewerk | Edit (per 100 grams) | Change the description and the values per 100 grams
cmd_opslaan | Save | Save the food item in 'my own list'
cmd_annuleer | Cancel | Close this window without saving
)");
}

TEST_F(Controls, OfAnotherAmount) {
  const OtherAmountDialog dialog(program, "Bread", "1", {}, nullptr);
  ExpectControls(dialog, R"(
other_amount | Other amount ... |
txt_amount | Amount: | How much: 2, 1/2, 150 g or 5 oz. Nothing here means one portion.
cmd_opslaan | Save |
cmd_annuleer | Cancel |
)");
}

TEST_F(Controls, OfANewFood) {
  const NewFoodDialog dialog(program, nullptr);
  ExpectControls(dialog, R"(
KV_add_voedingsmiddel | Add new food item |
txt_sGram | These values are for: gram | The weight that the values on the package refer to
txt_sOz | These values are for: oz | The weight that the values on the package refer to
txt_s_0 | Original nutritional value: Kilojoules: |
txt_s_1 | Original nutritional value: Kilocalories: |
chk_kj | KCal = Kj | Calculate kilocalories from kilojoules and the other way round
txt_s_2 | Original nutritional value: Saturated fat: |
txt_s_3 | Original nutritional value: Unsaturated fat: |
txt_s_4 | Original nutritional value: Protein: |
txt_s_5 | Original nutritional value: Carbohydrates: |
txt_s_6 | Original nutritional value: Sodium: |
txt_dNaam | Nutritional value of the new food item: Name: |
combo_dEenheid | Nutritional value of the new food item: Unit: | Choose a unit or type one yourself
combo_dEenheid_box | Nutritional value of the new food item: Unit: |
txt_dGram | Weight: gram | The weight of one portion of the new food item, in whole grams
txt_dOz | Weight: oz | The weight of one portion of the new food item, in whole grams
txt_d_0 | Nutritional value of the new food item: Kilojoules: |
txt_d_1 | Nutritional value of the new food item: Kilocalories: |
txt_d_2 | Nutritional value of the new food item: Saturated fat: |
txt_d_3 | Nutritional value of the new food item: Unsaturated fat: |
txt_d_4 | Nutritional value of the new food item: Protein: |
txt_d_5 | Nutritional value of the new food item: Carbohydrates: |
txt_d_6 | Nutritional value of the new food item: Sodium: |
chk_inet | Add (also) to internet database. | No food server is known to this program.
cmd_opslaan | Add | Save the new food item in 'my own list'
cmd_annuleer | Cancel | Close this window without adding the food item
)");
}

TEST_F(Controls, OfTheDayDialog) {
  const DaySettingsDialog dialog(program, nullptr);
  ExpectControls(dialog, R"(
KV_bestand | Start a new day |
TabStrip1 | Start a new day |
ChoiceFrame_1 |  |
lst_users | Users: | Select the user who starts a new day
Toolbar_control | Users: |
Toolbar_control_2 | Start a new user | Start a new user
Toolbar_control_3 | Delete the selected user | Delete the selected user
frame_person | Personal information: |
pg_0 | Name: |
pg_7 | Gender: |
pg_8 | Age: |
txt_lengte_m | Height: |
txt_streefgewicht | Goal weight: |
frame_day | Settings of this day: |
pg_9_a | Day |
pg_9_b | Month |
pg_9_c | Year |
pg_11 | Day: |
txt_gewicht | Weight: |
ChoiceFrame_2 |  |
frame_address | Address: |
pg_1 | Address 1: |
pg_2 | Address 2: |
pg_3 | City: |
pg_4 | ZIP/Postcode: |
pg_15 | State/Province: |
pg_12 | Country: |
pg_13 | Reference ID: |
frame_remarks | Remarks: |
pg_14 | Remarks: |
ChoiceFrame_3 |  |
type_prioriteit | Priority nutrient: | The priority nutrient gets a column of its own in the lists
type_prioriteit_0 | Energy, Kj |
type_prioriteit_1 | Energy, Kcal |
type_prioriteit_2 | Unsaturated fats |
type_prioriteit_3 | Saturated fats |
type_prioriteit_4 | Carbohydrates |
type_prioriteit_5 | Proteins |
frame_targets | Daily targets: |
Slider_kj | Energy: 9000 Kj | Move the slider to change this daily target
txt_kj | Energy: Kj |
Slider_ovet | Unsaturated fats: 80 Gram | Move the slider to change this daily target
txt_ovet | Unsaturated fats: Gram |
Slider_vvet | Saturated fats: 27 Gram | Move the slider to change this daily target
txt_vvet | Saturated fats: Gram |
Slider_nat | Sodium: 1 Gram | Move the slider to change this daily target
txt_nat | Sodium: Gram |
Slider_ew | Proteins: 60 Gram | Move the slider to change this daily target
txt_ew | Proteins: Gram |
Slider_kdr | Carbohydrates: 300 Gram | Move the slider to change this daily target
txt_kdr | Carbohydrates: Gram |
txt_kcal | Energy: Kcal |
Combo_default | Reset values to: | Set all targets to the values of an age group
chk_apply | Apply changes in (nutritions) profile automatically. | Changes show at once in the windows that are open
cmd_opslaan | Start |
cmd_annuleer | Cancel |
)");
}

TEST_F(Controls, OfTheListOfDays) {
  BrowserDialog dialog(program, nullptr);
  dialog.Open();
  ExpectControls(dialog, R"(
KV_browsefiles | Open file |
lst_users | Users: |
LV_browse_files | Days: | Double-click a day to open it
profile_pane |  |
chk_profiel | Show the profile |
cmd_take_over | Take over from ... |
cmd_openen | Open |
cmd_annuleer | Cancel |
)");
}

TEST_F(Controls, OfTakingOver) {
  const TakeOverDialog dialog(program, std::nullopt, {}, nullptr);
  ExpectControls(dialog, R"(
KV_take_over | Take over from another day |
LV_other_days | Day |
tree_foods | Eaten on that day |
cmd_take_over | Take over |
cmd_whole_day | Whole day |
cmd_annuleer | Cancel |
)");
}

TEST_F(Controls, OfTheDaysToExport) {
  ExportDaysDialog dialog(program, nullptr);
  dialog.Open();
  ExpectControls(dialog, R"(
KV_export_html | Export days to HTML, XML or DTA |
Frame_4 | Export to: |
opt_soort_0 | .HTML file for email |
opt_soort_2 | .XML file for email |
opt_soort_1 | .DTA file for internet websites |
Frame_1 | Select the days: |
opt_seletie_0 | Select all days |
opt_seletie_1 | Make your own selection |
Frame_3 | Options: |
chk_grafieken | Export the graphs |
chk_notities | Export the diary |
chk_close | Close this window after exporting |
Frame_2 | Saved days: |
LV_user_files | Saved days: |
cmd_export | Export |
cmd_annuleer | Cancel |
)");
}

TEST_F(Controls, OfABackup) {
  BackupDialog dialog(program, nullptr);
  ExpectControls(dialog, R"(
KV_backup | Back up |
cmb_users | Users: |
chk_reminder | Remind me after 30 days without a backup |
ProgressBar | Progress |
cmd_backup | Back up |
cmd_annuleer | Close |
)");
}

TEST_F(Controls, OfTablesOfFoods) {
  ExpectControls(FoodImportDialog(program, nullptr), R"(
KV_import_foods | Import foods |
cmd_file | Choose a file ... |
cmd_folder | Choose a folder ... |
pages | Import foods |
list_groups | Groups to import: |
combo_portions | Portions: |
txt_country | Sold in this country: |
combo_completeness | At least so complete (%): |
table_rows | First foods |
txt_set_name | Name of the table: |
chk_header | The first row holds the names of the columns |
chk_of_portion | The amounts are those of the portion, not of 100 gram |
chk_milligrams | Sodium in milligrams |
area_fields |  |
combo_name | Name |
combo_brand | Brand |
combo_group | Group |
combo_remark | Remark |
combo_portion | Portion in words |
combo_portion_grams | Portion in gram |
combo_kj | Kilojoules |
combo_kcal | Kilocalories |
combo_protein | Protein |
combo_carbs | Carbohydrates |
combo_fat | Fat |
combo_fat_s | Saturated fat |
combo_fat_u | Unsaturated fat |
combo_fat_mono | Monounsaturated fat |
combo_fat_poly | Polyunsaturated fat |
combo_salt | Salt |
combo_sodium | Sodium |
list_sets | Tables that were imported: |
cmd_remove | Remove |
progress | Progress |
cmd_count | Count |
cmd_import | Import |
cmd_stop | Stop |
cmd_close | Close |
)");
}

TEST_F(Controls, OfBringingBackABackup) {
  MakeUserFolders(program.paths, "Anna");
  WriteRecord(ProfileFile(program.paths, "Anna"), program.profile);
  ExpectControls(*ReadBackupWindow(program, BackupOfAll(program)), R"(
KV_restore | Restore |
Frame_1 | Users |
LV_users | Users |
Frame_2 | Profile, lists and days |
LV_files | Profile, lists and days |
Frame_3 | What differs here |
opt_differs_0 | Keep both: days under another name, lists joined, your profile |
opt_differs_1 | Take the backup's |
opt_differs_2 | Keep mine |
ProgressBar | Progress |
cmd_restore | Restore |
cmd_annuleer | Close |
)");
}

TEST_F(Controls, OfTheWizard) {
  WizardDialog dialog(program, nullptr);
  ExpectControls(dialog, R"(
KV_wizzard | Kelvora FOOD wizard |
frame_choice | Make a choice: |
Option1 | Start a new day | Also for new users
Option2 | Open a day | Choose from the days that you saved before
Option3 | Settings | Language, printer, units and internet
Option4 | Manual (Help) | Read how Kelvora FOOD works
chk_wiz | Show the start-up wizard when Kelvora starts. |
cmd_opslaan | OK | Save changes and start selected
cmd_annuleer | Close | Closes this window
)");
}

TEST_F(Controls, OfAboutAndTheSplash) {
  PopupWindow about(program, kAboutMode, nullptr);
  ExpectControls(about, R"(
KV_popup | About Kelvora FOOD |
ProgressBar |  |
cmd_annuleer | Close |
)");
}

TEST_F(Controls, OfTheUpdateCheck) {
  const UpdateWindow window(program, UpdateMode::shown, nullptr);
  ExpectControls(window, R"(
KV_tb_internet_update | Internet updates |
ProgressBar | Progress of the update check |
StatusBar | Status bar |
)");
}

TEST_F(Controls, OfTheStore) {
  const DataWindow window(program, nullptr);
  ExpectControls(window, R"(
KV_data | KV_data |
lst_members | KV_data |
lst_lines | L_gegevens |
)");
}

// A control that has no name is none of the lines, and one that nothing reads aloud has no words.
TEST(ControlsThatAreMissed, AreTold) {
  QWidget window;
  window.setObjectName(QStringLiteral("window"));
  auto* const named = new QPushButton(&window);
  named->setObjectName(QStringLiteral("named"));
  named->setToolTip(QStringLiteral("a tip"));
  new QPushButton(QStringLiteral("unnamed"), &window);
  EXPECT_EQ(ControlsOf(window), QStringList({"window |  |", "named |  | a tip"}));
}

}  // namespace
}  // namespace kelvora
