// Names of the texts in taal_new_food: the window to add a food and its submission.
// The texts themselves, English and Dutch, stand in new_food_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::new_food_text {

inline constexpr TextId kTitle{TextTable::taal_new_food, 0};
inline constexpr TextId kIntroduction{TextTable::taal_new_food, 1};
inline constexpr TextId kIntroductionPortion{TextTable::taal_new_food, 2};
inline constexpr TextId kOriginalFrame{TextTable::taal_new_food, 3};
inline constexpr TextId kOriginalWeight{TextTable::taal_new_food, 4};
inline constexpr TextId kNewFoodFrame{TextTable::taal_new_food, 5};
inline constexpr TextId kName{TextTable::taal_new_food, 6};
inline constexpr TextId kUnit{TextTable::taal_new_food, 7};
inline constexpr TextId kPortionWeight{TextTable::taal_new_food, 8};
inline constexpr TextId kGram{TextTable::taal_new_food, 9};
inline constexpr TextId kOz{TextTable::taal_new_food, 10};
inline constexpr TextId kKilojoules{TextTable::taal_new_food, 11};
inline constexpr TextId kKilocalories{TextTable::taal_new_food, 12};
inline constexpr TextId kSaturatedFat{TextTable::taal_new_food, 13};
inline constexpr TextId kUnsaturatedFat{TextTable::taal_new_food, 14};
inline constexpr TextId kProtein{TextTable::taal_new_food, 15};
inline constexpr TextId kCarbohydrates{TextTable::taal_new_food, 16};
inline constexpr TextId kSodium{TextTable::taal_new_food, 17};
inline constexpr TextId kSodiumWarning{TextTable::taal_new_food, 18};
inline constexpr TextId kUnitKj{TextTable::taal_new_food, 19};
inline constexpr TextId kUnitKcal{TextTable::taal_new_food, 20};
inline constexpr TextId kLinkEnergy{TextTable::taal_new_food, 21};
inline constexpr TextId kAddToInternet{TextTable::taal_new_food, 22};
inline constexpr TextId kAdd{TextTable::taal_new_food, 23};
inline constexpr TextId kCancel{TextTable::taal_new_food, 24};
inline constexpr TextId kUnitChoicePiece{TextTable::taal_new_food, 26};
inline constexpr TextId kUnitChoiceSpoon{TextTable::taal_new_food, 27};
inline constexpr TextId kUnitChoiceGlass{TextTable::taal_new_food, 28};
inline constexpr TextId kUnitChoiceDish{TextTable::taal_new_food, 29};
inline constexpr TextId kUnitChoiceSlice{TextTable::taal_new_food, 30};
inline constexpr TextId kTipOriginalWeight{TextTable::taal_new_food, 31};
inline constexpr TextId kTipLinkEnergy{TextTable::taal_new_food, 32};
inline constexpr TextId kTipUnit{TextTable::taal_new_food, 33};
inline constexpr TextId kTipPortionWeight{TextTable::taal_new_food, 34};
inline constexpr TextId kTipAddToInternet{TextTable::taal_new_food, 35};
inline constexpr TextId kTipAdd{TextTable::taal_new_food, 36};
inline constexpr TextId kTipCancel{TextTable::taal_new_food, 37};
inline constexpr TextId kHighSodiumTitle{TextTable::taal_new_food, 39};
inline constexpr TextId kHighSodium{TextTable::taal_new_food, 40};
inline constexpr TextId kHighSodiumValue{TextTable::taal_new_food, 41};
inline constexpr TextId kHighSodiumInGram{TextTable::taal_new_food, 42};
inline constexpr TextId kHighSodiumSure{TextTable::taal_new_food, 43};
inline constexpr TextId kNameExists{TextTable::taal_new_food, 44};
inline constexpr TextId kChooseAnotherName{TextTable::taal_new_food, 45};
inline constexpr TextId kSaved{TextTable::taal_new_food, 46};
inline constexpr TextId kValuesMissing{TextTable::taal_new_food, 47};
inline constexpr TextId kEnterValues{TextTable::taal_new_food, 48};
inline constexpr TextId kIllegalCharacters{TextTable::taal_new_food, 49};
inline constexpr TextId kHalfNotAllowed{TextTable::taal_new_food, 50};
inline constexpr TextId kRemoveCharacters{TextTable::taal_new_food, 51};
inline constexpr TextId kTooMuchData{TextTable::taal_new_food, 52};
inline constexpr TextId kShortenDescription{TextTable::taal_new_food, 53};
inline constexpr TextId kSendErrorTitle{TextTable::taal_new_food, 55};
inline constexpr TextId kSendError{TextTable::taal_new_food, 56};
inline constexpr TextId kSendErrorCheck{TextTable::taal_new_food, 57};
inline constexpr TextId kSubmitted{TextTable::taal_new_food, 58};
inline constexpr TextId kSubmittedStatus{TextTable::taal_new_food, 59};
inline constexpr TextId kSubmittedCheck{TextTable::taal_new_food, 60};
inline constexpr TextId kSubmittedThanks{TextTable::taal_new_food, 61};

}  // namespace kelvora::new_food_text
