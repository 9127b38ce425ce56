// Names of the texts in taal_compare: the window that compares two foods.
// The texts themselves, English and Dutch, stand in compare_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::compare_text {

inline constexpr TextId kTitle{TextTable::taal_compare, 0};
inline constexpr TextId kTipDropFood1{TextTable::taal_compare, 1};
inline constexpr TextId kTipDropFood2{TextTable::taal_compare, 2};
inline constexpr TextId kTabPerUnit{TextTable::taal_compare, 3};
inline constexpr TextId kTabPer100{TextTable::taal_compare, 4};
inline constexpr TextId kTabHelp{TextTable::taal_compare, 5};
inline constexpr TextId kTipPerUnit{TextTable::taal_compare, 6};
inline constexpr TextId kTipPer100{TextTable::taal_compare, 7};
inline constexpr TextId kTipHelp{TextTable::taal_compare, 8};
inline constexpr TextId kFrameUnitFood1{TextTable::taal_compare, 9};
inline constexpr TextId kFrameUnitFood2{TextTable::taal_compare, 10};
inline constexpr TextId kFrameUnitDetails1{TextTable::taal_compare, 11};
inline constexpr TextId kFrameUnitDetails2{TextTable::taal_compare, 12};
inline constexpr TextId kFrame100Food1{TextTable::taal_compare, 13};
inline constexpr TextId kFrame100Food2{TextTable::taal_compare, 14};
inline constexpr TextId kFrame100Details1{TextTable::taal_compare, 15};
inline constexpr TextId kFrame100Details2{TextTable::taal_compare, 16};
inline constexpr TextId kFrameHelp{TextTable::taal_compare, 17};
inline constexpr TextId kWeight{TextTable::taal_compare, 19};
inline constexpr TextId kUnit{TextTable::taal_compare, 20};
inline constexpr TextId kEnergy{TextTable::taal_compare, 21};
inline constexpr TextId kUnitKj{TextTable::taal_compare, 22};
inline constexpr TextId kUnitKcal{TextTable::taal_compare, 23};
inline constexpr TextId kFatU{TextTable::taal_compare, 24};
inline constexpr TextId kFatS{TextTable::taal_compare, 25};
inline constexpr TextId kSodium{TextTable::taal_compare, 26};
inline constexpr TextId kProtein{TextTable::taal_compare, 27};
inline constexpr TextId kCarbohydrates{TextTable::taal_compare, 28};
inline constexpr TextId kUnitGram{TextTable::taal_compare, 29};
inline constexpr TextId kUnitOunces{TextTable::taal_compare, 30};
inline constexpr TextId kHelpAbout{TextTable::taal_compare, 32};
inline constexpr TextId kHelpSteps{TextTable::taal_compare, 33};
inline constexpr TextId kHelpDropFood1{TextTable::taal_compare, 34};
inline constexpr TextId kHelpDropFood2{TextTable::taal_compare, 35};
inline constexpr TextId kHelpCompare{TextTable::taal_compare, 36};
inline constexpr TextId kTooManyFoods{TextTable::taal_compare, 38};
inline constexpr TextId kOneFoodPerBox{TextTable::taal_compare, 39};
inline constexpr TextId kNoConsumptions{TextTable::taal_compare, 40};
inline constexpr TextId kDragFromDatabase{TextTable::taal_compare, 41};

}  // namespace kelvora::compare_text
