#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

const std::vector<BoxHelp> kBoxes = {
    {{OwnText::own_list_differs, OwnText::replaces_file, OwnText::replace_file_sure},
     {"The file of your own foods could not be read, or something else wrote it since. Saving "
      "would put the list of the program in its place.",
      "Het bestand met je eigen voedingsmiddelen kon niet worden gelezen, of iets anders heeft het "
      "intussen geschreven. Opslaan zet de lijst van het programma ervoor in de plaats."},
     {"No, and make a copy of the file Databases/Custom.dat in your user folder first.",
      "Nee, en maak eerst een kopie van het bestand Databases/Custom.dat in je gebruikersmap."}},
    {{OwnText::favourites_differ, OwnText::replaces_file, OwnText::replace_file_sure},
     {"The same of your favourites.", "Hetzelfde voor je favorieten."},
     {"No, and make a copy of Databases/Favorites.dat first.",
      "Nee, en maak eerst een kopie van Databases/Favorites.dat."}},
    {{OwnText::profile_differs, OwnText::replaces_file, OwnText::replace_file_sure},
     {"The same of your profile.", "Hetzelfde voor je profiel."},
     {"No, and make a copy of Profile/Profile.usr first.",
      "Nee, en maak eerst een kopie van Profile/Profile.usr."}},
    {{OwnText::own_list_unsaved, OwnText::go_on_without_saving},
     {"Your own foods were changed, and writing them failed before. What you are about to do would "
      "lose the change.",
      "Je eigen voedingsmiddelen zijn gewijzigd, en het opslaan is eerder mislukt. Wat je nu gaat "
      "doen, zou die wijziging verliezen."},
     {"No, then save: the program tries again. Look for the reason, such as a full disk.",
      "Nee, en sla dan op: het programma probeert het opnieuw. Zoek de oorzaak, bijvoorbeeld een "
      "volle schijf."}},
    {{OwnText::favourites_unsaved, OwnText::go_on_without_saving},
     {"The same of your favourites.", "Hetzelfde voor je favorieten."},
     {"No, then save.", "Nee, en sla dan op."}},
    {{OwnText::profile_unsaved, OwnText::go_on_without_saving},
     {"The same of your profile.", "Hetzelfde voor je profiel."},
     {"No, then save.", "Nee, en sla dan op."}},
    {{OwnText::folder_holds_other_data, OwnText::folder_replace_question, OwnText::folder_press_no},
     {"You chose another folder for the data of users, and it has data of a user of this name.",
      "Je koos een andere map voor de gegevens van gebruikers, en daarin staan gegevens van een "
      "gebruiker met deze naam."},
     {"No, unless you know that what lies there is old.",
      "Nee, tenzij je weet dat wat daar staat oud is."}},
    {{OwnText::folder_from_now_on},
     {"The folder of users has changed; the box says which one it is now. Days in the old folder "
      "stay there.",
      "De map van gebruikers is veranderd; de melding zegt welke het nu is. Dagen in de oude map "
      "blijven daar."},
     {"Copy the old folders of users into the new one if you want them there.",
      "Kopieer de oude gebruikersmappen naar de nieuwe map als je ze daar wilt hebben."}},
    {{OwnText::backup_done},
     {"The backup is complete: each file was read back from the zip file and compared.",
      "De reservekopie is compleet: elk bestand is uit het zipbestand teruggelezen en vergeleken."},
     {"Keep it on another disk or computer.", "Bewaar haar op een andere schijf of computer."}},
    {{OwnText::backup_incomplete},
     {"Some files could not be read; the box with the code #F17-3 before this one names them. All "
      "others are in the backup.",
      "Sommige bestanden konden niet worden gelezen; de melding met de code #F17-3 hiervoor noemt "
      "ze. Alle andere staan in de reservekopie."},
     {"Look whether you can open these days in the program, then back up again.",
      "Kijk of je die dagen in het programma kunt openen en maak opnieuw een reservekopie."}},
    {{OwnText::restore_no_backup},
     {"The file is no zip file made by this program, or it is damaged from its beginning.",
      "Het bestand is geen zipbestand van dit programma, of het is vanaf het begin beschadigd."},
     {"Choose another file.", "Kies een ander bestand."}},
    {{OwnText::restore_done, OwnText::restore_unchanged},
     {"What you chose of the backup is back; files that were the same stayed.",
      "Wat je van de reservekopie koos, is terug; bestanden die gelijk waren, zijn gebleven."},
     {"Nothing.", "Niets."}},
    {{OwnText::restore_stopped},
     {"You stopped the restoring, or it failed. Files that were brought back until then are whole.",
      "Je hebt het terugzetten gestopt, of het is mislukt. Bestanden die tot dan zijn teruggezet, "
      "zijn heel."},
     {"Restore again; what is there already counts as the same.",
      "Zet opnieuw terug; wat er al is, geldt als gelijk."}},
};

}  // namespace

BoxGroup BoxesOfFiles() {
  return {{"Files, users folder and backups", "Bestanden, gebruikersmap en reservekopieën"},
          kBoxes};
}

}  // namespace kelvora::help
