#include <algorithm>
#include <array>
#include <map>
#include <regex>
#include <stdexcept>

#include "language/message_texts.h"
#include "make_help/facts.h"
#include "make_help/html.h"
#include "storage/record_file.h"

namespace kelvora::help {
namespace {

// Windows and modules, by what stands before the dash of their codes.
struct OwnerRow {
  std::string_view codes;
  Words title;
  Words todo;
};

constexpr Words kTryAgain = {
    "Nothing is lost by it. Close the window, open it and try again; if the box comes back, save "
    "the "
    "day and start the program again.",
    "Er gaat niets door verloren. Sluit het venster, open het en probeer het opnieuw; komt de "
    "melding terug, sla dan de dag op en start het programma opnieuw."};
constexpr Words kReadsFiles = {
    "The words in the box are those of the system and name the cause: a file that may not be read, "
    "a "
    "folder that is gone, a disk that isn't connected. Nothing was deleted. Remove the cause and "
    "try "
    "again.",
    "De woorden in de melding zijn die van het systeem en noemen de oorzaak: een bestand dat niet "
    "gelezen mag worden, een map die weg is, een schijf die niet is aangesloten. Er is niets "
    "verwijderd. Neem de oorzaak weg en probeer het opnieuw."};
constexpr Words kFiles = {
    "What could not be saved is still in the program: go on, remove the cause that the system's "
    "words "
    "name (a full disk, a folder you may not write in, a disk that isn't connected) and save "
    "again. "
    "What could not be read is left as it is on the disk.",
    "Wat niet kon worden opgeslagen, is nog in het programma: ga door, neem de oorzaak weg die de "
    "woorden van het systeem noemen (een volle schijf, een map waarin je niet mag schrijven, een "
    "schijf die niet is aangesloten) en sla opnieuw op. Wat niet kon worden gelezen, blijft op de "
    "schijf zoals het is."};
constexpr Words kReports = {
    "The report is not complete. Look at the system's words, check whether the folder for reports "
    "is "
    "there and the disk has room, and make the report again. Your days are untouched.",
    "Het rapport is niet compleet. Kijk naar de woorden van het systeem, controleer of de map voor "
    "rapporten er is en de schijf ruimte heeft, en maak het rapport opnieuw. Met je dagen is niets "
    "gebeurd."};
constexpr Words kNumbers = {
    "A number of a food or of your profile is too large or no number at all. Look at the food that "
    "you entered last, and correct it.",
    "Een getal van een voedingsmiddel of van je profiel is te groot of helemaal geen getal. Kijk "
    "naar "
    "het voedingsmiddel dat je het laatst hebt ingevoerd en verbeter het."};
constexpr Words kOutside = {
    "The program or the browser that should open this could not be started. Check which program "
    "your "
    "desktop uses for web pages.",
    "Het programma of de browser die dit moet openen, kon niet worden gestart. Kijk welk programma "
    "je "
    "bureaublad voor webpagina's gebruikt."};
constexpr Words kPrinting = {
    "Check in the settings of your desktop whether the printer works there, then print again.",
    "Kijk in de instellingen van je bureaublad of de printer daar werkt en druk opnieuw af."};
constexpr Words kNet = {
    "Check your connection and try later. Nothing on your computer has changed.",
    "Controleer je verbinding en probeer het later. Op je computer is niets veranderd."};

constexpr std::array kOwners = {
    OwnerRow{"#F1", {"New food", "Nieuw voedingsmiddel"}, kNumbers},
    OwnerRow{
        "#F2", {"New day and day settings", "Nieuwe dag en instellingen van de dag"}, kReadsFiles},
    OwnerRow{"#F3", {"Opening days", "Dagen openen"}, kReadsFiles},
    OwnerRow{"#F4", {"Main window", "Hoofdvenster"}, kOutside},
    OwnerRow{"#F5", {"Exporting days", "Dagen exporteren"}, kReports},
    OwnerRow{"#F6", {"Details of a food", "Details van een voedingsmiddel"}, kNumbers},
    OwnerRow{"#F8", {"Settings", "Instellingen"}, kFiles},
    OwnerRow{"#F9", {"Day summary", "Daguittreksel"}, kTryAgain},
    OwnerRow{"#F10", {"Check for a newer version", "Zoeken naar een nieuwere versie"}, kNet},
    OwnerRow{"#F11", {"Food lists", "Voedingsmiddelenlijsten"}, kTryAgain},
    OwnerRow{
        "#F12", {"Trend and summary of all days", "Trend en uittreksel van alle dagen"}, kTryAgain},
    OwnerRow{"#F13", {"Diary", "Dagboek"}, kTryAgain},
    OwnerRow{"#F14", {"Afternoon and evening", "Middag en avond"}, kTryAgain},
    OwnerRow{"#F15", {"Morning", "Ochtend"}, kTryAgain},
    OwnerRow{"#F16", {"Comparison", "Vergelijken"}, kNumbers},
    OwnerRow{"#F17", {"Back up", "Reservekopie maken"}, kFiles},
    OwnerRow{"#F18", {"Restore", "Reservekopie terugzetten"}, kFiles},
    OwnerRow{"#F20", {"Take over from another day", "Overnemen van een andere dag"}, kReadsFiles},
    OwnerRow{"#F28", {"Import foods", "Voedingsmiddelen importeren"}, kFiles},
    OwnerRow{"#FF1", {"Files", "Bestanden"}, kFiles},
    OwnerRow{"#FF5", {"DTA reports", "DTA-rapporten"}, kReports},
    OwnerRow{"#FF6", {"HTML reports", "HTML-rapporten"}, kReports},
    OwnerRow{"#FF7", {"XML reports", "XML-rapporten"}, kReports},
    OwnerRow{"#FF8",
             {"Favourites, other programs, languages", "Favorieten, andere programma's, talen"},
             kFiles},
    OwnerRow{"#FF10", {"Printing", "Afdrukken"}, kPrinting},
    OwnerRow{"#FF11", {"Totals and units", "Totalen en eenheden"}, kNumbers},
};

std::string OwnerOf(const std::string& code) {
  return code.substr(0, code.find('-'));
}

// The codes of the page, in its order, each once.
std::vector<std::string> CodesOf(const std::string& page) {
  static const std::regex row(R"(\n\| `(#F+\d+-\d+)`)");
  std::vector<std::string> codes;
  for (auto found = std::sregex_iterator(page.begin(), page.end(), row);
       found != std::sregex_iterator(); ++found) {
    if (codes.empty() || codes.back() != (*found)[1]) codes.push_back((*found)[1]);
  }
  return codes;
}

std::map<std::string, Words> WordsOf(const std::vector<std::vector<std::string>>& rows) {
  std::map<std::string, Words> words;
  for (const auto& row : rows) words[row[0]] = {row[1], row[2]};
  return words;
}

}  // namespace

std::string CodesTables(const HelpLanguage& in, const std::string& codes_page,
                        const std::string& words_table) {
  constexpr Words kCode = {"Code", "Code"};
  constexpr Words kWhat = {"What the program was about to do", "Wat het programma wilde doen"};
  const auto rows = ReadTsv(words_table, 3);
  const auto words = WordsOf(rows);
  const auto codes = CodesOf(ReadFile(codes_page));
  if (words.size() != codes.size() || rows.size() != codes.size()) {
    throw std::runtime_error(words_table + ": not a row for each code of " + codes_page);
  }
  constexpr Words kTitle = {"Failures with a code", "Fouten met een code"};
  std::string html = "<h3 id=\"codes\">" + std::string(in(kTitle)) +
                     "</h3>\n<div class=\"box\">\n<blockquote>\n<p>" +
                     in.Shown(message_text::kErrorOccurred) +
                     "<br>\n…<br>\nBrelux CODE:#F…-…</p>\n</blockquote>\n</div>\n";
  std::size_t placed = 0;
  for (const OwnerRow& owner : kOwners) {
    std::vector<std::vector<std::string>> cells;
    for (const std::string& code : codes) {
      if (OwnerOf(code) != owner.codes) continue;
      const auto said = words.find(code);
      if (said == words.end()) throw std::runtime_error(words_table + ": nothing of " + code);
      cells.push_back({"<code>" + code + "</code>", HtmlOf(in(said->second))});
      ++placed;
    }
    html += "<h4>" + HtmlOf(in(owner.title)) + "</h4>\n<p>" + HtmlOf(in(owner.todo)) + "</p>\n";
    html += TableOf({std::string(in(kCode)), std::string(in(kWhat))}, cells);
  }
  if (placed != codes.size()) throw std::runtime_error(codes_page + ": a code of no known window");
  return html;
}

}  // namespace kelvora::help
