// Any bytes as the target of a request to the food server: a search, a submission, and what is
// asked of the store; and as a food line and a configuration of the server.
#include <algorithm>

#include "food_server/configuration.h"
#include "food_server/food_line.h"
#include "food_server/ranking.h"
#include "food_server/service.h"
#include "food_server/submission_form.h"
#include "fuzz/check.h"
#include "fuzz/plain.h"
#include "support/test_program.h"

namespace kelvora::server {
namespace {

constexpr char kHalf = '\xBD';
constexpr std::string_view kSearch = "/modules/kvzoek.php?item=";
constexpr std::string_view kSubmit = "/modules/swadd.php?";

bool IsAmount(std::string_view text) {
  const auto is_digit = [](char letter) { return letter >= '0' && letter <= '9'; };
  const std::size_t point = std::min(text.find('.'), text.size());
  const std::string_view whole = text.substr(0, point);
  const std::string_view rest = text.substr(std::min(point + 1, text.size()));
  return !whole.empty() && (point == text.size() || !rest.empty()) &&
         std::all_of(whole.begin(), whole.end(), is_digit) &&
         std::all_of(rest.begin(), rest.end(), is_digit);
}

void CheckLine(const std::string& line) {
  const Pieces fields = PlainSplit(line, kHalf);
  Check(fields.size() == 12 && line.back() == kHalf, "a line has twelve fields");
  Check(!fields[0].empty(), "a food has a name");
  Check(line.find_first_of(std::string_view("\xBC\xBE\0", 3)) == line.npos,
        "nothing in a line ends a food");
  Check(CleanFoodLine(line) == line, "a clean line stays as it is");
}

void CheckFolded(std::string_view folded) {
  for (const char letter : folded) {
    Check((letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '%' ||
              letter == ' ',
          "folded text is small letters, digits, percents and blanks");
  }
  Check(!folded.starts_with(' ') && !folded.ends_with(' ') && folded.find("  ") == folded.npos,
        "one blank stands between words");
  Check(FoldText(folded) == folded, "folded text folds to itself");
}

// A service over a store with a food or two, for all inputs.
struct World {
  World() {
    const std::string rice = *CleanFoodLine(
                          "Rice\xBD"
                          "1 cup\xBD"),
                      ham = *CleanFoodLine("Ham & egg 0%\xBD");
    const std::vector<std::string_view> foods{rice, ham};
    store->ReplaceFoods(foods, "1", [] { return true; });
    service.SetReady();
  }

  TemporaryFolder folder;
  Configuration configuration;
  std::unique_ptr<Store> store = OpenStore("sqlite:" + folder.Path() + "/foods.db", {});
  Metrics metrics;
  Service service{configuration, *store, metrics};
};

void CheckSearch(World& world, std::string_view term) {
  const std::string target = std::string(kSearch).append(term);
  Check(KindOf(target) == RequestKind::search, "a path is all in front of the first question mark");
  Check(TermOf(target) == term, "a term is all behind the equals sign");
  const FoldedTerm folded = FoldTerm(term);
  CheckFolded(folded.text);
  Check(folded.words.size() <= kMostWordsOfTerm && folded.text.size() <= kMostLettersOfTerm,
        "terms are bounded");
  // The store takes far longer than all the rest.
  if (term.size() % 8 != 0) return;
  const Reply reply = world.service.Answer({.target = target, .address = "192.0.2.1"});
  Check(reply.status == 200, "every term gets an answer");
  for (const std::string_view food : PlainSplit(reply.body, kReplyEnd)) {
    Check(MatchOf(folded, FoldFood(food)).has_value(), "what is found holds the term");
  }
}

void CheckSubmission(std::string_view query) {
  Check(KindOf(std::string(kSubmit).append(query)) == RequestKind::submission,
        "a query doesn't change the path");
  (void)HoldsUnknownPiece(query);
  const auto read = ReadSubmission(query);
  if (const auto* const refusal = std::get_if<Refusal>(&read)) {
    return Check(!refusal->reason.empty(), "a refusal has a reason");
  }
  const auto& [food, sender] = std::get<SubmittedFood>(read);
  CheckLine(food);
  const Pieces fields = PlainSplit(food, kHalf);
  for (std::size_t field = 2; field < 10; ++field) {
    Check(IsAmount(fields[field]), "amounts are numbers with a point");
  }
  Check(sender.find_first_of("\xBC\xBD\xBE\r\n\x1B") == sender.npos, "a sender is text");
}

void CheckConfiguration(std::string_view text) {
  try {
    const Configuration configuration = ParseConfiguration(text, "file");
    Check(configuration.port <= 65535 && configuration.queue > 0, "numbers are in their bounds");
  } catch (const ConfigurationError& error) {
    Check(std::string_view(error.what()).starts_with("file:"), "an error names file and line");
  }
}

}  // namespace
}  // namespace kelvora::server

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  using namespace kelvora::server;
  static World world;
  const std::string_view input = InputOf(data, size);
  CheckSearch(world, input);
  CheckSubmission(input);
  CheckConfiguration(input);
  if (const auto line = CleanFoodLine(input)) {
    CheckLine(*line);
    const FoldedFood food = FoldFood(*line);
    CheckFolded(food.text);
    Check(food.names.empty() || MatchOf(FoldTerm(food.name), food).has_value() ||
              food.name.empty() || food.name.size() > kMostLettersOfTerm ||
              WordsOf(food.name).size() > kMostWordsOfTerm,
          "a food is found by its name");
  }
  if (const auto amount = AmountText(input, 4000))
    Check(IsAmount(*amount), "an amount is a number");
  return 0;
}
