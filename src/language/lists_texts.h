// Names of the texts in taal_lists: the food lists window, its search on the food server included.
// The texts themselves, English and Dutch, stand in lists_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::lists_text {

inline constexpr TextId kTitle{TextTable::taal_lists, 0};
inline constexpr TextId kButtonStandard{TextTable::taal_lists, 1};
inline constexpr TextId kButtonOwn{TextTable::taal_lists, 2};
inline constexpr TextId kButtonFavourites{TextTable::taal_lists, 3};
inline constexpr TextId kButtonInternet{TextTable::taal_lists, 4};
inline constexpr TextId kTipStandard{TextTable::taal_lists, 5};
inline constexpr TextId kTipOwn{TextTable::taal_lists, 6};
inline constexpr TextId kTipFavourites{TextTable::taal_lists, 7};
inline constexpr TextId kTipInternet{TextTable::taal_lists, 8};
inline constexpr TextId kMenuAdd{TextTable::taal_lists, 9};
inline constexpr TextId kMenuCopy{TextTable::taal_lists, 10};
inline constexpr TextId kMenuUseDutch{TextTable::taal_lists, 11};
inline constexpr TextId kMenuUseEnglish{TextTable::taal_lists, 12};
inline constexpr TextId kSelectCategory{TextTable::taal_lists, 14};
inline constexpr TextId kTipCategory{TextTable::taal_lists, 15};
inline constexpr TextId kSearchHint{TextTable::taal_lists, 16};
inline constexpr TextId kTipSearch{TextTable::taal_lists, 17};
inline constexpr TextId kInternetSearchHint{TextTable::taal_lists, 18};
inline constexpr TextId kDutchDatabase{TextTable::taal_lists, 19};
inline constexpr TextId kEnglishDatabase{TextTable::taal_lists, 20};
inline constexpr TextId kAddPanel{TextTable::taal_lists, 21};
inline constexpr TextId kOptionsPanel{TextTable::taal_lists, 22};
inline constexpr TextId kColumnNumber{TextTable::taal_lists, 24};
inline constexpr TextId kColumnFood{TextTable::taal_lists, 25};
inline constexpr TextId kColumnUnit{TextTable::taal_lists, 26};
inline constexpr TextId kColumnGram{TextTable::taal_lists, 27};
inline constexpr TextId kColumnOz{TextTable::taal_lists, 28};
inline constexpr TextId kColumnKj{TextTable::taal_lists, 29};
inline constexpr TextId kColumnKcal{TextTable::taal_lists, 30};
inline constexpr TextId kColumnFatU{TextTable::taal_lists, 31};
inline constexpr TextId kColumnFatS{TextTable::taal_lists, 32};
inline constexpr TextId kColumnCarbs{TextTable::taal_lists, 33};
inline constexpr TextId kColumnProtein{TextTable::taal_lists, 34};
inline constexpr TextId kTipColumnKj{TextTable::taal_lists, 35};
inline constexpr TextId kTipColumnKcal{TextTable::taal_lists, 36};
inline constexpr TextId kTipColumnFatU{TextTable::taal_lists, 37};
inline constexpr TextId kTipColumnFatS{TextTable::taal_lists, 38};
inline constexpr TextId kTipColumnCarbs{TextTable::taal_lists, 39};
inline constexpr TextId kTipColumnProtein{TextTable::taal_lists, 40};
inline constexpr TextId kStatusStandard{TextTable::taal_lists, 42};
inline constexpr TextId kStatusOwn{TextTable::taal_lists, 43};
inline constexpr TextId kStatusFavourites{TextTable::taal_lists, 44};
inline constexpr TextId kStatusInternet{TextTable::taal_lists, 45};
inline constexpr TextId kAvailable{TextTable::taal_lists, 46};
inline constexpr TextId kFoundOnInternet{TextTable::taal_lists, 47};
inline constexpr TextId kResultsFound{TextTable::taal_lists, 48};
inline constexpr TextId kSearching{TextTable::taal_lists, 49};
inline constexpr TextId kProgress{TextTable::taal_lists, 50};
inline constexpr TextId kDropRemoves{TextTable::taal_lists, 52};
inline constexpr TextId kDropAddsFavourite{TextTable::taal_lists, 53};
inline constexpr TextId kTooManyDragged{TextTable::taal_lists, 54};
inline constexpr TextId kSelectAgain{TextTable::taal_lists, 55};
inline constexpr TextId kTooManySelected{TextTable::taal_lists, 56};
inline constexpr TextId kSelectOne{TextTable::taal_lists, 57};
inline constexpr TextId kCopyQuestion{TextTable::taal_lists, 58};
inline constexpr TextId kCopySure{TextTable::taal_lists, 59};
inline constexpr TextId kSearchErrorTitle{TextTable::taal_lists, 61};
inline constexpr TextId kSearchError{TextTable::taal_lists, 62};
inline constexpr TextId kCheckConnection{TextTable::taal_lists, 63};
inline constexpr TextId kNothingFound{TextTable::taal_lists, 64};
inline constexpr TextId kSearchOther{TextTable::taal_lists, 65};

}  // namespace kelvora::lists_text
