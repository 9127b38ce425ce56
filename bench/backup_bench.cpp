// Twenty years of days into a backup and back, each beside reading and writing the same bytes; and
// what the recovery copy costs while somebody types.
#include <filesystem>

#include "diary.h"
#include "keeping/backup.h"
#include "keeping/restore.h"
#include "plain_file.h"
#include "report.h"
#include "storage/day_file.h"
#include "storage/record_file.h"
#include "storage/recovery_copy.h"

namespace kelvora::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDays = 7300;
constexpr std::size_t kFoods = 600;

// Returns the number of files that the backup holds.
std::size_t BackUpTo(const std::string& path) {
  Program& program = DiaryOf(kDays, kFoods).test.program;
  Backup backup(program.paths.UsersPath, ReadUsers(program).users, path);
  while (backup.Work()) {
  }
  return backup.Files();
}

// Of a backup that is made once.
const std::string& BackupPath() {
  static const std::string path = [] {
    const std::string made = DiaryOf(kDays, kFoods).test.folders.home.Path("backup.zip");
    BackUpTo(made);
    return made;
  }();
  return path;
}

void MakeBackup(benchmark::State& state) {
  const std::string path = DiaryOf(kDays, kFoods).test.folders.home.Path("measured.zip");
  for (auto _ : state) {
    if (BackUpTo(path) <= kDays) state.SkipWithError("files are missing");
  }
  state.counters["bytes_of_backup"] = static_cast<double>(fs::file_size(path));
}

// Reads the days and writes what the backup takes.
void ReadDaysAndWriteBackup(benchmark::State& state) {
  const Diary& diary = DiaryOf(kDays, kFoods);
  const std::string path = diary.test.folders.home.Path("plain.zip");
  const std::string bytes = ReadFile(BackupPath());
  std::string buffer(std::size_t{1} << 16, '\0');
  for (auto _ : state) {
    for (const std::string& day : diary.paths) benchmark::DoNotOptimize(ReadPlain(day, buffer));
    WritePlain(path, bytes);
  }
}

// With what was looked at before, into an empty users folder.
void BringBack(benchmark::State& state) {
  const std::string users_path = DiaryOf(kDays, kFoods).test.folders.home.Path("back/");
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove_all(users_path);
    fs::create_directories(users_path);
    state.ResumeTiming();
    BackupContents contents(users_path, BackupPath());
    while (contents.Work()) {
    }
    Restore restore(users_path, contents, Differing::keep_both);
    while (restore.Work()) {
    }
    if (restore.Written() <= kDays) state.SkipWithError("files are missing");
  }
}

void ReadBackupAndWriteDays(benchmark::State& state) {
  const Diary& diary = DiaryOf(kDays, kFoods);
  const std::string folder = diary.test.folders.home.Path("plain/");
  const std::string bytes = ReadFile(diary.paths.front());
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove_all(folder);
    fs::create_directories(folder);
    state.ResumeTiming();
    benchmark::DoNotOptimize(ReadFile(BackupPath()));
    for (std::size_t i = 0; i < kDays; ++i) {
      WritePlainUnsynced(folder + std::to_string(i) + ".kvf", bytes);
    }
    SyncPlain(folder);
  }
}

// A day with all that it may hold.
void OpenFullDay(TestProgram& test) {
  test.OpenDay("Anna");
  for (const DayPart part : kDayParts) {
    for (std::size_t i = 0; i < MaxDayPartLines; ++i) {
      test.program.store.ListOf(part).Add(
          LineOf({.product = "Bread with cheese", .gram = "85", .kj = "937", .kcal = "224"}));
    }
  }
  test.program.store.txt_notities.assign(MaxDiaryLength, 'w');
}

// What comes twice a second.
void LookAtUnchangedDay(benchmark::State& state) {
  TestProgram test;
  OpenFullDay(test);
  BringRecoveryCopyUpToDate(test.program);
  for (auto _ : state) LookAfterRecoveryCopy(test.program);
}

// What comes once in a pause of the typing, and every second and a half without one.
void WriteChangedDay(benchmark::State& state) {
  TestProgram test;
  OpenFullDay(test);
  for (auto _ : state) {
    test.program.store.txt_notities[0] ^= 1;
    BringRecoveryCopyUpToDate(test.program);
  }
}

void PackDayOnly(benchmark::State& state) {
  TestProgram test;
  OpenFullDay(test);
  for (auto _ : state) benchmark::DoNotOptimize(PackDay(test.program.store));
}

void WriteSameBytes(benchmark::State& state) {
  TestProgram test;
  OpenFullDay(test);
  BringRecoveryCopyUpToDate(test.program);
  const std::string bytes = ReadFile(test.program.recovery.path);
  const std::string path = test.folders.home.Path("plain");
  for (auto _ : state) WritePlain(path, bytes);
}

}  // namespace

void AddBackupBenchmarks(Report& report) {
  report.AddPair("Backup/7300", UnderMicroseconds(3e6), Plan::one, MakeBackup,
                 ReadDaysAndWriteBackup);
  report.AddPair("Restore/7300", UnderMicroseconds(5e6), Plan::one, BringBack,
                 ReadBackupAndWriteDays);
  report.AddPair("RecoveryCopy/look", UnderMicroseconds(1e3), Plan::many, LookAtUnchangedDay,
                 PackDayOnly);
  report.AddPair("RecoveryCopy/write", UnderMicroseconds(16e3), Plan::few, WriteChangedDay,
                 WriteSameBytes);
}

}  // namespace kelvora::bench
