#include "language/language_file.h"

#include <array>

#include "core/common.h"
#include "language/built_in_texts.h"
#include "language/file_info_texts.h"
#include "language/own_text_file.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

struct StandardFile {
  const char* name;
  Language language;
};

constexpr std::array kStandardFiles = {
    StandardFile{"English.lsf", Language::english},
    StandardFile{"Nederlands.lsf", Language::dutch},
    StandardFile{"default.lsf", Language::english},
};

// One box of a kind is enough, however many of the files meet the same cause.
void ShowError(Program& program, std::string_view title, std::string_view words,
               std::string_view path = {}) {
  if (!program.actions.FirstTime(words)) return;
  program.platform.boxes.Show(
      {.title = Text(title), .text = Text(words) + TextFromUtf8(path), .icon = BoxIcon::error});
}

void MakeTexts(TextTables& texts, Language language) {
  if (language == Language::dutch) {
    Make_Taal_Dutch(texts);
  } else {
    Make_Taal_English(texts);
  }
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

// Writes one of the files of a language; false after the box of a failure.
template <class Write>
bool WriteOrTell(Program& program, const std::string& path, Write write) {
  try {
    write();
    return true;
  } catch (const std::exception&) {
    ShowError(program, AppTitle, "An error occured while saving the languagefile", path);
    return false;
  }
}

bool SaveCompanion(Program& program, const std::string& path) {
  return WriteOrTell(program, OwnTextFile(path), [&] { SaveOwnTexts(path, program.texts); });
}

// False if one of the two files had to be written and could not be.
bool CheckStandardFile(Program& program, const StandardFile& file) {
  const std::string path = program.paths.LanguagePath + file.name;
  if (!FileExists(path) || Get_Language_Version(program, path) != VersionText) {
    MakeTexts(program.texts, file.language);
    return Save_Language_File(program, path);
  }
  if (OwnTextsAreCurrent(path)) return true;
  program.texts.own = OwnTextsIn(file.language);
  return SaveCompanion(program, path);
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
    LoadOwnTexts(path, program.texts);
  } catch (const std::exception&) {
    ShowError(program, "Error during loading #03",
              "Error during loading!\nThe language file could not be opened");
  }
}

bool Save_Language_File(Program& program, const std::string& path) {
  const bool saved =
      WriteOrTell(program, path, [&] { WriteRecord(path, JoinTables(program.texts)); });
  return saved && SaveCompanion(program, path);
}

Text Get_Language_Version(Program& program, const std::string& path) {
  if (!FileExists(path)) return "0";
  try {
    constexpr TextTable kTable = TextTable::taal_file_info;
    // Counted from 1, as is meant: the version then stands behind its usual place, where another
    // file may have left its own.
    program.texts[{kTable, file_info_text::kLanguageVersion.index + 1}].clear();
    SplitTable(ReadLanguage(path)[kTable], kTable, 1, program.texts);
    return program.texts[{kTable, file_info_text::kLanguageVersion.index + 1}];
  } catch (const std::exception&) {
    ShowError(program, AppTitle, "An error occured during language version retrieval in file ",
              path);
    return {};
  }
}

bool Check_Language_Files(Program& program) {
  const UserAction action(program.actions);
  bool all_written = true;
  const bool done = program.Guard("#FF8-13", [&] {
    for (const StandardFile& file : kStandardFiles) {
      all_written = CheckStandardFile(program, file) && all_written;
    }
  });
  return done && all_written;
}

std::span<const std::string_view> StandardLanguageFiles() {
  static constexpr std::array<std::string_view, 3> kNames = {"default.lsf", "English.lsf",
                                                             "Nederlands.lsf"};
  return kNames;
}

void FillWithDefaultTexts(Program& program) {
  program.texts = {};
  Make_Taal_English(program.texts);
  const std::string path = program.paths.LanguagePath + "default.lsf";
  try {
    SplitTables(ReadLanguage(path), program.texts);
    LoadOwnTexts(path, program.texts);
  } catch (const std::exception&) {
    // The built-in texts are there.
  }
}

void LoadChosenLanguage(Program& program) {
  FillWithDefaultTexts(program);
  const Text& name = program.settings[Setting::Combo_taal];
  Load_Language_File(program, program.paths.LanguagePath + Utf8FromText(name));
}

}  // namespace kelvora
