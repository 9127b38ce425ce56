// Names of the texts in taal_export_form: the export dialog.
// The texts themselves, English and Dutch, stand in export_form_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::export_form_text {

inline constexpr TextId kTitle{TextTable::taal_export_form, 0};
inline constexpr TextId kInfo{TextTable::taal_export_form, 1};
inline constexpr TextId kFrameFormat{TextTable::taal_export_form, 2};
inline constexpr TextId kFrameSelection{TextTable::taal_export_form, 3};
inline constexpr TextId kFrameOptions{TextTable::taal_export_form, 4};
inline constexpr TextId kGraphs{TextTable::taal_export_form, 5};
inline constexpr TextId kDiary{TextTable::taal_export_form, 6};
inline constexpr TextId kFormatHtml{TextTable::taal_export_form, 7};
inline constexpr TextId kFormatDta{TextTable::taal_export_form, 8};
inline constexpr TextId kExport{TextTable::taal_export_form, 9};
inline constexpr TextId kCancel{TextTable::taal_export_form, 10};
inline constexpr TextId kColumnNumber{TextTable::taal_export_form, 11};
inline constexpr TextId kReadError{TextTable::taal_export_form, 12};
inline constexpr TextId kProfilesDamaged{TextTable::taal_export_form, 13};
inline constexpr TextId kRemoveUsers{TextTable::taal_export_form, 14};
inline constexpr TextId kCollectError{TextTable::taal_export_form, 15};
inline constexpr TextId kContactMaker{TextTable::taal_export_form, 16};
inline constexpr TextId kColumnPath{TextTable::taal_export_form, 17};
inline constexpr TextId kColumnFile{TextTable::taal_export_form, 18};
inline constexpr TextId kColumnDate{TextTable::taal_export_form, 19};
inline constexpr TextId kColumnDay{TextTable::taal_export_form, 20};
inline constexpr TextId kFrameDays{TextTable::taal_export_form, 21};
inline constexpr TextId kColumnWeight{TextTable::taal_export_form, 22};
inline constexpr TextId kFolderPrompt{TextTable::taal_export_form, 26};
inline constexpr TextId kNoDays{TextTable::taal_export_form, 27};
inline constexpr TextId kSelectDays{TextTable::taal_export_form, 28};
inline constexpr TextId kTooManyDays{TextTable::taal_export_form, 29};
inline constexpr TextId kGraphLayout{TextTable::taal_export_form, 30};
inline constexpr TextId kContinueSure{TextTable::taal_export_form, 31};
inline constexpr TextId kTooManyDaysTitle{TextTable::taal_export_form, 32};
inline constexpr TextId kDaysFrom{TextTable::taal_export_form, 33};
inline constexpr TextId kTill{TextTable::taal_export_form, 34};
inline constexpr TextId kGraphWeight{TextTable::taal_export_form, 35};
inline constexpr TextId kGraphKilocalories{TextTable::taal_export_form, 36};
inline constexpr TextId kGraphUnsaturatedFats{TextTable::taal_export_form, 37};
inline constexpr TextId kGraphSaturatedFats{TextTable::taal_export_form, 38};
inline constexpr TextId kGraphProteins{TextTable::taal_export_form, 39};
inline constexpr TextId kGraphCarbohydrates{TextTable::taal_export_form, 40};
inline constexpr TextId kSavedAs{TextTable::taal_export_form, 41};
inline constexpr TextId kSubmitDta{TextTable::taal_export_form, 42};
inline constexpr TextId kFormatXml{TextTable::taal_export_form, 46};
inline constexpr TextId kKilogram{TextTable::taal_export_form, 47};
inline constexpr TextId kPounds{TextTable::taal_export_form, 48};
inline constexpr TextId kStones{TextTable::taal_export_form, 49};

}  // namespace kelvora::export_form_text
