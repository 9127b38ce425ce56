// Names of the texts in taal_day_settings: the new day and user dialog.
// The texts themselves, English and Dutch, stand in day_settings_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::day_settings_text {

inline constexpr TextId kTitleNewDay{TextTable::taal_day_settings, 0};
inline constexpr TextId kInfoNoUsers{TextTable::taal_day_settings, 1};
inline constexpr TextId kInfoOneUser{TextTable::taal_day_settings, 2};
inline constexpr TextId kInfoSeveralUsers{TextTable::taal_day_settings, 3};
inline constexpr TextId kTabUserAndDay{TextTable::taal_day_settings, 4};
inline constexpr TextId kTabAdditional{TextTable::taal_day_settings, 5};
inline constexpr TextId kTabNutritions{TextTable::taal_day_settings, 6};
inline constexpr TextId kUsers{TextTable::taal_day_settings, 7};
inline constexpr TextId kTipNewUser{TextTable::taal_day_settings, 8};
inline constexpr TextId kTipDeleteUser{TextTable::taal_day_settings, 9};
inline constexpr TextId kName{TextTable::taal_day_settings, 10};
inline constexpr TextId kGender{TextTable::taal_day_settings, 11};
inline constexpr TextId kMale{TextTable::taal_day_settings, 12};
inline constexpr TextId kFemale{TextTable::taal_day_settings, 13};
inline constexpr TextId kAge{TextTable::taal_day_settings, 14};
inline constexpr TextId kHeight{TextTable::taal_day_settings, 15};
inline constexpr TextId kMeter{TextTable::taal_day_settings, 16};
inline constexpr TextId kGoalWeight{TextTable::taal_day_settings, 17};
inline constexpr TextId kKilogram{TextTable::taal_day_settings, 18};
inline constexpr TextId kPounds{TextTable::taal_day_settings, 19};
inline constexpr TextId kDate{TextTable::taal_day_settings, 20};
inline constexpr TextId kDateDay{TextTable::taal_day_settings, 21};
inline constexpr TextId kDateMonth{TextTable::taal_day_settings, 22};
inline constexpr TextId kDateYear{TextTable::taal_day_settings, 23};
inline constexpr TextId kWeekday{TextTable::taal_day_settings, 24};
inline constexpr TextId kWeight{TextTable::taal_day_settings, 25};
inline constexpr TextId kStart{TextTable::taal_day_settings, 26};
inline constexpr TextId kCancel{TextTable::taal_day_settings, 27};
inline constexpr TextId kIllegalCharacters{TextTable::taal_day_settings, 71};
inline constexpr TextId kHalfNotAllowed{TextTable::taal_day_settings, 72};
inline constexpr TextId kRemoveCharacters{TextTable::taal_day_settings, 73};
inline constexpr TextId kNoName{TextTable::taal_day_settings, 74};
inline constexpr TextId kEnterName{TextTable::taal_day_settings, 75};
inline constexpr TextId kWrongHeight{TextTable::taal_day_settings, 76};
inline constexpr TextId kEnterHeight{TextTable::taal_day_settings, 77};
inline constexpr TextId kWrongWeight{TextTable::taal_day_settings, 78};
inline constexpr TextId kEnterWeight{TextTable::taal_day_settings, 79};
inline constexpr TextId kNoGender{TextTable::taal_day_settings, 80};
inline constexpr TextId kSelectGender{TextTable::taal_day_settings, 81};
inline constexpr TextId kNoAge{TextTable::taal_day_settings, 82};
inline constexpr TextId kEnterAge{TextTable::taal_day_settings, 83};
inline constexpr TextId kWrongDate{TextTable::taal_day_settings, 84};
inline constexpr TextId kCheckDate{TextTable::taal_day_settings, 85};

}  // namespace kelvora::day_settings_text
