// Names of the texts in taal_browse: the window that browses users and days.
// The texts themselves, English and Dutch, stand in browse_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::browse_text {

inline constexpr TextId kTitle{TextTable::taal_browse, 0};
inline constexpr TextId kUsers{TextTable::taal_browse, 1};
inline constexpr TextId kDays{TextTable::taal_browse, 2};
inline constexpr TextId kTipDays{TextTable::taal_browse, 3};
inline constexpr TextId kColumnNumber{TextTable::taal_browse, 4};
inline constexpr TextId kColumnPath{TextTable::taal_browse, 5};
inline constexpr TextId kColumnFile{TextTable::taal_browse, 6};
inline constexpr TextId kColumnDate{TextTable::taal_browse, 7};
inline constexpr TextId kColumnDay{TextTable::taal_browse, 8};
inline constexpr TextId kColumnWeight{TextTable::taal_browse, 9};
inline constexpr TextId kColumnBmi{TextTable::taal_browse, 10};
inline constexpr TextId kColumnKj{TextTable::taal_browse, 11};
inline constexpr TextId kColumnKcal{TextTable::taal_browse, 12};
inline constexpr TextId kColumnFatU{TextTable::taal_browse, 13};
inline constexpr TextId kColumnFatS{TextTable::taal_browse, 14};
inline constexpr TextId kColumnCarbs{TextTable::taal_browse, 15};
inline constexpr TextId kColumnProtein{TextTable::taal_browse, 16};
inline constexpr TextId kProfileOf{TextTable::taal_browse, 19};
inline constexpr TextId kReference{TextTable::taal_browse, 20};
inline constexpr TextId kLastWeight{TextTable::taal_browse, 21};
inline constexpr TextId kGoalWeight{TextTable::taal_browse, 22};
inline constexpr TextId kHeight{TextTable::taal_browse, 23};
inline constexpr TextId kGender{TextTable::taal_browse, 24};
inline constexpr TextId kAge{TextTable::taal_browse, 25};
inline constexpr TextId kUnitKilogram{TextTable::taal_browse, 26};
inline constexpr TextId kUnitPounds{TextTable::taal_browse, 27};
inline constexpr TextId kUnitStones{TextTable::taal_browse, 28};
inline constexpr TextId kUnitMeter{TextTable::taal_browse, 29};
inline constexpr TextId kShowProfile{TextTable::taal_browse, 32};
inline constexpr TextId kOpen{TextTable::taal_browse, 33};
inline constexpr TextId kCancel{TextTable::taal_browse, 34};
inline constexpr TextId kMenuOptions{TextTable::taal_browse, 35};
inline constexpr TextId kMenuOpenDay{TextTable::taal_browse, 36};
inline constexpr TextId kMenuDeleteDay{TextTable::taal_browse, 37};
inline constexpr TextId kSwitchTitle{TextTable::taal_browse, 40};
inline constexpr TextId kSwitchGoing{TextTable::taal_browse, 41};
inline constexpr TextId kSwitchLost{TextTable::taal_browse, 42};
inline constexpr TextId kSwitchSure{TextTable::taal_browse, 43};
inline constexpr TextId kDeleteTitle{TextTable::taal_browse, 44};
inline constexpr TextId kDeleteSure{TextTable::taal_browse, 45};
inline constexpr TextId kDeleteSureEnd{TextTable::taal_browse, 46};
inline constexpr TextId kDeletePressYes{TextTable::taal_browse, 47};
inline constexpr TextId kDeletePressNo{TextTable::taal_browse, 48};

}  // namespace kelvora::browse_text
