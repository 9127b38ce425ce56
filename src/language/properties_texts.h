// Names of the texts in taal_properties: the settings dialog.
// The texts themselves, English and Dutch, stand in properties_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::properties_text {

inline constexpr TextId kTitle{TextTable::taal_properties, 0};
inline constexpr TextId kInfo{TextTable::taal_properties, 1};
inline constexpr TextId kPages{TextTable::taal_properties, 2};
inline constexpr TextId kTabGeneral{TextTable::taal_properties, 3};
inline constexpr TextId kTabDisplay{TextTable::taal_properties, 4};
inline constexpr TextId kTabInternet{TextTable::taal_properties, 5};
inline constexpr TextId kTipTabGeneral{TextTable::taal_properties, 6};
inline constexpr TextId kTipTabDisplay{TextTable::taal_properties, 7};
inline constexpr TextId kTipTabInternet{TextTable::taal_properties, 8};
inline constexpr TextId kGroupStartup{TextTable::taal_properties, 9};
inline constexpr TextId kShowWizard{TextTable::taal_properties, 10};
inline constexpr TextId kTipShowWizard{TextTable::taal_properties, 11};
inline constexpr TextId kShowProfile{TextTable::taal_properties, 12};
inline constexpr TextId kTipShowProfile{TextTable::taal_properties, 13};
inline constexpr TextId kGroupLanguageAndPrinter{TextTable::taal_properties, 14};
inline constexpr TextId kSelectLanguage{TextTable::taal_properties, 15};
inline constexpr TextId kTipSelectLanguage{TextTable::taal_properties, 16};
inline constexpr TextId kResetLanguageFiles{TextTable::taal_properties, 17};
inline constexpr TextId kTipResetLanguageFiles{TextTable::taal_properties, 18};
inline constexpr TextId kSelectPrinter{TextTable::taal_properties, 19};
inline constexpr TextId kTipSelectPrinter{TextTable::taal_properties, 20};
inline constexpr TextId kNoPrinter{TextTable::taal_properties, 21};
inline constexpr TextId kGroupFolder{TextTable::taal_properties, 22};
inline constexpr TextId kOtherFolder{TextTable::taal_properties, 23};
inline constexpr TextId kTipOtherFolder{TextTable::taal_properties, 24};
inline constexpr TextId kFolder{TextTable::taal_properties, 25};
inline constexpr TextId kBrowse{TextTable::taal_properties, 26};
inline constexpr TextId kFolderLabel{TextTable::taal_properties, 27};
inline constexpr TextId kFolderNote{TextTable::taal_properties, 28};
inline constexpr TextId kGroupDisplay{TextTable::taal_properties, 30};
inline constexpr TextId kApplyProfile{TextTable::taal_properties, 31};
inline constexpr TextId kTipApplyProfile{TextTable::taal_properties, 32};
inline constexpr TextId kCloseExport{TextTable::taal_properties, 33};
inline constexpr TextId kTipCloseExport{TextTable::taal_properties, 34};
inline constexpr TextId kSummaryBelowList{TextTable::taal_properties, 35};
inline constexpr TextId kTipSummaryBelowList{TextTable::taal_properties, 36};
inline constexpr TextId kHelpButtons{TextTable::taal_properties, 37};
inline constexpr TextId kTipHelpButtons{TextTable::taal_properties, 38};
inline constexpr TextId kGroupSystem{TextTable::taal_properties, 39};
inline constexpr TextId kMetric{TextTable::taal_properties, 40};
inline constexpr TextId kImperialUs{TextTable::taal_properties, 41};
inline constexpr TextId kImperialUk{TextTable::taal_properties, 42};
inline constexpr TextId kSystemNote{TextTable::taal_properties, 43};
inline constexpr TextId kTipMetric{TextTable::taal_properties, 44};
inline constexpr TextId kTipImperialUs{TextTable::taal_properties, 45};
inline constexpr TextId kTipImperialUk{TextTable::taal_properties, 46};
inline constexpr TextId kGroupFoodWeight{TextTable::taal_properties, 47};
inline constexpr TextId kGrams{TextTable::taal_properties, 48};
inline constexpr TextId kOunces{TextTable::taal_properties, 49};
inline constexpr TextId kTipGrams{TextTable::taal_properties, 50};
inline constexpr TextId kTipOunces{TextTable::taal_properties, 51};
inline constexpr TextId kGroupInternet{TextTable::taal_properties, 53};
inline constexpr TextId kUseInternet{TextTable::taal_properties, 54};
inline constexpr TextId kTipUseInternet{TextTable::taal_properties, 55};
inline constexpr TextId kAddToInternet{TextTable::taal_properties, 56};
inline constexpr TextId kTipAddToInternet{TextTable::taal_properties, 57};
inline constexpr TextId kAddToInternetNote{TextTable::taal_properties, 58};
inline constexpr TextId kInternetNote{TextTable::taal_properties, 59};
inline constexpr TextId kGroupServer{TextTable::taal_properties, 60};
inline constexpr TextId kServerEtenlijn{TextTable::taal_properties, 61};
inline constexpr TextId kServerBitewell{TextTable::taal_properties, 62};
inline constexpr TextId kTipServerEtenlijn{TextTable::taal_properties, 63};
inline constexpr TextId kTipServerBitewell{TextTable::taal_properties, 64};
inline constexpr TextId kSave{TextTable::taal_properties, 66};
inline constexpr TextId kTipSave{TextTable::taal_properties, 67};
inline constexpr TextId kCancel{TextTable::taal_properties, 68};
inline constexpr TextId kTipCancel{TextTable::taal_properties, 69};
inline constexpr TextId kBrowsePrompt{TextTable::taal_properties, 70};
inline constexpr TextId kNoLanguage{TextTable::taal_properties, 71};
inline constexpr TextId kNoFolder{TextTable::taal_properties, 72};
inline constexpr TextId kNoFolderAdvice{TextTable::taal_properties, 73};

}  // namespace kelvora::properties_text
