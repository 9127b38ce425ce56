// Any bytes as the settings file: what is empty gets its default, and nothing else changes.
#include <array>

#include "fuzz/file_kind.h"
#include "storage/folders.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

// The default of each of the 51 settings, by its place in the file.
constexpr std::array<std::string_view, 51> kExpected = [] {
  std::array<std::string_view, 51> values{};
  values[0] = "default.lsf";
  for (const std::size_t on : {1u, 2u, 11u, 20u, 21u, 23u, 24u, 28u}) values[on] = "1";
  for (const std::size_t off : {12u, 13u, 14u, 16u, 17u, 19u, 22u, 25u, 26u, 27u})
    values[off] = "0";
  return values;
}();

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  TestProgram& test = FreshBoxes();
  Program& program = test.program;
  const auto record = CheckedRecord<Rec_Settings>(InputOf(data, size));
  if (!record) return 0;

  // No name leads to a file below what is no folder, whatever stands in it.
  program.paths.LanguagePath = "/dev/null/";
  program.settings = *record;
  Apply_Default_Settings(program);
  const Rec_Settings filled = program.settings;
  Check(filled.strings[0] == "default.lsf", "a language file that is gone becomes the default");
  for (std::size_t i = 1; i < kExpected.size(); ++i) {
    const Text& read = record->strings[i];
    Check(filled.strings[i] == (read.empty() ? kExpected[i] : std::string_view(read)),
          "an empty setting gets its default, and any other stays");
  }
  Apply_Default_Settings(program);
  Check(program.settings == filled, "defaults change nothing a second time");

  program.paths.UsersPath = "stays/";
  ApplyAlternativeUsersFolder(program);
  const bool elsewhere = filled.strings[16] == "1" && !filled.strings[18].empty();
  Check(program.paths.UsersPath == (elsewhere ? Utf8FromText(filled.strings[18]) : "stays/"),
        "the users folder is that of the settings only where they ask for it");
  Check(TextFromUtf8(Utf8FromText(filled.strings[18])) == filled.strings[18],
        "every byte survives as a path");
  Check(test.boxes.shown.empty(), "settings show no box");
  return 0;
}
