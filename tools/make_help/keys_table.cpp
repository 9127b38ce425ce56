#include <algorithm>
#include <array>

#include "core/frame/commands.h"
#include "core/frame/help_pages.h"
#include "core/keys.h"
#include "make_help/facts.h"
#include "make_help/html.h"

namespace kelvora::help {
namespace {

enum class Place { menu, main_window, food_lists, day_list, trend, lists, everywhere };

struct PlaceRow {
  Place place;
  Words title;
};
constexpr std::array kPlaces = {
    PlaceRow{Place::everywhere, {"Everywhere", "Overal"}},
    PlaceRow{Place::menu, {"Commands of the menu", "Opdrachten van het menu"}},
    PlaceRow{Place::main_window,
             {"Going about in the main window", "Rondgaan in het hoofdvenster"}},
    PlaceRow{Place::food_lists, {"In the food lists", "In de voedingsmiddelenlijsten"}},
    PlaceRow{Place::day_list,
             {"In the lists of the morning, the afternoon and the evening",
              "In de lijsten van de ochtend, de middag en de avond"}},
    PlaceRow{Place::trend, {"In the chart of the trend", "In de grafiek van de trend"}},
    PlaceRow{Place::lists, {"In lists of days and users", "In lijsten van dagen en gebruikers"}},
};

struct BoundWords {
  BoundKey use;
  Place place;
  Words words;
};

// Of every bound key, in the order of BoundKey.
constexpr std::array kBound = {
    BoundWords{BoundKey::menu, Place::main_window, {"Open the menu", "Open het menu"}},
    BoundWords{BoundKey::next_part,
               Place::main_window,
               {"To the next part of the window: buttons, child window, arrangements, status bar",
                "Naar het volgende deel van het venster: knoppen, subvenster, indelingen, "
                "statusbalk"}},
    BoundWords{BoundKey::previous_part,
               Place::main_window,
               {"To the part before it", "Naar het deel ervoor"}},
    BoundWords{BoundKey::next_window,
               Place::main_window,
               {"To the next child window", "Naar het volgende subvenster"}},
    BoundWords{BoundKey::previous_window,
               Place::main_window,
               {"To the child window before it", "Naar het subvenster ervoor"}},
    BoundWords{BoundKey::window_menu,
               Place::main_window,
               {"The menu of the child window, to move, size or close it",
                "Het menu van het subvenster, om het te verplaatsen, te vergroten of te sluiten"}},
    BoundWords{BoundKey::often,
               Place::food_lists,
               {"Show what you ate most in the last 60 days",
                "Toon wat je de laatste 60 dagen het meest hebt gegeten"}},
    BoundWords{BoundKey::add_to_morning,
               Place::food_lists,
               {"Add the chosen rows to the morning", "Voeg de gekozen rijen toe aan de ochtend"}},
    BoundWords{BoundKey::add_to_afternoon,
               Place::food_lists,
               {"Add them to the afternoon", "Voeg ze toe aan de middag"}},
    BoundWords{BoundKey::add_to_evening,
               Place::food_lists,
               {"Add them to the evening", "Voeg ze toe aan de avond"}},
    BoundWords{BoundKey::other_amount,
               Place::day_list,
               {"Another amount of the row", "Een andere hoeveelheid van de rij"}},
    BoundWords{BoundKey::take_portion_out,
               Place::day_list,
               {"Take one portion of each chosen row out of the day",
                "Haal één portie van elke gekozen rij uit de dag"}},
    BoundWords{BoundKey::move_to_morning,
               Place::day_list,
               {"Move one portion of each chosen row to the morning",
                "Verplaats één portie van elke gekozen rij naar de ochtend"}},
    BoundWords{BoundKey::move_to_afternoon,
               Place::day_list,
               {"Move it to the afternoon", "Verplaats die naar de middag"}},
    BoundWords{BoundKey::move_to_evening,
               Place::day_list,
               {"Move it to the evening", "Verplaats die naar de avond"}},
    BoundWords{BoundKey::cut,
               Place::day_list,
               {"Cut the chosen rows, to paste them into another list",
                "Knip de gekozen rijen, om ze in een andere lijst te plakken"}},
    BoundWords{
        BoundKey::copy, Place::day_list, {"Copy the chosen rows", "Kopieer de gekozen rijen"}},
    BoundWords{BoundKey::paste,
               Place::day_list,
               {"Paste what was cut or copied", "Plak wat je hebt geknipt of gekopieerd"}},
    BoundWords{
        BoundKey::add_to_favourites,
        Place::day_list,
        {"Add the chosen rows to the favourites", "Voeg de gekozen rijen toe aan de favorieten"}},
    BoundWords{BoundKey::take_over,
               Place::day_list,
               {"Take over what you ate on another day",
                "Neem over wat je op een andere dag hebt gegeten"}},
    BoundWords{BoundKey::undo,
               Place::day_list,
               {"Undo, over all three lists of the day",
                "Maak ongedaan, over alle drie lijsten van de dag"}},
    BoundWords{BoundKey::redo, Place::day_list, {"Redo", "Doe opnieuw"}},
};
static_assert(kBound.size() == kBoundKeys.size());
static_assert(std::ranges::all_of(kBound, [](const BoundWords& row) {
  return &row == &kBound[static_cast<std::size_t>(row.use)];
}));

struct PlainKey {
  Place place;
  Words keys;
  Words words;
};

// What lists and boxes do with the keys that every program has.
constexpr std::array kPlain = {
    PlainKey{Place::everywhere,
             {"F1", "F1"},
             {"The help page of the window you are in, in dialogs and boxes too",
              "De helppagina van het venster waarin je bent, ook in dialogen en meldingen"}},
    PlainKey{Place::everywhere,
             {"Tab, Shift+Tab", "Tab, Shift+Tab"},
             {"To the next control, to the one before it",
              "Naar het volgende veld, naar het vorige veld"}},
    PlainKey{Place::everywhere,
             {"Esc", "Esc"},
             {"Close a dialog without changing anything; No or Cancel in a box",
              "Sluit een dialoog zonder iets te wijzigen; Nee of Annuleren in een melding"}},
    PlainKey{Place::everywhere,
             {"Enter", "Enter"},
             {"The main button of a dialog", "De hoofdknop van een dialoog"}},
    PlainKey{Place::food_lists,
             {"Down, Tab", "Pijl omlaag, Tab"},
             {"From the search box to the first row that was found",
              "Van het zoekvak naar de eerste rij die is gevonden"}},
    PlainKey{Place::food_lists,
             {"Enter", "Enter"},
             {"In the search box: search in the whole text of all lines; on a row: add it to the "
              "part of the day that stands below the list",
              "In het zoekvak: zoek in de hele tekst van alle regels; op een rij: voeg die toe aan "
              "het deel van de dag dat onder de lijst staat"}},
    PlainKey{
        Place::food_lists,
        {"0, 1, 2", "0, 1, 2"},
        {"Any digit on a row begins the amount", "Elk cijfer op een rij begint de hoeveelheid"}},
    PlainKey{
        Place::food_lists,
        {"Esc", "Esc"},
        {"Empty the box; from a list, back to the search box; stop a search on the internet",
         "Maak het vak leeg; vanuit een lijst terug naar het zoekvak; stop een zoekopdracht op "
         "internet"}},
    PlainKey{Place::food_lists,
             {"Delete", "Delete"},
             {"Delete the chosen rows of your own list or of your favourites",
              "Verwijder de gekozen rijen uit je eigen lijst of je favorieten"}},
    PlainKey{Place::day_list,
             {"+, -", "+, -"},
             {"One portion of the row more or less", "Eén portie van de rij meer of minder"}},
    PlainKey{
        Place::day_list, {"Enter", "Enter"}, {"The details of the row", "De details van de rij"}},
    PlainKey{Place::day_list,
             {"Delete", "Delete"},
             {"Remove the chosen rows with all their portions",
              "Verwijder de gekozen rijen met al hun porties"}},
    PlainKey{Place::day_list, {"Ctrl+A", "Ctrl+A"}, {"Choose all rows", "Kies alle rijen"}},
    PlainKey{Place::trend,
             {"Left, Right", "Pijl links, Pijl rechts"},
             {"A day back, a day on; its numbers are shown",
              "Een dag terug, een dag verder; de getallen ervan worden getoond"}},
    PlainKey{Place::trend,
             {"Page Up, Page Down", "Page Up, Page Down"},
             {"A tenth of the days back or on", "Een tiende van de dagen terug of verder"}},
    PlainKey{Place::trend,
             {"Home, End", "Home, End"},
             {"To the first day, to the last", "Naar de eerste dag, naar de laatste"}},
    PlainKey{Place::trend,
             {"Esc", "Esc"},
             {"Stop showing the numbers of a day", "Toon de getallen van een dag niet meer"}},
    PlainKey{Place::lists,
             {"Home, End", "Home, End"},
             {"To the first row, to the last", "Naar de eerste rij, naar de laatste"}},
    PlainKey{Place::lists,
             {"Delete", "Delete"},
             {"Delete the chosen day, after a question", "Verwijder de gekozen dag, na een vraag"}},
    PlainKey{Place::lists,
             {"Space", "Spatie"},
             {"Choose the user in focus", "Kies de gebruiker met de focus"}},
};

// As it stands on a keyboard; the toolkit writes it short.
std::string OnTheKeyboard(std::string_view keys) {
  constexpr std::string_view kShort = "+Del";
  return std::string(keys) + (keys.ends_with(kShort) ? "ete" : "");
}

using Rows = std::vector<std::vector<std::string>>;

void AddMenu(const HelpLanguage& in, Rows& rows) {
  for (const MenuRow& row : MainMenu()) {
    // F1 asks about the window, and stands where it counts.
    if (row.shortcut.empty() || row.command == Command::mnu_help_index) continue;
    rows.push_back({Keys(row.shortcut),
                    Ui(row.own_caption ? in.Shown(*row.own_caption) : in.Shown(row.caption))});
  }
}

}  // namespace

std::string KeysTables(const HelpLanguage& in) {
  constexpr Words kKey = {"Key", "Toets"};
  constexpr Words kMeaning = {"What it does", "Wat die doet"};
  std::string html;
  for (const PlaceRow& place : kPlaces) {
    Rows rows;
    if (place.place == Place::menu) AddMenu(in, rows);
    for (const BoundWords& row : kBound) {
      if (row.place == place.place)
        rows.push_back({Keys(OnTheKeyboard(KeysOf(row.use))), HtmlOf(in(row.words))});
    }
    for (const PlainKey& row : kPlain) {
      if (row.place == place.place) rows.push_back({Keys(in(row.keys)), HtmlOf(in(row.words))});
    }
    html += "<h3>" + HtmlOf(in(place.title)) + "</h3>\n";
    html += TableOf({std::string(in(kKey)), std::string(in(kMeaning))}, rows);
  }
  return html;
}

}  // namespace kelvora::help
