// A day whose content tells which edit was its last, for tests that cut the program off: each edit
// takes a food out and puts one in, so that the day stays at twenty, and writes its number into the
// diary.
#pragma once

#include <optional>
#include <string>

#include "core/store.h"
#include "days/open_day.h"
#include "keeping/recovery_offer.h"
#include "storage/day_file.h"
#include "support/test_program.h"

namespace kelvora {

inline constexpr const char* kEditedDay = "05032004140709.kvf";

inline Text FoodOfEdit(int number) {
  return LineOf({.product = "food " + std::to_string(number)});
}

inline void MakeEdit(Program& program, int number) {
  TextList& foods = program.store.L_ochtend;
  if (foods.Count() == 20) foods.Remove(0);
  foods.Add(FoodOfEdit(number));
  program.store.txt_notities = "word " + std::to_string(number);
  SetFileChanged(program, true);
}

// The number of the last edit that the open day holds; nothing if the day is not whole.
inline std::optional<int> LastEdit(const KV_data& store) {
  const std::string& words = store.txt_notities;
  if (!words.starts_with("word ")) return std::nullopt;
  const int last = std::stoi(words.substr(5));
  const int count = static_cast<int>(store.L_ochtend.Count());
  for (int i = 0; i < count; ++i) {
    if (store.L_ochtend[static_cast<std::size_t>(i)] != FoodOfEdit(last + 1 - (count - i))) {
      return std::nullopt;
    }
  }
  return last;
}

// A new start, where everything that is offered is taken, and then the day is opened if it wasn't.
// Nothing if there is no whole day.
inline std::optional<int> LastEditAfterNewStart(TestProgram& test) {
  test.boxes.answers = {BoxAnswer::yes};
  OfferRecoveryCopies(test.program);
  test.boxes.answers.clear();
  if (!test.program.store.DayIsOpen()) {
    LoadDay(test.program, test.program.paths.UsersPath + "Anna/Files/", kEditedDay);
  }
  if (!test.program.store.DayIsOpen()) return std::nullopt;
  return LastEdit(test.program.store);
}

}  // namespace kelvora
