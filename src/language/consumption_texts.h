// Indexes of the texts of the consumption windows. taal_morning, taal_afternoon and taal_evening
// hold the same kinds of texts in the same places; taal_morning goes on with a text that serves all
// three windows. The texts themselves, English and Dutch, stand in morning_texts.cpp,
// afternoon_texts.cpp and evening_texts.cpp.
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
inline constexpr std::size_t kCombineName = 26;
inline constexpr std::size_t kCombineUnit = 27;
inline constexpr std::size_t kCombineSave = 28;
inline constexpr std::size_t kLimitAdd = 31;
inline constexpr std::size_t kLimitReached = 32;
inline constexpr std::size_t kLimitRemove = 33;
inline constexpr std::size_t kLimitDrop = 34;
inline constexpr std::size_t kCombineTooFew = 36;
inline constexpr std::size_t kCombineAddMore = 37;
inline constexpr std::size_t kCombineNoName = 38;
inline constexpr std::size_t kCombineEnterName = 39;
inline constexpr std::size_t kCombineIllegal = 40;
inline constexpr std::size_t kCombineHalf = 41;
inline constexpr std::size_t kCombineRemove = 42;
inline constexpr std::size_t kCombineExists = 43;
inline constexpr std::size_t kCombineRename = 44;
inline constexpr std::size_t kCombineSaved = 45;

// In taal_morning only, for all three windows.
inline constexpr std::size_t kSharedDropHint = 50;

}  // namespace kelvora::consumption_text
