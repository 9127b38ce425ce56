// Any bytes as a file of one record; the input chooses one of the row sizes of the file kinds.
#include <algorithm>
#include <array>
#include <cstring>
#include <string>

#include "fuzz/check.h"
#include "fuzz/plain.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

std::size_t EncodedSize(std::span<const Text> strings) {
  std::size_t size = 4;
  for (const Text& string : strings) size += string.size() + (string.size() < 65535 ? 2 : 6);
  return size;
}

// Writes the strings and reads them back, whole and cut off at `cut`.
void CheckWrittenReadsBack(std::span<const Text> strings, std::span<Text> back, std::size_t cut) {
  const std::string file = EncodeRecord(strings);
  Check(file.size() == EncodedSize(strings), "a file is as long as its strings and their lengths");
  Check(file.starts_with(std::string_view("\1\0\0\0", 4)), "a file counts one record");
  Check(DecodeFirstRecord(file, back), "what was written holds a record");
  Check(std::ranges::equal(strings, back), "what was written reads back");
  Check(EncodeRecord(back) == file, "writing again gives the same bytes");

  cut = 4 + cut % (file.size() - 3);
  Check(DecodeFirstRecord(std::string_view(file).substr(0, cut), back),
        "a cut file holds a record");
  bool beyond_the_end = false;
  for (std::size_t i = 0; i < strings.size(); ++i) {
    Check(strings[i].starts_with(back[i]), "a cut file yields the beginning of each string");
    Check(!beyond_the_end || back[i].empty(), "strings beyond the end are empty");
    beyond_the_end |= back[i].size() < strings[i].size();
  }
}

// The same record as views into the file, which ask for no memory at all.
template <std::size_t Size>
void CheckViews(std::string_view file, bool holds_a_record, const std::array<Text, Size>& strings) {
  std::array<std::string_view, Size> views;
  views.fill("stays");
  const AllocationMeter meter;
  Check(DecodeFirstRecord(file, std::span(views)) == holds_a_record,
        "views are filled when strings are");
  Check(meter.Bytes() == 0, "views take no memory");
  Check(std::ranges::equal(views, strings), "a view is what the string is");
}

template <std::size_t Size>
void CheckRow(std::string_view file, std::size_t cut) {
  static std::array<Text, Size> strings;
  static std::array<Text, Size> back;
  strings.fill("stays");
  bool holds_a_record = false;
  {
    const AllocationMeter meter;
    holds_a_record = DecodeFirstRecord(file, std::span(strings));
    Check(meter.Bytes() <= 2 * file.size() + 32 * Size, "memory is bounded by the file's size");
  }
  CheckViews<Size>(file, holds_a_record, strings);
  PlainReader reader(file);
  Check(holds_a_record == reader.HoldsARecord(), "a record is there if the count is above 0");
  if (!holds_a_record) {
    Check(std::ranges::count(strings, "stays") == Size, "without a record nothing is filled");
    return;
  }
  for (const Text& string : strings) {
    Check(string == reader.String(), "a string is what the layout says");
  }
  CheckWrittenReadsBack(strings, back, cut);
}

// Strings around the length from which on the long form is written.
void CheckLongString(std::string_view file) {
  static std::array<Text, 2> strings;
  static std::array<Text, 2> back;
  const auto more = static_cast<std::uint8_t>(file[0]) % 8u;
  strings[0].assign(65531u + more, file.back());
  strings[1] = file;
  CheckWrittenReadsBack(strings, back, file.size() * 257);
  const std::string written = EncodeRecord(strings);
  const bool is_long = static_cast<std::uint8_t>(written[4]) == 0xFF &&
                       static_cast<std::uint8_t>(written[5]) == 0xFF;
  Check(is_long == (more >= 4), "the long form begins at 65,535 bytes");
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  const std::string_view file = InputOf(data, size);
  // Some place in the file, the same at every run of this input.
  const std::size_t cut = size == 0 ? 0 : size * 31 + data[size - 1];
  switch (cut % 4) {
    case 0:
      CheckRow<1>(file, cut);
      break;
    case 1:
      CheckRow<6>(file, cut);
      break;
    case 2:
      CheckRow<26>(file, cut);
      break;
    default:
      CheckRow<51>(file, cut);
  }
  if (size % 64 == 17) CheckLongString(file);
  return 0;
}
