// Where the Tab key leads in every window, there and back. The expected orders are the reading
// order of the screens: from left to right and from top to bottom, a toolbar, a strip of tabs and a
// group of options as one stop each.
#include <filesystem>
#include <gtest/gtest.h>

#include <QAction>
#include <QStackedWidget>
#include <QTabWidget>

#include "storage/record_file.h"
#include "windows/all_windows.h"

namespace kelvora {
namespace {

QWidget* InFocus() {
  QApplication::processEvents();
  return QApplication::focusWidget();
}

QString NameInFocus() {
  const QWidget* const focus = InFocus();
  if (focus == nullptr) return QStringLiteral("nothing");
  const QString name = focus->objectName();
  return name == QStringLiteral("qt_tabwidget_tabbar") ? QStringLiteral("tabs") : name;
}

// From a control on, until the key is back there; no walk is longer than 60.
QString Walk(QWidget& window, const QString& first, Qt::Key key) {
  const auto first_control = [&] {
    return first == QStringLiteral("tabs")
               ? FindIn<QWidget>(window, QStringLiteral("qt_tabwidget_tabbar"))
               : FindIn<QWidget>(window, first);
  };
  first_control()->setFocus();
  QStringList names{NameInFocus()};
  for (int i = 0; i < 60; ++i) {
    QWidget* const focus = InFocus();
    QTest::keyClick(focus == nullptr ? &window : focus, key,
                    key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    if (NameInFocus() == names.front()) return names.join(' ');
    names << NameInFocus();
  }
  return names.join(' ') + QStringLiteral(" and never back");
}

QString Backwards(const QString& order) {
  QStringList names = order.split(' ');
  std::reverse(names.begin() + 1, names.end());
  return names.join(' ');
}

void ExpectWalk(QWidget& window, const QString& order) {
  const QString first = order.section(' ', 0, 0);
  EXPECT_EQ(Walk(window, first, Qt::Key_Tab).toStdString(), order.toStdString());
  EXPECT_EQ(Walk(window, first, Qt::Key_Backtab).toStdString(), Backwards(order).toStdString());
}

struct DialogWalk {
  const char* dialog;
  int tab;  // the page of its tabs, or -1 where it has none
  const char* order;
};

const std::vector<DialogWalk> kDialogWalks = {
    {"KV_bestand", 0,
     "tabs lst_users Toolbar_control_2 pg_7 pg_8 txt_lengte_m txt_streefgewicht pg_9_a pg_9_b "
     "pg_9_c pg_11 txt_gewicht cmd_opslaan cmd_annuleer"},
    {"KV_bestand", 1, "tabs pg_1 pg_2 pg_3 pg_4 pg_15 pg_12 pg_13 pg_14 cmd_opslaan cmd_annuleer"},
    {"KV_bestand", 2,
     "tabs type_prioriteit_0 Slider_kj Slider_ovet Slider_vvet Slider_nat Slider_ew Slider_kdr "
     "Combo_default chk_apply cmd_opslaan cmd_annuleer"},
    {"KV_browsefiles", -1,
     "lst_users LV_browse_files chk_profiel cmd_take_over cmd_openen cmd_annuleer"},
    {"KV_export_html", -1,
     "opt_soort_0 opt_seletie_1 chk_grafieken chk_notities chk_close LV_user_files cmd_export "
     "cmd_annuleer"},
    {"KV_properties", 0,
     "tabs chk_wiz chk_profiel Combo_taal cmd_reset combo_printer chk_map txt_map cmd_opslaan "
     "cmd_annuleer"},
    {"KV_properties", 1,
     "tabs chk_apply chk_export chk_all_screens chk_help opt_system_0 opt_gramoz_0 cmd_opslaan "
     "cmd_annuleer"},
    {"KV_properties", 2, "tabs chk_internet chk_addinternet opt_server_0 cmd_opslaan cmd_annuleer"},
    {"KV_wizzard", -1, "Option1 chk_wiz cmd_opslaan cmd_annuleer"},
    {"KV_foodpopup", 0,
     "bVar_0 bVar_1 txt_gram txt_oz bVar_10 bVar_11 tabs bVar_3 bVar_4 bVar_5 bVar_6 bVar_7 bVar_8 "
     "bVar_9 chk_favo cmd_opslaan cmd_annuleer"},
    {"KV_foodpopup", 1,
     "bVar_0 bVar_1 txt_gram txt_oz bVar_10 bVar_11 tabs oVar_0 oVar_1 oVar_2 oVar_3 oVar_4 oVar_5 "
     "oVar_6 chk_favo cmd_bewerk cmd_opslaan cmd_annuleer"},
    {"KV_add_voedingsmiddel", -1,
     "txt_sGram txt_sOz txt_s_0 txt_s_1 chk_kj txt_s_2 txt_s_3 txt_s_4 txt_s_5 txt_s_6 txt_dNaam "
     "combo_dEenheid txt_dGram txt_dOz txt_d_0 txt_d_1 txt_d_2 txt_d_3 txt_d_4 txt_d_5 txt_d_6 "
     "cmd_opslaan cmd_annuleer"},
    {"KV_take_over", -1, "LV_other_days tree_foods cmd_take_over cmd_whole_day cmd_annuleer"},
    {"KV_backup", -1, "cmb_users chk_reminder cmd_backup cmd_annuleer"},
    {"KV_restore", -1, "LV_users LV_files opt_differs_0 cmd_restore cmd_annuleer"},
    {"KV_import_foods", 0, "cmd_file cmd_folder tabs list_groups combo_portions cmd_close"},
    {"other_amount", -1, "txt_amount cmd_opslaan cmd_annuleer"},
    {"KV_popup", -1, "cmd_annuleer"},
    {"KV_data", -1, "lst_members lst_lines"},
};

TEST(TabWalk, OfEveryDialogIsItsReadingOrder) {
  AllWindows every;
  every.OpenDay();
  for (const DialogWalk& walk : kDialogWalks) {
    SCOPED_TRACE(std::string(walk.dialog) + ", page " + std::to_string(walk.tab));
    const auto dialog = OpenDialog(walk.dialog, every.program);
    if (walk.tab >= 0) dialog->findChild<QTabWidget*>()->setCurrentIndex(walk.tab);
    ExpectWalk(*dialog, walk.order);
  }
}

TEST(TabWalk, IsThereForEveryDialog) {
  for (const DialogKind& kind : EveryDialog()) {
    EXPECT_TRUE(std::ranges::any_of(kDialogWalks, [&](const DialogWalk& walk) {
      return kind.name == walk.dialog;
    })) << kind.name;
  }
}

// What comes behind the last control of a child window, and before its first.
constexpr const char* kFrame = " Toolbar_quickscreens_2 StatusBar menu_toolbar_2";

struct ChildWalk {
  WindowId window;
  const char* click;  // a button of its toolbar, to be clicked before; none if empty
  const char* order;
};

const std::vector<ChildWalk> kChildWalks = {
    {WindowId::lists, "",
     "Toolbar_1 combo_cat cmd_often txt_zoeken LV_browse_zoeken txt_amount Pic_opties"},
    {WindowId::lists, "Toolbar_2", "Toolbar_1 Pic_toevoegen LV_browse_eigen txt_amount Pic_opties"},
    {WindowId::lists, "Toolbar_3", "Toolbar_1 LV_browse_favo txt_amount Pic_opties"},
    {WindowId::lists, "Toolbar_4",
     "Toolbar_1 txt_internet Pic_toevoegen LV_browse_internet txt_amount Pic_opties"},
    {WindowId::morning, "", "Toolbar_1 Toolbar_control_1 LV_consumpties"},
    {WindowId::afternoon, "Toolbar_1", "Toolbar_1 Toolbar_control_1 LV_consumpties"},
    {WindowId::evening, "Toolbar_2",
     "Toolbar_1 Toolbar_control_1 LV_consumpties txt_nfo_8 txt_nfo_7 cmd_opslaan"},
    {WindowId::diary, "", "txt_notities"},
    {WindowId::day_summary, "", "Toolbar_1 Pic_Behoefte Pic_rescale"},
    {WindowId::day_summary, "Toolbar_2", "Toolbar_1 Graph_pie"},
    {WindowId::day_summary, "Toolbar_3", "Toolbar_1 LV_uittreksel"},
    {WindowId::day_summary, "Toolbar_4", "Toolbar_1 Pic_BMI"},
    {WindowId::comparison, "", "tabs Pic_drop_1 Pic_drop_2"},
    {WindowId::multi_day, "",
     "Toolbar_1 Pic_Grafiek Teken_lijn_0 Teken_lijn_1 Teken_lijn_2 Teken_lijn_3 Teken_lijn_4 "
     "Teken_lijn_5 Teken_lijn_6 Teken_lijn_7 Teken_dag"},
    {WindowId::multi_day, "Toolbar_2", "Toolbar_1 Pic_Behoefte"},
    {WindowId::multi_day, "Toolbar_3", "Toolbar_1 Graph_pie"},
    {WindowId::multi_day, "Toolbar_4", "Toolbar_1 LV_uittreksel"},
};

// Through the window in front and the frame around it, whatever else is open behind it.
TEST(TabWalk, GoesThroughTheChildWindowInFrontAndTheFrame) {
  AllWindows every;
  every.program.settings[Setting::chk_internet] = "1";
  every.OpenDay();
  ApplyChosenArrangement(every.program);
  for (const ChildWalk& walk : kChildWalks) {
    QMdiSubWindow& frame = every.OpenChild(walk.window);
    SCOPED_TRACE(frame.objectName().toStdString() + ", " + walk.click);
    if (*walk.click != '\0') FindIn<QToolButton>(frame, walk.click)->click();
    const QString order = QLatin1String(walk.order) + QLatin1String(kFrame);
    const QString first = order.section(' ', 0, 0);
    // By its place in the frame: several windows have a control of that name.
    const auto start = [&] {
      FindIn<QWidget>(frame, first == "tabs" ? QStringLiteral("qt_tabwidget_tabbar") : first)
          ->setFocus();
    };
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
      start();
      QStringList names{NameInFocus()};
      for (int i = 0; i < 60; ++i) {
        QTest::keyClick(InFocus(), key,
                        key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_TRUE(InFocus() != nullptr);
        if (NameInFocus() == names.front()) break;
        names << NameInFocus();
      }
      EXPECT_EQ(names.join(' ').toStdString(),
                (key == Qt::Key_Tab ? order : Backwards(order)).toStdString());
    }
  }
}

TEST(TabWalk, ReachesTheOtherPagesOfTheComparison) {
  AllWindows every;
  every.OpenDay();
  QMdiSubWindow& frame = every.OpenChild(WindowId::comparison);
  auto& tabs = *FindIn<QTabWidget>(frame, "TabStrip");
  tabs.setCurrentIndex(1);
  ExpectWalk(every.window, QStringLiteral("tabs Pic_drop_1_b Pic_drop_2_b") + kFrame);
  tabs.setCurrentIndex(2);
  ExpectWalk(every.window, QStringLiteral("tabs") + kFrame);
}

TEST(TabWalk, ReachesWhatSavesTheDiaryWhileThereIsSomethingToSave) {
  AllWindows every;
  every.OpenDay();
  QMdiSubWindow& frame = every.OpenChild(WindowId::diary);
  QTest::keyClicks(FindIn<QWidget>(frame, "txt_notities"), "a");
  ExpectWalk(every.window, QStringLiteral("Toolbar_1 txt_notities") + kFrame);
}

TEST(TabWalk, GoesThroughTheSmallSummary) {
  AllWindows every;
  every.OpenDay();
  FindIn<QAbstractButton>(every.OpenChild(WindowId::day_summary), "Pic_rescale")->click();
  ExpectWalk(every.window, QStringLiteral("Pic_Behoefte Pic_rescale") + kFrame);
}

TEST(TabWalk, GoesThroughAWindowThatHasNoControl) {
  AllWindows every;
  every.OpenDay();
  // A server that never answers, so that the window stays.
  std::filesystem::create_directories(every.program.paths.ProgramPath);
  WriteFileAnew(every.program.paths.ProgramPath + "servers.conf",
                "update = http://127.0.0.1/update\n");
  every.window.OpenUpdate(UpdateMode::shown);
  every.Activate(every.window);
  ExpectWalk(every.window, QStringLiteral("KV_tb_internet_update_frame") + kFrame);
}

// Without a day the first two arrangements can't be had.
TEST(TabWalk, GoesThroughTheFrameAlone) {
  AllWindows every;
  every.Activate(every.window);
  ExpectWalk(every.window, "menu_toolbar_2 Toolbar_quickscreens_5 StatusBar");
}

}  // namespace
}  // namespace kelvora
