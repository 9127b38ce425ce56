// Browsing the days of one user: 2, 10 and 20 years of them. The files have the names and the
// content of a diary kept every evening, thirty foods a day.
#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <memory>

#include <QApplication>
#include <QTableView>

#include "days/browser_dialog.h"
#include "food_data.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "plain_file.h"
#include "platform/qt/qt_platform.h"
#include "report.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"

namespace kelvora::bench {
namespace {

constexpr std::array kDays = {std::size_t{730}, std::size_t{3650}, std::size_t{7300}};
constexpr double kMostMicroseconds = 1e6;
constexpr std::size_t kLinesPerPart = 10;

// A user with that many days, one after the other from 2004 on.
struct Diary {
  TestProgram test;
  std::vector<std::string> paths;
  std::vector<double> keys;  // in order of the names of the files

  explicit Diary(std::size_t days) {
    Program& program = test.program;
    const std::string_view user = "Zoë"_w;
    test.OpenDay(user);
    program.profile[ProfileField::name] = user;
    program.profile[ProfileField::type_prioriteit] = Text(1, '1');
    program.profile[ProfileField::height] = "1.80";
    program.profile[ProfileField::weight] = "80.5";
    Save_Profile(program, ProfileFile(program.paths, user));
    const std::vector<Text> lines = SomeFoodLines(kDayParts.size() * kLinesPerPart);
    for (std::size_t i = 0; i < lines.size(); ++i) {
      program.store.ListOf(kDayParts[i / kLinesPerPart]).Add(lines[i]);
    }
    program.store.txt_trenddata = Packed("1520.5|8700|2071.4|45.5|22.1|250.2|80.3|2.2|80.5|");
    for (std::size_t i = 0; i < days; ++i) WriteDay(i);
    std::ranges::sort(paths);
    for (const std::string& path : paths) {
      const auto record = ReadFirstRecord<Rec_DayFile>(path);
      TextList header;
      SplitBlock((*record)[DayFileField::Header], header);
      keys.push_back(ReadStoredNumber(DateKeyOf(header[HeaderRow::kDate])));
    }
  }

  // Named after the evening on which it was begun.
  void WriteDay(std::size_t number) {
    using namespace std::chrono;
    const year_month_day date{sys_days(year(2004) / 1 / 1) + days(number)};
    const Text day = TwoDigits(static_cast<int>(static_cast<unsigned>(date.day())));
    const Text month = TwoDigits(static_cast<int>(static_cast<unsigned>(date.month())));
    const Text year = std::to_string(static_cast<int>(date.year()));
    Program& program = test.program;
    program.store.L_gegevens.Replace(HeaderRow::kDate, day + "-" + month + "-" + year.substr(2));
    program.store.L_gegevens.Replace(HeaderRow::kWeight, "80." + std::to_string(number % 10));
    paths.push_back(program.paths.FilesPath + day + month + year + "21305.kvf");
    WriteRecord(paths.back(), PackDay(program.store));
  }
};

Diary& DiaryOf(std::size_t days) {
  static std::map<std::size_t, std::unique_ptr<Diary>> diaries;
  auto& diary = diaries[days];
  if (diary == nullptr) diary = std::make_unique<Diary>(days);
  return *diary;
}

void Read(benchmark::State& state, std::size_t days) {
  Diary& diary = DiaryOf(days);
  std::size_t rows = 0;
  for (auto _ : state) rows = ReadDays(diary.test.program).rows.size();
  if (rows != days || !diary.test.boxes.shown.empty()) state.SkipWithError("days are missing");
}

// From before the window is made until it is drawn with all its rows, with the real locale and
// event loop.
void OpenWindow(benchmark::State& state, std::size_t days) {
  TestProgram& test = DiaryOf(days).test;
  QtPointer pointer;
  QtLocale locale;
  QtEvents events;
  Platform platform{test.boxes,  pointer, locale,      test.folders,  test.clock,
                    test.screen, events,  test.opener, test.printers, test.folder_chooser};
  Program program(platform);
  program.texts = test.program.texts;
  program.settings = test.program.settings;
  program.profile = test.program.profile;
  program.paths = test.program.paths;
  for (auto _ : state) {
    BrowserDialog dialog(program, nullptr);
    dialog.Open();
    QApplication::processEvents();
    const auto* const list = dialog.findChild<QTableView*>(QStringLiteral("LV_browse_files"));
    if (list->model()->rowCount() != static_cast<int>(days)) {
      state.SkipWithError("days are missing");
      break;
    }
  }
}

void ReadSameFiles(benchmark::State& state, std::size_t days) {
  const Diary& diary = DiaryOf(days);
  std::string buffer(std::size_t{1} << 16, '\0');
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    for (const std::string& path : diary.paths) bytes += ReadPlain(path, buffer);
    benchmark::ClobberMemory();
  }
  state.counters["bytes_a_file"] = static_cast<double>(bytes / days);
}

void Sort(benchmark::State& state, std::size_t days) {
  const std::vector<double>& keys = DiaryOf(days).keys;
  for (auto _ : state) {
    benchmark::DoNotOptimize(ExchangeSorted(keys, [] { return false; }).data());
  }
}

// Each pair of keys compared once, and nothing moved.
void ComparePairs(benchmark::State& state, std::size_t days) {
  const std::vector<double>& keys = DiaryOf(days).keys;
  for (auto _ : state) {
    std::size_t less = 0;
    for (const double key : keys) {
      for (const double other : keys) less += key < other ? 1u : 0u;
    }
    benchmark::DoNotOptimize(less);
  }
}

}  // namespace

void AddBrowseBenchmarks(Report& report) {
  const auto of = [](void (*body)(benchmark::State&, std::size_t), std::size_t days) {
    return [=](benchmark::State& state) { body(state, days); };
  };
  struct Measured {
    const char* name;
    Reach reach;
    void (*body)(benchmark::State&, std::size_t);
    void (*limit)(benchmark::State&, std::size_t);
  };
  for (const auto& [name, reach, body, limit] :
       {Measured{"ReadDays/", {}, Read, ReadSameFiles},
        Measured{"ExchangeSorted/", {}, Sort, ComparePairs},
        Measured{"BrowserDialog/", UnderMicroseconds(kMostMicroseconds), OpenWindow,
                 ReadSameFiles}}) {
    for (const std::size_t days : kDays) {
      report.AddPair(name + std::to_string(days), reach, Plan::many, of(body, days),
                     of(limit, days));
    }
  }
}

}  // namespace kelvora::bench
