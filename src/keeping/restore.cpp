#include "keeping/restore.h"

#include <cerrno>
#include <filesystem>
#include <span>
#include <system_error>
#include <unordered_set>

#include "core/common.h"
#include "core/hash.h"
#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBesideEnding = ".restoring";

// A link could lead out of the users folder.
void CheckIsNoLink(const std::string& path) {
  std::error_code unknown;
  if (fs::is_symlink(fs::symlink_status(path, unknown))) {
    throw std::system_error(ELOOP, std::generic_category());
  }
}

bool HoldsThese(const std::string& path, std::string_view bytes) {
  return ReadFile(path) == bytes;
}

// The lines of a list; none of a file that holds no record.
Text BlockOf(std::string_view bytes) {
  const auto list = DecodeRecord<Rec_ListLine>(bytes);
  return list ? list->strings.front() : Text();
}

}  // namespace

Restore::Restore(std::string users_path, const BackupContents& contents, Differing differing)
    : users_path_(std::move(users_path)), path_(contents.Path()), differing_(differing) {
  for (const BackupUser& user : contents.Users()) {
    for (const BackupFile& file : user.files) {
      if (file.wanted) wanted_.emplace(EntryNameOf(file.place), file);
    }
  }
  whole_ = wanted_.size();
}

bool Restore::Work() {
  if (finished_) return false;
  if (reader_ == nullptr) {
    reader_ = std::make_unique<ZipReader>(path_);
    room_ = std::make_unique<RoomForBackup>(StampOf(path_).value_or(FileStamp()).size);
    return true;
  }
  std::optional<ZipEntry> entry;
  try {
    if (!wanted_.empty()) entry = reader_->Next();
  } catch (const std::system_error&) {
    // What stands behind is told as missing.
    entry.reset();
  }
  if (entry) {
    Take(*entry);
    return true;
  }
  Finish();
  return false;
}

void Restore::Take(const ZipEntry& entry) {
  const auto found = wanted_.find(entry.name);
  if (found == wanted_.end() || !entry.regular_file || entry.encrypted) return;
  const BackupFile file = std::move(found->second);
  wanted_.erase(found);
  missing_.Try(TextFromUtf8(entry.name), [&] {
    const std::string bytes = reader_->Read(room_->Left());
    room_->Take(bytes.size());
    // The backup itself may have been written anew since it was looked at.
    if (HashOf(bytes) != file.hash) throw std::system_error(EBADMSG, std::generic_category());
    BringBack(file.place, bytes);
  });
}

// Looks at what is here once more: it may have changed since the contents were read.
void Restore::BringBack(const BackupPlace& place, const std::string& bytes) {
  PrepareFolders(place);
  const std::string path = PathOf(users_path_, place);
  if (!PathIsTaken(path)) return Write(path, bytes, Durable::after_sync);
  if (HoldsThese(path, bytes)) {
    ++unchanged_;
    return;
  }
  switch (differing_) {
    case Differing::keep_both:
      return KeepBoth(place, bytes);
    case Differing::take_backup:
      CheckIsNoLink(path);
      return Write(path, bytes, Durable::at_once);
    case Differing::keep_mine:
      ++unchanged_;
      return;
  }
}

void Restore::KeepBoth(const BackupPlace& place, const std::string& bytes) {
  const std::string path = PathOf(users_path_, place);
  switch (place.part) {
    case BackupPart::day:
      return WriteUnderFreeName(path, bytes);
    case BackupPart::own_list:
    case BackupPart::favourites:
      CheckIsNoLink(path);
      return MergeList(path, bytes);
    case BackupPart::profile:
      ++unchanged_;
      return;
  }
}

// A day that was brought back before, under whatever name, is not brought back again.
void Restore::WriteUnderFreeName(const std::string& path, const std::string& bytes) {
  const std::size_t dot = path.rfind('.');
  for (int number = 2;; ++number) {
    const std::string free_path =
        path.substr(0, dot) + "-" + std::to_string(number) + path.substr(dot);
    if (!PathIsTaken(free_path)) return Write(free_path, bytes, Durable::after_sync);
    if (FileExists(free_path) && HoldsThese(free_path, bytes)) {
      ++unchanged_;
      return;
    }
  }
}

void Restore::MergeList(const std::string& path, const std::string& bytes) {
  const Text block_here = BlockOf(ReadFile(path));
  const Text block_there = BlockOf(bytes);
  TextList here, there, merged;
  SplitBlock(block_here, here);
  SplitBlock(block_there, there);
  std::unordered_set<std::string_view> lines(here.begin(), here.end());
  merged = here;
  for (const std::string_view line : there) {
    if (lines.insert(line).second) merged.Add(line);
  }
  if (merged.Count() == here.Count()) {
    ++unchanged_;
    return;
  }
  Rec_ListLine list;
  list.strings.front() = PackBlock(merged);
  Write(path, EncodeRecord(list.strings), Durable::at_once);
}

void Restore::Write(const std::string& path, std::string_view bytes, Durable durable) {
  PutInPlace(path, path + std::string(kBesideEnding), std::span(&bytes, 1), durable);
  ++written_;
}

void Restore::PrepareFolders(const BackupPlace& place) const {
  const std::string folder = users_path_ + place.folder_name;
  CheckIsNoLink(folder);
  for (const char* part : {"/Profile", "/Files", "/Databases"}) CheckIsNoLink(folder + part);
  MakeUserFoldersAt(folder + "/");
}

void Restore::Finish() {
  for (const auto& [name, file] : wanted_) {
    missing_.Add(TextFromUtf8(name), std::system_error(EBADMSG, std::generic_category()));
  }
  reader_.reset();
  finished_ = true;
  if (written_ > 0) SyncDisk(users_path_);
}

}  // namespace kelvora
