// Names of the texts in taal_export: the HTML and DTA export.
// The texts themselves, English and Dutch, stand in export_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::export_text {

inline constexpr TextId kIndexDate{TextTable::taal_export, 0};
inline constexpr TextId kIndexDay{TextTable::taal_export, 1};
inline constexpr TextId kIndexWeight{TextTable::taal_export, 2};
inline constexpr TextId kIndexGram{TextTable::taal_export, 3};
inline constexpr TextId kIndexKj{TextTable::taal_export, 4};
inline constexpr TextId kIndexKcal{TextTable::taal_export, 5};
inline constexpr TextId kIndexFatU{TextTable::taal_export, 6};
inline constexpr TextId kIndexFatS{TextTable::taal_export, 7};
inline constexpr TextId kIndexProtein{TextTable::taal_export, 8};
inline constexpr TextId kIndexSodium{TextTable::taal_export, 9};
inline constexpr TextId kIndexCarbs{TextTable::taal_export, 10};
inline constexpr TextId kDayDate{TextTable::taal_export, 11};
inline constexpr TextId kBackToIndex{TextTable::taal_export, 12};
inline constexpr TextId kKilogram{TextTable::taal_export, 13};
inline constexpr TextId kItemFood{TextTable::taal_export, 14};
inline constexpr TextId kItemUnit{TextTable::taal_export, 15};
inline constexpr TextId kItemGram{TextTable::taal_export, 16};
inline constexpr TextId kItemKj{TextTable::taal_export, 17};
inline constexpr TextId kItemKcal{TextTable::taal_export, 18};
inline constexpr TextId kItemFatU{TextTable::taal_export, 19};
inline constexpr TextId kItemFatS{TextTable::taal_export, 20};
inline constexpr TextId kItemProtein{TextTable::taal_export, 21};
inline constexpr TextId kItemSodium{TextTable::taal_export, 22};
inline constexpr TextId kItemCarbs{TextTable::taal_export, 23};
inline constexpr TextId kTotals{TextTable::taal_export, 24};
inline constexpr TextId kPageCreatedOn{TextTable::taal_export, 25};
inline constexpr TextId kFooterWith{TextTable::taal_export, 26};
inline constexpr TextId kFooterProduct{TextTable::taal_export, 27};
inline constexpr TextId kFooterBy{TextTable::taal_export, 28};
inline constexpr TextId kPageTitle{TextTable::taal_export, 29};
inline constexpr TextId kTitleDaysFrom{TextTable::taal_export, 30};
inline constexpr TextId kTitleTill{TextTable::taal_export, 31};
inline constexpr TextId kReportTitle{TextTable::taal_export, 32};
inline constexpr TextId kUserName{TextTable::taal_export, 33};
inline constexpr TextId kUserGender{TextTable::taal_export, 34};
inline constexpr TextId kUserAddress1{TextTable::taal_export, 35};
inline constexpr TextId kUserHeight{TextTable::taal_export, 36};
inline constexpr TextId kUserCity{TextTable::taal_export, 37};
inline constexpr TextId kUserAge{TextTable::taal_export, 38};
inline constexpr TextId kUserPostcode{TextTable::taal_export, 39};
inline constexpr TextId kReportContents{TextTable::taal_export, 40};
inline constexpr TextId kReportOf{TextTable::taal_export, 41};
inline constexpr TextId kReportDays{TextTable::taal_export, 42};
inline constexpr TextId kFooterCreatedOn{TextTable::taal_export, 43};
inline constexpr TextId kPounds{TextTable::taal_export, 44};
inline constexpr TextId kMeter{TextTable::taal_export, 45};
inline constexpr TextId kFeetInch{TextTable::taal_export, 46};
inline constexpr TextId kUserAddress2{TextTable::taal_export, 47};
inline constexpr TextId kUserGoalWeight{TextTable::taal_export, 48};
inline constexpr TextId kUserLastWeight{TextTable::taal_export, 49};
inline constexpr TextId kUserState{TextTable::taal_export, 50};
inline constexpr TextId kUserCountry{TextTable::taal_export, 51};
inline constexpr TextId kUserReference{TextTable::taal_export, 52};
inline constexpr TextId kStones{TextTable::taal_export, 53};
inline constexpr TextId kIndexOz{TextTable::taal_export, 54};
inline constexpr TextId kItemOz{TextTable::taal_export, 55};

}  // namespace kelvora::export_text
