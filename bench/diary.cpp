#include "diary.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <set>

#include "food_data.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "plain_file.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/profile_file.h"
#include "storage/record_file.h"

namespace kelvora::bench {

Diary::Diary(std::size_t days, std::size_t foods) {
  Program& program = test.program;
  const std::string_view user = "Zoë"_w;
  test.OpenDay(user);
  program.profile[ProfileField::name] = user;
  program.profile[ProfileField::type_prioriteit] = Text(1, '1');
  program.profile[ProfileField::height] = "1.80";
  program.profile[ProfileField::weight] = "80.5";
  for (std::size_t i = 0; i < std::tuple_size_v<DayTotals>; ++i) {
    program.profile.strings[static_cast<std::size_t>(ProfileField::txt_kj) + i] = "100";
  }
  Save_Profile(program, ProfileFile(program.paths, user));
  program.store.txt_trenddata = Packed("1520.5|8700|2071.4|45.5|22.1|250.2|80.3|2.2|80.5|");
  const std::vector<Text> lines = SomeFoodLines(foods);
  std::set<std::string_view> different;
  for (const Text& line : lines) different.insert(FieldOf(line, FoodField::kProduct));
  names = different.size();
  for (std::size_t i = 0; i < days; ++i) WriteDay(i, lines);
  std::ranges::sort(paths);
  for (const std::string& path : paths) {
    const auto record = ReadFirstRecord<Rec_DayFile>(path);
    TextList header;
    SplitBlock((*record)[DayFileField::Header], header);
    keys.push_back(ReadStoredNumber(DateKeyOf(header[HeaderRow::kDate])));
  }
}

// Named after the evening on which it was begun.
void Diary::WriteDay(std::size_t number, const std::vector<Text>& lines) {
  using namespace std::chrono;
  const year_month_day date{sys_days(year(2004) / 1 / 1) + days(number)};
  const Text day = TwoDigits(static_cast<int>(static_cast<unsigned>(date.day())));
  const Text month = TwoDigits(static_cast<int>(static_cast<unsigned>(date.month())));
  const Text year = std::to_string(static_cast<int>(date.year()));
  Program& program = test.program;
  program.store.L_gegevens.Replace(HeaderRow::kDate, day + "-" + month + "-" + year.substr(2));
  program.store.L_gegevens.Replace(HeaderRow::kWeight, "80." + std::to_string(number % 10));
  for (const DayPart part : kDayParts) program.store.ListOf(part).Clear();
  for (std::size_t i = 0; i < kFoodsOfADay; ++i) {
    const DayPart part = kDayParts[i * kDayParts.size() / kFoodsOfADay];
    program.store.ListOf(part).Add(lines[(number * kFoodsOfADay + i) % lines.size()]);
  }
  paths.push_back(program.paths.FilesPath + day + month + year + "21305.kvf");
  WriteRecord(paths.back(), PackDay(program.store));
}

Diary& DiaryOf(std::size_t days, std::size_t foods) {
  static std::map<std::pair<std::size_t, std::size_t>, std::unique_ptr<Diary>> diaries;
  auto& diary = diaries[{days, foods}];
  if (diary == nullptr) diary = std::make_unique<Diary>(days, foods);
  return *diary;
}

void ReadSameFiles(benchmark::State& state, const Diary& diary) {
  std::string buffer(std::size_t{1} << 16, '\0');
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    for (const std::string& path : diary.paths) bytes += ReadPlain(path, buffer);
    benchmark::ClobberMemory();
  }
  state.counters["bytes_a_file"] = static_cast<double>(bytes / diary.paths.size());
}

}  // namespace kelvora::bench
