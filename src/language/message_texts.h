// Names of the texts in taal_messages: messages that every routine shares.
// The texts themselves, English and Dutch, stand in message_texts.cpp.
#pragma once

#include "language/tables.h"

namespace kelvora::message_text {

inline constexpr TextId kErrorOccurred{TextTable::taal_messages, 0};

}  // namespace kelvora::message_text
