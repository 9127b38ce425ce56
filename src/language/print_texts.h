// Names of the texts in taal_print: the printed pages; the exports also show one of them.
// The texts themselves, English and Dutch, stand in print_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::print_text {

inline constexpr TextId kDayTitle{TextTable::taal_print, 0};
inline constexpr TextId kPersonalDetails{TextTable::taal_print, 1};
inline constexpr TextId kDayDate{TextTable::taal_print, 2};
inline constexpr TextId kHeight{TextTable::taal_print, 3};
inline constexpr TextId kMeter{TextTable::taal_print, 4};
inline constexpr TextId kWeight{TextTable::taal_print, 5};
inline constexpr TextId kKilogram{TextTable::taal_print, 6};
inline constexpr TextId kFoodItems{TextTable::taal_print, 7};
inline constexpr TextId kColumnFood{TextTable::taal_print, 8};
inline constexpr TextId kColumnUnit{TextTable::taal_print, 9};
inline constexpr TextId kColumnCount{TextTable::taal_print, 10};
inline constexpr TextId kColumnGram{TextTable::taal_print, 11};
inline constexpr TextId kColumnKj{TextTable::taal_print, 12};
inline constexpr TextId kColumnKcal{TextTable::taal_print, 13};
inline constexpr TextId kColumnFatU{TextTable::taal_print, 14};
inline constexpr TextId kColumnFatS{TextTable::taal_print, 15};
inline constexpr TextId kColumnProtein{TextTable::taal_print, 16};
inline constexpr TextId kColumnSodium{TextTable::taal_print, 17};
inline constexpr TextId kColumnCarbs{TextTable::taal_print, 18};
inline constexpr TextId kTotals{TextTable::taal_print, 19};
inline constexpr TextId kTotalGram{TextTable::taal_print, 20};
inline constexpr TextId kUnitGram{TextTable::taal_print, 21};
inline constexpr TextId kTotalKj{TextTable::taal_print, 22};
inline constexpr TextId kUnitKj{TextTable::taal_print, 23};
inline constexpr TextId kTotalKcal{TextTable::taal_print, 24};
inline constexpr TextId kUnitKcal{TextTable::taal_print, 25};
inline constexpr TextId kTotalUnsaturatedFat{TextTable::taal_print, 26};
inline constexpr TextId kTotalSaturatedFat{TextTable::taal_print, 27};
inline constexpr TextId kTotalProtein{TextTable::taal_print, 28};
inline constexpr TextId kTotalSodium{TextTable::taal_print, 29};
inline constexpr TextId kTotalCarbohydrates{TextTable::taal_print, 30};
inline constexpr TextId kPrintedOn{TextTable::taal_print, 31};
inline constexpr TextId kTravelTitle{TextTable::taal_print, 32};
inline constexpr TextId kTravelDay{TextTable::taal_print, 33};
inline constexpr TextId kTravelDate{TextTable::taal_print, 34};
inline constexpr TextId kMorning{TextTable::taal_print, 35};
inline constexpr TextId kCount{TextTable::taal_print, 36};
inline constexpr TextId kAfternoon{TextTable::taal_print, 37};
inline constexpr TextId kEvening{TextTable::taal_print, 38};
inline constexpr TextId kPounds{TextTable::taal_print, 39};
inline constexpr TextId kFeetInch{TextTable::taal_print, 40};
inline constexpr TextId kNoPrinter{TextTable::taal_print, 41};
inline constexpr TextId kNoPrinterAdvice{TextTable::taal_print, 42};
inline constexpr TextId kReference{TextTable::taal_print, 43};
inline constexpr TextId kGoalWeight{TextTable::taal_print, 44};
inline constexpr TextId kStones{TextTable::taal_print, 45};
inline constexpr TextId kUnitOz{TextTable::taal_print, 46};
inline constexpr TextId kMakerAndWebsite{TextTable::taal_print, 47};

}  // namespace kelvora::print_text
