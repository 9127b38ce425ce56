// Names of the texts in taal_day_summary: the day summary window.
// The texts themselves, English and Dutch, stand in day_summary_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::day_summary_text {

inline constexpr TextId kTitle{TextTable::taal_day_summary, 0};
inline constexpr TextId kButtonRequirements{TextTable::taal_day_summary, 1};
inline constexpr TextId kButtonTop5{TextTable::taal_day_summary, 2};
inline constexpr TextId kButtonConsumptions{TextTable::taal_day_summary, 3};
inline constexpr TextId kButtonBmi{TextTable::taal_day_summary, 4};
// kTipRequirements also begins the status text of the recommended nutrition.
inline constexpr TextId kTipRequirements{TextTable::taal_day_summary, 5};
inline constexpr TextId kTipTop5{TextTable::taal_day_summary, 6};
inline constexpr TextId kTipConsumptions{TextTable::taal_day_summary, 7};
inline constexpr TextId kTipBmi{TextTable::taal_day_summary, 8};
inline constexpr TextId kTipSmallSize{TextTable::taal_day_summary, 9};
inline constexpr TextId kTipNormalSize{TextTable::taal_day_summary, 10};
inline constexpr TextId kMenuEnergyKj{TextTable::taal_day_summary, 11};
inline constexpr TextId kMenuEnergyKcal{TextTable::taal_day_summary, 12};
inline constexpr TextId kMenuUnsaturatedFats{TextTable::taal_day_summary, 13};
inline constexpr TextId kMenuSaturatedFats{TextTable::taal_day_summary, 14};
inline constexpr TextId kMenuProtein{TextTable::taal_day_summary, 15};
inline constexpr TextId kMenuSodium{TextTable::taal_day_summary, 16};
inline constexpr TextId kMenuCarbohydrates{TextTable::taal_day_summary, 17};
// The gender of a day is compared with these two.
inline constexpr TextId kMan{TextTable::taal_day_summary, 19};
inline constexpr TextId kWoman{TextTable::taal_day_summary, 20};
// The ages and kChangedNutrition serve the menu and the status text alike.
inline constexpr TextId kAge13{TextTable::taal_day_summary, 21};
inline constexpr TextId kAge16{TextTable::taal_day_summary, 22};
inline constexpr TextId kAge19{TextTable::taal_day_summary, 23};
inline constexpr TextId kAge22{TextTable::taal_day_summary, 24};
inline constexpr TextId kAge50{TextTable::taal_day_summary, 25};
inline constexpr TextId kAge65{TextTable::taal_day_summary, 26};
inline constexpr TextId kChangedNutrition{TextTable::taal_day_summary, 27};
inline constexpr TextId kStatusRequirements{TextTable::taal_day_summary, 28};
inline constexpr TextId kStatusTop5{TextTable::taal_day_summary, 29};
inline constexpr TextId kStatusConsumptions{TextTable::taal_day_summary, 30};
// kBmi stands on the status bar and beside the index itself.
inline constexpr TextId kBmi{TextTable::taal_day_summary, 31};
inline constexpr TextId kStatusBodyMassIndex{TextTable::taal_day_summary, 32};
inline constexpr TextId kStatusFor{TextTable::taal_day_summary, 33};
inline constexpr TextId kStatusMan{TextTable::taal_day_summary, 34};
inline constexpr TextId kStatusWoman{TextTable::taal_day_summary, 35};
inline constexpr TextId kStatusTop5For{TextTable::taal_day_summary, 36};
inline constexpr TextId kStatusTop5EnergyKj{TextTable::taal_day_summary, 37};
inline constexpr TextId kStatusTop5EnergyKcal{TextTable::taal_day_summary, 38};
inline constexpr TextId kStatusTop5UnsaturatedFats{TextTable::taal_day_summary, 39};
inline constexpr TextId kStatusTop5SaturatedFats{TextTable::taal_day_summary, 40};
inline constexpr TextId kStatusTop5Protein{TextTable::taal_day_summary, 41};
inline constexpr TextId kStatusTop5Sodium{TextTable::taal_day_summary, 42};
inline constexpr TextId kStatusTop5Carbohydrates{TextTable::taal_day_summary, 43};
inline constexpr TextId kStatusFoodItems{TextTable::taal_day_summary, 44};
inline constexpr TextId kColumnNumber{TextTable::taal_day_summary, 46};
inline constexpr TextId kColumnFood{TextTable::taal_day_summary, 47};
inline constexpr TextId kColumnCount{TextTable::taal_day_summary, 48};
inline constexpr TextId kColumnUnit{TextTable::taal_day_summary, 49};
// kWeight stands over the weight of a food item and beside that of the user.
inline constexpr TextId kWeight{TextTable::taal_day_summary, 50};
inline constexpr TextId kColumnKj{TextTable::taal_day_summary, 51};
inline constexpr TextId kColumnKcal{TextTable::taal_day_summary, 52};
inline constexpr TextId kColumnUnsaturatedFat{TextTable::taal_day_summary, 53};
inline constexpr TextId kColumnSaturatedFat{TextTable::taal_day_summary, 54};
inline constexpr TextId kColumnProtein{TextTable::taal_day_summary, 55};
inline constexpr TextId kColumnSodium{TextTable::taal_day_summary, 56};
inline constexpr TextId kColumnCarbohydrates{TextTable::taal_day_summary, 57};
inline constexpr TextId kRecommended{TextTable::taal_day_summary, 59};
inline constexpr TextId kRecommendedUnitKj{TextTable::taal_day_summary, 60};
inline constexpr TextId kRecommendedUnitKcal{TextTable::taal_day_summary, 61};
inline constexpr TextId kRecommendedUnitGram{TextTable::taal_day_summary, 62};
inline constexpr TextId kRecommendedEnergyKj{TextTable::taal_day_summary, 63};
inline constexpr TextId kRecommendedEnergyKcal{TextTable::taal_day_summary, 64};
inline constexpr TextId kRecommendedUnsaturatedFats{TextTable::taal_day_summary, 65};
inline constexpr TextId kRecommendedSaturatedFats{TextTable::taal_day_summary, 66};
inline constexpr TextId kRecommendedSodium{TextTable::taal_day_summary, 67};
inline constexpr TextId kRecommendedProtein{TextTable::taal_day_summary, 68};
inline constexpr TextId kRecommendedCarbohydrates{TextTable::taal_day_summary, 69};
inline constexpr TextId kUsed{TextTable::taal_day_summary, 70};
inline constexpr TextId kUsedUnitKj{TextTable::taal_day_summary, 71};
inline constexpr TextId kUsedUnitKcal{TextTable::taal_day_summary, 72};
inline constexpr TextId kUsedUnitGram{TextTable::taal_day_summary, 73};
inline constexpr TextId kUsedEnergyKj{TextTable::taal_day_summary, 74};
inline constexpr TextId kUsedEnergyKcal{TextTable::taal_day_summary, 75};
inline constexpr TextId kUsedUnsaturatedFat{TextTable::taal_day_summary, 76};
inline constexpr TextId kUsedSaturatedFat{TextTable::taal_day_summary, 77};
inline constexpr TextId kUsedSodium{TextTable::taal_day_summary, 78};
inline constexpr TextId kUsedProtein{TextTable::taal_day_summary, 79};
inline constexpr TextId kUsedCarbohydrates{TextTable::taal_day_summary, 80};
inline constexpr TextId kPieEnergyKj{TextTable::taal_day_summary, 82};
inline constexpr TextId kPieEnergyKcal{TextTable::taal_day_summary, 83};
inline constexpr TextId kPieUnsaturatedFat{TextTable::taal_day_summary, 84};
inline constexpr TextId kPieSaturatedFat{TextTable::taal_day_summary, 85};
inline constexpr TextId kPieProtein{TextTable::taal_day_summary, 86};
inline constexpr TextId kPieSodium{TextTable::taal_day_summary, 87};
inline constexpr TextId kPieCarbohydrates{TextTable::taal_day_summary, 88};
inline constexpr TextId kPieUnitKj{TextTable::taal_day_summary, 89};
inline constexpr TextId kPieUnitKcal{TextTable::taal_day_summary, 90};
inline constexpr TextId kPieUnitGram{TextTable::taal_day_summary, 91};
inline constexpr TextId kNoticeBeware{TextTable::taal_day_summary, 92};
inline constexpr TextId kNoticeOnly{TextTable::taal_day_summary, 93};
inline constexpr TextId kNoticePresent{TextTable::taal_day_summary, 94};
inline constexpr TextId kNoticeNoTop5{TextTable::taal_day_summary, 95};
inline constexpr TextId kNoticeAddFood{TextTable::taal_day_summary, 96};
inline constexpr TextId kBodyMassIndex{TextTable::taal_day_summary, 98};
inline constexpr TextId kHeight{TextTable::taal_day_summary, 99};
inline constexpr TextId kIdealWeight{TextTable::taal_day_summary, 100};
inline constexpr TextId kMinimally{TextTable::taal_day_summary, 101};
inline constexpr TextId kAtMost{TextTable::taal_day_summary, 102};
inline constexpr TextId kUnitMeter{TextTable::taal_day_summary, 103};
inline constexpr TextId kUnitFeetInch{TextTable::taal_day_summary, 104};
inline constexpr TextId kUnitKilogram{TextTable::taal_day_summary, 105};
inline constexpr TextId kUnitPounds{TextTable::taal_day_summary, 106};
inline constexpr TextId kUnitStones{TextTable::taal_day_summary, 107};

}  // namespace kelvora::day_summary_text
