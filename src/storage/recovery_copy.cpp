#include "storage/recovery_copy.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>

#include "core/hash.h"
#include "nutrition/dates.h"
#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

constexpr std::string_view kMark = "Kelvora FOOD recovery copy 1";
constexpr std::string_view kEnding = ".copy";
constexpr std::string_view kBesideEnding = ".new";
constexpr std::int64_t kLargestCopy = 64 << 20;

enum class CopyField {
  mark,
  day_path,
  process,
  process_start,
  made,
  stored,
  holds_untaken_diary,
  diary,
  day,  // six of them
  check = day + Rec_DayFile::kSize,
};
using Rec_Copy = Record<CopyField, static_cast<std::size_t>(CopyField::check) + 1>;
constexpr auto kDay = static_cast<std::size_t>(CopyField::day);

std::string CheckOf(const Rec_Copy& record) {
  return HashInDigits(EncodeRecord(std::span(record.strings).first(record.strings.size() - 1)));
}

// What the day and its diary's box hold now, with all of a copy but when and by whom it is made.
Rec_Copy CopyOfDay(const Program& program, const Rec_DayFile& day) {
  Rec_Copy copy;
  copy[CopyField::mark] = kMark;
  copy[CopyField::day_path] = PathOfDay(program);
  const auto& stored = program.day_on_disk.strings;
  if (stored) copy[CopyField::stored] = TraceOf(*stored);
  const DiaryView* const diary = program.windows.diary;
  const bool untaken = diary != nullptr && diary->HoldsUntakenText();
  copy[CopyField::holds_untaken_diary] = untaken ? "1" : "0";
  if (untaken) copy[CopyField::diary] = diary->TextInBox();
  std::ranges::copy(day.strings, copy.strings.begin() + kDay);
  return copy;
}

bool IsDue(const Program& program, const Rec_DayFile& day, const Rec_Copy& copy) {
  return copy[CopyField::holds_untaken_diary] == "1" || program.day_on_disk.strings != day;
}

Text Made(const Program& program) {
  const LocalTime now = program.platform.clock.Now();
  return TwoDigits(now.day) + "-" + TwoDigits(now.month) + "-" + std::to_string(now.year) + " " +
         TwoDigits(now.hour) + ":" + TwoDigits(now.minute);
}

// A name that no copy of another process has.
std::string FreePathFor(const Paths& paths, const std::string& day_path) {
  const std::string stem = paths.StatePath + HashInDigits(day_path);
  std::string path = stem + std::string(kEnding);
  for (int number = 2; PathIsTaken(path); ++number) {
    path = stem + "-" + std::to_string(number) + std::string(kEnding);
  }
  return path;
}

std::string NameBeside(const ProcessMark& process) {
  return process.number + "-" + HashInDigits(process.start) + std::string(kBesideEnding);
}

// Written by a process that has ended: its number and what tells its start stand in the name.
bool IsLeftover(const std::string& name) {
  if (!name.ends_with(kBesideEnding)) return false;
  const std::string number = name.substr(0, name.find('-'));
  const auto is_digit = [](char character) { return character >= '0' && character <= '9'; };
  if (number.empty() || !std::ranges::all_of(number, is_digit)) return false;
  return name != NameBeside({number, StartOfProcess(number)});
}

void Write(Program& program, Rec_Copy copy, std::string content) {
  RecoveryState& state = program.recovery;
  const std::string day_path = copy[CopyField::day_path];
  const ProcessMark own = OwnProcess();
  copy[CopyField::process] = own.number;
  copy[CopyField::process_start] = own.start;
  copy[CopyField::made] = Made(program);
  copy[CopyField::check] = CheckOf(copy);
  if (!MakeStateFolder(program.paths)) return;
  const bool same_day = !state.path.empty() && state.day_path == day_path;
  const std::string path = same_day ? state.path : FreePathFor(program.paths, day_path);
  const std::string bytes = EncodeRecord(copy.strings);
  const std::string_view piece = bytes;
  PutInPlace(path, program.paths.StatePath + NameBeside(own), std::span(&piece, 1),
             Durable::at_once);
  const std::string old_path = std::exchange(state.path, path);
  state.day_path = day_path;
  state.content = std::move(content);
  if (!old_path.empty() && old_path != path) DeleteFileIfThere(old_path);
}

enum class Wish { if_due_and_at_rest, if_due, always };

