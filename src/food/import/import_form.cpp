#include "food/import/import_form.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "core/common.h"
#include "food/import/mapping_file.h"
#include "food/import/set_removal.h"
#include "language/own_texts.h"
#include "storage/folders.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

constexpr std::array kInstead = {OwnText::import_empty,  OwnText::import_compressed,
                                 OwnText::import_utf16,  OwnText::import_binary,
                                 OwnText::import_column, OwnText::import_folder_incomplete};

constexpr std::array<OwnText, kSkipReasonCount> kReasons = {
    OwnText::import_no_name, OwnText::import_unreadable, OwnText::import_no_energy,
    OwnText::import_header,  OwnText::import_quote,      OwnText::import_too_long,
    OwnText::import_cut};

constexpr std::array<OwnText, kKnownTableCount> kLicences = {
    OwnText::licence_fdc, OwnText::licence_sr, OwnText::licence_ciqual, OwnText::licence_nevo,
    OwnText::licence_off};

std::string DateOf(const LocalTime& time) {
  std::array<char, 40> text;
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", time.year, time.month, time.day);
  return text.data();
}

}  // namespace

ImportForm::ImportForm(Program& program) : program_(program) {
  ReadSets();
}

void ImportForm::ReadSets() {
  sets = FoodSetsIn(program_.paths.UserDatabases);
}

bool ImportForm::Choose(const std::string& path) {
  bool chosen = false;
  program_.Guard("#F28-0", [&] {
    auto looked = LookAtTable(path);
    if (const auto* const reason = std::get_if<NoSourceTable>(&looked)) {
      const OwnText words = kInstead[static_cast<std::size_t>(*reason)];
      return Tell(program_, BoxIcon::warning, OwnTextOf(program_.texts, words));
    }
    table = std::move(std::get<SourceTable>(looked));
    counts.reset();
    choice = {};
    chosen = true;
    if (table->known) return;
    for (TableMapping& mapping : SavedMappings(program_.paths.UserDatabases)) {
      if (mapping.has_header && Fits(mapping, *table)) table->mapping = std::move(mapping);
    }
  });
  return chosen;
}

void ImportForm::SetMapping(const TableMapping& mapping) {
  if (!table) return;
  table->mapping = mapping;
  counts.reset();
}

bool ImportForm::IsReady() const {
  if (!table) return false;
  if (table->known) return true;
  const auto has = [&](TableField field) {
    return std::ranges::find(table->mapping.columns, field, &TableColumn::field) !=
           table->mapping.columns.end();
  };
  return CanNameASet(table->mapping.name) && has(TableField::name) &&
         (has(TableField::kj) || has(TableField::kcal));
}

ImportProgress ImportForm::Steps() {
  given_up_ = false;
  return [this](std::uint64_t done, std::uint64_t all) {
    on_progress(
        all == 0 ? 0
                 : static_cast<int>(1000.0 * static_cast<double>(done) / static_cast<double>(all)));
    program_.platform.events.Yield();
    return !given_up_;
  };
}

void ImportForm::Count() {
  if (!IsReady() || busy_) return;
  busy_ = true;
  counts.reset();
  program_.Guard("#F28-1", [&] {
    RowChoice all_groups = choice;
    all_groups.groups.clear();
    counts = CountFoods(*table, all_groups, Steps());
  });
  busy_ = false;
}

bool ImportForm::Import() {
  if (!IsReady() || busy_) return false;
  const auto old = std::ranges::find(sets, table->mapping.name, &FoodSet::name);
  if (table->known && old == sets.end()) {
    const Box box{.title = Text(AppTitle),
                  .text = LicenceText() + "\n\n" +
                          OwnTextOf(program_.texts, OwnText::import_licence_question),
                  .icon = BoxIcon::question,
                  .buttons = BoxButtons::yes_no};
    if (program_.platform.boxes.Show(box) != BoxAnswer::yes) return false;
  }
  const auto gone = old == sets.end() ? std::vector<std::string>() : old->files;
  busy_ = true;
  bool done = false;
  std::optional<FoodSet> set;
  const bool ended = program_.Guard("#F28-2", [&] {
    if (!table->known) SaveMapping(program_.paths.UserDatabases, table->mapping);
    const DatabaseFolders folders{program_.paths.UserDatabases, ProgramDatabases(program_.paths)};
    set = ImportFoods(*table, choice, folders, DateOf(program_.platform.clock.Now()), Steps());
  });
  busy_ = false;
  if (!ended || given_up_) return false;
  if (set) {
    done = true;
    ShowImportedFoodsAnew(program_, gone);
    ReadSets();
    Tell(program_, BoxIcon::information,
         OwnTextWith(program_.texts, OwnText::import_foods_added, std::to_string(set->foods)));
  } else {
    Tell(program_, BoxIcon::warning, OwnTextOf(program_.texts, OwnText::import_no_foods));
  }
  return done;
}

void ImportForm::RemoveSet(std::size_t index) {
  if (index >= sets.size() || busy_) return;
  RemoveSetIfWanted(program_, FoodSet(sets[index]));
  ReadSets();
}

Text ImportForm::TakenFor() const {
  if (!table) return OwnTextOf(program_.texts, OwnText::import_nothing_chosen);
  const Text what = table->known ? OwnTextWith(program_.texts, OwnText::import_taken_for,
                                               FactsOf(*table->known).name)
                                 : OwnTextOf(program_.texts, OwnText::import_unknown_table);
  return what + " (" + DescriptionOf(table->form) + ")";
}

std::vector<Text> ImportForm::Summary() const {
  std::vector<Text> lines;
  if (!counts) return lines;
  const auto add = [&](std::uint64_t count, OwnText text) {
    if (count > 0) lines.push_back(OwnTextWith(program_.texts, text, std::to_string(count)));
  };
  lines.push_back(
      OwnTextWith(program_.texts, OwnText::import_foods_found, std::to_string(counts->foods)));
  add(counts->left_out, OwnText::import_left_out);
  add(counts->skipped, OwnText::import_skipped);
  for (std::size_t i = 0; i < kSkipReasonCount; ++i) {
    if (counts->by_reason[i] > 0) {
      lines.push_back(
          "    " + OwnTextWith(program_.texts, kReasons[i], std::to_string(counts->by_reason[i])));
    }
  }
  add(counts->unknown, OwnText::import_unknown_amounts);
  return lines;
}

Text ImportForm::LicenceText() const {
  if (!table || !table->known) return {};
  return OwnTextOf(program_.texts, kLicences[static_cast<std::size_t>(*table->known)]);
}

}  // namespace kelvora
