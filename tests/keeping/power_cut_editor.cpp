// Edits and saves a day on a disk whose power is cut, and finds what is left of it; see
// power_cut.py.
//   power_cut_editor edit FOLDER EDITS   makes the user and the day, then numbered edits: of four
//   one
//                                        is kept in the recovery copy alone, the others are saved.
//                                        Tells each number when it is kept, and waits for a line.
//   power_cut_editor find FOLDER         starts anew and tells the number of the last edit there
#include <iostream>
#include <string>

#include "keeping/numbered_edits.h"
#include "storage/folders.h"
#include "storage/recovery_copy.h"

namespace kelvora {
namespace {

int EditDay(TestProgram& test, int edits) {
  test.OpenDay("Anna");
  std::string line;
  for (int number = 1; number <= edits; ++number) {
    MakeEdit(test.program, number);
    if (number % 4 == 0) {
      BringRecoveryCopyUpToDate(test.program);
    } else if (!SaveDay(test.program)) {
      return 1;
    }
    std::cout << number << std::endl;
    if (!std::getline(std::cin, line)) return 1;
  }
  return 0;
}

int FindDay(TestProgram& test) {
  const std::optional<int> last = LastEditAfterNewStart(test);
  std::cout << last.value_or(0) << std::endl;
  return 0;
}

}  // namespace
}  // namespace kelvora

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  const std::string action = argv[1], folder = argv[2];
  kelvora::TestProgram test;
  test.program.paths.UsersPath = folder + "/users/";
  test.program.paths.StatePath = folder + "/state/";
  if (action == "edit" && argc == 4) return kelvora::EditDay(test, std::stoi(argv[3]));
  if (action == "find") return kelvora::FindDay(test);
  return 2;
}
