// What the window for importing tables of foods shows and does, without the window: the chosen
// table, what is wanted of it, what it gives, and the sets that were imported before.
//
// Long work lets events run in between. Meanwhile the window lets nothing be done but giving up.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "core/program.h"
#include "food/import/importing.h"

namespace kelvora {

class ImportForm {
 public:
  explicit ImportForm(Program& program);

  // Looks at a file or a folder and takes it for the table. False with a box where it is none; the
  // table before then stays. A failure shows "#F28-0".
  bool Choose(const std::string& path);
  // Reads the whole table, so that its numbers are known; nothing is known after giving up. A
  // failure shows "#F28-1".
  void Count();
  // Shows the licence of a known table, the first time that it is imported, and makes the set; then
  // the standard list has its foods. True if that is done; a box tells. A failure shows "#F28-2".
  bool Import();
  // Asks, and removes the set with its foods; see set_removal.h.
  void RemoveSet(std::size_t index);
  // Ends Count or Import as soon as they look.
  void GiveUp() { given_up_ = true; }

  // The mapping of a table that the program doesn't know, as far as it has been told.
  void SetMapping(const TableMapping& mapping);
  // True if the table's columns are known, so that it can be counted and imported.
  [[nodiscard]] bool IsReady() const;
  [[nodiscard]] bool IsBusy() const { return busy_; }

  [[nodiscard]] Text TakenFor() const;              // what the table is, and its form
  [[nodiscard]] std::vector<Text> Summary() const;  // what it gives, line by line
  [[nodiscard]] Text LicenceText() const;           // of a known table; empty for others

  std::optional<SourceTable> table;
  RowChoice choice;
  std::optional<TableCounts> counts;  // of all groups
  std::vector<FoodSet> sets;
  std::function<void(int thousandths)> on_progress = [](int) {};

 private:
  [[nodiscard]] ImportProgress Steps();
  void ReadSets();

  Program& program_;
  bool given_up_ = false;
  bool busy_ = false;
};

}  // namespace kelvora
