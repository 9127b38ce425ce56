// Names of the texts in taal_food_details: the details of one food.
// The texts themselves, English and Dutch, stand in food_details_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::food_details_text {

inline constexpr TextId kTitle{TextTable::taal_food_details, 0};
inline constexpr TextId kFoodItem{TextTable::taal_food_details, 1};
inline constexpr TextId kUnit{TextTable::taal_food_details, 2};
inline constexpr TextId kWeight{TextTable::taal_food_details, 3};
inline constexpr TextId kFoodGroup{TextTable::taal_food_details, 4};
inline constexpr TextId kRemarks{TextTable::taal_food_details, 5};
inline constexpr TextId kAddToFavourites{TextTable::taal_food_details, 6};
inline constexpr TextId kTabPortion{TextTable::taal_food_details, 7};
inline constexpr TextId kTabPer100Grams{TextTable::taal_food_details, 8};
inline constexpr TextId kPortionHeading{TextTable::taal_food_details, 10};
inline constexpr TextId kPortionHeadingOf{TextTable::taal_food_details, 11};
inline constexpr TextId kPortionHeadingGram{TextTable::taal_food_details, 12};
inline constexpr TextId kPortionHeadingOz{TextTable::taal_food_details, 13};
inline constexpr TextId kPortionHeadingEnd{TextTable::taal_food_details, 14};
inline constexpr TextId kPer100GramsHeading{TextTable::taal_food_details, 15};
inline constexpr TextId kKilojoules{TextTable::taal_food_details, 16};
inline constexpr TextId kKilocalories{TextTable::taal_food_details, 17};
inline constexpr TextId kUnsaturatedFat{TextTable::taal_food_details, 18};
inline constexpr TextId kSaturatedFat{TextTable::taal_food_details, 19};
inline constexpr TextId kSodium{TextTable::taal_food_details, 20};
inline constexpr TextId kProtein{TextTable::taal_food_details, 21};
inline constexpr TextId kCarbohydrates{TextTable::taal_food_details, 22};
inline constexpr TextId kUnitKj{TextTable::taal_food_details, 23};
inline constexpr TextId kUnitKcal{TextTable::taal_food_details, 24};
inline constexpr TextId kUnitGram{TextTable::taal_food_details, 25};
inline constexpr TextId kUnitOz{TextTable::taal_food_details, 26};
inline constexpr TextId kPortionKilojoules{TextTable::taal_food_details, 28};
inline constexpr TextId kPortionKilocalories{TextTable::taal_food_details, 29};
inline constexpr TextId kPortionUnsaturatedFat{TextTable::taal_food_details, 30};
inline constexpr TextId kPortionSaturatedFat{TextTable::taal_food_details, 31};
inline constexpr TextId kPortionSodium{TextTable::taal_food_details, 32};
inline constexpr TextId kPortionProtein{TextTable::taal_food_details, 33};
inline constexpr TextId kPortionCarbohydrates{TextTable::taal_food_details, 34};
inline constexpr TextId kPer100GramsKilojoules{TextTable::taal_food_details, 36};
inline constexpr TextId kPer100GramsKilocalories{TextTable::taal_food_details, 37};
inline constexpr TextId kPer100GramsUnsaturatedFat{TextTable::taal_food_details, 38};
inline constexpr TextId kPer100GramsSaturatedFat{TextTable::taal_food_details, 39};
inline constexpr TextId kPer100GramsSodium{TextTable::taal_food_details, 40};
inline constexpr TextId kPer100GramsProtein{TextTable::taal_food_details, 41};
inline constexpr TextId kPer100GramsCarbohydrates{TextTable::taal_food_details, 42};
inline constexpr TextId kCompositionHeading{TextTable::taal_food_details, 44};
inline constexpr TextId kCompositionUnsaturatedFats{TextTable::taal_food_details, 45};
inline constexpr TextId kCompositionSaturatedFats{TextTable::taal_food_details, 46};
inline constexpr TextId kCompositionSodium{TextTable::taal_food_details, 47};
inline constexpr TextId kCompositionProteins{TextTable::taal_food_details, 48};
inline constexpr TextId kCompositionCarbohydrates{TextTable::taal_food_details, 49};
inline constexpr TextId kCompositionDescription{TextTable::taal_food_details, 50};
inline constexpr TextId kEditPer100Grams{TextTable::taal_food_details, 52};
inline constexpr TextId kFinishEditing{TextTable::taal_food_details, 53};
inline constexpr TextId kEdit{TextTable::taal_food_details, 54};
inline constexpr TextId kSave{TextTable::taal_food_details, 55};
inline constexpr TextId kCancel{TextTable::taal_food_details, 56};
inline constexpr TextId kTipAddToFavourites{TextTable::taal_food_details, 57};
inline constexpr TextId kTipTabs{TextTable::taal_food_details, 58};
inline constexpr TextId kTipGram{TextTable::taal_food_details, 59};
inline constexpr TextId kTipOz{TextTable::taal_food_details, 60};
inline constexpr TextId kTipSodium{TextTable::taal_food_details, 61};
inline constexpr TextId kTipEdit{TextTable::taal_food_details, 62};
inline constexpr TextId kTipFinishEditing{TextTable::taal_food_details, 63};
inline constexpr TextId kTipSave{TextTable::taal_food_details, 64};
inline constexpr TextId kTipCancel{TextTable::taal_food_details, 65};
inline constexpr TextId kEditHint{TextTable::taal_food_details, 66};
inline constexpr TextId kFieldsMissing{TextTable::taal_food_details, 68};
inline constexpr TextId kFillInFields{TextTable::taal_food_details, 69};
inline constexpr TextId kWeightNotWhole{TextTable::taal_food_details, 70};
inline constexpr TextId kChangeWeight{TextTable::taal_food_details, 71};
inline constexpr TextId kValuesMissing{TextTable::taal_food_details, 72};
inline constexpr TextId kFillInValues{TextTable::taal_food_details, 73};
inline constexpr TextId kFillInZero{TextTable::taal_food_details, 74};
inline constexpr TextId kIllegalCharacters{TextTable::taal_food_details, 75};
inline constexpr TextId kHalfNotAllowed{TextTable::taal_food_details, 76};
inline constexpr TextId kRemoveCharacters{TextTable::taal_food_details, 77};
inline constexpr TextId kTooMuchData{TextTable::taal_food_details, 78};
inline constexpr TextId kShortenDescription{TextTable::taal_food_details, 79};
inline constexpr TextId kTooMuchDataRemove{TextTable::taal_food_details, 80};
inline constexpr TextId kHighSodiumTitle{TextTable::taal_food_details, 82};
inline constexpr TextId kHighSodium{TextTable::taal_food_details, 83};
inline constexpr TextId kHighSodiumValue{TextTable::taal_food_details, 84};
inline constexpr TextId kHighSodiumInGram{TextTable::taal_food_details, 85};
inline constexpr TextId kHighSodiumSure{TextTable::taal_food_details, 86};
inline constexpr TextId kSavedFoodItem{TextTable::taal_food_details, 88};
inline constexpr TextId kSavedInOwnList{TextTable::taal_food_details, 89};

}  // namespace kelvora::food_details_text
