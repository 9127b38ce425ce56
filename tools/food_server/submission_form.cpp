#include "food_server/submission_form.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "core/store.h"
#include "core/text.h"
#include "food_server/food_line.h"

namespace kelvora::server {
namespace {

constexpr std::string_view kName = "naam";
constexpr std::string_view kRemark = "opmerking";
constexpr std::string_view kSender = "gepost";
constexpr std::size_t kLongestSender = 100;

// The most that 100 grams can hold. Pure fat has 3,800 kilojoules; salt has 39.3 grams of sodium.
struct AmountKey {
  std::string_view key;
  std::size_t field;
  double most;
  bool weighs;  // together they are a part of the 100 grams
};
constexpr std::array kAmounts = {
    AmountKey{"kj", FoodField::kKj, 4000, false},
    AmountKey{"kcal", FoodField::kKcal, 1000, false},
    AmountKey{"vvet", FoodField::kFatS, 100, true},
    AmountKey{"ovet", FoodField::kFatU, 100, true},
    AmountKey{"kdr", FoodField::kCarbs, 100, true},
    AmountKey{"ew", FoodField::kProtein, 100, true},
    AmountKey{"nat", FoodField::kSodium, 40, true},
};
constexpr double kMostTogether = 101;  // of rounded amounts

// What stands between a "&" and the next.
std::vector<std::string_view> PiecesOf(std::string_view query) {
  std::vector<std::string_view> pieces;
  for (;;) {
    const std::size_t end = query.find('&');
    pieces.push_back(query.substr(0, end));
    if (end == query.npos) return pieces;
    query.remove_prefix(end + 1);
  }
}

std::string_view KeyOf(std::string_view piece) {
  const std::size_t equals = piece.find('=');
  return equals == piece.npos ? std::string_view() : piece.substr(0, equals);
}

bool IsKnown(std::string_view key) {
  return key == kName || key == kRemark || key == kSender ||
         std::ranges::find(kAmounts, key, &AmountKey::key) != kAmounts.end();
}

class Form {
 public:
  explicit Form(std::string_view query) : pieces_(PiecesOf(query)) {}

  // The value of a key. Throws a Refusal if it isn't there just once.
  [[nodiscard]] std::string_view Value(std::string_view key) const {
    std::optional<std::string_view> value;
    for (const std::string_view piece : pieces_) {
      if (KeyOf(piece) != key) continue;
      if (value) throw Refusal{std::string(key) + " is there twice"};
      value = piece.substr(key.size() + 1);
    }
    if (!value) throw Refusal{std::string(key) + " is missing"};
    return *value;
  }

  [[nodiscard]] std::string TextValue(std::string_view key) const {
    auto text = TextOfBytes(Value(key));
    if (!text) throw Refusal{std::string(key) + " has a letter that Windows-1252 lacks"};
    const auto is_no_text = [](char byte) {
      return (byte >= 0 && byte < ' ') || byte == '\x7F' || byte == kFieldEnd || byte == kLineEnd ||
             byte == kReplyEnd;
    };
    if (std::ranges::any_of(*text, is_no_text)) {
      throw Refusal{std::string(key) + " has a character that no text can have"};
    }
    return std::string(Trimmed(*text));
  }

 private:
  std::vector<std::string_view> pieces_;
};

std::string NameOf(const Form& form) {
  std::string name = form.TextValue(kName);
  if (name.empty()) throw Refusal{"naam is empty"};
  return name;
}

SubmittedFood Read(const Form& form) {
  std::array<std::string, std::size(kFieldNames)> fields;
  fields[FoodField::kProduct] = NameOf(form);
  fields[FoodField::kUnit] = "100 gram";
  fields[FoodField::kGram] = "100";
  fields[FoodField::kGroup] = "0";
  double together = 0;
  for (const AmountKey& amount : kAmounts) {
    const auto text = AmountText(form.Value(amount.key), amount.most);
    if (!text) {
      throw Refusal{std::string(amount.key) + " is no amount that 100 grams of food can have"};
    }
    double value = 0;
    std::from_chars(text->data(), text->data() + text->size(), value);
    if (amount.weighs) together += value;
    fields[amount.field] = *text;
  }
  if (together > kMostTogether) throw Refusal{"the nutrients weigh more than the food"};
  std::string line;
  for (const std::string& field : fields) (line += field) += kFieldEnd;
  const auto clean = CleanFoodLine(line);
  if (!clean) throw Refusal{"naam is too long"};
  std::string sender = form.TextValue(kSender);
  if (sender.size() > kLongestSender) throw Refusal{"gepost is too long"};
  return {.food = *clean, .sender = std::move(sender)};
}

}  // namespace

std::variant<SubmittedFood, Refusal> ReadSubmission(std::string_view query) {
  try {
    return Read(Form(query));
  } catch (const Refusal& refusal) {
    return refusal;
  }
}

bool HoldsUnknownPiece(std::string_view query) {
  return !std::ranges::all_of(PiecesOf(query), IsKnown, KeyOf);
}

}  // namespace kelvora::server
