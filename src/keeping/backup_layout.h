// Where a file of a user stands in a backup: the paths of the users folder, with "/" between the
// parts, whatever computer the backup comes from or goes to.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

enum class BackupPart { profile, own_list, favourites, day };

struct BackupPlace {
  std::string folder_name;  // of the user, UTF-8
  BackupPart part = BackupPart::day;
  std::string file_name;  // of a day; UTF-8
  bool operator==(const BackupPlace&) const = default;
};

// The name of the entry, and what an entry of that name is; nothing for any other name, such as one
// that would lead out of the folder of a user.
[[nodiscard]] std::string EntryNameOf(const BackupPlace& place);
[[nodiscard]] std::optional<BackupPlace> PlaceOf(std::string_view entry_name);

// The path of the file below the users folder.
[[nodiscard]] std::string PathOf(const std::string& users_path, const BackupPlace& place);

}  // namespace kelvora
