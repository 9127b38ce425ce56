// The store: all data of the open day and the food lists, for the life of the process.
//
// Data is packed text. kFieldEnd closes a field and kLineEnd closes a line; both are terminators,
// so what stands behind the last one is dropped without a word. There is no escape: all free input
// refuses the two characters. Nothing here knows files, windows or numbers.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/text.h"

namespace kelvora {

inline constexpr char kFieldEnd = '\xBD';  // "½"
inline constexpr char kLineEnd = '\xBE';   // "¾"

// Fields of a food line. All amounts are those of the whole portion: grams, but for energy.
struct FoodField {
  enum : std::size_t {
    kProduct,
    kUnit,
    kGram,
    kKj,
    kKcal,
    kProtein,
    kFatU,
    kFatS,
    kCarbs,
    kSodium,
    kGroup,
    kRemark,
    kDb,  // name of the category file; only in lines of a category database
    kPod,
  };
};

// Rows of the day header `L_gegevens`.
struct HeaderRow {
  enum : std::size_t {
    kName,
    kAddress1,
    kAddress2,
    kCity,
    kPostcode,
    kHeight,  // metres
    kWeight,  // kilograms
    kGender,
    kAge,         // years
    kDate,        // dd-mm-yy
    kGoalWeight,  // kilograms
    kWeekday,
    kCountry,
    kReference,
    kState,
    kCount,
  };
};

enum class DayPart { morning, afternoon, evening };
inline constexpr std::array kDayParts = {DayPart::morning, DayPart::afternoon, DayPart::evening};

// A list of strings in insertion order; an index beyond the end reads as "".
class TextList {
 public:
  void Add(std::string_view line) { lines_.emplace_back(line); }
  void Remove(std::size_t index);
  void Replace(std::size_t index, std::string_view line);
  void Clear() { lines_.clear(); }

  [[nodiscard]] std::size_t Count() const { return lines_.size(); }
  [[nodiscard]] bool Empty() const { return lines_.empty(); }
  [[nodiscard]] std::string_view operator[](std::size_t index) const {
    return index < lines_.size() ? std::string_view(lines_[index]) : std::string_view();
  }
  [[nodiscard]] auto begin() const { return lines_.begin(); }
  [[nodiscard]] auto end() const { return lines_.end(); }

  // The first or last line that begins with `key`, which is a name and its closing kFieldEnd.
  [[nodiscard]] std::optional<std::size_t> FindFirst(std::string_view key) const;
  [[nodiscard]] std::optional<std::size_t> FindLast(std::string_view key) const;

  bool operator==(const TextList&) const = default;

 private:
  std::vector<Text> lines_;
};

struct KV_data {
  TextList L_gegevens;
  TextList L_ochtend, L_middag, L_avond;
  Text txt_notities;
  Text txt_trenddata;
  Text KV_bestand;  // bare file name of the open day; empty while no day is open

  TextList Default_list, Custom_list, Favorites_list;
  TextList lst_categorien;  // category file names, in load order
  TextList database_lst;
  TextList lst_data_dir;
  TextList lst_files;

  TextList tmp_filter, temp_filter, var_filter;
  TextList Dupe_list, Dupe_list_teller;
  Text txt_testdata;

  [[nodiscard]] bool DayIsOpen() const { return !KV_bestand.empty(); }
  [[nodiscard]] TextList& ListOf(DayPart part);
  [[nodiscard]] const TextList& ListOf(DayPart part) const;
};

// The fields of a line, each without its terminator; views into `line`.
[[nodiscard]] std::vector<std::string_view> FieldsOf(std::string_view line);

// One field of a line; "" if the line has no such field.
[[nodiscard]] std::string_view FieldOf(std::string_view line, std::size_t index);

// Clears `fields` and fills it with the fields of `line`.
void SplitLine(std::string_view line, TextList& fields);

// Appends each line of `block` to `lines`; nothing is cleared.
void SplitBlock(std::string_view block, TextList& lines);

// All lines in order, each with its closing kLineEnd.
[[nodiscard]] Text PackBlock(const TextList& lines);

// The key by which lines of a food are found: the name and its terminator.
[[nodiscard]] Text KeyOf(std::string_view name);

// True if either terminator stands in `text`.
[[nodiscard]] bool HoldsTerminator(std::string_view text);

// Groups equal lines: `distinct` gets each different line in order of first appearance, `counts`
// how often it occurs, as text. Both are cleared first. Lines differing in any field stay apart.
void CountEqualLines(const TextList& lines, TextList& distinct, TextList& counts);

}  // namespace kelvora
