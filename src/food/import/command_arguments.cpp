#include "food/import/command_arguments.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace kelvora {
namespace {

using Action = ImportArguments::Action;

struct Option {
  char letter;  // 0: none
  std::string_view name;
  bool takes_value;
  bool (*set)(ImportArguments&, const std::string& value);
};

template <Action kAction>
bool Do(ImportArguments& arguments, const std::string& value) {
  arguments.action = kAction;
  if (!value.empty()) arguments.table = value;
  return true;
}

bool SetPortion(ImportArguments& arguments, const std::string& value) {
  arguments.hundred_grams = value == "100g";
  return value == "100g" || value == "serving";
}

bool SetCompleteness(ImportArguments& arguments, const std::string& value) {
  const char* const end = value.data() + value.size();
  const auto [stopped, failure] = std::from_chars(value.data(), end, arguments.completeness);
  return failure == std::errc() && stopped == end && arguments.completeness >= 0 &&
         arguments.completeness <= 1;
}

constexpr std::array kOptions = {
    Option{'n', "dry-run", false, &Do<Action::count>},
    Option{'l', "list", false, &Do<Action::list>},
    Option{'r', "remove", true, &Do<Action::remove>},
    Option{'h', "help", false, &Do<Action::help>},
    Option{'V', "version", false, &Do<Action::version>},
    Option{'g', "group", true,
           [](ImportArguments& arguments, const std::string& value) {
             arguments.groups.push_back(value);
             return true;
           }},
    Option{'p', "portion", true, &SetPortion},
    Option{'c', "country", true,
           [](ImportArguments& arguments, const std::string& value) {
             arguments.country = value;
             return true;
           }},
    Option{'C', "completeness", true, &SetCompleteness},
    Option{'m', "columns", true,
           [](ImportArguments& arguments, const std::string& value) {
             arguments.columns = value;
             return true;
           }},
    Option{'d', "directory", true,
           [](ImportArguments& arguments, const std::string& value) {
             arguments.directory = value;
             return !value.empty();
           }},
    Option{'q', "quiet", false,
           [](ImportArguments& arguments, const std::string&) { return arguments.quiet = true; }},
};

constexpr std::string_view kHelp =
    R"(Usage: kelvora-food-import [OPTION]... TABLE
  or:  kelvora-food-import --list
  or:  kelvora-food-import --remove=SET
Bring a table of foods into the standard list of Kelvora FOOD.

TABLE is a file of delimited text, or the folder with the files of FoodData
Central. USDA FoodData Central, USDA SR, Ciqual, NEVO and Open Food Facts are
known by their columns; of any other table --columns tells what they are.
Importing the same table again replaces its foods.

  -n, --dry-run            count what TABLE gives, write nothing
  -g, --group=GROUP        import this group of the table only; may be repeated
  -p, --portion=PORTION    'serving': the portions of the table, where it has
                             any (default); '100g': 100 gram of every food
  -c, --country=COUNTRY    only foods that are sold in COUNTRY
  -C, --completeness=NUM   only foods at least so complete, from 0 to 1
  -m, --columns=NAME       use the columns saved as NAME, or in the file NAME
  -d, --directory=FOLDER   keep the foods in FOLDER instead of
                             $XDG_DATA_HOME/kelvora-food/Databases
  -l, --list               list the sets of foods that have been imported
  -r, --remove=SET         remove the set of foods named SET
  -q, --quiet              print no summary
  -h, --help               display this help and exit
  -V, --version            output version information and exit

-c and -C make a difference to tables that tell of countries and completeness,
as that of Open Food Facts does.

Exit status:
 0  if all is done,
 1  if nothing was imported or removed,
 2  if the arguments are wrong.
)";

// Reads one argument, and the next one if it is its value; false with a problem.
class Reader {
 public:
  Reader(std::span<const std::string> rest, ImportArguments& result, std::string& problem)
      : rest_(rest), result_(result), problem_(problem) {}

  bool ReadAll() {
    while (!rest_.empty()) {
      const std::string argument = Next();
      if (argument == "--") {
        only_names_ = true;
      } else if (only_names_ || argument == "-" || !argument.starts_with('-')) {
        if (!TakeName(argument)) return false;
      } else if (argument.starts_with("--") ? !ReadLong(argument) : !ReadShort(argument)) {
        return false;
      }
    }
    return true;
  }

 private:
  std::string Next() {
    std::string next = rest_.front();
    rest_ = rest_.subspan(1);
    return next;
  }

  bool Fail(const std::string& problem) {
    problem_ = problem;
    return false;
  }

  bool TakeName(const std::string& name) {
    if (has_name_) return Fail("extra operand '" + name + "'");
    has_name_ = true;
    result_.table = name;
    return true;
  }

  bool ReadLong(const std::string& argument) {
    const std::size_t equals = argument.find('=');
    const std::string name = argument.substr(2, equals == argument.npos ? equals : equals - 2);
    const auto option = std::ranges::find(kOptions, name, &Option::name);
    if (option == kOptions.end()) return Fail("unrecognized option '--" + name + "'");
    if (equals == argument.npos) return Set(*option, "--" + name, std::nullopt);
    if (!option->takes_value) return Fail("option '--" + name + "' doesn't allow an argument");
    return Set(*option, "--" + name, argument.substr(equals + 1));
  }

  bool ReadShort(const std::string& argument) {
    for (std::size_t i = 1; i < argument.size(); ++i) {
      const auto option = std::ranges::find(kOptions, argument[i], &Option::letter);
      if (option == kOptions.end()) {
        return Fail(std::string("invalid option -- '") + argument[i] + "'");
      }
      const std::string name = std::string("-") + argument[i];
      if (!option->takes_value) {
        if (!Set(*option, name, std::nullopt)) return false;
        continue;
      }
      const std::string value = argument.substr(i + 1);
      return value.empty() ? Set(*option, name, std::nullopt) : Set(*option, name, value);
    }
    return true;
  }

  bool Set(const Option& option, const std::string& name, std::optional<std::string> value) {
    if (option.takes_value && !value) {
      if (rest_.empty()) return Fail("option '" + name + "' requires an argument");
      value = Next();
    }
    if (option.set(result_, value.value_or(std::string()))) return true;
    return Fail("invalid argument '" + value.value_or(std::string()) + "' for '" + name + "'");
  }

  std::span<const std::string> rest_;
  ImportArguments& result_;
  std::string& problem_;
  bool only_names_ = false;
  bool has_name_ = false;
};

}  // namespace

std::string_view ImportHelp() {
  return kHelp;
}

std::optional<ImportArguments> ReadArguments(std::span<const std::string> arguments,
                                             std::string& problem) {
  ImportArguments result;
  if (!Reader(arguments, result, problem).ReadAll()) return std::nullopt;
  const bool needs_table = result.action == Action::import || result.action == Action::count ||
                           result.action == Action::remove;
  if (needs_table && result.table.empty()) {
    problem = "missing operand";
    return std::nullopt;
  }
  return result;
}

}  // namespace kelvora
