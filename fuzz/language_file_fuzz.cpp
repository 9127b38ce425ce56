// Any bytes as a language file: a table takes as many entries as it has, and a short file leaves
// the other texts as they were.
#include "fuzz/file_kind.h"
#include "language/language_file.h"

namespace kelvora {
namespace {

constexpr std::size_t kTables = 26;

TextId IdOf(std::size_t table, std::size_t entry) {
  return {static_cast<TextTable>(table), table == 0 ? entry + 1 : entry};
}

std::size_t EntriesOf(std::size_t table) {
  return table == 0 ? 25 : 200 + 1;
}

// Checks the entries that a file fills, and gives the texts back what they were.
void CheckOverlaid(const Rec_Language& record, const TextTables& before, TextTables& texts) {
  for (std::size_t table = 0; table < kTables; ++table) {
    const Pieces entries = PlainSplit(record.strings[table], kLineEnd);
    for (std::size_t i = 0; i < std::min(entries.size(), EntriesOf(table)); ++i) {
      Check(texts[IdOf(table, i)] == entries[i], "an entry of the file replaces a text");
      texts[IdOf(table, i)] = before[IdOf(table, i)];
    }
  }
}

// Every text of one table, or of all of them now and then.
void CheckUnchanged(const TextTables& before, const TextTables& texts, std::size_t choice) {
  const bool all = choice % 64 == 0;
  for (std::size_t table = all ? 0 : choice % kTables; table < kTables; ++table) {
    for (std::size_t i = 0; i < EntriesOf(table); ++i) {
      Check(texts[IdOf(table, i)] == before[IdOf(table, i)], "no other text changes");
    }
    if (!all) break;
  }
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  const auto record = CheckedRecord<Rec_Language>(InputOf(data, size));
  if (!record || size == 0) return 0;
  static const TextTables before = FreshBoxes().program.texts;
  static TextTables texts = before;
  SplitTables(*record, texts);
  CheckOverlaid(*record, before, texts);
  CheckUnchanged(before, texts, size * 3 + data[size - 1]);
  return 0;
}
