#include "support/test_program.h"

#include <array>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "core/common.h"
#include "core/frame/arrangement.h"
#include "core/frame/commands.h"
#include "language/built_in_texts.h"
#include "nutrition/dates.h"
#include "storage/folders.h"
#include "storage/settings_file.h"

namespace kelvora {

BoxAnswer RecordingBoxes::Show(const Box& box) {
  shown.push_back(box);
  if (answers.empty()) return box.buttons == BoxButtons::ok ? BoxAnswer::ok : BoxAnswer::no;
  const BoxAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

Text FixedLocale::DayMonthYear(const LocalTime& time) const {
  return TwoDigits(time.day) + date_mark + TwoDigits(time.month) + date_mark +
         std::to_string(time.year);
}

Text FixedLocale::HourMinuteSecond(const LocalTime& time) const {
  return TwoDigits(time.hour) + date_mark + TwoDigits(time.minute) + date_mark +
         std::to_string(time.second) + time_suffix;
}

Text FixedLocale::ShortDate(const LocalTime& time) const {
  if (short_date) return *short_date;
  if (!has_short_form) return {};
  return std::to_string(time.month) + "/" + std::to_string(time.day) + "/" + TwoDigits(time.year);
}

Text FixedLocale::ShortTime(const LocalTime& time) const {
  if (!has_short_form) return {};
  return std::to_string((time.hour + 11) % 12 + 1) + ":" + TwoDigits(time.minute) +
         (time.hour < 12 ? " AM" : " PM");
}

Text FixedLocale::WeekdayName(const LocalTime& time) const {
  if (weekday) return *weekday;
  // The first of January of the year 1 was a Monday; a year has 365 days and the leap days before.
  constexpr std::array kNames = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                 "Thursday", "Friday", "Saturday"};
  constexpr std::array kDaysBefore = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const auto leap_days = [](int year) { return year / 4 - year / 100 + year / 400; };
  const bool leaps = leap_days(time.year) != leap_days(time.year - 1);
  const int days = 365 * (time.year - 1) + leap_days(time.year - 1) +
                   kDaysBefore.at(static_cast<std::size_t>(time.month - 1)) +
                   (leaps && time.month > 2 ? 1 : 0) + time.day;
  return kNames.at(static_cast<std::size_t>(days % 7));
}

bool RecordingOpener::Open(const std::string& address) {
  opened.push_back(address);
  return knows_a_program;
}

bool RecordingOpener::Start(const CommandLine& command, const std::string& folder) {
  started.push_back(command);
  start_folders.push_back(folder);
  return starts;
}

std::vector<Text> ListedPrinters::Names() const {
  if (no_names) std::rethrow_exception(no_names);
  return names;
}

Sheet RecordingPrinting::SheetOf(const Text& printer) {
  asked_for.push_back(printer);
  if (no_sheet) std::rethrow_exception(no_sheet);
  return sheet;
}

void RecordingPrinting::Print(const PrintJob& job) {
  if (no_print) std::rethrow_exception(no_print);
  jobs.push_back(job);
}

std::optional<std::string> RecordingFolderChooser::Choose(const Text& prompt,
                                                          const std::string& start) {
  prompts.push_back(prompt);
  starts.push_back(start);
  return answer;
}

std::optional<std::string> RecordingFolderChooser::ChooseNewZip(const Text& prompt,
                                                                const std::string& proposed) {
  prompts.push_back(prompt);
  starts.push_back(proposed);
  return zip;
}

std::optional<std::string> RecordingFolderChooser::ChooseZip(const Text& prompt,
                                                             const std::string& start) {
  prompts.push_back(prompt);
  starts.push_back(start);
  return zip;
}

class RecordingTransfers::Noted : public Transfer {
 public:
  Noted(RecordingTransfers& all, OnState on_state) : all_(all), on_state_(std::move(on_state)) {
    all_.running_ = this;
  }
  ~Noted() override {
    if (all_.running_ != this) return;
    all_.running_ = nullptr;
    ++all_.cancelled;
  }
  std::string GetChunk() override {
    if (chunks.empty()) return {};
    std::string chunk = std::move(chunks.front());
    chunks.pop_front();
    return chunk;
  }
  std::string ResponseText() const override { return response_text; }
  OnState TakeOnState() { return std::move(on_state_); }

  std::deque<std::string> chunks;
  std::string response_text;

 private:
  RecordingTransfers& all_;
  OnState on_state_;
};

std::unique_ptr<Transfer> RecordingTransfers::Get(const std::string& address, OnState on_state) {
  addresses.push_back(address);
  if (real != nullptr) return real->Get(address, std::move(on_state));
  return std::make_unique<Noted>(*this, std::move(on_state));
}

void RecordingTransfers::Complete(std::deque<std::string> chunks) {
  if (running_ == nullptr) throw std::logic_error("no transfer is under way");
  running_->chunks = std::move(chunks);
  End(TransferState::completed);
}

void RecordingTransfers::Fail(std::string response_text) {
  if (running_ == nullptr) throw std::logic_error("no transfer is under way");
  running_->response_text = std::move(response_text);
  End(TransferState::error);
}

void RecordingTransfers::End(TransferState state) {
  const OnState on_state = running_->TakeOnState();
  running_ = nullptr;
  on_state(state);
}

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "kelvora-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::Path(const std::string& name) const {
  return name.empty() ? path_.string() : (path_ / name).string();
}

void RecordingCore::ArrangeWindows() {
  ApplyChosenArrangement(*program);
}

bool RecordingCore::CommandEnabled(Command command) const {
  return kelvora::CommandEnabled(*program, command);
}

void RecordingCore::GiveCommand(Command command) {
  RunCommand(*program, command);
}

TestProgram::TestProgram(Machine machine) {
  core.program = &program;
  program.windows.core = &core;
  if (machine == Machine::bare) return;
  Make_Taal_English(program.texts);
  DetermineFolders(program);
  Apply_Default_Settings(program);
  program.StartSeparator = locale.separator;
}

TestProgram::~TestProgram() = default;

void TestProgram::OpenDay(std::string_view user, std::string_view file_name) {
  MakeUserFolders(program.paths, user);
  SetCurrentUser(program, user);
  program.store.KV_bestand = file_name;
  for (const std::string_view row :
       {user, std::string_view(""), std::string_view(""), std::string_view(""),
        std::string_view(""), std::string_view("1.80"), std::string_view("80.5"),
        std::string_view("Male"), std::string_view("42"), std::string_view("05-03-04"),
        std::string_view("75"), std::string_view("Friday"), std::string_view(""),
        std::string_view(""), std::string_view("")}) {
    program.store.L_gegevens.Add(row);
  }
}

Text LineOf(const FoodLine& food) {
  Text line;
  for (const std::string_view field :
       {food.product, food.unit, food.gram, food.kj, food.kcal, food.protein, food.fat_u,
        food.fat_s, food.carbs, food.sodium, food.group, food.remark}) {
    line.append(field) += kFieldEnd;
  }
  if (!food.db.empty()) line.append(food.db) += kFieldEnd;
  return line;
}

Text Packed(std::string_view text) {
  return ReplaceAll(ReplaceAll(text, "|", "½"_w), "~", "¾"_w);
}

}  // namespace kelvora
