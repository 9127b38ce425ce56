#include "language/lists_texts.h"
#include "language/new_food_texts.h"
#include "language/update_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

using namespace lists_text;
using namespace new_food_text;
using namespace update_text;

const std::vector<BoxHelp> kBoxes = {
    {{kSearchErrorTitle, kSearchError, kCheckConnection},
     {"The food server could not be reached: there is no connection, no address of a server is "
      "known, or the server doesn't answer.",
      "De voedingsserver was niet bereikbaar: er is geen verbinding, er is geen adres van een "
      "server bekend, of de server antwoordt niet."},
     {"Check the connection and try later. What you typed is still in the box.",
      "Controleer de verbinding en probeer het later. Wat je typte, staat nog in het vak."}},
    {{kNothingFound, kSearchOther},
     {"The server answered, but knows no food with these words.",
      "De server antwoordde, maar kent geen voedingsmiddel met deze woorden."},
     {"Try fewer or other words.", "Probeer minder of andere woorden."}},
    {{kSendErrorTitle, kSendError, kSendErrorCheck},
     {"Your new food is safe in your own list; only sending it failed.",
      "Je nieuwe voedingsmiddel staat veilig in je eigen lijst; alleen het versturen is mislukt."},
     {"Nothing has to be done. The program doesn't send it by itself later.",
      "Je hoeft niets te doen. Het programma verstuurt het later niet uit zichzelf."}},
    {{kSubmitted, kSubmittedStatus, kSubmittedCheck, kSubmittedThanks},
     {"The food is in your own list, and the server has it. There it counts as unchecked until "
      "somebody has looked at it.",
      "Het voedingsmiddel staat in je eigen lijst, en de server heeft het. Daar geldt het als "
      "ongecontroleerd tot iemand ernaar heeft gekeken."},
     {"Nothing.", "Niets."}},
    {{kServerFailed, kSystemError},
     {"The check for a newer version got no answer. The words of the system follow.",
      "Het zoeken naar een nieuwere versie kreeg geen antwoord. De woorden van het systeem "
      "volgen."},
     {"Nothing; the program works without it. Try later if you like.",
      "Niets; het programma werkt ook zonder. Probeer het later als je wilt."}},
    {{kNewerAvailable, kFreeOfCharge, kUseNovafetch},
     {"The server for updates knows a newer version than yours. The program installs nothing by "
      "itself.",
      "De server voor updates kent een nieuwere versie dan de jouwe. Het programma installeert "
      "niets uit zichzelf."},
     {"Install it in the way you installed this one.",
      "Installeer die zoals je deze hebt geïnstalleerd."}},
};

}  // namespace

BoxGroup BoxesOfInternet() {
  return {{"Internet", "Internet"}, kBoxes};
}

}  // namespace kelvora::help
