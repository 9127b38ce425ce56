// A user whose days are exported: real files in a temporary home, and a dialog that notes what it
// is told.
#pragma once

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <numeric>

#include "output/exporting.h"
#include "output/report_fixture.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {

// Notes when it is closed.
struct RecordingExportDialog : WindowView {
  std::function<void()> when_closed = [] {};
  int closed = 0;
  void CloseWindow() override {
    ++closed;
    when_closed();
  }
  void Set_Taal() override {}
};

class Exports : public testing::Test {
 protected:
  Exports() {
    std::filesystem::permissions(test.folders.home.Path(), std::filesystem::perms(0755));
    BeUser("Anna");
    program.windows.export_html = &dialog;
    std::filesystem::create_directory(test.folders.home.Path("Target"));
  }
  ~Exports() override { program.windows.export_html = nullptr; }

  // The folder may have any name; text may not be able to hold it.
  void BeUser(const std::string& folder) {
    for (const char* part : {"Profile", "Files", "Databases"}) {
      std::filesystem::create_directories(program.paths.UsersPath + folder + "/" + part);
    }
    SetCurrentUser(program, TextFromUtf8(folder), folder);
  }
  [[nodiscard]] std::string PathOf(const std::string& file) const {
    return program.paths.FilesPath + file;
  }
  void AddDay(const std::string& file, std::string_view date, std::string_view weight = "80.5",
              std::string_view weekday = "Friday") {
    DayText day = kQuietDay;
    day.header = "Anna~~~~~1.80~" + std::string(weight) + "~Female~42~" + std::string(date) +
                 "~75~" + std::string(weekday) + "~~~~";
    WriteRecord(PathOf(file), DayOf(day));
  }
  // 05-03-04, 04-03-04 and 03-03-04, in files of other names.
  void AddThreeDays() {
    AddDay("b.kvf", "05-03-04");
    AddDay("c.kvf", "04-03-04");
    AddDay("a.kvf", "03-03-04");
  }

  ExportList Read() {
    return ReadExportList(program, [] { return false; });
  }
  std::vector<Text> Column(std::size_t column) {
    std::vector<Text> cells;
    for (const ExportRow& row : Read().rows) cells.push_back(row.cells[column]);
    return cells;
  }

  // Exports these rows of the list, or all of them.
  void Export(const ReportOptions& options, std::vector<std::size_t> rows, bool close = true) {
    ExportDays(program, Read().rows, {options, std::move(rows), close});
  }
  void ExportAll(const ReportOptions& options, bool close = true) {
    const std::vector<ExportRow> list = Read().rows;
    std::vector<std::size_t> rows(list.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    ExportDays(program, list, {options, std::move(rows), close});
  }

  // The names of the files of a folder, from A to Z.
  static std::vector<std::string> NamesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      names.push_back(entry.path().filename().string());
    }
    std::ranges::sort(names);
    return names;
  }
  [[nodiscard]] std::vector<std::string> Reports() const {
    return NamesIn(program.paths.ReportsPath);
  }
  [[nodiscard]] std::string ReportText(const std::string& name) const {
    return ReadFile(program.paths.ReportsPath + name);
  }
  [[nodiscard]] Text LastBox() const {
    return test.boxes.shown.empty() ? Text() : test.boxes.shown.back().text;
  }
  [[nodiscard]] bool LastBoxEndsWith(std::string_view end) const {
    return LastBox().ends_with(end);
  }

  ReportProgram test;
  Program& program = test.program;
  RecordingExportDialog dialog;
};

}  // namespace kelvora