// True if a change that the copy lacks is to be written at this look.
bool IsAtRest(RecoveryState& state, const std::string& content) {
  constexpr int kMostLooks = 3;
  const bool at_rest = state.seen == content;
  state.seen = content;
  return at_rest || ++state.looks >= kMostLooks;
}

void Keep(Program& program, Wish wish) {
  RecoveryState& state = program.recovery;
  if (program.ending || !program.store.DayIsOpen()) return;
  try {
    const Rec_DayFile day = PackDay(program.store);
    Rec_Copy copy = CopyOfDay(program, day);
    if (wish != Wish::always && !IsDue(program, day, copy)) return RemoveRecoveryCopy(program);
    std::string content = EncodeRecord(copy.strings);
    if (!state.path.empty() && content == state.content && PathIsTaken(state.path)) {
      state.looks = 0;
      return;
    }
    if (wish == Wish::if_due_and_at_rest && !IsAtRest(state, content)) return;
    state.looks = 0;
    Write(program, std::move(copy), std::move(content));
  } catch (const std::exception&) {
    // The day goes on as without a copy; the next look tries again.
  }
}

}  // namespace

void LookAfterRecoveryCopy(Program& program) {
  Keep(program, Wish::if_due_and_at_rest);
}

void BringRecoveryCopyUpToDate(Program& program) {
  Keep(program, Wish::if_due);
}

void WriteRecoveryCopy(Program& program) {
  Keep(program, Wish::always);
}

void RemoveRecoveryCopy(Program& program) {
  const std::string path = std::move(program.recovery.path);
  program.recovery = {.session_ends = program.recovery.session_ends};
  if (path.empty()) return;
  try {
    DeleteFileIfThere(path);
  } catch (const std::exception&) {
    // One that says nothing new is not offered.
  }
}

void RemoveRecoveryCopiesBelow(const Paths& paths, const std::string& folder) {
  if (paths.StatePath.empty()) return;
  for (const std::string& name : NamesIn(paths.StatePath).names) {
    const auto copy = ReadRecoveryCopy(paths.StatePath + name);
    if (!copy || !copy->day_path.starts_with(folder)) continue;
    try {
      DeleteFileIfThere(copy->path);
    } catch (const std::exception&) {
      // It is offered as that of a user who is gone.
    }
  }
}

std::optional<RecoveryCopy> ReadRecoveryCopy(const std::string& path) {
  if (!path.ends_with(kEnding)) return std::nullopt;
  try {
    const InputFile file(path);
    if (file.Stamp().size > kLargestCopy) return std::nullopt;
    const auto record = DecodeRecord<Rec_Copy>(file.ReadAll());
    if (!record || (*record)[CopyField::mark] != kMark ||
        (*record)[CopyField::check] != CheckOf(*record)) {
      return std::nullopt;
    }
    RecoveryCopy copy{
        .path = path,
        .day_path = (*record)[CopyField::day_path],
        .process = {(*record)[CopyField::process], (*record)[CopyField::process_start]},
        .made = (*record)[CopyField::made],
        .stored = (*record)[CopyField::stored],
        .holds_untaken_diary = (*record)[CopyField::holds_untaken_diary] == "1",
        .diary = (*record)[CopyField::diary],
        .day = {}};
    std::copy_n(record->strings.begin() + kDay, Rec_DayFile::kSize, copy.day.strings.begin());
    return copy;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

std::vector<RecoveryCopy> RecoveryCopiesLeft(const Paths& paths) {
  std::vector<RecoveryCopy> copies;
  if (paths.StatePath.empty()) return copies;
  for (const std::string& name : NamesIn(paths.StatePath).names) {
    const std::string path = paths.StatePath + name;
    if (IsLeftover(name)) {
      std::error_code ignored;
      std::filesystem::remove(path, ignored);
      continue;
    }
    auto copy = ReadRecoveryCopy(path);
    if (copy && !IsAlive(copy->process)) copies.push_back(std::move(*copy));
  }
  std::ranges::sort(copies, {}, &RecoveryCopy::path);
  return copies;
}

void AdoptRecoveryCopy(Program& program, const RecoveryCopy& copy) {
  program.recovery = {.path = copy.path, .day_path = copy.day_path};
  BringRecoveryCopyUpToDate(program);
}

std::string TraceOf(const Rec_DayFile& day) {
  Rec_DayFile typed = day;
  typed[DayFileField::Trend].clear();
  return HashInDigits(EncodeRecord(typed.strings));
}

}  // namespace kelvora
