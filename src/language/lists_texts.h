// Names of the texts in taal_lists: the food lists window.
// The texts themselves, English and Dutch, stand in lists_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::lists_text {

inline constexpr TextId kTitle{TextTable::taal_lists, 0};
inline constexpr TextId kButtonStandard{TextTable::taal_lists, 1};
inline constexpr TextId kButtonOwn{TextTable::taal_lists, 2};
inline constexpr TextId kButtonFavourites{TextTable::taal_lists, 3};
inline constexpr TextId kButtonInternet{TextTable::taal_lists, 4};
inline constexpr TextId kColumnNumber{TextTable::taal_lists, 5};
inline constexpr TextId kColumnFood{TextTable::taal_lists, 6};
inline constexpr TextId kColumnUnit{TextTable::taal_lists, 7};
inline constexpr TextId kColumnGram{TextTable::taal_lists, 8};
inline constexpr TextId kColumnOz{TextTable::taal_lists, 9};
inline constexpr TextId kColumnKj{TextTable::taal_lists, 10};
inline constexpr TextId kColumnKcal{TextTable::taal_lists, 11};
inline constexpr TextId kColumnFatU{TextTable::taal_lists, 12};
inline constexpr TextId kColumnFatS{TextTable::taal_lists, 13};
inline constexpr TextId kColumnCarbs{TextTable::taal_lists, 14};
inline constexpr TextId kColumnProtein{TextTable::taal_lists, 15};
inline constexpr TextId kSelectCategory{TextTable::taal_lists, 16};
inline constexpr TextId kSearchHint{TextTable::taal_lists, 17};
inline constexpr TextId kStatusStandard{TextTable::taal_lists, 18};
inline constexpr TextId kStatusOwn{TextTable::taal_lists, 19};
inline constexpr TextId kStatusFavourites{TextTable::taal_lists, 20};
inline constexpr TextId kStatusInternet{TextTable::taal_lists, 21};
inline constexpr TextId kAvailable{TextTable::taal_lists, 22};
inline constexpr TextId kResultsFound{TextTable::taal_lists, 23};
inline constexpr TextId kTooManyDragged{TextTable::taal_lists, 24};
inline constexpr TextId kSelectAgain{TextTable::taal_lists, 25};
inline constexpr TextId kCopyQuestion{TextTable::taal_lists, 26};
inline constexpr TextId kCopySure{TextTable::taal_lists, 27};

}  // namespace kelvora::lists_text
