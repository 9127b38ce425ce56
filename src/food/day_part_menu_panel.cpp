#include "food/day_part_menu_panel.h"

#include "language/own_texts.h"
#include "platform/qt/key_sequence.h"
#include "platform/qt/look.h"

namespace kelvora {
namespace {

struct DayPartItem {
  DayPart part;
  const char* name;  // of the icon too
  OwnText caption;
  BoundKey key;
};
constexpr std::array kItems = {
    DayPartItem{DayPart::morning, "morning", OwnText::add_to_morning, BoundKey::add_to_morning},
    DayPartItem{DayPart::afternoon, "afternoon", OwnText::add_to_afternoon,
                BoundKey::add_to_afternoon},
    DayPartItem{DayPart::evening, "evening", OwnText::add_to_evening, BoundKey::add_to_evening},
};

}  // namespace

DayPartActions AddDayPartActions(QMenu* menu, std::function<void(DayPart)> chosen) {
  DayPartActions actions{};
  for (std::size_t i = 0; i < kItems.size(); ++i) {
    QAction* const action = menu->addAction(IconNamed(kItems[i].name), QString());
    action->setObjectName(menu->objectName() + '_' + QLatin1String(kItems[i].name));
    // Shown beside the entry; the food lists window has the keys.
    action->setShortcut(SequenceOf(kItems[i].key));
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, menu,
                     [chosen, part = kItems[i].part] { chosen(part); });
    actions[i] = action;
  }
  return actions;
}

void SetDayPartTexts(const DayPartActions& actions, const TextTables& texts) {
  for (std::size_t i = 0; i < kItems.size(); ++i) {
    SetActionTexts(actions[i], OwnTextOf(texts, kItems[i].caption), {});
  }
}

}  // namespace kelvora
