// A user with day files that a test writes, for what reads them all.
#pragma once

#include <fstream>
#include <gtest/gtest.h>

#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// Blocks with "|" for the end of a field and "~" for the end of a line.
struct WrittenDay {
  std::string_view date = "05-03-04";
  std::string_view trend = "";
  std::string_view morning = "";
  std::string_view afternoon = "";
  std::string_view evening = "";
};

class DaysOfAnna : public testing::Test {
 protected:
  DaysOfAnna() {
    MakeUserFolders(program.paths, "Anna");
    SetCurrentUser(program, "Anna");
    for (std::size_t i = 0; i < 7; ++i) {
      program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
    }
  }

  [[nodiscard]] std::string PathOf(const std::string& file) const {
    return program.paths.FilesPath + file;
  }
  void AddDay(const std::string& file, const WrittenDay& day) {
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed(day.trend);
    record[DayFileField::Header] = Packed("Anna~~~~~~~~~") + Text(day.date) + Packed("~~~~~~");
    record[DayFileField::Morning] = Packed(day.morning);
    record[DayFileField::Afternoon] = Packed(day.afternoon);
    record[DayFileField::Evening] = Packed(day.evening);
    WriteRecord(PathOf(file), record);
  }
  void AddBytes(const std::string& file, std::string_view bytes) {
    std::ofstream(PathOf(file), std::ios::binary).write(bytes.data(), std::ssize(bytes));
  }

  TestProgram test;
  Program& program = test.program;
};

}  // namespace kelvora
