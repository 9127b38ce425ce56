#include "language/own_texts.h"

#include <algorithm>
#include <array>

#include "language/built_in_texts.h"
#include "language/main_texts.h"

namespace kelvora {
namespace {

struct OwnTextRow {
  OwnText id;
  std::string_view english;
  std::string_view dutch;
};

// In the order of OwnText.
constexpr std::array kRows = {
    OwnTextRow{OwnText::move_to_morning, "Move to the morning"_w, "Verplaats naar de ochtend"_w},
    OwnTextRow{OwnText::move_to_afternoon, "Move to the afternoon"_w, "Verplaats naar de middag"_w},
    OwnTextRow{OwnText::move_to_evening, "Move to the evening"_w, "Verplaats naar de avond"_w},
    OwnTextRow{OwnText::cut_foods, "Cut"_w, "Knippen"_w},
    OwnTextRow{OwnText::paste_foods, "Paste"_w, "Plakken"_w},
    OwnTextRow{OwnText::take_portion_out, "Take one portion out of the day"_w,
               "Haal één portie uit de dag"_w},
    OwnTextRow{OwnText::add_to_favourites, "Add to the favourites"_w,
               "Voeg toe aan de favorieten"_w},
    OwnTextRow{OwnText::add_to_morning, "Add to the morning"_w, "Toevoegen aan de ochtend"_w},
    OwnTextRow{OwnText::add_to_afternoon, "Add to the afternoon"_w, "Toevoegen aan de middag"_w},
    OwnTextRow{OwnText::add_to_evening, "Add to the evening"_w, "Toevoegen aan de avond"_w},
    OwnTextRow{OwnText::empty_own_list, "You have made no food items of your own yet."_w,
               "Je hebt nog geen eigen voedingsmiddelen gemaakt."_w},
    OwnTextRow{OwnText::empty_favourites,
               "You have no favourites yet. Drag a consumption here to add one."_w,
               "Je hebt nog geen favorieten. Sleep een consumptie hierheen."_w},
    OwnTextRow{OwnText::empty_results, "No food items were found."_w,
               "Er zijn geen voedingsmiddelen gevonden."_w},
    OwnTextRow{OwnText::folder_holds_other_data,
               "There is other data of this user in the new folder already."_w,
               "In de nieuwe map staan al andere gegevens van deze gebruiker."_w},
    OwnTextRow{OwnText::folder_replace_question, "Do you want to replace it by the data of now?"_w,
               "Wil je die vervangen door de gegevens van nu?"_w},
    OwnTextRow{OwnText::folder_press_no,
               "With 'No' it stays there, and you go on with it. No day is lost."_w,
               "Met 'Nee' blijven ze staan en ga je daarmee verder. Er gaat geen dag verloren."_w},
    OwnTextRow{OwnText::folder_from_now_on, "From now on your data is kept in the folder"_w,
               "Vanaf nu staan je gegevens in de map"_w},
    OwnTextRow{OwnText::replace_other_food,
               "You have another food item with the name \"%1\".\n"
               "Do you want to replace it?"_w,
               "Je hebt een ander voedingsmiddel met de naam \"%1\".\n"
               "Wil je dat vervangen?"_w},
    OwnTextRow{OwnText::look_at_box, "Look at the box \"%1\"."_w, "Kijk naar het vak \"%1\"."_w},
    OwnTextRow{OwnText::no_food_server, "No food server is known to this program."_w,
               "Dit programma kent geen voedingsserver."_w},
    OwnTextRow{OwnText::replace_category,
               "The category \"%1\" holds food items that your own list does not have.\n"
               "Do you want to replace all of them by your own list?"_w,
               "De categorie \"%1\" bevat voedingsmiddelen die niet in je eigen lijst staan.\n"
               "Wil je ze allemaal vervangen door je eigen lijst?"_w},
    OwnTextRow{OwnText::own_list_differs,
               "The file of your own food list could not be read, or has changed since."_w,
               "Het bestand met je eigen voedingsmiddelen kon niet worden gelezen, of is sindsdien "
               "veranderd."_w},
    OwnTextRow{OwnText::favourites_differ,
               "The file of your favourites could not be read, or has changed since."_w,
               "Het bestand met je favorieten kon niet worden gelezen, of is sindsdien "
               "veranderd."_w},
    OwnTextRow{OwnText::profile_differs,
               "The file of the profile could not be read, or has changed since."_w,
               "Het bestand met het profiel kon niet worden gelezen, of is sindsdien veranderd."_w},
    OwnTextRow{OwnText::replaces_file, "Saving now replaces what is in it."_w,
               "Als je nu opslaat, vervang je wat erin staat."_w},
    OwnTextRow{OwnText::replace_file_sure, "Do you want to replace it?"_w,
               "Wil je het vervangen?"_w},
    OwnTextRow{OwnText::own_list_unsaved, "Your own food list has not been saved yet."_w,
               "Je eigen voedingsmiddelen zijn nog niet opgeslagen."_w},
    OwnTextRow{OwnText::favourites_unsaved, "Your favourites have not been saved yet."_w,
               "Je favorieten zijn nog niet opgeslagen."_w},
    OwnTextRow{OwnText::profile_unsaved, "The profile has not been saved yet."_w,
               "Het profiel is nog niet opgeslagen."_w},
    OwnTextRow{OwnText::go_on_without_saving, "Do you want to go on without saving?"_w,
               "Wil je verdergaan zonder op te slaan?"_w},
    OwnTextRow{OwnText::character_left_out, "This character can't be stored and was left out:"_w,
               "Dit teken kan niet worden opgeslagen en is weggelaten:"_w},
    OwnTextRow{OwnText::characters_left_out,
               "These characters can't be stored and were left out:"_w,
               "Deze tekens kunnen niet worden opgeslagen en zijn weggelaten:"_w},
    OwnTextRow{OwnText::whole_numbers_only,
               "Only whole numbers can be entered here; the decimal mark was left out."_w,
               "Hier kunnen alleen hele getallen staan; het decimaalteken is weggelaten."_w},
    OwnTextRow{OwnText::sunday, "Sunday"_w, "zondag"_w},
    OwnTextRow{OwnText::monday, "Monday"_w, "maandag"_w},
    OwnTextRow{OwnText::tuesday, "Tuesday"_w, "dinsdag"_w},
    OwnTextRow{OwnText::wednesday, "Wednesday"_w, "woensdag"_w},
    OwnTextRow{OwnText::thursday, "Thursday"_w, "donderdag"_w},
    OwnTextRow{OwnText::friday, "Friday"_w, "vrijdag"_w},
    OwnTextRow{OwnText::saturday, "Saturday"_w, "zaterdag"_w},
    OwnTextRow{OwnText::name_not_possible, "This name can't be used for your folder."_w,
               "Deze naam kan niet voor je map worden gebruikt."_w},
    OwnTextRow{OwnText::name_advice,
               "Choose a name without \"/\" that is not \".\" or \"..\" and isn't too long."_w,
               "Kies een naam zonder \"/\" die niet \".\" of \"..\" is en niet te lang."_w},
    OwnTextRow{OwnText::diary_unsaved, "You have changed the diary and not saved it yet."_w,
               "Je hebt het dagboek gewijzigd en nog niet opgeslagen."_w},
    OwnTextRow{OwnText::diary_save_first,
               "Save it in the day first? With No the changes are lost."_w,
               "Wil je het eerst in de dag opslaan? Met Nee gaan de wijzigingen verloren."_w},
    OwnTextRow{OwnText::diary_cut, "Text cut short"_w, "Tekst ingekort"_w},
    OwnTextRow{OwnText::diary_cut_tip, "Not all of the text had room; its end was left out."_w,
               "Niet alle tekst paste; het einde is weggelaten."_w},
    OwnTextRow{OwnText::compare_as_food_1, "Compare as food item 1"_w,
               "Vergelijk als voedingsmiddel 1"_w},
    OwnTextRow{OwnText::compare_as_food_2, "Compare as food item 2"_w,
               "Vergelijk als voedingsmiddel 2"_w},
    OwnTextRow{OwnText::sheet_too_small,
               "The paper is too small for the whole page; print what fits on it?"_w,
               "Het papier is te klein voor de hele pagina; afdrukken wat erop past?"_w},
    OwnTextRow{OwnText::no_printer_chosen, "No printer has been chosen yet."_w,
               "Er is nog geen printer gekozen."_w},
    OwnTextRow{OwnText::empty_internet_list,
               "Enter a food item above and press ENTER to search on internet."_w,
               "Vul hierboven een voedingsmiddel in en druk op ENTER om op internet te zoeken."_w},
    OwnTextRow{OwnText::search_runs, "Searching. Press ESC to stop."_w,
               "Er wordt gezocht. Druk op ESC om te stoppen."_w},
    OwnTextRow{OwnText::sent_under_name, "The food item is sent under the name \"%1\"."_w,
               "Het voedingsmiddel wordt verzonden onder de naam \"%1\"."_w},
    OwnTextRow{OwnText::no_update_server, "No server for updates is known to this program."_w,
               "Dit programma kent geen server voor updates."_w},
    OwnTextRow{OwnText::copy_foods, "Copy"_w, "Kopiëren"_w},
    OwnTextRow{OwnText::undo_foods, "Undo"_w, "Ongedaan maken"_w},
    OwnTextRow{OwnText::redo_foods, "Redo"_w, "Opnieuw"_w},
    OwnTextRow{OwnText::take_over_from, "Take over from ..."_w, "Overnemen van ..."_w},
    OwnTextRow{OwnText::take_over_title, "Take over from another day"_w,
               "Overnemen van een andere dag"_w},
    OwnTextRow{OwnText::take_over_day, "Day"_w, "Dag"_w},
    OwnTextRow{OwnText::take_over_foods, "Eaten on that day"_w, "Gegeten op die dag"_w},
    OwnTextRow{OwnText::take_over, "Take over"_w, "Overnemen"_w},
    OwnTextRow{OwnText::take_over_whole_day, "Whole day"_w, "Hele dag"_w},
    OwnTextRow{OwnText::often, "Often"_w, "Vaak"_w},
    OwnTextRow{OwnText::often_tip, "Show what you ate most in the last 60 days"_w,
               "Toon wat je de laatste 60 dagen het meest hebt gegeten"_w},
    OwnTextRow{OwnText::empty_often, "There is no food yet in the days of the last two months."_w,
               "In de dagen van de laatste twee maanden staat nog geen voedsel."_w},
    OwnTextRow{OwnText::day_differs,
               "The file of this day has changed on the disk since it was opened."_w,
               "Het bestand van deze dag is op de schijf veranderd sinds het is geopend."_w},
    OwnTextRow{OwnText::recovery_found,
               "Work was found that had not been saved when Kelvora FOOD ended."_w,
               "Er is werk gevonden dat nog niet was opgeslagen toen Kelvora FOOD eindigde."_w},
    OwnTextRow{OwnText::recovery_user, "User:"_w, "Gebruiker:"_w},
    OwnTextRow{OwnText::recovery_day, "Day:"_w, "Dag:"_w},
    OwnTextRow{OwnText::recovery_made, "Copy made:"_w, "Kopie gemaakt:"_w},
    OwnTextRow{OwnText::recovery_differs, "Compared with the saved day:"_w,
               "Vergeleken met de opgeslagen dag:"_w},
    OwnTextRow{OwnText::recovery_no_file, "The day itself is not on the disk. The copy holds:"_w,
               "De dag zelf staat niet op de schijf. De kopie bevat:"_w},
    OwnTextRow{OwnText::recovery_saved_since, "The saved day has changed since then."_w,
               "De opgeslagen dag is sindsdien veranderd."_w},
    OwnTextRow{
        OwnText::recovery_no_user,
        "The day can't be opened now: this user is not in the users folder."_w,
        "De dag kan nu niet worden geopend: deze gebruiker staat niet in de gebruikersmap."_w},
    OwnTextRow{OwnText::recovery_open, "Open the day with it"_w, "Open de dag ermee"_w},
    OwnTextRow{OwnText::recovery_drop, "Throw it away"_w, "Gooi het weg"_w},
    OwnTextRow{OwnText::recovery_keep, "Keep it for later"_w, "Bewaar het voor later"_w},
    OwnTextRow{OwnText::food_more, "1 food more"_w, "1 voedingsmiddel meer"_w},
    OwnTextRow{OwnText::foods_more, "%1 foods more"_w, "%1 voedingsmiddelen meer"_w},
    OwnTextRow{OwnText::food_less, "1 food less"_w, "1 voedingsmiddel minder"_w},
    OwnTextRow{OwnText::foods_less, "%1 foods less"_w, "%1 voedingsmiddelen minder"_w},
    OwnTextRow{OwnText::foods_moved, "foods moved"_w, "voedingsmiddelen verplaatst"_w},
    OwnTextRow{OwnText::diary_longer, "diary longer"_w, "dagboek langer"_w},
    OwnTextRow{OwnText::diary_shorter, "diary shorter"_w, "dagboek korter"_w},
    OwnTextRow{OwnText::diary_changed, "diary changed"_w, "dagboek gewijzigd"_w},
    OwnTextRow{OwnText::day_settings_changed, "profile of the day changed"_w,
               "profiel van de dag gewijzigd"_w},
    OwnTextRow{OwnText::language_code, "en"_w, "nl"_w},
    OwnTextRow{OwnText::toolbar_of_panels, "Panels below the list"_w, "Panelen onder de lijst"_w},
    OwnTextRow{OwnText::toolbar_of_row, "Selected food item"_w, "Gekozen voedingsmiddel"_w},
    OwnTextRow{OwnText::more_buttons, "More buttons"_w, "Meer knoppen"_w},
    OwnTextRow{OwnText::menu_backup, "Back up ..."_w, "Reservekopie maken ..."_w},
    OwnTextRow{OwnText::menu_restore, "Restore ..."_w, "Reservekopie terugzetten ..."_w},
    OwnTextRow{OwnText::backup_title, "Back up"_w, "Reservekopie maken"_w},
    OwnTextRow{
        OwnText::backup_info,
        "A backup is one zip file with the profile, the lists and the days of a user. Keep it on another disk or computer."_w,
        "Een reservekopie is één zipbestand met het profiel, de lijsten en de dagen van een gebruiker. Bewaar het op een andere schijf of computer."_w},
    OwnTextRow{OwnText::backup_whom, "Users:"_w, "Gebruikers:"_w},
    OwnTextRow{OwnText::backup_all_users, "All users"_w, "Alle gebruikers"_w},
    OwnTextRow{OwnText::backup_unsaved, "What is not saved yet will not be in the backup."_w,
               "Wat nog niet is opgeslagen, komt niet in de reservekopie."_w},
    OwnTextRow{OwnText::backup_remind, "Remind me after %1 days without a backup"_w,
               "Herinner me na %1 dagen zonder reservekopie"_w},
    OwnTextRow{OwnText::backup_no_users, "There are no users to back up yet."_w,
               "Er zijn nog geen gebruikers om een reservekopie van te maken."_w},
    OwnTextRow{OwnText::backup_start, "Back up"_w, "Maak kopie"_w},
    OwnTextRow{OwnText::backup_prompt, "Back up to"_w, "Reservekopie bewaren als"_w},
    OwnTextRow{OwnText::backup_progress, "Progress"_w, "Voortgang"_w},
    OwnTextRow{
        OwnText::backup_done,
        "The backup is made. Files written, read back and compared: %1"_w,
        "De reservekopie is gemaakt. Bestanden geschreven, teruggelezen en vergeleken: %1"_w},
    OwnTextRow{OwnText::backup_incomplete,
               "The backup is not complete: some files could not be read."_w,
               "De reservekopie is niet compleet: sommige bestanden konden niet worden gelezen."_w},
    OwnTextRow{OwnText::days_without_backup, "No backup for %1 days"_w,
               "Al %1 dagen geen reservekopie"_w},
    OwnTextRow{OwnText::days_without_backup_tip, "Menu Extra, Back up ..."_w,
               "Menu Extra, Reservekopie maken ..."_w},
    OwnTextRow{OwnText::restore_title, "Restore"_w, "Reservekopie terugzetten"_w},
    OwnTextRow{OwnText::restore_prompt, "Backup to bring back"_w,
               "Reservekopie om terug te zetten"_w},
    OwnTextRow{OwnText::restore_reading, "The backup is being read ..."_w,
               "De reservekopie wordt gelezen ..."_w},
    OwnTextRow{OwnText::restore_no_backup, "This file is no backup that can be read."_w,
               "Dit bestand is geen leesbare reservekopie."_w},
    OwnTextRow{OwnText::restore_encrypted, "This file is encrypted and can't be read."_w,
               "Dit bestand is versleuteld en kan niet worden gelezen."_w},
    OwnTextRow{OwnText::restore_damaged,
               "A part of the backup is damaged and can't be brought back."_w,
               "Een deel van de reservekopie is beschadigd en kan niet worden teruggezet."_w},
    OwnTextRow{OwnText::restore_foreign, "Files that belong to no user were passed over: %1"_w,
               "Bestanden die bij geen gebruiker horen, zijn overgeslagen: %1"_w},
    OwnTextRow{OwnText::restore_users, "Users"_w, "Gebruikers"_w},
    OwnTextRow{OwnText::restore_days, "Days"_w, "Dagen"_w},
    OwnTextRow{OwnText::restore_files, "Profile, lists and days"_w, "Profiel, lijsten en dagen"_w},
    OwnTextRow{OwnText::restore_what, "What"_w, "Wat"_w},
    OwnTextRow{OwnText::restore_here, "Here"_w, "Hier"_w},
    OwnTextRow{OwnText::restore_profile, "Profile"_w, "Profiel"_w},
    OwnTextRow{OwnText::restore_own_list, "Own food items"_w, "Eigen voedingsmiddelen"_w},
    OwnTextRow{OwnText::restore_favourites, "Favourites"_w, "Favorieten"_w},
    OwnTextRow{OwnText::restore_absent, "not here"_w, "niet aanwezig"_w},
    OwnTextRow{OwnText::restore_same, "the same"_w, "gelijk"_w},
    OwnTextRow{OwnText::restore_differs, "differs"_w, "verschilt"_w},
    OwnTextRow{OwnText::restore_when_different, "What differs here"_w, "Wat hier verschilt"_w},
    OwnTextRow{
        OwnText::restore_keep_both,
        "Keep both: days under another name, lists joined, your profile"_w,
        "Bewaar beide: dagen onder een andere naam, lijsten samengevoegd, je eigen profiel"_w},
    OwnTextRow{OwnText::restore_take_backup, "Take the backup's"_w,
               "Neem die van de reservekopie"_w},
    OwnTextRow{OwnText::restore_keep_mine, "Keep mine"_w, "Houd die van mij"_w},
    OwnTextRow{OwnText::restore_start, "Restore"_w, "Zet terug"_w},
    OwnTextRow{OwnText::restore_done, "The backup was brought back. Files written: %1"_w,
               "De reservekopie is teruggezet. Bestanden geschreven: %1"_w},
    OwnTextRow{OwnText::restore_unchanged, "Left as they were: %1"_w,
               "Gebleven zoals ze waren: %1"_w},
    OwnTextRow{OwnText::restore_stopped, "Stopped. Files brought back until then: %1"_w,
               "Gestopt. Tot dan teruggezette bestanden: %1"_w},
    OwnTextRow{OwnText::carrying_close, "Close"_w, "Sluiten"_w},
    OwnTextRow{OwnText::carrying_cancel, "Cancel"_w, "Annuleren"_w},
    OwnTextRow{OwnText::no_name_begins, "No name begins with this; Enter searches everywhere."_w,
               "Geen naam begint hiermee; Enter zoekt overal."_w},
    OwnTextRow{OwnText::enter_adds_to_morning, "Enter adds to: morning"_w,
               "Enter voegt toe aan: ochtend"_w},
    OwnTextRow{OwnText::enter_adds_to_afternoon, "Enter adds to: afternoon"_w,
               "Enter voegt toe aan: middag"_w},
    OwnTextRow{OwnText::enter_adds_to_evening, "Enter adds to: evening"_w,
               "Enter voegt toe aan: avond"_w},
    OwnTextRow{OwnText::amount, "Amount:"_w, "Hoeveelheid:"_w},
    OwnTextRow{OwnText::amount_tip,
               "How much: 2, 1/2, 150 g or 5 oz. Nothing here means one portion."_w,
               "Hoeveel: 2, 1/2, 150 g of 5 oz. Niets betekent één portie."_w},
    OwnTextRow{OwnText::other_amount, "Other amount ..."_w, "Andere hoeveelheid ..."_w},
    OwnTextRow{OwnText::amount_not_read, "Enter an amount such as 2, 1/2, 150 g or 5 oz."_w,
               "Vul een hoeveelheid in, zoals 2, 1/2, 150 g of 5 oz."_w},
    OwnTextRow{OwnText::amount_too_much, "No more than 20 portions or 10,000 g at a time."_w,
               "Niet meer dan 20 porties of 10.000 g per keer."_w},
    OwnTextRow{OwnText::amount_no_weight, "This food has no weight; say how many portions."_w,
               "Dit voedingsmiddel heeft geen gewicht; vul porties in."_w},
};
static_assert(kRows.size() == kOwnTextCount);
static_assert(std::ranges::all_of(kRows, [](const OwnTextRow& row) {
  return &row == &kRows[static_cast<std::size_t>(row.id)];
}));

}  // namespace

Language LanguageOf(const TextTables& texts) {
  const auto rows = MainTextRows();
  const auto row = std::ranges::find(rows, main_text::kFile, &TextRow::id);
  return texts[main_text::kFile] == row->dutch ? Language::dutch : Language::english;
}

Text OwnTextOf(const TextTables& texts, OwnText id) {
  const auto place = static_cast<std::size_t>(id);
  const bool translated = place < texts.own.size() && !texts.own[place].empty();
  return translated ? texts.own[place] : OwnTextIn(Language::english, id);
}

Text LanguageCodeOf(const TextTables& texts) {
  const auto place = static_cast<std::size_t>(OwnText::language_code);
  if (place < texts.own.size() && !texts.own[place].empty()) return texts.own[place];
  return OwnTextIn(LanguageOf(texts), OwnText::language_code);
}

std::vector<Text> OwnTextsIn(Language language) {
  std::vector<Text> texts;
  for (const OwnTextRow& row : kRows) texts.push_back(OwnTextIn(language, row.id));
  return texts;
}

Text OwnTextWith(const TextTables& texts, OwnText id, std::string_view name) {
  constexpr std::string_view kPlace = "%1";
  Text text = OwnTextOf(texts, id);
  const std::size_t place = text.find(kPlace);
  return place == text.npos ? text : text.replace(place, kPlace.size(), name);
}

Text OwnTextIn(Language language, OwnText id) {
  const OwnTextRow& row = kRows[static_cast<std::size_t>(id)];
  return Text(language == Language::dutch ? row.dutch : row.english);
}

}  // namespace kelvora
