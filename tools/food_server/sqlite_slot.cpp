#include "food_server/sqlite_slot.h"

#include "food_server/ranking.h"
#include "food_server/sqlite_schema.h"
#include "food_server/store.h"

namespace kelvora::server {
namespace {

// Pages that one step of merging writes.
constexpr std::int64_t kMergedPages = 400;

}  // namespace

SlotWriter::SlotWriter(Connection& connection, char slot)
    : connection_(connection),
      slot_(slot),
      add_food_(connection, ForSlot("INSERT INTO food_$ VALUES (?1, ?2, ?3)", slot)),
      add_name_(connection, ForSlot("INSERT OR IGNORE INTO name_$ VALUES (?1, ?2)", slot)),
      add_words_(connection, ForSlot("INSERT INTO word_$ (rowid, words) VALUES (?1, ?2)", slot)),
      add_grams_(connection, ForSlot("INSERT INTO gram_$ (rowid, words) VALUES (?1, ?2)", slot)),
      line_of_(connection, ForSlot("SELECT line FROM food_$ WHERE place = ?1", slot)),
      from_(
          connection,
          ForSlot("SELECT place, line FROM food_$ WHERE place >= ?1 ORDER BY place LIMIT 1", slot)),
      last_(connection, ForSlot("SELECT max(place) FROM food_$", slot)),
      move_submission_(connection, "UPDATE submission SET place = ?2 WHERE place = ?1"),
      remove_food_(connection, ForSlot("DELETE FROM food_$ WHERE place = ?1", slot)),
      remove_name_(connection, ForSlot("DELETE FROM name_$ WHERE name = ?1 AND place = ?2", slot)),
      remove_words_(
          connection,
          ForSlot("INSERT INTO word_$ (word_$, rowid, words) VALUES ('delete', ?1, ?2)", slot)),
      remove_grams_(
          connection,
          ForSlot("INSERT INTO gram_$ (gram_$, rowid, words) VALUES ('delete', ?1, ?2)", slot)),
      merge_words_(connection,
                   ForSlot("INSERT INTO word_$ (word_$, rank) VALUES ('merge', ?1)", slot)),
      merge_grams_(connection,
                   ForSlot("INSERT INTO gram_$ (gram_$, rank) VALUES ('merge', ?1)", slot)) {}

void SlotWriter::Clear() {
  connection_.Run(ForSlot("DELETE FROM food_$; DELETE FROM name_$;"
                          "INSERT INTO word_$ (word_$) VALUES ('delete-all');"
                          "INSERT INTO gram_$ (gram_$) VALUES ('delete-all');",
                          slot_)
                      .c_str());
  // Fewer and larger pieces while it is filled, which takes a third of the time.
  connection_.Run(ForSlot("INSERT INTO word_$ (word_$, rank) VALUES ('hashsize', 16000000);"
                          "INSERT INTO gram_$ (gram_$, rank) VALUES ('hashsize', 16000000);"
                          "INSERT INTO word_$ (word_$, rank) VALUES ('automerge', 16);"
                          "INSERT INTO gram_$ (gram_$, rank) VALUES ('automerge', 16);",
                          slot_)
                      .c_str());
}

void SlotWriter::Add(std::int64_t place, std::string_view line, const FoldedFood& food) {
  add_food_.Run(place, Blob{line}, food.text);
  for (const std::string& name : food.names) add_name_.Run(name, place);
  add_words_.Run(place, food.text);
  add_grams_.Run(place, food.text);
}

void SlotWriter::Remove(std::int64_t place) {
  const std::string line = LineOf(place);
  if (line.empty()) return;
  const FoldedFood food = FoldFood(line);
  remove_food_.Run(place);
  for (const std::string& name : food.names) remove_name_.Run(name, place);
  remove_words_.Run(place, food.text);
  remove_grams_.Run(place, food.text);
}

std::string SlotWriter::LineOf(std::int64_t place) {
  auto rows = line_of_.Query(place);
  return rows.Next() ? std::string(rows.Bytes(0)) : std::string();
}

std::int64_t SlotWriter::LastPlace() {
  auto rows = last_.Query();
  return rows.Next() ? rows.Number(0) : 0;
}

std::int64_t SlotWriter::PlaceFor(std::string_view line, const FoldedFood& food) {
  // All foods at `before` and ahead of it stand before the line, those from `behind` on don't.
  std::int64_t before = 0;
  const std::int64_t last = LastPlace();
  std::int64_t behind = last + 2 * kPlaceDistance;
  for (std::int64_t end = last + 1; before + 1 < end;) {
    const std::int64_t middle = before + (end - before) / 2;
    auto rows = from_.Query(middle);
    if (!rows.Next()) break;
    const std::int64_t place = rows.Number(0);
    const std::string_view other = rows.Bytes(1);
    if (StandsBefore(FoldFood(other).name, other, food.name, line)) {
      before = place;
    } else {
      behind = place;
      end = middle;
    }
  }
  if (behind - before > 1) return before + (behind - before) / 2;
  GiveWay(behind);
  return behind;
}

void SlotWriter::GiveWay(std::int64_t place) {
  std::int64_t free = place;
  while (!LineOf(free).empty()) ++free;
  for (; free > place; --free) {
    const std::string line = LineOf(free - 1);
    Remove(free - 1);
    Add(free, line, FoldFood(line));
    move_submission_.Run(free - 1, free);
  }
}

bool SlotWriter::Merge() {
  const std::int64_t pages = merging_ ? kMergedPages : -kMergedPages;
  merging_ = true;
  bool more = false;
  for (Statement* const merge : {&merge_words_, &merge_grams_}) {
    const std::int64_t before = connection_.TotalChanges();
    merge->Run(pages);
    // The statement itself counts as one change.
    more |= connection_.TotalChanges() - before >= 2;
  }
  return more;
}

}  // namespace kelvora::server
