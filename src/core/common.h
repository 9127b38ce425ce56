// What several rooms need and none owns: the program's constants and a few helpers of its store
// and files.
#pragma once

#include <string>
#include <string_view>

#include "core/store.h"

namespace kelvora {

inline constexpr std::string_view AppTitle = "Kelvora FOOD";
inline constexpr std::string_view VersionText = "2.24";

// A day-part list holding more lines than this takes no more. Meant: a list of exactly this many
// still accepts one addition.
inline constexpr std::size_t MaxDayPartLines = 50;

// Most characters in the diary.
inline constexpr std::size_t MaxDiaryLength = 5000;

// A nutrient by the code of `type_prioriteit`: the one extra column of every food list.
enum class Priority { kj, kcal, fat_u, fat_s, carbs, protein };

// The nutrient of a stored code "0" to "5"; any other text reads as kj.
[[nodiscard]] Priority PriorityOf(std::string_view code);

// The pattern by which every list and status bar prints a value of the nutrient. That of the
// kilocalories is one digit shorter than in the totals panel, and meant to be.
[[nodiscard]] std::string_view PatternOf(Priority priority);

// The field of a food line that holds the nutrient.
[[nodiscard]] std::size_t FoodFieldOf(Priority priority);

// The routing code of a day part: "1", "2" or "3".
[[nodiscard]] std::string_view RoutingCodeOf(DayPart part);

// The target code that means: delete.
inline constexpr std::string_view kDeleteTarget = "0";

// Moves the last line of the source day part that begins with `key` to the end of the target, or
// drops it when the target is kDeleteTarget. At most one line; an unknown source moves nothing.
void MoveConsumption(KV_data& store, std::string_view source, std::string_view key,
                     std::string_view target);

// True if the list of categories holds exactly this name.
[[nodiscard]] bool CategoryKnown(const KV_data& store, std::string_view category);

// Makes `text` fit for file names and XML values: plain letters for the small vowels with an acute
// accent or a diaeresis, and none of ? @ # % ^ & * ( ) ' € $ £ ¦. All else stays, capitals too.
// Changes `text` in place and returns it.
Text& CleanText(Text& text);

// False for what this platform can't put in the name of a folder: nothing at all, "/", NUL, the
// whole names "." and "..", and what takes more than 255 bytes on disk. IsFolderName tells it of a
// name as it stands on disk, in UTF-8.
[[nodiscard]] bool CanNameAFolder(std::string_view name);
[[nodiscard]] bool IsFolderName(std::string_view utf8);

// True if `path` can be opened for reading. Only a regular file is one: a folder, a pipe or a
// device is not.
[[nodiscard]] bool FileExists(const std::string& path);

}  // namespace kelvora
