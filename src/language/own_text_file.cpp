#include "language/own_text_file.h"

#include "core/common.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

enum class OwnTextField { kAll };
using Rec_OwnTexts = Record<OwnTextField, 1>;

// The entries of the companion, the version first; none if it can't be read.
TextList EntriesOf(const std::string& path) {
  TextList entries;
  try {
    const auto record = ReadFirstRecord<Rec_OwnTexts>(OwnTextFile(path));
    if (record) SplitBlock((*record)[OwnTextField::kAll], entries);
  } catch (const std::exception&) {
    // A language without own texts: the English ones stand in.
    entries.Clear();
  }
  return entries;
}

}  // namespace

std::string OwnTextFile(const std::string& path) {
  constexpr std::string_view kLanguageEnding = ".lsf";
  const std::size_t stem = path.size() - std::min(path.size(), kLanguageEnding.size());
  const bool has_ending = LowerCase(std::string_view(path).substr(stem)) == kLanguageEnding;
  return (has_ending ? path.substr(0, stem) : path) + ".own";
}

void LoadOwnTexts(const std::string& path, TextTables& texts) {
  const TextList entries = EntriesOf(path);
  texts.own.clear();
  for (std::size_t i = 1; i < entries.Count() && texts.own.size() < kOwnTextCount; ++i) {
    texts.own.emplace_back(entries[i]);
  }
}

void SaveOwnTexts(const std::string& path, const TextTables& texts) {
  Rec_OwnTexts record;
  Text& all = record[OwnTextField::kAll];
  (all += VersionText) += kLineEnd;
  for (int id = 0; id < kOwnTextCount; ++id) {
    (all += OwnTextOf(texts, static_cast<OwnText>(id))) += kLineEnd;
  }
  WriteRecord(OwnTextFile(path), record);
}

bool OwnTextsAreCurrent(const std::string& path) {
  const TextList entries = EntriesOf(path);
  return entries.Count() == kOwnTextCount + 1 && entries[0] == VersionText;
}

}  // namespace kelvora
