#include "keeping/backup_layout.h"

#include "core/common.h"
#include "core/text.h"

namespace kelvora {
namespace {

constexpr std::string_view kProfile = "Profile/Profile.usr";
constexpr std::string_view kOwnList = "Databases/Custom.dat";
constexpr std::string_view kFavourites = "Databases/Favorites.dat";
constexpr std::string_view kDays = "Files/";
constexpr std::string_view kDayEnding = ".kvf";

bool IsUtf8(std::string_view name) {
  for (std::size_t i = 0; i < name.size();) {
    const Utf8Character character = DecodeUtf8(name, i);
    if (character.code_point == 0xFFFD && character.length == 1) return false;
    i += character.length;
  }
  return true;
}

// Hidden folders are no users, and hidden files no days.
bool IsShownName(std::string_view name) {
  return IsFolderName(name) && !name.starts_with('.') && IsUtf8(name);
}

bool IsDayName(std::string_view name) {
  return IsShownName(name) && name.size() > kDayEnding.size() &&
         LowerCase(name).ends_with(kDayEnding);
}

}  // namespace

std::string EntryNameOf(const BackupPlace& place) {
  const std::string folder = place.folder_name + "/";
  switch (place.part) {
    case BackupPart::profile:
      return folder + std::string(kProfile);
    case BackupPart::own_list:
      return folder + std::string(kOwnList);
    case BackupPart::favourites:
      return folder + std::string(kFavourites);
    case BackupPart::day:
      return folder + std::string(kDays) + place.file_name;
  }
  return {};
}

std::optional<BackupPlace> PlaceOf(std::string_view entry_name) {
  const std::size_t slash = entry_name.find('/');
  if (slash == entry_name.npos) return std::nullopt;
  BackupPlace place{.folder_name = std::string(entry_name.substr(0, slash)), .file_name = {}};
  const std::string_view rest = entry_name.substr(slash + 1);
  if (!IsShownName(place.folder_name)) return std::nullopt;
  if (rest == kProfile) {
    place.part = BackupPart::profile;
  } else if (rest == kOwnList) {
    place.part = BackupPart::own_list;
  } else if (rest == kFavourites) {
    place.part = BackupPart::favourites;
  } else if (rest.starts_with(kDays) && IsDayName(rest.substr(kDays.size()))) {
    place.file_name = rest.substr(kDays.size());
  } else {
    return std::nullopt;
  }
  return place;
}

std::string PathOf(const std::string& users_path, const BackupPlace& place) {
  return users_path + EntryNameOf(place);
}

}  // namespace kelvora
