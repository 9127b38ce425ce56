// Any text in any other, without regard to case: the first two bytes choose the wanted text.
#include "core/text_search.h"
#include "fuzz/check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  if (size < 2) return 0;
  // Its end is the end of the input's memory, behind which no byte may be looked at.
  const std::string_view text = InputOf(data + 2, size - 2);
  const std::size_t at = text.empty() ? 0 : data[0] % text.size();
  Text wanted(text.substr(at, data[1] % 40));
  // The other case of each letter that has one; every third length looks for what may not be there.
  for (char& byte : wanted) {
    if (byte >= 'a' && byte <= 'z') byte = static_cast<char>(byte - 'a' + 'A');
  }
  if (size % 3 == 0 && !wanted.empty()) wanted.back() = static_cast<char>(data[1]);

  const CaselessFinder finder(wanted);
  const Text plain = LowerCase(text);
  const Text plain_wanted = LowerCase(wanted);
  Check(finder.IsIn(text) == (plain.find(plain_wanted) != Text::npos),
        "a text is found where its lower case is");
  Check(finder.IsAtFrontOf(text) == plain.starts_with(plain_wanted),
        "a text is in front where its lower case is");
  return 0;
}
