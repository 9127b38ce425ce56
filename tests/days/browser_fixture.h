// Users and days of a test of the browser: real files in a temporary home.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "days/browser.h"
#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// What a test writes into a day file.
struct Day {
  std::string_view date;
  std::string_view weekday = "Friday";
  std::string_view weight = "80.5";
  std::string_view height = "1.80";
  std::string_view trend = "10|20.4|30.5|1.4|2.5|3.6|4.5|0.5|80.5|";
};

// A window that notes what it is told.
struct RecordingBrowser : BrowserView {
  int closed = 0;
  int refreshed = 0;
  void CloseWindow() override { ++closed; }
  void Set_Taal() override {}
  void Refresh_GebruikersLijst() override {}
  void Refresh_Files() override { ++refreshed; }
};

class Browser : public testing::Test {
 protected:
  Browser() {
    program.profile[ProfileField::type_prioriteit] = "1";
    AddUser("Anna");
    SetCurrentUser(program, "Anna");
  }

  void AddUser(std::string_view name) {
    MakeUserFolders(program.paths, name);
    Rec_Profile profile;
    profile[ProfileField::name] = name;
    profile[ProfileField::type_prioriteit] = "1";
    WriteRecord(ProfileFile(program.paths, name), profile);
  }

  void AddDay(const std::string& file_name, const Day& day) {
    TextList header;
    for (const std::string_view row :
         {std::string_view("Anna"), std::string_view(), std::string_view(), std::string_view(),
          std::string_view(), day.height, day.weight, std::string_view("Male"),
          std::string_view("42"), day.date, std::string_view("75"), day.weekday, std::string_view(),
          std::string_view(), std::string_view()}) {
      header.Add(row);
    }
    Rec_DayFile record;
    record[DayFileField::Trend] = Packed(day.trend);
    record[DayFileField::Header] = PackBlock(header);
    WriteRecord(program.paths.FilesPath + file_name, record);
  }

  std::vector<Text> Column(std::size_t column) {
    std::vector<Text> cells;
    for (const DayRow& row : ReadDays(program).rows) cells.push_back(row.cells[column]);
    return cells;
  }

  bool LastBoxEndsWith(std::string_view code) {
    return !test.boxes.shown.empty() && test.boxes.shown.back().text.ends_with(code);
  }

  TestProgram test;
  Program& program = test.program;
};

}  // namespace kelvora
