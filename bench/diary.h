// Diaries kept every evening, thirty foods a day, as the files that the program writes.
#pragma once

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

#include "support/test_program.h"

namespace kelvora::bench {

inline constexpr std::size_t kFoodsOfADay = 30;

// A user with that many days, one after the other from 2004 on. Of so many different foods each day
// takes the next thirty.
struct Diary {
  TestProgram test;
  std::vector<std::string> paths;
  std::vector<double> keys;  // in order of the names of the files
  std::size_t names = 0;     // of the different foods

  Diary(std::size_t days, std::size_t foods);

 private:
  void WriteDay(std::size_t number, const std::vector<Text>& lines);
};

// Made when it is first asked for.
[[nodiscard]] Diary& DiaryOf(std::size_t days, std::size_t foods);

// The limit of all that reads a diary: each of its files opened, read and closed.
void ReadSameFiles(benchmark::State& state, const Diary& diary);

}  // namespace kelvora::bench
