#include "core/key_filter.h"

#include <algorithm>
#include <iterator>

namespace kelvora {

bool AcceptsWholeNumberKey(char key) {
  return key >= '0' && key <= '9';
}

Text FilterWholeNumber(std::string_view typed) {
  Text kept;
  std::ranges::copy_if(typed, std::back_inserter(kept), &AcceptsWholeNumberKey);
  return kept;
}

Text FilterDecimal(std::string_view typed, std::string_view separator) {
  Text kept;
  for (const char key : typed) {
    if (AcceptsWholeNumberKey(key)) kept += key;
    if (key == ',' || key == '.') kept += separator;
  }
  return kept;
}

Text ApplyKeyFilter(KeyFilter filter, std::string_view typed, std::string_view separator) {
  switch (filter) {
    case KeyFilter::none:
      break;
    case KeyFilter::whole_number:
      return FilterWholeNumber(typed);
    case KeyFilter::decimal:
      return FilterDecimal(typed, separator);
  }
  return Text(typed);
}

}  // namespace kelvora
