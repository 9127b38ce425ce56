// Keys as the tables of the logic write them, for the toolkit.
#pragma once

#include <string_view>

#include <QKeySequence>

#include "core/keys.h"

namespace kelvora {

inline QKeySequence SequenceOf(std::string_view keys) {
  return QKeySequence::fromString(QLatin1String(keys.data(), static_cast<qsizetype>(keys.size())),
                                  QKeySequence::PortableText);
}

inline QKeySequence SequenceOf(BoundKey use) {
  return SequenceOf(KeysOf(use));
}

}  // namespace kelvora
