// The store: all data of the open day and the food lists, for the life of the process.
//
// Data is packed text. kFieldEnd closes a field and kLineEnd closes a line; both are terminators,
// so what stands behind the last one is dropped without a word. There is no escape: all free input
// refuses the two characters. Nothing here knows files, windows or numbers.
#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "core/text_list.h"

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

// One row of a list view kept aside: the texts of its columns.
using ListViewRow = std::vector<Text>;

// The small icons that come with the store, by the names of their pictures.
inline constexpr std::array<std::string_view, 24> kStoreIcons = {
    "new",      "open",      "save",    "print",          "close",    "user",
    "foods",    "morning",   "evening", "afternoon",      "summary",  "trend",
    "diary",    "compare",   "export",  "settings",       "help",     "about",
    "item-add", "item-info", "search",  "item-favourite", "list-own", "list-internet",
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

  TextList tmp_filter;   // the merged lines of a whole day
  TextList temp_filter;  // the fields of one line
  TextList var_filter;   // cleared with the day
  std::vector<ListViewRow> tmp_lv;
  TextList Dupe_list, Dupe_list_teller;  // distinct lines and how often each occurs
  Text txt_testdata;
  Text txt_internetzoekdata;  // the raw answer of a food server
  std::array<std::string_view, 24> picIcon = kStoreIcons;

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

// Appends each line of `block` to `lines`; nothing is cleared. `closing` is put behind every line.
void SplitBlock(std::string_view block, TextList& lines);
void SplitBlock(std::string_view block, std::string_view closing, TextList& lines);

// All lines in order, each with its closing kLineEnd.
[[nodiscard]] Text PackBlock(const TextList& lines);

// The key by which lines of a food are found: the name and its terminator.
[[nodiscard]] Text KeyOf(std::string_view name);

// True if either terminator stands in `text`.
[[nodiscard]] bool HoldsTerminator(std::string_view text);

// The code of a day part in merged lines: "0", "1" or "2".
[[nodiscard]] std::string_view PodCodeOf(DayPart part);

// Fills `merged` with the lines of a whole day from its three packed blocks, morning first. Each
// line gets the code of its day part as one more field, at index 12 or 13, whichever is next.
void MergeDay(const std::array<std::string_view, 3>& blocks, TextList& merged);

// Groups equal lines: `distinct` gets each different line in order of first appearance, `counts`
// how often it occurs, as text. Both are cleared first. Lines differing in any field stay apart.
void CountEqualLines(const TextList& lines, TextList& distinct, TextList& counts);

}  // namespace kelvora
