// Reading and writing ten thousand amounts of foods. The limits are the conversions of the standard
// library on the same numbers, into memory that is used again; a Text this short needs no more.
#include <array>
#include <charconv>

#include "core/store.h"
#include "food_data.h"
#include "nutrition/numbers.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kNumbers = 10'000;
constexpr std::size_t kAmountsPerLine = FoodField::kSodium - FoodField::kGram + 1;

struct Numbers {
  std::vector<Text> texts;
  std::vector<double> values;
};

const Numbers& SomeNumbers() {
  static const Numbers numbers = [] {
    Numbers made;
    for (const Text& line : SomeFoodLines(kNumbers / kAmountsPerLine)) {
      for (std::size_t i = FoodField::kGram; i <= FoodField::kSodium; ++i) {
        made.texts.emplace_back(FieldOf(line, i));
        made.values.push_back(Val(made.texts.back()));
      }
    }
    return made;
  }();
  return numbers;
}

template <class Convert>
Report::Body ForEachText(Convert convert) {
  return [convert](benchmark::State& state) {
    const auto& texts = SomeNumbers().texts;
    for (auto _ : state) {
      for (const Text& text : texts) benchmark::DoNotOptimize(convert(text));
    }
  };
}

template <class Convert>
Report::Body ForEachValue(Convert convert) {
  return [convert](benchmark::State& state) {
    const auto& values = SomeNumbers().values;
    for (auto _ : state) {
      for (const double value : values) benchmark::DoNotOptimize(convert(value));
    }
  };
}

// Writes with std::to_chars; `how` is what it takes behind the value.
template <class Number, class... How>
Report::Body Write(How... how) {
  return ForEachValue([how...](double value) {
    std::array<char, 64> buffer;
    const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                          static_cast<Number>(value), how...)
                                .ptr;
    benchmark::DoNotOptimize(buffer.data());
    return end;
  });
}

}  // namespace

void AddNumberBenchmarks(Report& report) {
  const auto add = [&report](const char* name, Report::Body measured, Report::Body limit) {
    report.AddPair(name, {}, Plan::many, std::move(measured), std::move(limit));
  };
  add("Val", ForEachText([](const Text& text) { return Val(text); }),
      ForEachText([](const Text& text) {
        double value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
      }));
  add("Str/double", ForEachValue([](double value) { return Str(value, "."); }), Write<double>());
  add("Str/float", ForEachValue([](double value) { return Str(static_cast<float>(value), "."); }),
      Write<float>());
  add("FormatNumber/whole",
      ForEachValue([](double value) { return FormatNumber(value, "#####0", "."); }),
      Write<double>(std::chars_format::fixed, 0));
  add("FormatNumber/decimals",
      ForEachValue([](double value) { return FormatNumber(value, "##0.000", "."); }),
      Write<double>(std::chars_format::fixed, 3));
}

}  // namespace kelvora::bench
