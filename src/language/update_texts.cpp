#include "language/update_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace update_text;

constexpr std::array kRows = {
    TextRow{kTitle, "Internet updates"_w, "Updates via internet"_w},
    TextRow{kVersion, "Version"_w, "Versie"_w},
    TextRow{kStatus, "Status"_w, "Status"_w},
    TextRow{kTipVersion, "Version of Kelvora FOOD on this computer"_w,
            "Versie van Kelvora FOOD op deze computer"_w},
    TextRow{kTipStatus, "What the update check is doing now"_w,
            "Wat er nu tijdens de controle gebeurt"_w},
    TextRow{kProgress, "Progress of the update check"_w, "Voortgang van de controle op updates"_w},
    Filler(TextTable::taal_update, 6),
    TextRow{kConnecting, "Connecting to server ..."_w,
            "Er wordt verbinding gemaakt met de server ..."_w},
    TextRow{kNoConnection, "Can't make a connection."_w,
            "Er kan geen verbinding worden gemaakt."_w},
    TextRow{kReceiving, "Busy with receiving ..."_w, "Bezig met ontvangen ..."_w},
    TextRow{kAnalysing, "Connected, analysing data ..."_w,
            "Verbonden, de gegevens worden bekeken ..."_w},
    TextRow{kServerVersion, "Connected, version on server:"_w,
            "Verbonden, de versie op de server is:"_w},
    Filler(TextTable::taal_update, 12),
    TextRow{kStatusBarChecking, "Looking for a newer version of Kelvora FOOD ..."_w,
            "Er wordt gezocht naar een nieuwere versie van Kelvora FOOD ..."_w},
    TextRow{kStatusBarDone, "The update check is finished."_w,
            "De controle op updates is klaar."_w},
    Filler(TextTable::taal_update, 15),
    TextRow{kServerFailed, "Kelvora FOOD can not make a connection with the Brelux server."_w,
            "Kelvora FOOD kan geen verbinding maken met de server van Brelux."_w},
    TextRow{kSystemError, "Windows error:"_w, "Foutmelding van Windows:"_w},
    TextRow{kNewerAvailable, "There is a newer version of Kelvora FOOD available."_w,
            "Er is een nieuwere versie van Kelvora FOOD beschikbaar."_w},
    TextRow{kFreeOfCharge, "You can download this version free of charge."_w,
            "Je kunt deze versie gratis downloaden."_w},
    TextRow{kUseNovafetch, "Use Novafetch to download and install the new version."_w,
            "Gebruik Novafetch om de nieuwe versie te downloaden en te installeren."_w},
    Filler(TextTable::taal_update, 21),
};
static_assert(RowsFill(kRows, 22, 4));

}  // namespace

std::span<const TextRow> UpdateTextRows() {
  return kRows;
}

}  // namespace kelvora
