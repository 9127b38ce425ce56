// Names of the texts in taal_sections: the titles of the tables, for a reader of the file only.
// The texts themselves, English and Dutch, stand in section_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::section_text {

inline constexpr TextId kProperties{TextTable::taal_sections, 1};
inline constexpr TextId kMainScreen{TextTable::taal_sections, 2};
inline constexpr TextId kNewFood{TextTable::taal_sections, 3};
inline constexpr TextId kExportForm{TextTable::taal_sections, 4};
inline constexpr TextId kPopup{TextTable::taal_sections, 5};
inline constexpr TextId kDaySettings{TextTable::taal_sections, 6};
inline constexpr TextId kBrowse{TextTable::taal_sections, 7};
inline constexpr TextId kDaySummary{TextTable::taal_sections, 8};
inline constexpr TextId kFoodDetails{TextTable::taal_sections, 9};
inline constexpr TextId kUpdate{TextTable::taal_sections, 10};
inline constexpr TextId kLists{TextTable::taal_sections, 11};
inline constexpr TextId kDiary{TextTable::taal_sections, 12};
inline constexpr TextId kTrend{TextTable::taal_sections, 13};
inline constexpr TextId kCompare{TextTable::taal_sections, 14};
inline constexpr TextId kWizard{TextTable::taal_sections, 15};
inline constexpr TextId kEvening{TextTable::taal_sections, 16};
inline constexpr TextId kAfternoon{TextTable::taal_sections, 17};
inline constexpr TextId kMorning{TextTable::taal_sections, 18};
inline constexpr TextId kCommon{TextTable::taal_sections, 19};
inline constexpr TextId kPrint{TextTable::taal_sections, 20};
inline constexpr TextId kExport{TextTable::taal_sections, 21};
inline constexpr TextId kMessages{TextTable::taal_sections, 23};
inline constexpr TextId kEmpty{TextTable::taal_sections, 24};

}  // namespace kelvora::section_text
