#include "language/common_texts.h"
#include "language/food_details_texts.h"
#include "language/lists_texts.h"
#include "language/new_food_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

using namespace lists_text;
namespace common = common_text;
namespace details = food_details_text;
namespace new_food = new_food_text;

const std::vector<BoxHelp> kBoxes = {
    {{kTooManyDragged, kSelectAgain},
     {"More than ten rows were selected when you began to drag.",
      "Je had meer dan tien rijen geselecteerd toen je begon te slepen."},
     {"Select ten or fewer, and drag again.", "Selecteer er tien of minder en sleep opnieuw."}},
    {{kTooManySelected, kSelectOne},
     {"This command works on one food at a time.",
      "Deze opdracht werkt met één voedingsmiddel tegelijk."},
     {"Select one row.", "Selecteer één rij."}},
    {{kCopyQuestion, kCopySure},
     {"Your own list becomes a category of the standard list, under your name. Every user of this "
      "account can then find these foods.",
      "Je eigen lijst wordt een categorie van de standaardlijst, onder jouw naam. Elke gebruiker "
      "van dit account kan die voedingsmiddelen dan vinden."},
     {"Yes if that is what you want; your own list stays as it is.",
      "Ja als je dat wilt; je eigen lijst blijft zoals die is."}},
    {{OwnText::replace_category},
     {"There is a category with your name already, and it holds foods that you would lose.",
      "Er is al een categorie met jouw naam, en daarin staan voedingsmiddelen die je zou "
      "kwijtraken."},
     {"No keeps it as it is.", "Met Nee blijft die zoals die is."}},
    {{common::kFavouriteExists, common::kFavouriteOnlyOnce},
     {"This food is among your favourites.", "Dit voedingsmiddel staat al bij je favorieten."},
     {"Nothing.", "Niets."}},
    {{common::kFavouriteAdded},
     {"The favourites hold one food more, and are saved.",
      "De favorieten bevatten een voedingsmiddel meer en zijn opgeslagen."},
     {"Nothing.", "Niets."}},
    {{OwnText::favourite_unknown},
     {"A favourite is a copy of a line of the standard list or of your own. This food stands in "
      "the "
      "day alone: it was deleted, renamed or combined.",
      "Een favoriet is een kopie van een regel van de standaardlijst of van je eigen lijst. Dit "
      "voedingsmiddel staat alleen in de dag: het is verwijderd, hernoemd of samengesteld."},
     {"Enter it as a new food of your own list, and make that a favourite.",
      "Voer het in als nieuw voedingsmiddel van je eigen lijst en maak dat favoriet."}},
    {{new_food::kValuesMissing, new_food::kEnterValues},
     {"A box that is needed for a new food is empty or holds no number.",
      "Een vak dat voor een nieuw voedingsmiddel nodig is, is leeg of bevat geen getal."},
     {"Fill in the box the cursor goes to. Enter 0 for a value that you don't know.",
      "Vul het vak in waar de cursor heen gaat. Vul 0 in voor een waarde die je niet weet."}},
    {{new_food::kIllegalCharacters, new_food::kHalfNotAllowed, new_food::kRemoveCharacters},
     {"A box of the new food holds ½ or ¾.",
      "In een vak van het nieuwe voedingsmiddel staat ½ of ¾."},
     {"Write 1/2 or 3/4 instead.", "Schrijf in plaats daarvan 1/2 of 3/4."}},
    {{new_food::kTooMuchData, new_food::kShortenDescription},
     {"The texts of the new food together are too long.",
      "De teksten van het nieuwe voedingsmiddel zijn samen te lang."},
     {"Shorten the name, the unit or the remark.",
      "Maak de naam, de eenheid of de opmerking korter."}},
    {{OwnText::look_at_box},
     {"This line in a box names what it is about.",
      "Deze regel in een melding noemt het vak waar het om gaat."},
     {"Correct what is in that box.", "Verbeter wat in dat vak staat."}},
    {{new_food::kNameExists, new_food::kChooseAnotherName},
     {"Your own list has a food of this name.",
      "In je eigen lijst staat al een voedingsmiddel met deze naam."},
     {"Choose another name.", "Kies een andere naam."}},
    {{new_food::kHighSodiumTitle, new_food::kHighSodium, new_food::kHighSodiumValue,
      new_food::kHighSodiumInGram, new_food::kHighSodiumSure},
     {"A new food would hold an unusual amount of sodium. Most often milligrams were entered where "
      "grams are meant.",
      "Een nieuw voedingsmiddel zou ongewoon veel natrium bevatten. Meestal zijn dan milligrammen "
      "ingevuld in plaats van grammen."},
     {"No, then divide by 1000 if the package says milligrams. Salt isn't sodium: divide salt by "
      "2.5.",
      "Nee, en deel door 1000 als op de verpakking milligrammen staan. Zout is geen natrium: deel "
      "zout door 2,5."}},
    {{new_food::kSaved},
     {"The new food is in your own list, on the disk.",
      "Het nieuwe voedingsmiddel staat in je eigen lijst, op de schijf."},
     {"Nothing; the window is ready for the next one.",
      "Niets; het venster is klaar voor het volgende."}},
    {{details::kFieldsMissing, details::kFillInFields},
     {"The details of a food lack something that is needed.",
      "In de details van een voedingsmiddel ontbreekt iets dat nodig is."},
     {"Fill in the box the cursor goes to.", "Vul het vak in waar de cursor heen gaat."}},
    {{details::kWeightNotWhole, details::kChangeWeight},
     {"The weight of a food is stored in whole grams.",
      "Het gewicht van een voedingsmiddel wordt in hele grammen bewaard."},
     {"Round it.", "Rond het af."}},
    {{details::kValuesMissing, details::kFillInValues, details::kFillInZero},
     {"A nutritional value is empty.", "Een voedingswaarde is leeg."},
     {"Fill it in; 0 if you don't know it. An unknown value then counts as none.",
      "Vul haar in; 0 als je haar niet weet. Een onbekende waarde telt dan als niets."}},
    {{details::kIllegalCharacters, details::kHalfNotAllowed, details::kRemoveCharacters},
     {"One of the details holds ½ or ¾.", "In een van de details staat ½ of ¾."},
     {"Write 1/2 or 3/4 instead.", "Schrijf in plaats daarvan 1/2 of 3/4."}},
    {{details::kTooMuchData, details::kShortenDescription, details::kTooMuchDataRemove},
     {"The texts of this food together are too long.",
      "De teksten van dit voedingsmiddel zijn samen te lang."},
     {"Shorten the name, the unit or the remark.",
      "Maak de naam, de eenheid of de opmerking korter."}},
    {{details::kHighSodiumTitle, details::kHighSodium, details::kHighSodiumValue,
      details::kHighSodiumInGram, details::kHighSodiumSure},
     {"The food you are changing would hold an unusual amount of sodium.",
      "Het voedingsmiddel dat je wijzigt, zou ongewoon veel natrium bevatten."},
     {"No, then check whether you entered milligrams instead of grams.",
      "Nee, en kijk dan of je milligrammen in plaats van grammen hebt ingevuld."}},
    {{OwnText::replace_other_food},
     {"You gave the food a name that another food of yours has.",
      "Je hebt het voedingsmiddel een naam gegeven die een ander eigen voedingsmiddel al heeft."},
     {"No, then choose another name. With Yes the other food is gone; days that hold it keep it.",
      "Nee, en kies een andere naam. Met Ja is het andere voedingsmiddel weg; dagen waarin het "
      "staat, houden het."}},
    {{details::kSavedFoodItem, details::kSavedInOwnList},
     {"The food you changed is in your own list now, on the disk.",
      "Het voedingsmiddel dat je hebt gewijzigd, staat nu in je eigen lijst, op de schijf."},
     {"Nothing. Days of before keep the values of then.",
      "Niets. Eerdere dagen houden de waarden van toen."}},
    {{OwnText::import_licence_question},
     {"Before a published table is imported, the box says who made it and what you may do with it.",
      "Voordat een gepubliceerde tabel wordt geïmporteerd, zegt de melding wie hem heeft gemaakt "
      "en wat je ermee mag."},
     {"Yes imports it; No leaves everything as it was.",
      "Met Ja wordt hij geïmporteerd; met Nee blijft alles zoals het was."}},
    {{OwnText::licence_fdc, OwnText::licence_sr, OwnText::licence_ciqual, OwnText::licence_nevo,
      OwnText::licence_off},
     {"In the box above, each for its own table: who made it and under which terms.",
      "In de melding hierboven, elk voor zijn eigen tabel: wie hem heeft gemaakt en onder welke "
      "voorwaarden."},
     {"Keep to them if you pass foods on.", "Houd je eraan als je voedingsmiddelen doorgeeft."}},
    {{OwnText::import_foods_added},
     {"The foods of the table are in the standard list, as categories of their own.",
      "De voedingsmiddelen van de tabel staan in de standaardlijst, in eigen categorieën."},
     {"Nothing.", "Niets."}},
    {{OwnText::import_no_foods},
     {"No row of the table could be used, or none was wanted.",
      "Geen rij van de tabel was bruikbaar, of geen was gewenst."},
     {"Check the groups, the country and the columns in the dialog.",
      "Controleer de groepen, het land en de kolommen in het venster."}},
    {{OwnText::import_remove_question},
     {"All categories that came with this table will be deleted.",
      "Alle categorieën die met deze tabel zijn gekomen, worden verwijderd."},
     {"Yes if you don't need them. You can import the table again.",
      "Ja als je ze niet nodig hebt. Je kunt de tabel opnieuw importeren."}},
    {{OwnText::import_empty},
     {"The file that you chose holds nothing.", "Het bestand dat je koos, is leeg."},
     {"Download it again.", "Download het opnieuw."}},
    {{OwnText::import_compressed},
     {"The file is packed, or a workbook of a spreadsheet program.",
      "Het bestand is ingepakt, of het is een werkmap van een rekenprogramma."},
     {"Unpack it, or save it as CSV in the spreadsheet program.",
      "Pak het uit, of sla het in het rekenprogramma op als CSV."}},
    {{OwnText::import_utf16},
     {"The text is stored in a form that isn't read.",
      "De tekst is bewaard in een vorm die niet wordt gelezen."},
     {"Save it as UTF-8 in a text editor or a spreadsheet program.",
      "Sla hem op als UTF-8 in een tekstverwerker of rekenprogramma."}},
    {{OwnText::import_binary},
     {"The file is a picture, a program or something else that is no text.",
      "Het bestand is een afbeelding, een programma of iets anders dat geen tekst is."},
     {"Choose the table itself.", "Kies de tabel zelf."}},
    {{OwnText::import_column},
     {"Nothing in the file separates columns.", "Niets in het bestand scheidt kolommen."},
     {"Save it as CSV, with tabs, semicolons, bars or commas.",
      "Sla het op als CSV, met tabs, puntkomma's, strepen of komma's."}},
    {{OwnText::import_folder_incomplete},
     {"FoodData Central comes in several files, of which one is missing here.",
      "FoodData Central bestaat uit meerdere bestanden, en hier ontbreekt er een."},
     {"Unpack the whole archive into one folder, and choose that.",
      "Pak het hele archief uit in één map en kies die."}},
};

}  // namespace

BoxGroup BoxesOfFoods() {
  return {{"Food lists, own foods and import",
           "Voedingsmiddelenlijsten, eigen voedingsmiddelen en import"},
          kBoxes};
}

}  // namespace kelvora::help
