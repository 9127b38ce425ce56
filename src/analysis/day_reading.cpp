#include "analysis/day_reading.h"

#include <utility>

#include "analysis/day_averages.h"
#include "core/exchange_sort.h"
#include "language/trend_texts.h"
#include "nutrition/dates.h"
#include "nutrition/numbers.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

using DayStrings = std::array<std::string_view, Rec_DayFile::kSize>;

std::string_view StringOf(const DayStrings& strings, DayFileField field) {
  return strings[static_cast<std::size_t>(field)];
}

Text KeyOfHeader(const DayStrings& strings) {
  TextList header;
  SplitBlock(CommaToPoint(StringOf(strings, DayFileField::Header)), header);
  return DateKeyOf(header[HeaderRow::kDate]);
}

// A field of the day for each series; one that is missing is empty.
void AddFields(std::string_view trend, DaySeries& series) {
  const Text points = CommaToPoint(trend);
  const auto fields = FieldsOf(points);
  for (std::size_t k = 0; k < kSeriesCount; ++k) {
    series.L_data_1[k].emplace_back(k < fields.size() ? fields[k] : std::string_view());
  }
}

}  // namespace

void DayReading::GiveUp() {
  const bool under_way = stage_ != ReadingStage::listing && stage_ != ReadingStage::done;
  stage_ = ReadingStage::done;
  if (under_way) program_.platform.pointer.Restore();
}

bool DayReading::Lees_Dagen() {
  if (stage_ == ReadingStage::done) return false;
  if (!unread_.Try({}, [this] { Work(); })) stage_ = ReadingStage::done;
  if (stage_ != ReadingStage::done) return true;
  Finish();
  unread_.Report(program_.FailurePath(), "#F12-15");
  return false;
}

void DayReading::Work() {
  switch (stage_) {
    case ReadingStage::listing:
      ListFiles();
      break;
    case ReadingStage::reading_data: {
      const FolderFile& file = files_[next_];
      unread_.Try(file.name, [&] { ReadData(file); });
      break;
    }
    case ReadingStage::sorting_data:
      SortData();
      break;
    case ReadingStage::reading_files:
      ReadFiles(read_[next_]);
      break;
    case ReadingStage::converting:
      ConvertPercentages(days_.series, next_);
      break;
    case ReadingStage::done:
      return;
  }
  ++next_;
  while (stage_ != ReadingStage::done && next_ >= StepsOfStage()) NextStage();
}

std::size_t DayReading::StepsOfStage() const {
  switch (stage_) {
    case ReadingStage::reading_data:
      return files_.size();
    case ReadingStage::reading_files:
      return read_.size();
    case ReadingStage::converting:
      return kSeriesCount;
    default:
      return 1;
  }
}

Progress DayReading::HowFar() const {
  return {next_, StepsOfStage()};
}

void DayReading::NextStage() {
  const bool ends = too_few_ != TooFew::no || stage_ == ReadingStage::converting;
  stage_ = ends ? ReadingStage::done : static_cast<ReadingStage>(static_cast<int>(stage_) + 1);
  next_ = 0;
}

void DayReading::ListFiles() {
  program_.platform.pointer.ShowWait();
  const std::string& folder = program_.paths.FilesPath;
  if (folder.empty()) {
    too_few_ = TooFew::no_folder;
    return;
  }
  std::error_code failure;
  files_ = FilesWithPathsIn(folder, ".kvf", failure);
  // A user without that folder has no days.
  if (failure && failure != std::errc::no_such_file_or_directory) {
    throw std::system_error(failure);
  }
  if (files_.size() < 2) too_few_ = files_.empty() ? TooFew::no_file : TooFew::one_file;
}

void DayReading::ReadData(const FolderFile& file) {
  DayFile day{file.name, {}, ReadFile(file.path)};
  DayStrings strings;
  if (DecodeFirstRecord(day.bytes, strings)) {
    day.key = KeyOfHeader(strings);
  } else if (!read_.empty()) {
    // Without a record the header of the file before counts.
    day.key = read_.back().key;
  }
  read_.push_back(std::move(day));
}

void DayReading::SortData() {
  std::vector<double> keys;
  keys.reserve(read_.size());
  for (const DayFile& day : read_) keys.push_back(Val(day.key));
  std::vector<DayFile> sorted;
  sorted.reserve(read_.size());
  for (const std::size_t place : ExchangeSorted(keys, [] { return false; })) {
    DayFile& day = sorted.emplace_back(std::move(read_[place]));
    days_.lst_files_sorted.push_back(day.name);
    days_.series.keys.push_back(day.key);
  }
  read_ = std::move(sorted);
}

void DayReading::ReadFiles(DayFile& day) {
  DayStrings strings;
  // Without a record the contents of the day before count.
  if (DecodeFirstRecord(day.bytes, strings)) record_before_ = std::move(day.bytes);
  day.bytes.clear();
  (void)DecodeFirstRecord(record_before_, strings);
  AddFields(StringOf(strings, DayFileField::Trend), days_.series);
  for (const DayFileField part :
       {DayFileField::Morning, DayFileField::Afternoon, DayFileField::Evening}) {
    SplitBlock(CommaToPoint(StringOf(strings, part)), days_.lst_totaal);
  }
}

void DayReading::Finish() {
  // Without a folder or a file the pointer stays busy, as is meant.
  const bool stays_busy = too_few_ == TooFew::no_folder || too_few_ == TooFew::no_file;
  if (!stays_busy) program_.platform.pointer.Restore();
  if (too_few_ == TooFew::no || too_few_ == TooFew::no_folder) return;
  using namespace trend_text;
  Tell(program_, BoxIcon::warning,
       JoinLines(program_.texts, {kTooFewDays, kTwoDaysNeeded, std::nullopt, kFillInMoreDays}));
}

}  // namespace kelvora
