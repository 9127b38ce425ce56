// Indexes of the texts of the consumption windows. taal_morning, taal_afternoon and taal_evening
// hold the same kinds of texts in the same places. The texts themselves, English and Dutch, stand
// in morning_texts.cpp, afternoon_texts.cpp and evening_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::consumption_text {

inline constexpr std::size_t kTitle = 0;
inline constexpr std::size_t kTipTotals = 1;
inline constexpr std::size_t kTipCombine = 2;
inline constexpr std::size_t kTipPlus = 3;
inline constexpr std::size_t kTipMinus = 4;
inline constexpr std::size_t kTipRemove = 5;
inline constexpr std::size_t kStatus = 6;
inline constexpr std::size_t kColumnNumber = 7;
inline constexpr std::size_t kColumnCount = 8;
inline constexpr std::size_t kColumnFood = 9;
inline constexpr std::size_t kColumnUnit = 10;
inline constexpr std::size_t kColumnGram = 11;
inline constexpr std::size_t kColumnOz = 12;
inline constexpr std::size_t kColumnKj = 13;
inline constexpr std::size_t kColumnKcal = 14;
inline constexpr std::size_t kColumnFatU = 15;
inline constexpr std::size_t kColumnFatS = 16;
inline constexpr std::size_t kColumnCarbs = 17;
inline constexpr std::size_t kColumnProtein = 18;
inline constexpr std::size_t kEnergy = 19;
inline constexpr std::size_t kFatU = 20;
inline constexpr std::size_t kFatS = 21;
inline constexpr std::size_t kProtein = 22;
inline constexpr std::size_t kCarbohydrates = 23;
inline constexpr std::size_t kSodium = 24;
inline constexpr std::size_t kWeight = 25;
inline constexpr std::size_t kLimitAdd = 26;
inline constexpr std::size_t kLimitReached = 27;
inline constexpr std::size_t kLimitRemove = 28;
inline constexpr std::size_t kLimitDrop = 29;

}  // namespace kelvora::consumption_text
