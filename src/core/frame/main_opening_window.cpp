// Which window or dialog the main window makes for each of those that the program has.
#include <algorithm>
#include <array>

#include "analysis/comparison_window.h"
#include "analysis/day_summary_window.h"
#include "analysis/diary_window.h"
#include "analysis/multi_day_window.h"
#include "core/frame/child_area_panel.h"
#include "core/frame/main_window.h"
#include "core/small_geometry.h"
#include "days/day_dialogs.h"
#include "days/popup.h"
#include "food/consumption_window.h"
#include "food/food_details_dialog.h"
#include "food/food_lists_window.h"
#include "food/import/food_import_dialog.h"
#include "food/new_food_dialog.h"
#include "internet/update_window.h"
#include "keeping/backup_dialog.h"
#include "keeping/restore_dialog.h"
#include "output/export_dialog.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

// The order in which the keyboard goes round the child windows: that of their toolbar buttons.
constexpr std::array kRound = {WindowId::lists,     WindowId::morning,   WindowId::afternoon,
                               WindowId::evening,   WindowId::diary,     WindowId::day_summary,
                               WindowId::multi_day, WindowId::comparison};
constexpr int kUpdatePlace = kRound.size();

int PlaceOf(WindowId id) {
  return static_cast<int>(std::ranges::find(kRound, id) - kRound.begin());
}

}  // namespace

void MainWindow::OpenWindow(WindowId id) {
  if (program_.ending || program_.windows.Find(id) != nullptr) return;
  switch (id) {
    case WindowId::wizard:
      return ShowWizardDialog(program_, this);
    case WindowId::day_settings:
      return ShowDaySettingsDialog(program_, this);
    case WindowId::browser:
      return ShowBrowserDialog(program_, this);
    case WindowId::lists:
      return OpenChild(id, new FoodListsWindow(program_, area_), "foods");
    case WindowId::morning:
      return OpenConsumption(DayPart::morning, "morning");
    case WindowId::afternoon:
      return OpenConsumption(DayPart::afternoon, "afternoon");
    case WindowId::evening:
      return OpenConsumption(DayPart::evening, "evening");
    case WindowId::diary:
      return OpenChild(id, new DiaryWindow(program_, area_), "diary",
                       {PixelsCovering(kDiaryMinimumWidth), PixelsCovering(kDiaryMinimumHeight)});
    case WindowId::day_summary:
      return OpenChild(id, new DaySummaryWindow(program_, area_), "summary");
    case WindowId::comparison:
      return OpenChild(id, new ComparisonWindow(program_, area_), "compare");
    case WindowId::multi_day:
      return OpenChild(id, new MultiDayWindow(program_, area_), "trend");
    case WindowId::food_details:
      return;
  }
}

void MainWindow::OpenSettings() {
  if (program_.windows.properties == nullptr) ShowSettingsDialog(program_, this);
}

void MainWindow::ShowItem(std::string_view tag, std::string_view line) {
  if (program_.windows.food_details == nullptr) ShowFoodDetailsDialog(program_, tag, line, this);
}

void MainWindow::OpenNewFood() {
  if (program_.windows.new_food == nullptr) ShowNewFoodDialog(program_, this);
}

void MainWindow::OpenExport() {
  if (program_.windows.export_html == nullptr) ShowExportDialog(program_, this);
}

void MainWindow::OpenTakeOver(std::optional<DayPart> part, const std::string& path) {
  if (program_.ending || !program_.store.DayIsOpen()) return;
  if (program_.windows.take_over == nullptr) ShowTakeOverDialog(program_, part, path, this);
}

void MainWindow::OpenBackup() {
  if (program_.windows.backup == nullptr) ShowBackupDialog(program_, this);
}

void MainWindow::OpenRestore() {
  if (program_.windows.restore == nullptr) ShowRestoreDialog(program_, this);
}

void MainWindow::OpenFoodImport() {
  if (program_.windows.food_import == nullptr) ShowFoodImportDialog(program_, this);
}

void MainWindow::ShowSplash() {
  ShowPopup(program_, kSplashMode, this);
}

void MainWindow::ShowAbout() {
  ShowPopup(program_, kAboutMode, this);
}

// In the middle of the area and no larger than it needs: it is gone again in a moment.
void MainWindow::OpenUpdate(UpdateMode mode) {
  if (program_.ending) return;
  if (program_.windows.update == nullptr) {
    auto* const frame =
        new ChildFrame(new UpdateWindow(program_, mode, area_), nullptr, kUpdatePlace);
    AddFrame(
        frame, "update",
        Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    frame->hide();
    frame->adjustSize();
    frame->move(area_->rect().center() - frame->rect().center());
  }
  if (mode == UpdateMode::shown) program_.windows.update->ShowWindow();
}

void MainWindow::OpenConsumption(DayPart part, const char* icon) {
  const bool small = IsSmall(Size());
  OpenChild(WindowOf(part), new ConsumptionWindow(program_, part, area_), icon,
            {PixelsCovering(small ? kSmallConsumptionWidth : kConsumptionMinimumWidth),
             PixelsCovering(small ? kSmallConsumptionHeight : kConsumptionMinimumHeight)});
}

void MainWindow::AddFrame(ChildFrame* frame, const char* icon, Qt::WindowFlags flags) {
  frame->setWindowIcon(IconNamed(icon));
  connect(frame, &ChildFrame::TabbedOut, this, [this](bool next) { focusNextPrevChild(next); });
  area_->addSubWindow(frame, flags);
}

void MainWindow::OpenChild(WindowId id, QWidget* content, const char* icon, QSize minimum) {
  WindowRecord& record = *program_.windows.RecordOf(id);
  record = Fitted(record, Size());
  auto* const frame = new ChildFrame(content, &record, PlaceOf(id));
  AddFrame(frame, icon);
  if (!minimum.isNull()) frame->setMinimumSize(minimum);
  frame->MoveToRecord();
  frame->show();
}

}  // namespace kelvora
