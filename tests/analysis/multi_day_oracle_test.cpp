// What all days of a user come to, against tests/oracles/make_multi_day.py, for sixty users whose
// day files are drawn here in the same way.
#include <cstdint>
#include <cstdio>
#include <filesystem>

#include "analysis/day_averages.h"
#include "analysis/days_of_anna.h"
#include "analysis/multi_day.h"
#include "oracles/table.h"

namespace kelvora {
namespace {

// Knuth's 64-bit linear congruential generator.
class Draw {
 public:
  explicit Draw(std::uint64_t seed) : state_(seed) {}
  std::size_t operator()(std::size_t count) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return (state_ >> 33u) % count;
  }

 private:
  std::uint64_t state_;
};

Text Digits(std::size_t number, std::size_t count) {
  const Text digits = std::to_string(number);
  return Text(count - std::min(count, digits.size()), '0') + digits;
}

Text DrawnDate(Draw& draw) {
  constexpr std::array kOdd = {"", "31/12/99", "1 2\\03 04", "12,03,03", "abc", "5", "31-02-03"};
  const std::size_t kind = draw(12);
  if (kind == 0) return "05-03-04";
  if (kind == 1) return kOdd[draw(kOdd.size())];
  const Text day = Digits(1 + draw(28), 2);
  const Text month = Digits(1 + draw(12), 2);
  return day + "-" + month + "-" + Digits(draw(100), 2);
}

Text DrawnField(Draw& draw) {
  if (draw(15) == 0) return {};
  const Text whole = std::to_string(draw(3000));
  const std::size_t mark = draw(3);
  if (mark == 0) return whole;
  return whole + ".,"[mark - 1] + Digits(draw(100), 2);
}

Text DrawnTrend(Draw& draw) {
  const std::size_t kind = draw(12);
  if (kind == 0) return Text(9, kFieldEnd);
  const std::size_t count = kind == 1 ? 2 : kind == 2 ? 20 : 9;
  Text trend;
  for (std::size_t i = 0; i < count; ++i) trend += DrawnField(draw) + kFieldEnd;
  return trend;
}

Text DrawnFood(Draw& draw) {
  const std::size_t name = draw(40);
  const std::size_t portion = draw(3);
  Text food =
      "Food " + std::to_string(name) + kFieldEnd + "portion " + std::to_string(portion) + kFieldEnd;
  for (std::size_t place = 0; place < 8; ++place) {
    const std::size_t value = (name * (7 + place) + portion * 13) % (50 + 300 * place);
    food += std::to_string(value) + (portion == 2 ? "," : ".") + Digits((value + place) % 1000, 3) +
            kFieldEnd;
  }
  return food + "0" + kFieldEnd + kFieldEnd;
}

std::string DrawnFile(Draw& draw) {
  const std::size_t kind = draw(20);
  if (kind == 0) return std::string(4, '\0');
  if (kind == 1) return {};
  Rec_DayFile record;
  const Text date = DrawnDate(draw);
  record[DayFileField::Trend] = DrawnTrend(draw);
  record[DayFileField::Header] = Packed("Anna~~~~~~~~~") + date + Packed("~~~~~~");
  for (const DayFileField part :
       {DayFileField::Morning, DayFileField::Afternoon, DayFileField::Evening}) {
    for (std::size_t lines = draw(4); lines > 0; --lines) {
      record[part] += DrawnFood(draw) + kLineEnd;
    }
  }
  std::string data = EncodeRecord(record.strings);
  if (kind == 2) data.resize(draw(data.size()));
  return data;
}

using Lines = std::vector<std::vector<Text>>;

// 64-bit FNV-1a.
Text SumOf(const Lines& lines) {
  std::uint64_t sum = 0xCBF29CE484222325u;
  const auto add = [&sum](char byte) {
    sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
  };
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) add('\n');
    for (std::size_t j = 0; j < lines[i].size(); ++j) {
      if (j > 0) add(';');
      for (const char byte : lines[i][j]) add(byte);
    }
  }
  std::array<char, 17> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(sum));
  return digits.data();
}

Text Printed(const char* format, double number) {
  std::array<char, 64> digits{};
  std::snprintf(digits.data(), digits.size(), format, number);
  return digits.data();
}

class MultiDayOracle : public DaysOfAnna {
 protected:
  void WriteUser(std::uint64_t seed) {
    std::filesystem::remove_all(program.paths.FilesPath);
    std::filesystem::create_directories(program.paths.FilesPath);
    Draw draw(seed);
    constexpr std::array<std::size_t, 3> kMost = {9, 50, 399};
    const std::size_t count = 2 + draw(kMost[seed % 3]);
    for (std::size_t number = 0; number < count; ++number) {
      const std::string name = Digits(draw(1000000), 6) + Digits(number, 3) + ".kvf";
      AddBytes(name, DrawnFile(draw));
    }
  }
};

TEST_F(MultiDayOracle, AgreesOnKeysSeriesHeightsAveragesAndRows) {
  for (const TableRow& row :
       ReadTable("multi_day.tsv",
                 "seed days first last rows average keys fields heights averages cells")) {
    SCOPED_TRACE(row[0]);
    WriteUser(static_cast<std::uint64_t>(NumberOf(row[0])));
    MultiDay days(program);
    while (days.Work()) {
    }
    const DaySeries& series = days.Days().series;
    EXPECT_EQ(std::to_string(series.keys.size()), row[1]);
    EXPECT_EQ(series.keys.front(), row[2]);
    EXPECT_EQ(series.keys.back(), row[3]);
    Lines keys, fields, heights, cells;
    for (std::size_t i = 0; i < series.keys.size(); ++i) {
      keys.push_back({series.keys[i], days.Days().lst_files_sorted[i]});
    }
    for (std::size_t k = 0; k < kSeriesCount; ++k) {
      fields.push_back(series.L_data_1[k]);
      heights.emplace_back();
      for (const double height : series.L_data_2[k]) {
        heights.back().push_back(Printed("%.17g", height));
      }
    }
    std::vector<Text> averages;
    const DayTotals average_day = AveragesOf(series).value();
    for (const float average : average_day) {
      averages.push_back(Printed("%.9g", double{average}));
    }
    for (const SummaryRow& food : *days.Sheet().Rows()) {
      cells.emplace_back(food.cells.begin(), food.cells.end());
    }
    EXPECT_EQ(std::to_string(cells.size()), row[4]);
    EXPECT_EQ(averages.front(), row[5]);
    EXPECT_EQ(SumOf(keys), row[6]);
    EXPECT_EQ(SumOf(fields), row[7]);
    EXPECT_EQ(SumOf(heights), row[8]);
    EXPECT_EQ(SumOf({averages}), row[9]);
    EXPECT_EQ(SumOf(cells), row[10]);
  }
}

}  // namespace
}  // namespace kelvora
