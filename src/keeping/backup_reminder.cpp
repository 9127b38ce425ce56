#include "keeping/backup_reminder.h"

#include <chrono>
#include <optional>

#include "language/own_texts.h"
#include "nutrition/dates.h"
#include "storage/own_settings.h"

namespace kelvora {
namespace {

using Day = std::chrono::sys_days;

constexpr std::string_view kSince = "backup_counted_from";
constexpr std::string_view kWanted = "backup_reminder";

Day Today(const Program& program) {
  const LocalTime now = program.platform.clock.Now();
  return std::chrono::year(now.year) / now.month / now.day;
}

std::string Written(const Program& program) {
  const LocalTime now = program.platform.clock.Now();
  return std::to_string(now.year) + "-" + TwoDigits(now.month) + "-" + TwoDigits(now.day);
}

// Nothing for what is no date.
std::optional<Day> DayOf(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto number = [text](std::size_t place, std::size_t size) {
    int value = 0;
    for (const char digit : text.substr(place, size)) {
      if (digit < '0' || digit > '9') return -1;
      value = 10 * value + (digit - '0');
    }
    return value;
  };
  const int year = number(0, 4), month = number(5, 2), day = number(8, 2);
  if (year < 0 || month < 0 || day < 0) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day))};
  if (!date.ok()) return std::nullopt;
  return Day(date);
}

void CountFromToday(Program& program) {
  program.backup_reminder.since = Written(program);
  try {
    SetOwnSetting(program.paths, kSince, program.backup_reminder.since);
  } catch (const std::exception&) {
    // Counted from the next start then.
  }
}

}  // namespace

void LoadBackupReminder(Program& program) {
  program.backup_reminder.wanted = OwnSetting(program.paths, kWanted) != "0";
  const std::string since = OwnSetting(program.paths, kSince).value_or("");
  const auto day = DayOf(since);
  program.backup_reminder.since = since;
  if (!day || *day > Today(program)) CountFromToday(program);
}

void NoteBackup(Program& program) {
  CountFromToday(program);
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
}

bool RemindsOfBackup(const Program& program) {
  return program.backup_reminder.wanted;
}

bool SetRemindsOfBackup(Program& program, bool reminds) {
  const bool stored =
      program.Guard("#F17-0", [&] { SetOwnSetting(program.paths, kWanted, reminds ? "1" : "0"); });
  if (stored) program.backup_reminder.wanted = reminds;
  if (program.windows.core != nullptr) program.windows.core->UpdateStatusBar();
  return stored;
}

Text BackupReminderText(const Program& program) {
  const auto since = DayOf(program.backup_reminder.since);
  if (!program.backup_reminder.wanted || !since) return {};
  const auto days = (Today(program) - *since).count();
  if (days < kDaysWithoutBackup) return {};
  return OwnTextWith(program.texts, OwnText::days_without_backup, std::to_string(days));
}

}  // namespace kelvora
