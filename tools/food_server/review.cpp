#include "food_server/review.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ctime>
#include <optional>
#include <utility>

#include "core/store.h"
#include "core/text.h"
#include "food_server/food_line.h"
#include "food_server/submission_form.h"

namespace kelvora::server {
namespace {

constexpr int kNotDone = 1;
constexpr int kWrongArguments = 2;
constexpr std::size_t kAtOnce = 200;
constexpr double kMostAmount = 100'000;  // of a portion, whatever its size

constexpr std::array<std::string_view, 3> kStateNames = {"unchecked", "accepted", "refused"};

std::string_view NameOf(SubmissionState state) {
  return kStateNames[static_cast<std::size_t>(state)];
}

// What came from outside, as a terminal may show it.
std::string Shown(std::string_view text) {
  std::string shown(text);
  for (char& letter : shown) {
    const auto code = static_cast<unsigned char>(letter);
    // Windows-1252 leaves five of these open, and a terminal takes them for commands.
    const bool control = code < ' ' || (code >= 0x7F && code < 0xA0 && CodePointOf(letter) == code);
    if (control) letter = ' ';
  }
  return Utf8FromText(shown);
}

std::string TimeOf(const Submission& submission) {
  const std::time_t time = submission.time;
  std::tm parts{};
  std::array<char, 32> text{};
  if (gmtime_r(&time, &parts) == nullptr) return {};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &parts)};
}

std::string Field(const Submission& submission, std::size_t field) {
  return Shown(FieldOf(submission.food, field));
}

std::optional<std::int64_t> NumberOf(std::string_view text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number < 1) return std::nullopt;
  return number;
}

class ReviewRun {
 public:
  ReviewRun(Store& store, std::span<const std::string> arguments)
      : store_(store), arguments_(arguments) {}

  CommandResult Run() {
    const std::string action = arguments_.empty() ? std::string() : arguments_.front();
    if (!arguments_.empty()) arguments_ = arguments_.subspan(1);
    if (action == "list") {
      List();
    } else if (action == "show") {
      ForEachNumber([this](const Submission& one) { Show(one); });
    } else if (action == "accept") {
      ForEachNumber([this](const Submission& one) { Decide(one, SubmissionState::accepted); });
    } else if (action == "refuse") {
      ForEachNumber([this](const Submission& one) { Decide(one, SubmissionState::refused); });
    } else if (action == "correct") {
      Correct();
    } else {
      Wrong(action.empty() ? "review needs an action" : "there is no review " + action);
    }
    return std::move(result_);
  }

 private:
  void Wrong(const std::string& what) {
    result_.errors += what + "\n";
    result_.status = kWrongArguments;
  }
  void NotDone(std::int64_t number, const std::string& what) {
    result_.errors += std::to_string(number) + ": " + what + "\n";
    result_.status = kNotDone;
  }

  template <class Action>
  void ForEachNumber(Action action) {
    std::vector<std::int64_t> numbers;
    for (const std::string& argument : arguments_) {
      const auto number = NumberOf(argument);
      if (!number) return Wrong("\"" + argument + "\" is no number of a submission");
      numbers.push_back(*number);
    }
    if (numbers.empty()) return Wrong("the number of a submission is missing");
    for (const std::int64_t number : numbers) {
      const auto submission = store_.FindSubmission(number);
      if (submission) {
        action(*submission);
      } else {
        NotDone(number, "there is no such submission");
      }
    }
  }

  void List() {
    std::optional<SubmissionState> state = SubmissionState::unchecked;
    if (arguments_.size() > 1) return Wrong("list takes one state");
    if (!arguments_.empty() && arguments_[0] == "all") {
      state.reset();
    } else if (!arguments_.empty()) {
      const auto found = std::ranges::find(kStateNames, arguments_[0]);
      if (found == kStateNames.end()) return Wrong("there is no state \"" + arguments_[0] + "\"");
      state = static_cast<SubmissionState>(found - kStateNames.begin());
    }
    std::int64_t after = 0;
    for (;;) {
      const auto some = store_.Submissions(state, after, kAtOnce);
      for (const Submission& one : some) ListOne(one);
      if (some.size() < kAtOnce) return;
      after = some.back().number;
    }
  }

