// Names of the texts in taal_main: the main window.
// The texts themselves, English and Dutch, stand in main_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::main_text {

inline constexpr TextId kFile{TextTable::taal_main, 0};
inline constexpr TextId kWizard{TextTable::taal_main, 1};
inline constexpr TextId kNewFile{TextTable::taal_main, 2};
inline constexpr TextId kOpenFile{TextTable::taal_main, 3};
inline constexpr TextId kSaveFile{TextTable::taal_main, 4};
inline constexpr TextId kExportTo{TextTable::taal_main, 5};
inline constexpr TextId kExportHtml{TextTable::taal_main, 6};
inline constexpr TextId kExportXml{TextTable::taal_main, 7};
inline constexpr TextId kExportDta{TextTable::taal_main, 8};
inline constexpr TextId kKelvoraSettings{TextTable::taal_main, 9};
inline constexpr TextId kProfileSettings{TextTable::taal_main, 10};
inline constexpr TextId kPrint{TextTable::taal_main, 11};
inline constexpr TextId kPrintDay{TextTable::taal_main, 12};
inline constexpr TextId kPrintTravelForm{TextTable::taal_main, 13};
inline constexpr TextId kClose{TextTable::taal_main, 14};
inline constexpr TextId kConsumptionScreens{TextTable::taal_main, 15};
inline constexpr TextId kMorningConsumptions{TextTable::taal_main, 16};
inline constexpr TextId kAfternoonConsumptions{TextTable::taal_main, 17};
inline constexpr TextId kEveningConsumptions{TextTable::taal_main, 18};
inline constexpr TextId kTodaysDiary{TextTable::taal_main, 19};
inline constexpr TextId kOptions{TextTable::taal_main, 20};
inline constexpr TextId kFoodItemDetails{TextTable::taal_main, 21};
inline constexpr TextId kAddFoodItem{TextTable::taal_main, 22};
inline constexpr TextId kRemoveFoodItem{TextTable::taal_main, 23};
inline constexpr TextId kAddToFavourites{TextTable::taal_main, 24};
inline constexpr TextId kStatistics{TextTable::taal_main, 25};
inline constexpr TextId kSummaryOfDay{TextTable::taal_main, 26};
inline constexpr TextId kTrend{TextTable::taal_main, 27};
inline constexpr TextId kTables{TextTable::taal_main, 28};
inline constexpr TextId kFoodItems{TextTable::taal_main, 29};
inline constexpr TextId kExtra{TextTable::taal_main, 30};
inline constexpr TextId kFoodComparison{TextTable::taal_main, 31};
inline constexpr TextId kServiceName{TextTable::taal_main, 32};
inline constexpr TextId kDiagnose{TextTable::taal_main, 33};
inline constexpr TextId kInformation{TextTable::taal_main, 34};
inline constexpr TextId kHelpIndex{TextTable::taal_main, 35};
inline constexpr TextId kAbout{TextTable::taal_main, 36};
inline constexpr TextId kWebsite{TextTable::taal_main, 37};
inline constexpr TextId kInternetUpdates{TextTable::taal_main, 38};
inline constexpr TextId kCaptionNew{TextTable::taal_main, 39};
inline constexpr TextId kCaptionOpen{TextTable::taal_main, 40};
inline constexpr TextId kCaptionSave{TextTable::taal_main, 41};
inline constexpr TextId kCaptionPrint{TextTable::taal_main, 42};
inline constexpr TextId kCaptionProfile{TextTable::taal_main, 43};
inline constexpr TextId kCaptionFoods{TextTable::taal_main, 44};
inline constexpr TextId kCaptionConsumptions{TextTable::taal_main, 45};
inline constexpr TextId kCaptionDiary{TextTable::taal_main, 46};
inline constexpr TextId kCaptionSummary{TextTable::taal_main, 47};
inline constexpr TextId kCaptionTrend{TextTable::taal_main, 48};
inline constexpr TextId kCaptionReport{TextTable::taal_main, 49};
inline constexpr TextId kCaptionCompare{TextTable::taal_main, 50};
inline constexpr TextId kCaptionSettings{TextTable::taal_main, 51};
inline constexpr TextId kCaptionBrelux{TextTable::taal_main, 52};
inline constexpr TextId kCaptionUpdate{TextTable::taal_main, 53};
inline constexpr TextId kCaptionHelp{TextTable::taal_main, 54};
inline constexpr TextId kTipNew{TextTable::taal_main, 55};
inline constexpr TextId kTipOpen{TextTable::taal_main, 56};
inline constexpr TextId kTipSave{TextTable::taal_main, 57};
inline constexpr TextId kTipPrint{TextTable::taal_main, 58};
inline constexpr TextId kTipProfile{TextTable::taal_main, 59};
inline constexpr TextId kTipFoods{TextTable::taal_main, 60};
inline constexpr TextId kTipConsumptions{TextTable::taal_main, 61};
inline constexpr TextId kTipDiary{TextTable::taal_main, 62};
inline constexpr TextId kTipSummary{TextTable::taal_main, 63};
inline constexpr TextId kTipTrend{TextTable::taal_main, 64};
inline constexpr TextId kTipReport{TextTable::taal_main, 65};
inline constexpr TextId kTipCompare{TextTable::taal_main, 66};
inline constexpr TextId kTipSettings{TextTable::taal_main, 67};
inline constexpr TextId kTipBrelux{TextTable::taal_main, 68};
inline constexpr TextId kTipUpdate{TextTable::taal_main, 69};
inline constexpr TextId kTipHelp{TextTable::taal_main, 70};
inline constexpr TextId kPrintDayDropDown{TextTable::taal_main, 71};
inline constexpr TextId kPrintTravelDropDown{TextTable::taal_main, 72};
inline constexpr TextId kSelectPrintOption{TextTable::taal_main, 73};
inline constexpr TextId kSeveralOptions{TextTable::taal_main, 74};
inline constexpr TextId kQuickDefault{TextTable::taal_main, 75};
inline constexpr TextId kQuickAll{TextTable::taal_main, 76};
inline constexpr TextId kQuickReset{TextTable::taal_main, 77};
inline constexpr TextId kTipQuickDefault{TextTable::taal_main, 78};
inline constexpr TextId kTipQuickAll{TextTable::taal_main, 79};
inline constexpr TextId kTipBrowseDays{TextTable::taal_main, 80};
inline constexpr TextId kTipResetScreens{TextTable::taal_main, 81};
inline constexpr TextId kCurrentUser{TextTable::taal_main, 82};
inline constexpr TextId kNoFileOpen{TextTable::taal_main, 83};
inline constexpr TextId kMakeOrOpenFile{TextTable::taal_main, 84};
inline constexpr TextId kRepairQuestion1{TextTable::taal_main, 89};
inline constexpr TextId kRepairQuestion2{TextTable::taal_main, 90};
inline constexpr TextId kRepairQuestion3{TextTable::taal_main, 91};
inline constexpr TextId kRepaired{TextTable::taal_main, 92};
inline constexpr TextId kRepairLanguageFiles{TextTable::taal_main, 93};
inline constexpr TextId kExitTitle{TextTable::taal_main, 94};
inline constexpr TextId kExitNotSaved{TextTable::taal_main, 95};
inline constexpr TextId kExitSure{TextTable::taal_main, 96};
inline constexpr TextId kNewFileGoing{TextTable::taal_main, 97};
inline constexpr TextId kNewFileLost{TextTable::taal_main, 98};
inline constexpr TextId kNewFileSure{TextTable::taal_main, 99};

}  // namespace kelvora::main_text
