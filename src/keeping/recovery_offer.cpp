#include "keeping/recovery_offer.h"

#include <algorithm>
#include <filesystem>
#include <unordered_map>

#include "analysis/diary.h"
#include "core/common.h"
#include "days/open_day.h"
#include "days/user_list.h"
#include "language/own_texts.h"
#include "nutrition/totals.h"
#include "storage/day_file.h"
#include "storage/kept_files.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFilesFolder = "Files";

KV_data StoreOf(const Rec_DayFile& day) {
  KV_data store;
  TakeDay(store, day);
  return store;
}

// What the file of the day holds now, as a store would pack it; nothing if there is none.
std::optional<Rec_DayFile> StoredNow(const RecoveryCopy& copy) {
  try {
    const auto record = ReadFirstRecord<Rec_DayFile>(copy.day_path);
    if (record) return PackDay(StoreOf(*record));
  } catch (const std::system_error&) {
    return std::nullopt;
  }
  return std::nullopt;
}

// The day as it was begun.
Rec_DayFile WithoutContents(const Rec_DayFile& day) {
  Rec_DayFile begun;
  begun[DayFileField::Header] = day[DayFileField::Header];
  return begun;
}

Text DiaryOf(const RecoveryCopy& copy) {
  return copy.holds_untaken_diary ? copy.diary : DiaryInBox(copy.day[DayFileField::Notes]);
}

// Where the copied day lies: the folder of its user, which ends in "/", and the name of its file.
struct DayPlace {
  std::string user_folder;
  std::string folder_name;
  std::string file_name;
};
DayPlace PlaceOf(const RecoveryCopy& copy) {
  const fs::path path = copy.day_path;
  const fs::path user = path.parent_path().parent_path();
  return {user.string() + "/", user.filename().string(), path.filename().string()};
}

// The user of the day, if it is one of those in the users folder of now.
std::optional<User> UserOf(Program& program, const RecoveryCopy& copy) {
  const DayPlace place = PlaceOf(copy);
  const bool below = place.user_folder == program.paths.UsersPath + place.folder_name + "/" &&
                     fs::path(copy.day_path).parent_path().filename() == kFilesFolder;
  if (!below || place.file_name.empty()) return std::nullopt;
  const UserList list = ReadUsers(program);
  const auto user = std::ranges::find(list.users, place.folder_name, &User::folder_name);
  if (user == list.users.end()) return std::nullopt;
  return *user;
}

Text OfferText(Program& program, const RecoveryCopy& copy, const std::optional<User>& user,
               const std::optional<Rec_DayFile>& stored, const Text& differences) {
  const TextTables& texts = program.texts;
  const auto line = [&texts](OwnText id, const Text& value) {
    return OwnTextOf(texts, id) + " " + value + "\n";
  };
  const KV_data day = StoreOf(copy.day);
  Text text = OwnTextOf(texts, OwnText::recovery_found) + "\n\n";
  text += line(OwnText::recovery_user, user ? user->name : Text(day.L_gegevens[HeaderRow::kName]));
  text += line(OwnText::recovery_day, Text(day.L_gegevens[HeaderRow::kWeekday]) + " " +
                                          Text(day.L_gegevens[HeaderRow::kDate]));
  text += line(OwnText::recovery_made, copy.made);
  text += line(stored ? OwnText::recovery_differs : OwnText::recovery_no_file, differences);
  const bool saved_since = stored && TraceOf(*stored) != copy.stored;
  if (saved_since) text += "\n" + OwnTextOf(texts, OwnText::recovery_saved_since) + "\n";
  if (!user) text += "\n" + OwnTextOf(texts, OwnText::recovery_no_user) + "\n";
  return text;
}

enum class Answer { open, keep, drop };

Answer Ask(Program& program, Text text, bool can_be_opened) {
  const TextTables& texts = program.texts;
  Box box{.title = Text(AppTitle),
          .text = std::move(text),
          .icon = BoxIcon::question,
          .buttons = BoxButtons::yes_no_cancel,
          .captions = {OwnTextOf(texts, OwnText::recovery_open),
                       OwnTextOf(texts, OwnText::recovery_drop),
                       OwnTextOf(texts, OwnText::recovery_keep)}};
  if (!can_be_opened) {
    box.buttons = BoxButtons::yes_no;
    box.captions = {OwnTextOf(texts, OwnText::recovery_drop),
                    OwnTextOf(texts, OwnText::recovery_keep)};
    return program.platform.boxes.Show(box) == BoxAnswer::yes ? Answer::drop : Answer::keep;
  }
  const BoxAnswer answer = program.platform.boxes.Show(box);
  if (answer == BoxAnswer::yes) return Answer::open;
  return answer == BoxAnswer::no ? Answer::drop : Answer::keep;
}

