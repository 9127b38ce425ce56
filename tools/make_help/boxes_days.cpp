#include "language/browse_texts.h"
#include "language/common_texts.h"
#include "language/day_settings_texts.h"
#include "language/diary_texts.h"
#include "language/main_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

using namespace day_settings_text;
namespace browse = browse_text;
namespace common = common_text;
namespace diary = diary_text;
namespace main = main_text;

const std::vector<BoxHelp> kBoxes = {
    {{main::kNoFileOpen, main::kMakeOrOpenFile},
     {"The settings of a day were asked for, but no day is open, or the open one has none.",
      "Je vroeg om de instellingen van een dag, maar er is geen dag open, of de open dag heeft ze "
      "niet."},
     {"Begin a new day or open one, then try again.",
      "Begin een nieuwe dag of open er een, en probeer het opnieuw."}},
    {{kIllegalCharacters, kHalfNotAllowed, kRemoveCharacters},
     {"One of the boxes holds ½ or ¾. The program uses these two signs inside its files.",
      "In een van de vakken staat ½ of ¾. Het programma gebruikt die twee tekens in zijn "
      "bestanden."},
     {"Write 1/2 or 3/4 instead.", "Schrijf in plaats daarvan 1/2 of 3/4."}},
    {{kNoName, kEnterName},
     {"A day needs the name of its user.", "Een dag heeft de naam van zijn gebruiker nodig."},
     {"Enter a name; the cursor stands in the box.",
      "Vul een naam in; de cursor staat in het vak."}},
    {{OwnText::name_not_possible, OwnText::name_advice},
     {"Each user has a folder of that name, and no folder can have this one.",
      "Elke gebruiker heeft een map met die naam, en geen enkele map kan zo heten."},
     {"Choose another name.", "Kies een andere naam."}},
    {{kWrongHeight, kEnterHeight},
     {"The height is missing or not written as it should be.",
      "De lengte ontbreekt of is niet geschreven zoals het hoort."},
     {"Write metres with two decimals, 1.80, or feet and inches.",
      "Schrijf meters met twee decimalen, 1.80, of feet en inches."}},
    {{kWrongWeight, kEnterWeight},
     {"The weight or the goal weight is missing or is no number.",
      "Het gewicht of het streefgewicht ontbreekt of is geen getal."},
     {"Fill in both. If you have no goal, enter your weight twice.",
      "Vul beide in. Heb je geen doel, vul dan twee keer je gewicht in."}},
    {{kNoGender, kSelectGender},
     {"The recommended amounts differ for men and women, so one of them must be chosen.",
      "De aanbevolen hoeveelheden verschillen voor mannen en vrouwen, dus je moet kiezen."},
     {"Choose one of the two.", "Kies een van de twee."}},
    {{kNoAge, kEnterAge},
     {"The age is missing or isn't from 13 to 99 years.",
      "De leeftijd ontbreekt of ligt niet tussen 13 en 99 jaar."},
     {"Enter your age in whole years. There are no recommended amounts for younger children.",
      "Vul je leeftijd in hele jaren in. Voor jongere kinderen zijn er geen aanbevolen "
      "hoeveelheden."}},
    {{kWrongDate, kCheckDate},
     {"The three boxes of the date make no date.",
      "De drie vakken van de datum vormen geen datum."},
     {"Write two digits in each box: 05, not 5.", "Schrijf twee cijfers in elk vak: 05, niet 5."}},
    {{kDeleteTitle, kDeleteTitleEnd, kDeleteGoing, kDeleteSure, kDeleteFiles},
     {"You asked to remove a user. The folder with all days, lists and the profile goes, and "
      "doesn't come back.",
      "Je wilt een gebruiker verwijderen. De map met alle dagen, lijsten en het profiel verdwijnt "
      "en komt niet terug."},
     {"No, unless you are certain. A backup made before keeps everything.",
      "Nee, tenzij je het zeker weet. In een reservekopie van tevoren blijft alles bewaard."}},
    {{main::kNewFile, main::kNewFileGoing, main::kNewFileLost, main::kNewFileSure},
     {"You are beginning a new day while the open one has unsaved changes.",
      "Je begint een nieuwe dag terwijl de open dag niet-opgeslagen wijzigingen heeft."},
     {"No, then save the open day first. With Yes its changes are lost.",
      "Nee, en sla eerst de open dag op. Met Ja gaan de wijzigingen ervan verloren."}},
    {{common::kOpenFileTitle, common::kOpenFileGoing, common::kOpenFileNotSaved,
      common::kOpenFileSure},
     {"You are opening another day while the open one has unsaved changes.",
      "Je opent een andere dag terwijl de open dag niet-opgeslagen wijzigingen heeft."},
     {"No, then save the open day first. With Yes its changes are lost.",
      "Nee, en sla eerst de open dag op. Met Ja gaan de wijzigingen ervan verloren."}},
    {{browse::kSwitchTitle, browse::kSwitchGoing, browse::kSwitchLost, browse::kSwitchSure},
     {"Going to another user closes the open day, which has unsaved changes.",
      "Als je naar een andere gebruiker gaat, wordt de open dag gesloten, en die heeft "
      "niet-opgeslagen wijzigingen."},
     {"No, then save the day. With Yes its changes are lost.",
      "Nee, en sla dan de dag op. Met Ja gaan de wijzigingen verloren."}},
    {{browse::kDeleteTitle, browse::kDeleteSure, browse::kDeleteSureEnd, browse::kDeletePressYes,
      browse::kDeletePressNo},
     {"The file of this one day will be deleted and doesn't come back.",
      "Het bestand van deze ene dag wordt verwijderd en komt niet terug."},
     {"Look at the date in the box. No keeps the day.",
      "Kijk naar de datum in de melding. Met Nee blijft de dag bestaan."}},
    {{OwnText::day_differs, OwnText::replaces_file, OwnText::replace_file_sure},
     {"Since you opened this day somebody else, or another copy of the program, has written its "
      "file.",
      "Sinds je deze dag opende, heeft iemand anders of een tweede exemplaar van het programma het "
      "bestand geschreven."},
     {"No keeps the file on the disk. Make a copy of it if you want both, then save again and "
      "answer Yes.",
      "Met Nee blijft het bestand op de schijf zoals het is. Maak er een kopie van als je beide "
      "wilt houden, sla daarna opnieuw op en antwoord Ja."}},
    {{diary::kCannotSave, diary::kHalfNotAllowed},
     {"The diary holds ½ or ¾, which the program uses inside its files.",
      "In het dagboek staat ½ of ¾; die tekens gebruikt het programma in zijn bestanden."},
     {"Write 1/2 or 3/4 instead, and save again.",
      "Schrijf in plaats daarvan 1/2 of 3/4 en sla opnieuw op."}},
    {{OwnText::diary_unsaved, OwnText::diary_save_first},
     {"You wrote in the diary and are leaving it before its text was taken into the day.",
      "Je hebt in het dagboek geschreven en verlaat het voordat de tekst in de dag is "
      "overgenomen."},
     {"Yes takes it into the day; the day itself must still be saved. Cancel goes back.",
      "Met Ja komt het in de dag; de dag zelf moet je nog opslaan. Met Annuleren ga je terug."}},
    {{OwnText::recovery_found, OwnText::recovery_user, OwnText::recovery_day,
      OwnText::recovery_made, OwnText::recovery_differs, OwnText::recovery_open,
      OwnText::recovery_drop, OwnText::recovery_keep},
     {"The program ended without saving, by a power cut for example. A copy of the work was kept; "
      "the box says whose day it is, when the copy was made and how it differs from what is saved.",
      "Het programma is geëindigd zonder op te slaan, bijvoorbeeld door een stroomstoring. Er is "
      "een kopie van het werk bewaard; de melding zegt wiens dag het is, wanneer de kopie is "
      "gemaakt en wat er anders is dan in de opgeslagen dag."},
     {"Open the day with it, look, and save it. If you aren't sure, keep the copy for later.",
      "Open de dag ermee, kijk ernaar en sla die op. Twijfel je, bewaar de kopie dan voor later."}},
    {{OwnText::recovery_no_file},
     {"In the box above: the day of this copy has no file. It was never saved, or its file is "
      "gone.",
      "In de melding hierboven: de dag van deze kopie heeft geen bestand. Die is nooit opgeslagen, "
      "of het bestand is weg."},
     {"Open the day with the copy and save it.", "Open de dag met de kopie en sla die op."}},
    {{OwnText::recovery_saved_since},
     {"In the box above: the day was saved after the copy had been made.",
      "In de melding hierboven: de dag is opgeslagen nadat de kopie is gemaakt."},
     {"Look at the date of the copy: what is saved may be newer.",
      "Kijk naar de datum van de kopie: wat is opgeslagen, kan nieuwer zijn."}},
    {{OwnText::recovery_no_user},
     {"In the box above: the folder of this user isn't among the users now.",
      "In de melding hierboven: de map van deze gebruiker staat nu niet bij de gebruikers."},
     {"Keep the copy. When the folder is back, on a disk that you connect for example, the next "
      "start offers it again.",
      "Bewaar de kopie. Is de map er weer, bijvoorbeeld op een schijf die je aansluit, dan biedt "
      "de volgende start haar opnieuw aan."}},
    {{OwnText::food_more, OwnText::foods_more, OwnText::food_less, OwnText::foods_less,
      OwnText::foods_moved, OwnText::diary_longer, OwnText::diary_shorter, OwnText::diary_changed,
      OwnText::day_settings_changed},
     {"In the box above: how the copy differs from the saved day.",
      "In de melding hierboven: wat er in de kopie anders is dan in de opgeslagen dag."},
     {"More foods or a longer diary are usually what you want to have back.",
      "Meer voedingsmiddelen of een langer dagboek wil je meestal terug."}},
};

}  // namespace

BoxGroup BoxesOfDays() {
  return {{"Days, users and the diary", "Dagen, gebruikers en het dagboek"}, kBoxes};
}

}  // namespace kelvora::help
