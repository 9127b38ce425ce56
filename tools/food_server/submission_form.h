// A food as the desktop program submits it: the query of one request, in which nothing is escaped.
//
//   naam=<name>&kj=&kcal=&vvet=&ovet=&kdr=&ew=&nat=&opmerking=<text>&gepost=<sender>
//
// Amounts are those of 100 grams. "&" cuts the query wherever it stands, also in a name: what the
// name has lost is a piece without a known key, and stands in the query that is kept for the
// review.
#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace kelvora::server {

struct SubmittedFood {
  std::string food;    // the line of 100 grams of it
  std::string sender;  // as it names itself: anybody can write any name there
};

// What can't be taken, in words for the answer.
struct Refusal {
  std::string reason;
};

// Refused is a query in which one of the keys but "opmerking" is missing or twice; a name that is
// empty, too long, or has "½", "¾", "¼" or a control character in it; an amount that is no number,
// is negative, or is more than 100 grams of any food can hold; nutrients that weigh more than the
// food.
[[nodiscard]] std::variant<SubmittedFood, Refusal> ReadSubmission(std::string_view query);

// True if a piece of the query has none of the keys: most often the rest of a name.
[[nodiscard]] bool HoldsUnknownPiece(std::string_view query);

}  // namespace kelvora::server
