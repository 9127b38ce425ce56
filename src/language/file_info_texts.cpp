#include "language/file_info_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace file_info_text;

constexpr std::array kRows = {
    TextRow{kProduct, "Kelvora FOOD"_w, "Kelvora FOOD"_w},
    TextRow{kLanguageVersion, "2.24"_w, "2.24"_w},
    TextRow{kTranslator, "Brelux"_w, "Brelux"_w},
    TextRow{kDate, "05-10-2005"_w, "05-10-2005"_w},
    TextRow{kMark, "1"_w, "1"_w},
};
static_assert(RowsFill(kRows, 5, 0));

}  // namespace

std::span<const TextRow> FileInfoTextRows() {
  return kRows;
}

}  // namespace kelvora
