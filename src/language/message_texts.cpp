#include "language/message_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace message_text;

constexpr std::array kRows = {
    TextRow{kErrorOccurred, "An error occured."_w, "Er heeft zich een fout voorgedaan."_w},
    Filler(TextTable::taal_messages, 1),
};
static_assert(RowsFill(kRows, 2, 1));

}  // namespace

std::span<const TextRow> MessageTextRows() {
  return kRows;
}

}  // namespace kelvora