void ShowDiary(Program& program, const Text& text) {
  if (program.windows.diary == nullptr && program.windows.core != nullptr) {
    program.windows.core->OpenWindow(WindowId::diary);
  }
  if (program.windows.diary != nullptr) program.windows.diary->TypeText(text);
}

// A No on the way leaves the copy for later.
void OpenWith(Program& program, const RecoveryCopy& copy, const User& user) {
  const bool another = !IsCurrent(program, user);
  if (another && !MayLeaveUser(program)) return;
  const DayPlace place = PlaceOf(copy);
  const std::string folder = place.user_folder + std::string(kFilesFolder) + "/";
  if (!LoadDayFromCopy(program, folder, place.file_name, copy.day)) return;
  if (another) ChooseUser(program, user);
  const DayOnDisk on_disk = program.day_on_disk;
  AfterOpenDay(program);
  program.day_on_disk = on_disk;  // which holds another day than the one that was opened
  SetFileChanged(program, true);
  if (copy.holds_untaken_diary) ShowDiary(program, copy.diary);
  AdoptRecoveryCopy(program, copy);
}

void Drop(const RecoveryCopy& copy) {
  std::error_code ignored;
  fs::remove(copy.path, ignored);
}

void Offer(Program& program, const RecoveryCopy& copy) {
  const auto stored = StoredNow(copy);
  const Text differences = DifferencesInWords(program.texts, copy.day, DiaryOf(copy),
                                              stored.value_or(WithoutContents(copy.day)));
  if (stored && differences.empty()) return Drop(copy);
  const auto user = UserOf(program, copy);
  const Text text = OfferText(program, copy, user, stored, differences);
  switch (Ask(program, text, user.has_value())) {
    case Answer::open:
      return OpenWith(program, copy, *user);
    case Answer::drop:
      return Drop(copy);
    case Answer::keep:
      return;
  }
}

// How many foods of a day another one lacks, wherever in the day they stand.
std::size_t LinesLacking(const KV_data& day, const KV_data& other) {
  std::unordered_map<std::string_view, std::size_t> there;
  for (const DayPart part : kDayParts) {
    for (const std::string_view line : other.ListOf(part)) ++there[line];
  }
  std::size_t lacking = 0;
  for (const DayPart part : kDayParts) {
    for (const std::string_view line : day.ListOf(part)) {
      std::size_t& count = there[line];
      count > 0 ? --count : ++lacking;
    }
  }
  return lacking;
}

Text InCount(const TextTables& texts, std::size_t count, OwnText one, OwnText many) {
  return count == 1 ? OwnTextOf(texts, one) : OwnTextWith(texts, many, std::to_string(count));
}

}  // namespace

Text DifferencesInWords(const TextTables& texts, const Rec_DayFile& day, std::string_view diary,
                        const Rec_DayFile& stored) {
  const KV_data now = StoreOf(day);
  const KV_data before = StoreOf(stored);
  std::vector<Text> words;
  const std::size_t more = LinesLacking(now, before);
  const std::size_t less = LinesLacking(before, now);
  const bool moved = std::ranges::any_of(
      kDayParts, [&](DayPart part) { return now.ListOf(part) != before.ListOf(part); });
  if (more > 0) words.push_back(InCount(texts, more, OwnText::food_more, OwnText::foods_more));
  if (less > 0) words.push_back(InCount(texts, less, OwnText::food_less, OwnText::foods_less));
  if (more + less == 0 && moved) words.push_back(OwnTextOf(texts, OwnText::foods_moved));
  const Text old_diary = DiaryInBox(stored[DayFileField::Notes]);
  if (diary != old_diary) {
    const OwnText id = diary.size() > old_diary.size()   ? OwnText::diary_longer
                       : diary.size() < old_diary.size() ? OwnText::diary_shorter
                                                         : OwnText::diary_changed;
    words.push_back(OwnTextOf(texts, id));
  }
  if (now.L_gegevens != before.L_gegevens) {
    words.push_back(OwnTextOf(texts, OwnText::day_settings_changed));
  }
  Text joined;
  for (const Text& word : words) joined += (joined.empty() ? "" : ", ") + word;
  return joined;
}

void OfferRecoveryCopies(Program& program) {
  for (const RecoveryCopy& copy : RecoveryCopiesLeft(program.paths)) {
    if (program.ending) return;
    Offer(program, copy);
  }
}

}  // namespace kelvora
