#include "language/language_file.h"

#include <array>

#include "core/common.h"
#include "language/built_in_texts.h"
#include "language/file_info_texts.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

struct StandardFile {
  const char* name;
  void (*make)(TextTables&);
};

constexpr std::array kStandardFiles = {
    StandardFile{"English.lsf", &Make_Taal_English},
    StandardFile{"Nederlands.lsf", &Make_Taal_Dutch},
    StandardFile{"default.lsf", &Make_Taal_English},
};

void ShowError(Program& program, std::string_view title, Text text) {
  program.platform.boxes.Show(
      {.title = Text(title), .text = std::move(text), .icon = BoxIcon::error});
}

// Lays the entries of one field over a table, from index `first` on.
void SplitTable(std::string_view field, TextTable table, std::size_t first, TextTables& texts) {
  TextList entries;
  SplitBlock(field, entries);
  std::size_t index = first;
  for (const std::string_view entry : entries) {
    if (index > RangeOf(table).last) break;  // more entries than a table has are passed over
    texts[{table, index++}] = entry;
  }
}

// The first record of a language file. Throws if there is none.
Rec_Language ReadLanguage(const std::string& path) {
  auto record = ReadFirstRecord<Rec_Language>(path);
  if (!record) ThrowNoRecord();
  return *std::move(record);
}

}  // namespace

Rec_Language JoinTables(const TextTables& texts) {
  Rec_Language record;
  for (std::size_t i = 0; i < kTextTableCount; ++i) {
    const auto table = static_cast<TextTable>(i);
    const auto [first, last] = RangeOf(table);
    for (std::size_t index = first; index <= last; ++index) {
      (record[table] += texts[{table, index}]) += kLineEnd;
    }
  }
  return record;
}

void SplitTables(const Rec_Language& record, TextTables& texts) {
  for (std::size_t i = 0; i < kTextTableCount; ++i) {
    const auto table = static_cast<TextTable>(i);
    SplitTable(record[table], table, RangeOf(table).first, texts);
  }
}

void Load_Language_File(Program& program, const std::string& path) {
  if (!FileExists(path)) return;
  try {
    SplitTables(ReadLanguage(path), program.texts);
  } catch (const std::exception&) {
    ShowError(program, "Error during loading #03",
              "Error during loading!\nThe language file could not be opened");
  }
}

void Save_Language_File(Program& program, const std::string& path) {
  try {
    WriteRecord(path, JoinTables(program.texts));
  } catch (const std::exception&) {
    ShowError(program, AppTitle,
              "An error occured while saving the languagefile" + TextFromUtf8(path));
  }
}

Text Get_Language_Version(Program& program, const std::string& path) {
  if (!FileExists(path)) return "0";
  try {
    constexpr TextTable kTable = TextTable::taal_file_info;
    // Counted from 1, as is meant: the version then stands behind its usual place.
    SplitTable(ReadLanguage(path)[kTable], kTable, 1, program.texts);
    return program.texts[{kTable, file_info_text::kLanguageVersion.index + 1}];
  } catch (const std::exception&) {
    ShowError(program, AppTitle,
              "An error occured during language version retrieval in file " + TextFromUtf8(path));
    return {};
  }
}

void Check_Language_Files(Program& program) {
  program.Guard("#FF8-13", [&] {
    for (const auto& [name, make] : kStandardFiles) {
      const std::string path = program.paths.LanguagePath + name;
      if (FileExists(path) && Get_Language_Version(program, path) == VersionText) continue;
      make(program.texts);
      Save_Language_File(program, path);
    }
  });
}

std::span<const std::string_view> StandardLanguageFiles() {
  static constexpr std::array<std::string_view, 3> kNames = {"default.lsf", "English.lsf",
                                                             "Nederlands.lsf"};
  return kNames;
}

void LoadChosenLanguage(Program& program) {
  const Text& name = program.settings[Setting::Combo_taal];
  Load_Language_File(program, program.paths.LanguagePath + Utf8FromText(name));
}

}  // namespace kelvora
