// Names of the texts in taal_diary: the diary window.
// The texts themselves, English and Dutch, stand in diary_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::diary_text {

inline constexpr TextId kHalfNotAllowed{TextTable::taal_diary, 0};
inline constexpr TextId kCannotSave{TextTable::taal_diary, 1};
inline constexpr TextId kTitle{TextTable::taal_diary, 2};
inline constexpr TextId kTipSave{TextTable::taal_diary, 3};
inline constexpr TextId kContains{TextTable::taal_diary, 4};
inline constexpr TextId kCharacters{TextTable::taal_diary, 5};
inline constexpr TextId kRoomFor{TextTable::taal_diary, 6};
inline constexpr TextId kRoomCharacters{TextTable::taal_diary, 7};

}  // namespace kelvora::diary_text
