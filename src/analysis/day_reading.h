// `Lees_Dagen`: the day files of the current user, read in bulk behind the open day, as series in
// the order of their dates and as one list of all that was eaten.
//
// The work is done in small steps, so that whoever takes them can let other events run in between
// and give it up at any of them. Each file is read once, though its header is taken in the order of
// the files and its contents in that of the dates.
#pragma once

#include <string>
#include <vector>

#include "analysis/day_series.h"
#include "core/program.h"
#include "core/unread.h"
#include "storage/folders.h"

namespace kelvora {

// What the days of a user hold.
struct DayHistory {
  std::vector<Text> lst_files_sorted;  // in step with the keys of the series
  DaySeries series;
  TextList lst_totaal;  // all lines of all days, morning first; points for commas
};

enum class ReadingStage {
  listing,
  reading_data,  // the headers, for the dates
  sorting_data,
  reading_files,  // the series and the foods
  converting,
  done,
};

// How far a stage has come.
struct Progress {
  std::size_t done = 0;
  std::size_t of = 0;
};

class DayReading {
 public:
  explicit DayReading(Program& program) : program_(program) {}
  ~DayReading() { GiveUp(); }
  DayReading(const DayReading&) = delete;
  DayReading& operator=(const DayReading&) = delete;

  // One file, or one list, more; false when there is nothing left. The last step tells of too few
  // days, and of all that was passed over in one box with "#F12-15". What was read stays.
  bool Lees_Dagen();

  // Ends a reading that is under way; the pointer goes back to normal.
  void GiveUp();

  [[nodiscard]] ReadingStage Stage() const { return stage_; }
  [[nodiscard]] Progress HowFar() const;
  [[nodiscard]] const DayHistory& Days() const { return days_; }

 private:
  struct DayFile {
    Text name;
    Text key;
    std::string bytes;
  };
  // How a reading ends that has too little to read.
  enum class TooFew { no, one_file, no_file, no_folder };

  void Work();
  void ListFiles();
  void ReadData(const FolderFile& file);
  void SortData();
  void ReadFiles(DayFile& file);
  void Finish();
  void NextStage();
  [[nodiscard]] std::size_t StepsOfStage() const;

  Program& program_;
  ReadingStage stage_ = ReadingStage::listing;
  std::size_t next_ = 0;  // within the stage
  TooFew too_few_ = TooFew::no;
  std::vector<FolderFile> files_;
  std::vector<DayFile> read_;
  std::string record_before_;  // the image of the last file that had a record
  Unread unread_;
  DayHistory days_;
};

}  // namespace kelvora