  void ListOne(const Submission& one) {
    std::string line = std::to_string(one.number);
    for (const std::string& column :
         {TimeOf(one), std::string(NameOf(one.state)), one.address, Shown(one.sender),
          Field(one, FoodField::kProduct) + (HoldsUnknownPiece(one.query) ? " (cut at \"&\")" : ""),
          Field(one, FoodField::kKj) + " kJ"}) {
      line += '\t';
      line += column;
    }
    result_.out += line + "\n";
  }

  void Show(const Submission& one) {
    const auto line = [this](std::string_view name, const std::string& value) {
      result_.out.append(name).append(": ").append(value).append("\n");
    };
    line("number", std::to_string(one.number));
    line("state", std::string(NameOf(one.state)));
    line("time", TimeOf(one) + " UTC");
    line("address", one.address);
    line("sender", Shown(one.sender));
    for (std::size_t field = 0; field < std::size(kFieldNames); ++field) {
      line(kFieldNames[field], Field(one, field));
    }
    line("request", Shown(one.query));
    result_.out += "\n";
  }

  void Change(const Submission& before, const Submission& changed, std::string_view done) {
    if (!store_.ChangeSubmission(before, changed)) {
      return NotDone(before.number, "somebody else has changed it just now");
    }
    result_.out += std::to_string(before.number) + ": " + std::string(done) + "\n";
  }

  void Decide(const Submission& one, SubmissionState state) {
    if (one.state == state) return NotDone(one.number, "it is " + std::string(NameOf(state)));
    Submission changed = one;
    changed.state = state;
    Change(one, changed, NameOf(state));
  }

  void Correct() {
    const auto values = arguments_;
    if (values.size() < 2) return Wrong("correct needs a number and key=value");
    arguments_ = values.first(1);
    ForEachNumber([&](const Submission& one) {
      std::vector<std::string> fields;
      for (const std::string_view field : FieldsOf(one.food)) fields.emplace_back(field);
      for (const std::string& value : values.subspan(1)) {
        if (!TakeValue(value, fields)) return;
      }
      std::string line;
      for (const std::string& field : fields) (line += field) += kFieldEnd;
      const auto clean = CleanFoodLine(line);
      if (!clean) return Wrong("the food needs a name, and none of its texts may be very long");
      Submission changed = one;
      changed.food = *clean;
      Change(one, changed, "corrected");
    });
  }

  bool TakeValue(const std::string& argument, std::vector<std::string>& fields) {
    const std::string key = argument.substr(0, argument.find('='));
    const auto found = std::ranges::find(kFieldNames, key);
    if (key.size() == argument.size() || found == std::end(kFieldNames)) {
      Wrong("\"" + argument + "\" is no key=value of a food");
      return false;
    }
    const auto field = static_cast<std::size_t>(found - std::begin(kFieldNames));
    auto value = TextOfBytes(argument.substr(key.size() + 1));
    if (field >= FoodField::kGram && field <= FoodField::kSodium && value) {
      value = AmountText(*value, kMostAmount);
    }
    if (!value || value->find_first_of("\xBC\xBD\xBE\r\n") != value->npos) {
      Wrong("\"" + argument + "\": no such value can be kept");
      return false;
    }
    fields[field] = *value;
    return true;
  }

  Store& store_;
  std::span<const std::string> arguments_;
  CommandResult result_;
};

}  // namespace

CommandResult Review(Store& store, std::span<const std::string> arguments) {
  return ReviewRun(store, arguments).Run();
}

std::string_view ReviewHelp() {
  return "  review list [STATE]            unchecked submissions, or accepted, refused or all\n"
         "  review show NUMBER...          everything that is known of them\n"
         "  review accept NUMBER...        the next search finds them\n"
         "  review refuse NUMBER...        no search finds them\n"
         "  review correct NUMBER KEY=VALUE...\n"
         "                                 name, unit, gram, kj, kcal, protein, fat_u, fat_s,\n"
         "                                 carbs, sodium, group, remark (the Dutch name)\n";
}

}  // namespace kelvora::server
