// What the targets of the file kinds share: taking the record of a kind from any bytes, and the
// program that the kind is loaded into.
#pragma once

#include <optional>
#include <string_view>

#include "fuzz/check.h"
#include "fuzz/plain.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {

// The one program of the process, with no box shown yet for this input.
[[nodiscard]] inline TestProgram& FreshBoxes() {
  static TestProgram test;
  test.boxes.shown.clear();
  return test;
}

// Ends the process unless `failed` says whether one box with the code is what was shown.
inline void CheckFailure(const TestProgram& test, bool failed, std::string_view code) {
  const auto& shown = test.boxes.shown;
  Check(shown.size() == (failed ? 1 : 0), "a failure shows one box, and nothing else shows one");
  Check(!failed || shown[0].text.ends_with(code), "the box ends with the code of the routine");
}

// Ends the process unless the record reads back from what is written of it.
template <class AnyRecord>
void CheckSurvivesWriting(const AnyRecord& record) {
  const std::string file = EncodeRecord(record.strings);
  const auto back = DecodeRecord<AnyRecord>(file);
  Check(back.has_value() && *back == record, "what is written reads back");
  Check(EncodeRecord(back->strings) == file, "writing again gives the same bytes");
}

// The record in a file, held against the plain reader; nothing if the file counts none.
template <class AnyRecord>
[[nodiscard]] std::optional<AnyRecord> CheckedRecord(std::string_view file) {
  std::optional<AnyRecord> record;
  {
    const AllocationMeter meter;
    record = DecodeRecord<AnyRecord>(file);
    Check(meter.Bytes() <= 2 * file.size() + 32 * AnyRecord::kSize,
          "memory is bounded by the file's size");
  }
  PlainReader reader(file);
  Check(record.has_value() == reader.HoldsARecord(), "a record is there if the count is above 0");
  if (!record) return std::nullopt;
  for (const Text& string : record->strings) {
    Check(string == reader.String(), "a string is what the layout says");
  }
  CheckSurvivesWriting(*record);
  return record;
}

}  // namespace kelvora
