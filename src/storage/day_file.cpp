#include "storage/day_file.h"

#include <algorithm>
#include <array>
#include <span>

#include "core/common.h"
#include "language/common_texts.h"
#include "language/main_texts.h"
#include "language/own_texts.h"
#include "storage/folders.h"
#include "storage/kept_files.h"
#include "storage/record_file.h"
#include "storage/recovery_copy.h"
#include "storage/untaken_diary.h"

namespace kelvora {
namespace {

// In the order in which closing a day closes them.
using DayStrings = std::array<std::string_view, Rec_DayFile::kSize>;

constexpr std::array kDayWindows = {
    WindowId::day_summary, WindowId::multi_day, WindowId::diary,
    WindowId::morning,     WindowId::afternoon, WindowId::evening,
};

bool AskYesNo(Program& program, TextId title, Text text) {
  const Box box{.title = program.texts[title],
                .text = std::move(text),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

bool MayDropDayForAnother(Program& program) {
  using namespace common_text;
  if (!MayCloseDiaryWithDay(program)) return false;
  if (!program.day.FileChanged) return true;
  return AskYesNo(
      program, kOpenFileTitle,
      JoinLines(program.texts, {kOpenFileGoing, kOpenFileNotSaved, std::nullopt, kOpenFileSure}));
}

void TakeDay(KV_data& store, const DayStrings& strings) {
  const auto string = [&strings](DayFileField field) {
    return strings[static_cast<std::size_t>(field)];
  };
  store.txt_trenddata = string(DayFileField::Trend);
  store.txt_notities = string(DayFileField::Notes);
  SplitBlock(string(DayFileField::Header), store.L_gegevens);
  SplitBlock(string(DayFileField::Morning), store.L_ochtend);
  SplitBlock(string(DayFileField::Afternoon), store.L_middag);
  SplitBlock(string(DayFileField::Evening), store.L_avond);
}

// The strings of the file that was just read; of one that counts no record, those of the day that
// was opened before it in the same folder.
DayStrings StringsOf(Program& program, const std::string& folder, std::string bytes) {
  auto& opened = program.opened_day;
  DayStrings strings;
  const bool holds_a_record = DecodeFirstRecord(bytes, std::span(strings));
  if (!holds_a_record && (!opened || opened->folder != folder)) ThrowNoRecord();
  if (holds_a_record) opened = {folder, std::move(bytes)};
  (void)DecodeFirstRecord(opened->bytes, std::span(strings));
  return strings;
}

// The state of what lies there; nothing if there is nothing, or nothing that tells.
std::optional<FileStamp> StampIfKnown(const std::string& path) {
  try {
    return StampOf(path);
  } catch (const std::system_error&) {
    return std::nullopt;
  }
}

// A day file as the store would hold it; nothing for what is no file with a record.
DayOnDisk DayFileAt(const std::string& path) {
  DayOnDisk found{.path = path};
  try {
    const InputFile file(path);
    found.stamp = file.Stamp();
    if (const auto record = DecodeRecord<Rec_DayFile>(file.ReadAll())) {
      KV_data store;
      TakeDay(store, *record);
      found.strings = PackDay(store);
    }
  } catch (const std::system_error&) {
    found.strings.reset();
  }
  return found;
}

// True if somebody has only put back the file that was read, or has saved the same day.
bool HoldsWhatIsKnown(const Program& program, const DayOnDisk& there) {
  const auto& known = program.day_on_disk.strings;
  const auto holds = [&there](const Rec_DayFile& day) {
    return there.strings && TraceOf(*there.strings) == TraceOf(day);
  };
  return holds(PackDay(program.store)) || (known && holds(*known));
}

// True if a save replaces nothing that the user has not seen, or the user says so. What is no day
// file at all is left to the save, which fails there.
bool MayReplaceDayFile(Program& program) {
  if (!program.store.DayIsOpen()) return true;
  const std::string path = PathOfDay(program);
  const auto stamp = StampIfKnown(path);
  if (!stamp || (program.day_on_disk.path == path && program.day_on_disk.stamp == stamp) ||
      !FileExists(path) || HoldsWhatIsKnown(program, DayFileAt(path))) {
    return true;
  }
  const TextTables& texts = program.texts;
  const Box box{.title = Text(AppTitle),
                .text = OwnTextOf(texts, OwnText::day_differs) + "\n" +
                        OwnTextOf(texts, OwnText::replaces_file) + "\n\n" +
                        OwnTextOf(texts, OwnText::replace_file_sure),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

// Whatever happens, the day lies in its file, in its recovery copy or in both.
void WriteDay(Program& program) {
  WriteRecoveryCopy(program);
  const Rec_DayFile day = PackDay(program.store);
  DayOnDisk& known = program.day_on_disk;
  known.path = PathOfDay(program);
  known.strings.reset();
  try {
    WriteRecord(known.path, day, NewFileMode::owner_only);
  } catch (...) {
    // What a failed write leaves is this day's.
    known.stamp = StampIfKnown(known.path);
    throw;
  }
  known.stamp = StampIfKnown(known.path);
  known.strings = day;
}

}  // namespace

void TakeDay(KV_data& store, const Rec_DayFile& record) {
  DayStrings strings;
  std::ranges::copy(record.strings, strings.begin());
  TakeDay(store, strings);
}

Rec_DayFile PackDay(const KV_data& store) {
  return {{store.txt_trenddata, store.txt_notities, PackBlock(store.L_gegevens),
           PackBlock(store.L_ochtend), PackBlock(store.L_middag), PackBlock(store.L_avond)}};
}

std::string PathOfDay(const Program& program) {
  return FolderOfDay(program) + "Files/" + NameOfDayFile(program);
}

void NoteDayAsOpened(Program& program) {
  if (program.day_on_disk.strings) program.day_on_disk.strings = PackDay(program.store);
}

void AcceptDayFileThere(Program& program) {
  if (!program.store.DayIsOpen()) return;
  program.day_on_disk.path = PathOfDay(program);
  program.day_on_disk.stamp = StampIfKnown(program.day_on_disk.path);
}

void LoadDay(Program& program, const std::string& folder, std::string_view file_name) {
  auto file = InputFile::TryOpen(folder + std::string(file_name));
  if (!file) return;
  program.Guard("#FF1-8", [&] {
    Pointer& pointer = program.platform.pointer;
    pointer.ShowWait();
    if (!MayDropDayForAnother(program)) {
      pointer.Restore();
      return;
    }
    // The name may belong to the row of a window that closes with the day.
    const std::string name(file_name);
    CloseDay(program);
    const FileStamp stamp = file->Stamp();
    TakeDay(program.store, StringsOf(program, folder, file->ReadAll()));
    program.store.KV_bestand = TextFromUtf8(name);
    program.day.opened_name = {program.store.KV_bestand, name};
    program.day_on_disk = {
        .path = folder + name, .stamp = stamp, .strings = PackDay(program.store)};
    pointer.Restore();
  });
}

bool LoadDayFromCopy(Program& program, const std::string& folder, std::string_view file_name,
                     const Rec_DayFile& day) {
  bool loaded = false;
  program.Guard("#FF1-8", [&] {
    if (!MayDropDayForAnother(program)) return;
    const std::string name(file_name);
    CloseDay(program);
    TakeDay(program.store, day);
    program.store.KV_bestand = TextFromUtf8(name);
    program.day.opened_name = {program.store.KV_bestand, name};
    program.day_on_disk = DayFileAt(folder + name);
    SetFileChanged(program, true);
    loaded = true;
  });
  return loaded;
}

std::string NameOfDayFile(const Program& program) {
  const Text& shown = program.store.KV_bestand;
  const OpenedName& opened = program.day.opened_name;
  return shown == opened.shown ? opened.name : Utf8FromText(shown);
}

bool SaveDay(Program& program) {
  if (!MayLeaveDiary(program) || !MayReplaceDayFile(program)) return false;
  const bool saved = program.Guard("#FF1-9", [&] {
    const KV_data& store = program.store;
    program.platform.pointer.ShowWait();
    if (!store.DayIsOpen()) return;  // meant: the next routine restores the pointer
    WriteDay(program);
    RemoveRecoveryCopy(program);
    program.platform.pointer.Restore();
    SetFileChanged(program, false);
  });
  // What failed once may fail again: one box is enough.
  return saved && SaveUnwrittenWork(program);
}

void CloseDay(Program& program) {
  KV_data& store = program.store;
  for (TextList* list :
       {&store.L_gegevens, &store.L_ochtend, &store.L_middag, &store.L_avond, &store.temp_filter,
        &store.Dupe_list_teller, &store.Dupe_list, &store.var_filter}) {
    list->Clear();
  }
  store.txt_trenddata.clear();
  store.txt_notities.clear();
  store.KV_bestand.clear();
  program.day.DayDialogMode = DayDialogMode::new_day;
  program.day.selected_names = {};
  program.day.opened_name = {};
  program.day.undo.Clear();
  RemoveRecoveryCopy(program);
  program.day_on_disk = {};
  SetFileChanged(program, false);

  OpenWindows& windows = program.windows;
  if (FoodListsView* const lists = windows.lists) {
    lists->Populate_Food_List_Custom();
    lists->Populate_Food_List_Favo();
    lists->CloseWindow();
  }
  for (const WindowId id : kDayWindows) {
    if (WindowView* const window = windows.Find(id)) window->CloseWindow();
  }
  // Not before: a window that closes leaves another one chosen.
  program.day.active_part = DayPart::morning;
}

bool MayDropDayForNewOne(Program& program) {
  using namespace main_text;
  if (!MayCloseDiaryWithDay(program)) return false;
  if (!program.day.FileChanged) return true;
  return AskYesNo(
      program, kNewFile,
      JoinLines(program.texts, {kNewFileGoing, kNewFileLost, std::nullopt, kNewFileSure}));
}

Text NewDayFileName(const Locale& locale, const LocalTime& now) {
  Text name = locale.DayMonthYear(now) + locale.HourMinuteSecond(now) + ".kvf";
  for (const char* mark :
       {":", "/", "\\", "PM", "pm", "AM", "am", "P.M.", "p.m.", "A.M.", "a.m."}) {
    name = ReplaceAll(name, mark, "-");
  }
  return ReplaceAll(ReplaceAll(name, " ", ""), "-", "");
}

}  // namespace kelvora
