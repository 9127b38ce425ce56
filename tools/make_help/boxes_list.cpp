#include <algorithm>
#include <array>
#include <stdexcept>

#include "make_help/boxes.h"
#include "make_help/facts.h"
#include "make_help/html.h"

namespace kelvora::help {
namespace {

constexpr Words kMeans = {"Means", "Betekent"};
constexpr Words kDo = {"Do", "Doe"};

// The place of a name or a number in a text.
std::string WithPlaces(std::string html) {
  constexpr std::string_view kPlace = "%1";
  const std::size_t place = html.find(kPlace);
  return place == html.npos ? html : html.replace(place, kPlace.size(), "…");
}

std::string Line(const HelpLanguage& in, const BoxLine& line) {
  if (const auto* const fixed = std::get_if<std::string_view>(&line)) return HtmlOf(*fixed);
  if (const auto* const own = std::get_if<OwnText>(&line)) return WithPlaces(in.Shown(*own));
  return in.Shown(std::get<TextId>(line));
}

std::string BoxInWords(const HelpLanguage& in, const BoxHelp& box) {
  std::string html = "<div class=\"box\">\n<blockquote>\n";
  std::vector<std::string> shown;  // what lists of the three parts of the day share comes once
  for (const BoxLine& line : box.lines) {
    const std::string words = Line(in, line);
    if (words.empty()) throw std::runtime_error("a box with a line that no table fills");
    if (std::ranges::find(shown, words) != shown.end()) continue;
    html += (shown.empty() ? "<p>" : "<br>\n") + words;
    shown.push_back(words);
  }
  html += "</p>\n</blockquote>\n";
  for (const auto& [term, words] : {std::pair(kMeans, box.means), std::pair(kDo, box.todo)}) {
    if (words.english.empty() || words.dutch.empty()) {
      throw std::runtime_error("nothing is said of the box: " + shown.front());
    }
    html.append("<p><b>").append(in(term)).append(":</b> ").append(HtmlOf(in(words))) += "</p>\n";
  }
  return html + "</div>\n";
}

}  // namespace

std::string BoxesList(const HelpLanguage& in) {
  std::string html;
  int number = 0;
  for (const BoxGroup& group :
       {BoxesOfStart(), BoxesOfDays(), BoxesOfConsumptions(), BoxesOfFoods(), BoxesOfResults(),
        BoxesOfInternet(), BoxesOfFiles()}) {
    html +=
        "<h3 id=\"boxes-" + std::to_string(++number) + "\">" + HtmlOf(in(group.title)) + "</h3>\n";
    for (const BoxHelp& box : group.boxes) html += BoxInWords(in, box);
  }
  return html;
}

}  // namespace kelvora::help
