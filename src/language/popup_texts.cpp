#include "language/popup_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace popup_text;

// The number of starts stands between kStarted and kTimes.
constexpr std::array kRows = {
    TextRow{kLoadingSettings, "Loading: Settings..."_w, "Laden: Instellingen..."_w},
    TextRow{kLoadingDatabases, "Loading: Databases..."_w, "Laden: Databases..."_w},
    TextRow{kLoadingModules, "Loading: Modules..."_w, "Laden: Modules..."_w},
    TextRow{kLoadingFiles, "Loading: Files..."_w, "Laden: Bestanden..."_w},
    TextRow{kStartingInterface, "Starting interface"_w, "De schermen worden klaargezet"_w},
    TextRow{kVersion, "Version:"_w, "Versie:"_w},
    TextRow{kStarted, "(Started"_w, "(Gestart:"_w},
    TextRow{kTimes, "times)"_w, "keer)"_w},
    TextRow{kInternet, "Internet:"_w, "Internet:"_w},
    TextRow{kSearched, "Searched:"_w, "Gezocht:"_w},
    TextRow{kSubmitted, "Submitted:"_w, "Ingezonden:"_w},
    TextRow{kProductSuffix, "FOOD"_w, "FOOD"_w},
    TextRow{kClose, "Close"_w, "Sluiten"_w},
};
static_assert(RowsFill(kRows, 13, 0));

}  // namespace

std::span<const TextRow> PopupTextRows() {
  return kRows;
}

}  // namespace kelvora
