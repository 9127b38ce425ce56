#include "language/common_texts.h"
#include "language/main_texts.h"
#include "language/properties_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

using namespace common_text;
using namespace main_text;
using properties_text::kNoFolder;
using properties_text::kNoFolderAdvice;
using properties_text::kNoLanguage;

const std::vector<BoxHelp> kBoxes = {
    {{kFirstRunNotFound, kFirstRunProbably, kFirstRunPressOk},
     {"There are no settings yet, as at a first start; or their file could not be read. The "
      "program begins with those it has by itself.",
      "Er zijn nog geen instellingen, zoals bij een eerste start; of het bestand ervan kon niet "
      "worden gelezen. Het programma begint met zijn eigen waarden."},
     {"Press OK and look through the settings. Your days are elsewhere and untouched.",
      "Klik op OK en loop de instellingen door. Je dagen staan ergens anders; daar is niets mee "
      "gebeurd."}},
    {{kScreenWarningTitle, kResolutionIs, kResolutionAdvice, kResolutionChange, kResolutionWhere},
     {"The screen is narrower than 1024 pixels, so not everything fits side by side.",
      "Het scherm is smaller dan 1024 pixels, dus niet alles past naast elkaar."},
     {"You can go on. If you can, choose a higher resolution in the settings of your desktop.",
      "Je kunt doorgaan. Kies als het kan een hogere resolutie in de instellingen van je "
      "bureaublad."}},
    {{kSeparatorIs, kCannotContinue, kSeparatorMustBe, kCannotUse},
     {"Your system writes decimals with something else than a point or a comma.",
      "Je systeem schrijft decimalen met iets anders dan een punt of een komma."},
     {"Choose another format for numbers in the regional settings of your desktop, and start the "
      "program again.",
      "Kies een andere getalnotatie in de landinstellingen van je bureaublad en start het "
      "programma opnieuw."}},
    {{kSeparatorChanged, kSeparatorAtStart, kCannotContinue, kDoNotSave, kCloseAndStart},
     {"The decimal sign of your system was changed while the program ran. Numbers could be misread "
      "from here on.",
      "Het decimaalteken van je systeem is gewijzigd terwijl het programma liep. Getallen kunnen "
      "vanaf nu verkeerd worden gelezen."},
     {"Set it back, or close the program without saving and start it again.",
      "Zet het terug, of sluit het programma af zonder op te slaan en start het opnieuw."}},
    {{kHalfNotDisplayed, kHalfNeeded, kHalfErrors, kHalfClose},
     {"The sign ½, which the program needs between the parts of a food, does not come back as it "
      "was.",
      "Het teken ½, dat het programma tussen de delen van een voedingsmiddel nodig heeft, komt "
      "niet terug zoals het was."},
     {"Close the program and check the regional settings of your system.",
      "Sluit het programma af en controleer de landinstellingen van je systeem."}},
    {{kNoLanguage},
     {"The settings can't be saved without a language.",
      "De instellingen kunnen niet zonder taal worden opgeslagen."},
     {"Choose one from the list. If it is empty, press the button beside it to make the language "
      "files again.",
      "Kies er een uit de lijst. Is die leeg, druk dan op de knop ernaast om de taalbestanden "
      "opnieuw te maken."}},
    {{kNoFolder, kNoFolderAdvice},
     {"You ticked another folder for the data of users, and there is none in the box.",
      "Je hebt een andere map voor de gegevens van gebruikers aangevinkt, maar er staat geen map "
      "in het vak."},
     {"Choose a folder with the button, or take the tick away.",
      "Kies een map met de knop, of haal het vinkje weg."}},
    {{kRepairQuestion1, kRepairQuestion2, kRepairQuestion3},
     {"The standard language files are deleted and made anew. A translation of your own, in a file "
      "with another name, stays.",
      "De standaardtaalbestanden worden verwijderd en opnieuw gemaakt. Een eigen vertaling in een "
      "bestand met een andere naam blijft staan."},
     {"Yes if the texts of the program are damaged. What you changed in the standard files "
      "themselves is lost.",
      "Ja als de teksten van het programma beschadigd zijn. Wat je in de standaardbestanden zelf "
      "hebt veranderd, gaat verloren."}},
    {{kRepaired},
     {"The standard language files have been made anew.",
      "De standaardtaalbestanden zijn opnieuw gemaakt."},
     {"Nothing; the windows have their words again.",
      "Niets; de vensters hebben hun woorden terug."}},
    {{std::string_view("Error during loading #03"),
      std::string_view("Error during loading!\nThe language file could not be opened")},
     {"The language file of the settings can't be read. The program goes on with the words it has.",
      "Het taalbestand van de instellingen kan niet worden gelezen. Het programma gaat verder met "
      "de woorden die het heeft."},
     {"Choose another language in the settings, or repair the language files there.",
      "Kies een andere taal in de instellingen, of herstel daar de taalbestanden."}},
    {{std::string_view("An error occured during language version retrieval in file ")},
     {"The version of a standard language file can't be read; the file stands behind the words.",
      "De versie van een standaardtaalbestand kan niet worden gelezen; achter de woorden staat "
      "welk bestand."},
     {"Repair the language files in the settings. If that fails, check whether you may read that "
      "folder.",
      "Herstel de taalbestanden in de instellingen. Lukt dat niet, kijk dan of je die map mag "
      "lezen."}},
    {{std::string_view("An error occured while saving the languagefile")},
     {"A standard language file can't be written; the file stands behind the words.",
      "Een standaardtaalbestand kan niet worden geschreven; achter de woorden staat welk bestand."},
     {"Check whether the disk is full and whether you may write in that folder.",
      "Kijk of de schijf vol is en of je in die map mag schrijven."}},
    {{kHelpMissing, kHelpFolder},
     {"The pages you are reading were not where the program looks for them.",
      "De pagina's die je nu leest, stonden niet waar het programma ze zoekt."},
     {"Install the program again; the folder in the box shows where the pages belong.",
      "Installeer het programma opnieuw; de map in de melding is waar de pagina's horen."}},
    {{kAddressUnknown, kAddressAdvice},
     {"No address of this website is known. That is so after every fresh installation.",
      "Van deze website is geen adres bekend. Dat is zo na elke nieuwe installatie."},
     {"Nothing, unless somebody gave you an address: that goes into the file servers.conf beside "
      "the program.",
      "Niets, tenzij iemand je een adres heeft gegeven: dat hoort in het bestand servers.conf "
      "naast het programma."}},
    {{kDiagnoseMissing, kDiagnoseFolder, kDiagnoseAdvice},
     {"The menu starts a separate program that checks the computer, and it isn't part of this one.",
      "Het menu start een apart programma dat de computer controleert, en dat hoort hier niet "
      "bij."},
     {"Nothing; Kelvora FOOD doesn't need it.", "Niets; Kelvora FOOD heeft het niet nodig."}},
    {{kSelectPrintOption, kSeveralOptions},
     {"The button to print has two choices: the summary of the day and the empty travel form.",
      "Onder de afdrukknop zitten twee keuzes: het daguittreksel en het lege reisformulier."},
     {"Choose one of them in the menu that drops down beside the button.",
      "Kies er een in het menu dat naast de knop openklapt."}},
    {{kExitTitle, kExitNotSaved, kExitSure},
     {"You are closing the program and the open day has changes that are on no disk yet.",
      "Je sluit het programma af en de open dag heeft wijzigingen die nog op geen schijf staan."},
     {"No, then save the day. With Yes the changes are gone.",
      "Nee, en sla dan de dag op. Met Ja zijn de wijzigingen weg."}},
};

}  // namespace

BoxGroup BoxesOfStart() {
  return {{"Start, settings, language, end", "Start, instellingen, taal, einde"}, kBoxes};
}

}  // namespace kelvora::help
