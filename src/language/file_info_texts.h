// Names of the texts in taal_file_info: what a language file says of itself; only the version is
// ever read. The texts themselves, English and Dutch, stand in file_info_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::file_info_text {

inline constexpr TextId kProduct{TextTable::taal_file_info, 0};
inline constexpr TextId kLanguageVersion{TextTable::taal_file_info, 1};
inline constexpr TextId kTranslator{TextTable::taal_file_info, 2};
inline constexpr TextId kDate{TextTable::taal_file_info, 3};
inline constexpr TextId kMark{TextTable::taal_file_info, 4};

}  // namespace kelvora::file_info_text
