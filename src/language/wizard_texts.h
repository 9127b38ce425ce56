// Names of the texts in taal_wizard: the start-up wizard.
// The texts themselves, English and Dutch, stand in wizard_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::wizard_text {

inline constexpr TextId kTitle{TextTable::taal_wizard, 0};
inline constexpr TextId kWelcome{TextTable::taal_wizard, 1};
inline constexpr TextId kMakeChoice{TextTable::taal_wizard, 2};
inline constexpr TextId kNewDay{TextTable::taal_wizard, 3};
inline constexpr TextId kOpenDay{TextTable::taal_wizard, 4};
inline constexpr TextId kSettings{TextTable::taal_wizard, 5};
inline constexpr TextId kManual{TextTable::taal_wizard, 6};
inline constexpr TextId kNewDayLine{TextTable::taal_wizard, 7};
inline constexpr TextId kOpenDayLine{TextTable::taal_wizard, 8};
inline constexpr TextId kSettingsLine{TextTable::taal_wizard, 9};
inline constexpr TextId kManualLine{TextTable::taal_wizard, 10};
inline constexpr TextId kTipNewDay{TextTable::taal_wizard, 11};
inline constexpr TextId kTipOpenDay{TextTable::taal_wizard, 12};
inline constexpr TextId kTipSettings{TextTable::taal_wizard, 13};
inline constexpr TextId kTipManual{TextTable::taal_wizard, 14};
inline constexpr TextId kShowWizard{TextTable::taal_wizard, 15};
inline constexpr TextId kOk{TextTable::taal_wizard, 16};
inline constexpr TextId kTipOk{TextTable::taal_wizard, 17};
inline constexpr TextId kClose{TextTable::taal_wizard, 18};
inline constexpr TextId kTipClose{TextTable::taal_wizard, 19};

}  // namespace kelvora::wizard_text
