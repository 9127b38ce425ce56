#include "keeping/backup_contents.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <tuple>

#include "core/hash.h"
#include "nutrition/dates.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

// Deflate makes at most a thousandth of anything; a diary shrinks to a tenth.
constexpr std::size_t kMostTimesSmaller = 200;
constexpr std::size_t kAlwaysAllowed = std::size_t{64} << 20;

Here CompareWithHere(const std::string& path, std::string_view bytes) {
  try {
    if (!PathIsTaken(path)) return Here::absent;
    const InputFile file(path);
    if (file.Stamp().size != static_cast<std::int64_t>(bytes.size())) return Here::differs;
    return file.ReadAll() == bytes ? Here::same : Here::differs;
  } catch (const std::system_error&) {
    return Here::differs;
  }
}

void ReadHeader(std::string_view bytes, BackupFile& file) {
  const auto day = DecodeRecord<Rec_DayFile>(bytes);
  if (!day) return;
  TextList header;
  SplitBlock((*day)[DayFileField::Header], header);
  file.date = header[HeaderRow::kDate];
  file.weekday = header[HeaderRow::kWeekday];
  file.date_key = DateKeyOf(file.date);
}

Text NameInProfile(std::string_view bytes) {
  const auto profile = DecodeRecord<Rec_Profile>(bytes);
  return profile ? (*profile)[ProfileField::name] : Text();
}

}  // namespace

RoomForBackup::RoomForBackup(std::int64_t size_of_file)
    : left_(kAlwaysAllowed + kMostTimesSmaller * static_cast<std::size_t>(size_of_file)) {}

BackupContents::BackupContents(std::string users_path, std::string path)
    : users_path_(std::move(users_path)), path_(std::move(path)) {}

bool BackupContents::Work() {
  if (done_) return false;
  try {
    done_ = !Step();
  } catch (...) {
    done_ = true;
    reader_.reset();
    throw;
  }
  if (done_) Settle();
  return !done_;
}

bool BackupContents::Step() {
  if (reader_ == nullptr) {
    reader_ = std::make_unique<ZipReader>(path_);
    room_ = std::make_unique<RoomForBackup>(StampOf(path_).value_or(FileStamp()).size);
    cut_ = !HasListOfEntries(path_);
    return true;
  }
  std::optional<ZipEntry> entry;
  try {
    entry = reader_->Next();
  } catch (const std::system_error&) {
    if (entries_ == 0) throw;
    cut_ = true;
  }
  if (!entry) return false;
  ++entries_;
  Take(*entry);
  return true;
}

void BackupContents::Take(const ZipEntry& entry) {
  if (entry.encrypted) {
    ++encrypted_;
    return;
  }
  const auto place = PlaceOf(entry.name);
  if (!place || !entry.regular_file || ++seen_[entry.name] > 1) {
    ++foreign_;
    return;
  }
  std::string bytes;
  try {
    bytes = reader_->Read(room_->Left());
  } catch (const std::system_error& failure) {
    if (failure.code() == std::errc::file_too_large) throw;
    ++damaged_;
    return;
  }
  room_->Take(bytes.size());
  BackupFile file{.place = *place,
                  .here = CompareWithHere(PathOf(users_path_, *place), bytes),
                  .date = {},
                  .weekday = {},
                  .date_key = {},
                  .hash = HashOf(bytes)};
  BackupUser& user = UserOf(place->folder_name);
  if (place->part == BackupPart::day) ReadHeader(bytes, file);
  if (place->part == BackupPart::profile) user.name = NameInProfile(bytes);
  user.files.push_back(std::move(file));
}

BackupUser& BackupContents::UserOf(const std::string& folder_name) {
  const auto [place, is_new] = places_.try_emplace(folder_name, users_.size());
  if (is_new) users_.push_back({.folder_name = folder_name, .name = {}, .files = {}});
  return users_[place->second];
}

void BackupContents::Settle() {
  reader_.reset();
  if (users_.empty() && encrypted_ + damaged_ == 0) {
    throw std::system_error(EBADMSG, std::generic_category());
  }
  for (BackupUser& user : users_) {
    if (user.name.empty()) user.name = TextFromUtf8(user.folder_name);
    std::ranges::sort(user.files, [](const BackupFile& a, const BackupFile& b) {
      return std::tie(a.place.part, a.date_key, a.place.file_name) <
             std::tie(b.place.part, b.date_key, b.place.file_name);
    });
  }
  std::ranges::sort(users_, {}, [](const BackupUser& user) {
    return std::make_tuple(LowerCase(user.name), user.folder_name);
  });
}

}  // namespace kelvora
