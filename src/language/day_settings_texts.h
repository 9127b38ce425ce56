// Names of the texts in taal_day_settings: the new day and user dialog, and three of the export
// dialog.
// The texts themselves, English and Dutch, stand in day_settings_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::day_settings_text {

inline constexpr TextId kTitleNewDay{TextTable::taal_day_settings, 0};
inline constexpr TextId kTitleDaySettings{TextTable::taal_day_settings, 1};
inline constexpr TextId kInfoNoUsers{TextTable::taal_day_settings, 2};
inline constexpr TextId kInfoOneUser{TextTable::taal_day_settings, 3};
inline constexpr TextId kInfoSeveralUsers{TextTable::taal_day_settings, 4};
inline constexpr TextId kInfoDaySettings{TextTable::taal_day_settings, 5};
inline constexpr TextId kTabUserAndDay{TextTable::taal_day_settings, 6};
inline constexpr TextId kTabAdditional{TextTable::taal_day_settings, 7};
inline constexpr TextId kTabNutritions{TextTable::taal_day_settings, 8};
inline constexpr TextId kUsers{TextTable::taal_day_settings, 9};
inline constexpr TextId kTipNewUser{TextTable::taal_day_settings, 10};
inline constexpr TextId kTipDeleteUser{TextTable::taal_day_settings, 11};
inline constexpr TextId kFramePerson{TextTable::taal_day_settings, 12};
inline constexpr TextId kName{TextTable::taal_day_settings, 13};
inline constexpr TextId kGender{TextTable::taal_day_settings, 14};
inline constexpr TextId kMale{TextTable::taal_day_settings, 15};
inline constexpr TextId kFemale{TextTable::taal_day_settings, 16};
inline constexpr TextId kAge{TextTable::taal_day_settings, 17};
inline constexpr TextId kHeight{TextTable::taal_day_settings, 18};
inline constexpr TextId kMeter{TextTable::taal_day_settings, 19};
inline constexpr TextId kFeetInch{TextTable::taal_day_settings, 20};
inline constexpr TextId kHeightFeet{TextTable::taal_day_settings, 21};
inline constexpr TextId kHeightInch{TextTable::taal_day_settings, 22};
inline constexpr TextId kGoalWeight{TextTable::taal_day_settings, 23};
inline constexpr TextId kKilogram{TextTable::taal_day_settings, 24};
inline constexpr TextId kPounds{TextTable::taal_day_settings, 25};
inline constexpr TextId kStones{TextTable::taal_day_settings, 26};
inline constexpr TextId kFrameDay{TextTable::taal_day_settings, 27};
inline constexpr TextId kDate{TextTable::taal_day_settings, 28};
inline constexpr TextId kDateDay{TextTable::taal_day_settings, 29};
inline constexpr TextId kDateMonth{TextTable::taal_day_settings, 30};
inline constexpr TextId kDateYear{TextTable::taal_day_settings, 31};
inline constexpr TextId kWeekday{TextTable::taal_day_settings, 32};
inline constexpr TextId kWeight{TextTable::taal_day_settings, 33};
inline constexpr TextId kFrameAddress{TextTable::taal_day_settings, 34};
inline constexpr TextId kAddress1{TextTable::taal_day_settings, 35};
inline constexpr TextId kAddress2{TextTable::taal_day_settings, 36};
inline constexpr TextId kCity{TextTable::taal_day_settings, 37};
inline constexpr TextId kPostcode{TextTable::taal_day_settings, 38};
inline constexpr TextId kState{TextTable::taal_day_settings, 39};
inline constexpr TextId kCountry{TextTable::taal_day_settings, 40};
inline constexpr TextId kReference{TextTable::taal_day_settings, 41};
inline constexpr TextId kRemarks{TextTable::taal_day_settings, 42};
inline constexpr TextId kPriority{TextTable::taal_day_settings, 43};
inline constexpr TextId kPriorityKj{TextTable::taal_day_settings, 44};
inline constexpr TextId kPriorityKcal{TextTable::taal_day_settings, 45};
inline constexpr TextId kPriorityFatU{TextTable::taal_day_settings, 46};
inline constexpr TextId kPriorityFatS{TextTable::taal_day_settings, 47};
inline constexpr TextId kPriorityCarbohydrates{TextTable::taal_day_settings, 48};
inline constexpr TextId kPriorityProteins{TextTable::taal_day_settings, 49};
inline constexpr TextId kTargets{TextTable::taal_day_settings, 50};
inline constexpr TextId kTargetEnergy{TextTable::taal_day_settings, 51};
inline constexpr TextId kTargetFatU{TextTable::taal_day_settings, 52};
inline constexpr TextId kTargetFatS{TextTable::taal_day_settings, 53};
inline constexpr TextId kTargetSodium{TextTable::taal_day_settings, 54};
inline constexpr TextId kTargetProteins{TextTable::taal_day_settings, 55};
inline constexpr TextId kTargetCarbohydrates{TextTable::taal_day_settings, 56};
inline constexpr TextId kTargetUnitKj{TextTable::taal_day_settings, 57};
inline constexpr TextId kTargetUnitKcal{TextTable::taal_day_settings, 58};
inline constexpr TextId kTargetUnitGram{TextTable::taal_day_settings, 59};
inline constexpr TextId kResetValues{TextTable::taal_day_settings, 60};
inline constexpr TextId kAgeGroup13{TextTable::taal_day_settings, 61};
inline constexpr TextId kAgeGroup16{TextTable::taal_day_settings, 62};
inline constexpr TextId kAgeGroup19{TextTable::taal_day_settings, 63};
inline constexpr TextId kAgeGroup22{TextTable::taal_day_settings, 64};
inline constexpr TextId kAgeGroup50{TextTable::taal_day_settings, 65};
inline constexpr TextId kAgeGroup65{TextTable::taal_day_settings, 66};
inline constexpr TextId kApplyAutomatically{TextTable::taal_day_settings, 67};
inline constexpr TextId kStart{TextTable::taal_day_settings, 68};
inline constexpr TextId kSave{TextTable::taal_day_settings, 69};
inline constexpr TextId kCancel{TextTable::taal_day_settings, 70};
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
inline constexpr TextId kDeleteTitle{TextTable::taal_day_settings, 86};
inline constexpr TextId kDeleteTitleEnd{TextTable::taal_day_settings, 87};
inline constexpr TextId kDeleteGoing{TextTable::taal_day_settings, 88};
inline constexpr TextId kDeleteSure{TextTable::taal_day_settings, 89};
inline constexpr TextId kDeleteFiles{TextTable::taal_day_settings, 90};
inline constexpr TextId kTipUsers{TextTable::taal_day_settings, 95};
inline constexpr TextId kTipPriority{TextTable::taal_day_settings, 96};
inline constexpr TextId kTipTargets{TextTable::taal_day_settings, 97};
inline constexpr TextId kTipReset{TextTable::taal_day_settings, 98};
inline constexpr TextId kTipApply{TextTable::taal_day_settings, 99};
inline constexpr TextId kExportAllDays{TextTable::taal_day_settings, 108};
inline constexpr TextId kExportOwnSelection{TextTable::taal_day_settings, 109};
inline constexpr TextId kExportClose{TextTable::taal_day_settings, 110};

}  // namespace kelvora::day_settings_text
