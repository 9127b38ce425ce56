#include "language/built_in_texts.h"

#include "language/own_texts.h"

namespace kelvora {

std::span<const std::span<const TextRow>> BuiltInTexts() {
  static const std::array kTables = {
      SectionTextRows(),    PropertiesTextRows(),  MainTextRows(),        NewFoodTextRows(),
      ExportFormTextRows(), PopupTextRows(),       DaySettingsTextRows(), BrowseTextRows(),
      DaySummaryTextRows(), FoodDetailsTextRows(), UpdateTextRows(),      ListsTextRows(),
      DiaryTextRows(),      TrendTextRows(),       CompareTextRows(),     WizardTextRows(),
      EveningTextRows(),    AfternoonTextRows(),   MorningTextRows(),     CommonTextRows(),
      PrintTextRows(),      ExportTextRows(),      MessageTextRows(),     FileInfoTextRows(),
  };
  return kTables;
}

void Make_Taal_English(TextTables& texts) {
  for (const auto& table : BuiltInTexts()) {
    for (const TextRow& row : table) texts[row.english_id] = row.english;
  }
  texts.own = OwnTextsIn(Language::english);
}

void Make_Taal_Dutch(TextTables& texts) {
  for (const auto& table : BuiltInTexts()) {
    for (const TextRow& row : table) texts[row.id] = row.dutch;
  }
  texts.own = OwnTextsIn(Language::dutch);
}

}  // namespace kelvora
