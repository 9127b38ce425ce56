#include "core/views.h"

namespace kelvora {

WindowView* OpenWindows::Find(WindowId id) const {
  switch (id) {
    case WindowId::lists:
      return lists;
    case WindowId::day_settings:
      return day_settings;
    case WindowId::browser:
      return browser;
    case WindowId::morning:
      return consumption[0];
    case WindowId::afternoon:
      return consumption[1];
    case WindowId::evening:
      return consumption[2];
    case WindowId::day_summary:
      return day_summary;
    case WindowId::multi_day:
      return multi_day;
    case WindowId::diary:
      return diary;
    case WindowId::comparison:
      return comparison;
    case WindowId::food_details:
      return food_details;
    case WindowId::wizard:
      return wizard;
  }
  return nullptr;
}

std::vector<WindowView*> OpenWindows::AllOpen() const {
  std::vector<WindowView*> open;
  for (std::size_t i = 0; i < kWindowCount; ++i) open.push_back(Find(static_cast<WindowId>(i)));
  open.insert(open.end(),
              {properties, export_html, take_over, backup, restore, new_food, food_import, update});
  std::erase(open, nullptr);
  return open;
}

void OpenWindows::FollowSettings() const {
  for (WindowView* const window : AllOpen()) window->FollowSettings();
  if (core != nullptr) core->Set_toolbar_teksten();
}

WindowRecord* OpenWindows::RecordOf(WindowId id) {
  switch (id) {
    case WindowId::lists:
      return &geometry.lists;
    case WindowId::day_summary:
      return &geometry.day_summary;
    case WindowId::multi_day:
      return &geometry.multi_day;
    case WindowId::diary:
      return &geometry.diary;
    case WindowId::morning:
      return &geometry.morning;
    case WindowId::afternoon:
      return &geometry.afternoon;
    case WindowId::evening:
      return &geometry.evening;
    case WindowId::comparison:
      return &geometry.comparison;
    case WindowId::wizard:
    case WindowId::day_settings:
    case WindowId::browser:
    case WindowId::food_details:
      break;
  }
  return nullptr;
}

}  // namespace kelvora
