#include "core/common.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>

namespace kelvora {
namespace {

constexpr std::array<std::string_view, 3> kRoutingCodes = {"1", "2", "3"};

constexpr std::array kPriorityFields = {FoodField::kKj,   FoodField::kKcal,  FoodField::kFatU,
                                        FoodField::kFatS, FoodField::kCarbs, FoodField::kProtein};

constexpr std::array<std::string_view, 6> kPriorityPatterns = {"#####0", "####0", "###0",
                                                               "###0",   "###0",  "###0"};

// What CleanText makes of each byte.
struct Cleaned {
  char byte = 0;
  bool stays = true;
};
constexpr auto kCleaned = [] {
  constexpr std::string_view kAccented = "áéíóúäëïöü"_w;
  constexpr std::string_view kPlain = "aeiouaeiou";
  constexpr std::string_view kRemoved = "?@#%^&*()'€$£¦"_w;
  std::array<Cleaned, 256> cleaned{};
  for (std::size_t code = 0; code < cleaned.size(); ++code) {
    const char byte = static_cast<char>(code);
    const std::size_t place = kAccented.find(byte);
    cleaned[code].byte = place == kAccented.npos ? byte : kPlain[place];
    cleaned[code].stays = kRemoved.find(byte) == kRemoved.npos;
  }
  return cleaned;
}();

TextList* ListOfRoutingCode(KV_data& store, std::string_view code) {
  for (const DayPart part : kDayParts) {
    if (RoutingCodeOf(part) == code) return &store.ListOf(part);
  }
  return nullptr;
}

}  // namespace

Priority PriorityOf(std::string_view code) {
  const bool known = code.size() == 1 && code[0] >= '0' && code[0] <= '5';
  return known ? static_cast<Priority>(code[0] - '0') : Priority::kj;
}

std::string_view PatternOf(Priority priority) {
  return kPriorityPatterns[static_cast<std::size_t>(priority)];
}

std::size_t FoodFieldOf(Priority priority) {
  return kPriorityFields[static_cast<std::size_t>(priority)];
}

std::string_view RoutingCodeOf(DayPart part) {
  return kRoutingCodes[static_cast<std::size_t>(part)];
}

void MoveConsumption(KV_data& store, std::string_view source, std::string_view key,
                     std::string_view target) {
  TextList* const from = ListOfRoutingCode(store, source);
  if (from == nullptr) return;
  const auto found = from->FindLast(key);
  if (!found) return;
  const Text line((*from)[*found]);
  if (TextList* const to = ListOfRoutingCode(store, target)) to->Add(line);
  // The line goes from where it stood: an addition to the same list came behind it.
  from->Remove(*found);
}

bool CategoryKnown(const KV_data& store, std::string_view category) {
  return std::ranges::find(store.lst_categorien, category) != store.lst_categorien.end();
}

Text& CleanText(Text& text) {
  auto end = text.begin();
  for (const char c : text) {
    const Cleaned& cleaned = kCleaned[static_cast<unsigned char>(c)];
    if (cleaned.stays) *end++ = cleaned.byte;
  }
  text.erase(end, text.end());
  return text;
}

bool CanNameAFolder(std::string_view name) {
  return IsFolderName(Utf8FromText(name));
}

bool IsFolderName(std::string_view utf8) {
  constexpr std::size_t kMostBytes = 255;
  return !utf8.empty() && utf8.size() <= kMostBytes && utf8 != "." && utf8 != ".." &&
         utf8.find_first_of(std::string_view("/\0", 2)) == utf8.npos;
}

bool FileExists(const std::string& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) return false;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             &std::fclose);
  return file != nullptr;
}

}  // namespace kelvora
