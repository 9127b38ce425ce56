// Names of the texts in taal_popup: the splash screen and the About window.
// The texts themselves, English and Dutch, stand in popup_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::popup_text {

inline constexpr TextId kLoadingSettings{TextTable::taal_popup, 0};
inline constexpr TextId kLoadingDatabases{TextTable::taal_popup, 1};
inline constexpr TextId kLoadingModules{TextTable::taal_popup, 2};
inline constexpr TextId kLoadingFiles{TextTable::taal_popup, 3};
inline constexpr TextId kStartingInterface{TextTable::taal_popup, 4};
inline constexpr TextId kVersion{TextTable::taal_popup, 5};
inline constexpr TextId kStarted{TextTable::taal_popup, 6};
inline constexpr TextId kTimes{TextTable::taal_popup, 7};
inline constexpr TextId kInternet{TextTable::taal_popup, 8};
inline constexpr TextId kSearched{TextTable::taal_popup, 9};
inline constexpr TextId kSubmitted{TextTable::taal_popup, 10};
inline constexpr TextId kProductSuffix{TextTable::taal_popup, 11};
inline constexpr TextId kClose{TextTable::taal_popup, 12};

}  // namespace kelvora::popup_text
