#include "internet/sending.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(AddToCounter, CountsOnFromAnyNumber) {
  struct Case {
    const char* before;
    std::size_t count;
    const char* after;
  };
  for (const Case& row : {
           Case{"", 1, "1"},
           Case{"0", 1, "1"},
           Case{"9", 1, "10"},
           Case{" 12 times", 3, "15"},
           Case{"1.9", 1, "2"},
           Case{"many", 5, "5"},
           Case{"-4", 1, "1"},
           Case{"999999999999998", 1, "999999999999999"},
           Case{"999999999999999", 1, "1"},
           Case{"123456789", 67108864, "190565653"},
           Case{"7", 0, "7"},
       }) {
    Text counter = row.before;
    AddToCounter(counter, row.count);
    EXPECT_EQ(counter, row.after) << row.before;
  }
  Text huge(400, '9');
  AddToCounter(huge, 2);
  EXPECT_EQ(huge, "2");
}

}  // namespace
}  // namespace kelvora
