// Names of the texts in taal_update: the update check.
// The texts themselves, English and Dutch, stand in update_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::update_text {

inline constexpr TextId kTitle{TextTable::taal_update, 0};
inline constexpr TextId kVersion{TextTable::taal_update, 1};
inline constexpr TextId kStatus{TextTable::taal_update, 2};
inline constexpr TextId kTipVersion{TextTable::taal_update, 3};
inline constexpr TextId kTipStatus{TextTable::taal_update, 4};
inline constexpr TextId kProgress{TextTable::taal_update, 5};
inline constexpr TextId kConnecting{TextTable::taal_update, 7};
inline constexpr TextId kNoConnection{TextTable::taal_update, 8};
inline constexpr TextId kReceiving{TextTable::taal_update, 9};
inline constexpr TextId kAnalysing{TextTable::taal_update, 10};
inline constexpr TextId kServerVersion{TextTable::taal_update, 11};
inline constexpr TextId kStatusBarChecking{TextTable::taal_update, 13};
inline constexpr TextId kStatusBarDone{TextTable::taal_update, 14};
inline constexpr TextId kServerFailed{TextTable::taal_update, 16};
inline constexpr TextId kSystemError{TextTable::taal_update, 17};
inline constexpr TextId kNewerAvailable{TextTable::taal_update, 18};
inline constexpr TextId kFreeOfCharge{TextTable::taal_update, 19};
inline constexpr TextId kUseNovafetch{TextTable::taal_update, 20};

}  // namespace kelvora::update_text
