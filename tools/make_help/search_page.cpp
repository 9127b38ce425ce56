#include "make_help/search_page.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "core/text.h"
#include "make_help/html.h"

namespace kelvora::help {
namespace {

constexpr Words kTitle = {"Search", "Zoeken"};
constexpr Words kLead = {
    "All words of the help, each with the pages on which it stands. Words that stand on many pages "
    "are left out.",
    "Alle woorden van de help, elk met de pagina's waarop het staat. Woorden die op veel "
    "pagina's staan, zijn weggelaten."};
constexpr Words kBox = {"Word:", "Woord:"};
constexpr Words kNone = {"No page has this.", "Dit staat op geen pagina."};
constexpr std::size_t kShortest = 3;

// Lower case in Windows-1252, which holds every letter that the pages have in words.
bool IsLetter(char c) {
  const auto code = static_cast<unsigned char>(c);
  return (c >= 'a' && c <= 'z') || (code >= 0xDF && code != 0xF7);
}

using PagesOfWord = std::map<std::string, std::set<std::size_t>>;

void AddWords(const Page& page, std::size_t place, PagesOfWord& words) {
  std::string text = TextFromUtf8(TextOfHtml(page.body));
  for (char& c : text) c = kLowerCase[static_cast<unsigned char>(c)];
  std::string word;
  for (const char c : text + ' ') {
    const bool inside = IsLetter(c) || ((c == '-' || c == '\'') && !word.empty());
    if (inside) {
      word += c;
      continue;
    }
    while (!word.empty() && !IsLetter(word.back())) word.pop_back();
    if (word.size() >= kShortest) words[word].insert(place);
    word.clear();
  }
}

// The letter a word stands under, its accents taken away.
std::string LetterOf(const std::string& word) {
  constexpr std::array<std::pair<std::string_view, char>, 6> kBases = {
      {{"\xE0\xE1\xE2\xE3\xE4\xE5", 'a'},
       {"\xE8\xE9\xEA\xEB", 'e'},
       {"\xEC\xED\xEE\xEF", 'i'},
       {"\xF2\xF3\xF4\xF5\xF6", 'o'},
       {"\xF9\xFA\xFB\xFC", 'u'},
       {"\xE7", 'c'}}};
  for (const auto& [letters, base] : kBases) {
    if (letters.find(word.front()) != letters.npos) return {base};
  }
  return word.substr(0, 1);
}

std::string Row(const std::string& word, const std::set<std::size_t>& places,
                const std::vector<Page>& pages) {
  std::string html = "<li><b>" + HtmlOf(Utf8FromText(word)) + "</b>";
  for (const std::size_t place : places) {
    html += " <a href=\"" + pages[place].name + ".html\">" + pages[place].title + "</a>";
  }
  return html + "</li>\n";
}

}  // namespace

Page SearchPage(const HelpLanguage& in, const std::vector<Page>& pages) {
  PagesOfWord words;
  for (std::size_t i = 0; i < pages.size(); ++i) AddWords(pages[i], i, words);
  std::map<std::string, std::string> rows_of_letter;
  for (const auto& [word, places] : words) {
    if (places.size() > pages.size() / 3) continue;
    rows_of_letter[LetterOf(word)] += Row(word, places, pages);
  }
  std::string letters, lists;
  for (const auto& [letter, rows] : rows_of_letter) {
    letters += "<a href=\"#letter-" + letter + "\">" + letter + "</a>\n";
    lists += "<section>\n<h2 id=\"letter-" + letter + "\">" + letter + "</h2>\n<ul>\n" + rows +
             "</ul>\n</section>\n";
  }
  Page page{std::string(kSearchPage), std::string(in(kTitle)), std::string(in(kLead)), {}};
  page.body = "<h1>" + page.title + "</h1>\n<p class=\"lead\">" + page.lead + "</p>\n" +
              "<p id=\"ask\" hidden><label>" + std::string(in(kBox)) +
              " <input type=\"search\" id=\"word\" autocomplete=\"off\"></label></p>\n" +
              "<p id=\"none\" hidden>" + std::string(in(kNone)) + "</p>\n" +
              "<p class=\"letters\">\n" + letters + "</p>\n<div class=\"words\">\n" + lists +
              "</div>\n<script src=\"../search.js\"></script>\n";
  return page;
}

}  // namespace kelvora::help
