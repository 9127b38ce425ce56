// Names of the texts in taal_common: messages and words of the common routines.
// The texts themselves, English and Dutch, stand in common_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::common_text {

inline constexpr TextId kSeparatorChanged{TextTable::taal_common, 0};
inline constexpr TextId kSeparatorAtStart{TextTable::taal_common, 1};
inline constexpr TextId kCannotContinue{TextTable::taal_common, 2};
inline constexpr TextId kDoNotSave{TextTable::taal_common, 3};
inline constexpr TextId kCloseAndStart{TextTable::taal_common, 4};
inline constexpr TextId kSeparatorIs{TextTable::taal_common, 5};
inline constexpr TextId kSeparatorMustBe{TextTable::taal_common, 6};
inline constexpr TextId kCannotUse{TextTable::taal_common, 7};
inline constexpr TextId kHalfNotDisplayed{TextTable::taal_common, 8};
inline constexpr TextId kHalfNeeded{TextTable::taal_common, 9};
inline constexpr TextId kHalfErrors{TextTable::taal_common, 10};
inline constexpr TextId kHalfClose{TextTable::taal_common, 11};
inline constexpr TextId kResolutionIs{TextTable::taal_common, 12};
inline constexpr TextId kResolutionAdvice{TextTable::taal_common, 13};
inline constexpr TextId kResolutionChange{TextTable::taal_common, 14};
inline constexpr TextId kResolutionWhere{TextTable::taal_common, 15};
inline constexpr TextId kFirstRunNotFound{TextTable::taal_common, 20};
inline constexpr TextId kFirstRunProbably{TextTable::taal_common, 21};
inline constexpr TextId kFirstRunPressOk{TextTable::taal_common, 22};
inline constexpr TextId kOpenFileTitle{TextTable::taal_common, 27};
inline constexpr TextId kOpenFileGoing{TextTable::taal_common, 28};
inline constexpr TextId kOpenFileNotSaved{TextTable::taal_common, 29};
inline constexpr TextId kOpenFileSure{TextTable::taal_common, 30};
inline constexpr TextId kFavouriteExists{TextTable::taal_common, 36};
inline constexpr TextId kFavouriteOnlyOnce{TextTable::taal_common, 37};
inline constexpr TextId kFavouriteAdded{TextTable::taal_common, 38};
inline constexpr TextId kMorningContains{TextTable::taal_common, 45};
inline constexpr TextId kAfternoonContains{TextTable::taal_common, 46};
inline constexpr TextId kEveningContains{TextTable::taal_common, 47};
inline constexpr TextId kUnitKj{TextTable::taal_common, 48};
inline constexpr TextId kUnitKcal{TextTable::taal_common, 49};
inline constexpr TextId kUnitFatU{TextTable::taal_common, 50};
inline constexpr TextId kUnitFatS{TextTable::taal_common, 51};
inline constexpr TextId kUnitCarbohydrates{TextTable::taal_common, 52};
inline constexpr TextId kUnitProteins{TextTable::taal_common, 53};

}  // namespace kelvora::common_text
