// Day files that a test writes for the current user.
#pragma once

#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// Days of March 2004, from the first on, with seven foods each. Day n has n * 1000 kilojoules and
// n * 239 kilocalories in its trend, and weighs 80 kilograms.
inline void WriteDays(Program& program, int count) {
  MakeUserFolders(program.paths, program.paths.UserName);
  SetCurrentUser(program, program.paths.UserName);
  for (int day = 1; day <= count; ++day) {
    const Text number = {static_cast<char>('0' + day / 10), static_cast<char>('0' + day % 10)};
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed("500|" + std::to_string(1000 * day) + "|" +
                                         std::to_string(239 * day) + "|10|5|100|50|2|80|");
    record[DayFileField::Header] =
        Packed(program.paths.UserName + "~~~~~~~~~" + number + "-03-04~~~~~~");
    for (int food = 1; food <= 7; ++food) {
      record[DayFileField::Morning] +=
          LineOf({.product = std::to_string(food), .kj = std::to_string(100 * food)}) + kLineEnd;
    }
    WriteRecord(program.paths.FilesPath + number + "032004210000.kvf", record);
  }
}

}  // namespace kelvora
