#include "food/import/command.h"

#include <algorithm>
#include <filesystem>

#include "core/common.h"
#include "core/failure.h"
#include "food/import/command_arguments.h"
#include "food/import/mapping_file.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

using Action = ImportArguments::Action;

constexpr int kNotDone = 1;
constexpr int kWrongArguments = 2;
constexpr std::string_view kProgram = "kelvora-food-import: ";

std::string_view WordsOf(NoSourceTable reason) {
  switch (reason) {
    case NoSourceTable::empty:
      return "the file is empty";
    case NoSourceTable::compressed:
      return "this is an archive or a workbook, not a table; unpack it, or save it as CSV, first";
    case NoSourceTable::utf16:
      return "the file is in UTF-16; save it as UTF-8 first";
    case NoSourceTable::binary:
      return "this is no text";
    case NoSourceTable::one_column:
      return "no columns: neither tabs nor semicolons, bars or commas";
    case NoSourceTable::folder:
      return "food.csv, food_nutrient.csv and nutrient.csv have to lie in the folder together";
  }
  return {};
}

std::string Plural(std::uint64_t count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

class ImportRun {
 public:
  ImportRun(const ImportArguments& arguments, const ImportOutside& outside)
      : arguments_(arguments), outside_(outside), folders_(outside.folders) {
    if (arguments_.directory.empty()) return;
    folders_.of_user = arguments_.directory;
    if (!folders_.of_user.ends_with('/')) folders_.of_user += '/';
  }

  CommandResult Run() {
    try {
      switch (arguments_.action) {
        case Action::help:
          result_.out = ImportHelp();
          break;
        case Action::version:
          result_.out = "kelvora-food-import (" + std::string(AppTitle) + ") " +
                        std::string(VersionText) + "\n";
          break;
        case Action::list:
          List();
          break;
        case Action::remove:
          Remove();
          break;
        case Action::count:
        case Action::import:
          ReadTable();
          break;
      }
    } catch (const std::exception& failure) {
      Fail(arguments_.table, Utf8FromText(DescribeFailure(failure)));
    }
    return std::move(result_);
  }

 private:
  void Fail(const std::string& what, std::string_view why) {
    result_.status = kNotDone;
    result_.errors.append(kProgram).append(what).append(what.empty() ? "" : ": ");
    result_.errors.append(why).append("\n");
  }

  void List() {
    for (const FoodSet& set : FoodSetsIn(folders_.of_user)) {
      result_.out += Utf8FromText(set.name) + "\t" + std::to_string(set.foods) + "\t" + set.date +
                     "\t" + set.table + "\n";
    }
  }

  void Remove() {
    const auto sets = FoodSetsIn(folders_.of_user);
    const auto set = std::ranges::find(sets, TextFromUtf8(arguments_.table), &FoodSet::name);
    if (set == sets.end()) return Fail(arguments_.table, "no such set of foods");
    RemoveFoodSet(folders_.of_user, *set);
    Say(Utf8FromText(set->name) + ": removed, " + Plural(set->foods, "food", "foods") + "\n");
  }

  void ReadTable() {
    auto looked = LookAtTable(arguments_.table);
    if (const auto* const reason = std::get_if<NoSourceTable>(&looked)) {
      return Fail(arguments_.table, WordsOf(*reason));
    }
    SourceTable& table = std::get<SourceTable>(looked);
    if (!FindColumns(table)) return;
    arguments_.action == Action::count ? Count(table) : Import(table);
  }

  bool FindColumns(SourceTable& table) {
    if (!arguments_.columns.empty()) {
      auto mapping = ColumnsNamed(arguments_.columns);
      if (!mapping) {
        Fail(arguments_.columns, "no columns are known by this name");
        return false;
      }
      if (!Fits(*mapping, table)) {
        Fail(arguments_.columns, "the table doesn't have these columns");
        return false;
      }
      table.known.reset();
      table.mapping = std::move(*mapping);
      return true;
    }
    if (table.known) return true;
    for (TableMapping& mapping : SavedMappings(folders_.of_user)) {
      if (!mapping.has_header || !Fits(mapping, table)) continue;
      table.mapping = std::move(mapping);
      return true;
    }
    Fail(arguments_.table, "a table with unknown columns; tell them with --columns");
    return false;
  }

  std::optional<TableMapping> ColumnsNamed(const std::string& name) const {
    for (TableMapping& mapping : SavedMappings(folders_.of_user)) {
      if (mapping.name == TextFromUtf8(name)) return std::move(mapping);
    }
    if (!FileExists(name)) return std::nullopt;
    return MappingFrom(ReadFile(name));
  }

  [[nodiscard]] RowChoice Choice() const {
    RowChoice choice;
    if (arguments_.hundred_grams) choice.portion = PortionChoice::hundred_grams;
    for (const std::string& group : arguments_.groups) {
      choice.groups.push_back(LowerCase(TextFromUtf8(group)));
    }
    choice.country = LowerCase(TextFromUtf8(arguments_.country));
    choice.completeness = arguments_.completeness;
    return choice;
  }

  [[nodiscard]] ImportProgress Steps() const {
    return [this](std::uint64_t, std::uint64_t) { return outside_.go_on(); };
  }

  void Count(const SourceTable& table) {
    const auto counts = CountFoods(table, Choice(), Steps());
    if (!counts) return Fail(arguments_.table, "given up");
    for (const GroupCount& group : counts->groups) {
      result_.out += std::to_string(group.foods) + "\t" + Utf8FromText(group.name) + "\n";
    }
    Say(DescriptionOf(table.form) + "\n");
    Summarize(table, counts->foods, counts->groups.size(), *counts);
    if (counts->foods == 0) result_.status = kNotDone;
  }

  void Import(const SourceTable& table) {
    const auto set = ImportFoods(table, Choice(), folders_, outside_.date, Steps());
    if (!set) {
      return Fail(arguments_.table,
                  outside_.go_on() ? "the table gives no food" : "given up; nothing has changed");
    }
    TableCounts counts;
    counts.skipped = set->skipped;
    counts.unknown = set->unknown;
    counts.by_reason = set->by_reason;
    Summarize(table, set->foods, set->files.size(), counts);
    if (set->skipped > 0) {
      Say("The rows passed over are listed in " + folders_.of_user + Utf8FromText(set->name) +
          ".skipped.txt\n");
    }
    if (!set->licence.empty()) {
      Say("Source: " + set->source + "\nLicence: " + set->licence + "\n");
    }
  }

  void Summarize(const SourceTable& table, std::uint64_t foods, std::size_t groups,
                 const TableCounts& counts) {
    Say(Utf8FromText(table.mapping.name) + ": " + Plural(foods, "food", "foods") + " in " +
        Plural(groups, "category", "categories") + "\n");
    if (counts.left_out > 0) Say(Plural(counts.left_out, "row", "rows") + " not wanted\n");
    if (counts.skipped > 0) {
      std::string reasons;
      for (std::size_t i = 0; i < kSkipReasonCount; ++i) {
        if (counts.by_reason[i] == 0) continue;
        reasons += reasons.empty() ? ": " : ", ";
        reasons += std::to_string(counts.by_reason[i]) + " " +
                   std::string(NameOf(static_cast<SkipReason>(i)));
      }
      Say(Plural(counts.skipped, "row", "rows") + " passed over" + reasons + "\n");
    }
    if (counts.unknown > 0) {
      Say(Plural(counts.unknown, "amount", "amounts") + " unknown, taken for 0\n");
    }
  }

  void Say(const std::string& text) {
    if (!arguments_.quiet) result_.errors += text;
  }

  const ImportArguments& arguments_;
  const ImportOutside& outside_;
  DatabaseFolders folders_;
  CommandResult result_;
};

}  // namespace

CommandResult RunImportCommand(std::span<const std::string> arguments,
                               const ImportOutside& outside) {
  std::string problem;
  const auto read = ReadArguments(arguments, problem);
  if (read) return ImportRun(*read, outside).Run();
  CommandResult result;
  result.status = kWrongArguments;
  result.errors = std::string(kProgram) + problem +
                  "\nTry 'kelvora-food-import --help' for more information.\n";
  return result;
}

}  // namespace kelvora
