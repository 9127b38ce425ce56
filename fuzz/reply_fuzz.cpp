// Any bytes as the reply of a server: to a search, to a submission and to the check for a newer
// version.
#include "food/food_lists.h"
#include "fuzz/check.h"
#include "fuzz/file_kind.h"
#include "fuzz/plain.h"
#include "internet/search.h"
#include "internet/sending.h"
#include "internet/submission.h"
#include "internet/update.h"

namespace kelvora {
namespace {

constexpr char kQuarter = '\xBC';

// The foods of a reply once more, without the ends of lines in them.
std::vector<std::string> PlainFoods(std::string_view reply) {
  std::vector<std::string> foods;
  for (const std::string_view piece : PlainSplit(reply, kQuarter)) {
    std::string& food = foods.emplace_back();
    for (const char letter : piece) {
      if (letter != '\xBE') food += letter;
    }
  }
  return foods;
}

// A transfer that has brought the reply in two chunks, cut where the input says.
class Brought : public Transfer {
 public:
  explicit Brought(std::string_view reply) {
    const std::size_t cut = reply.empty() ? 0 : static_cast<std::uint8_t>(reply[0]) % reply.size();
    for (const std::string_view part : {reply.substr(0, cut), reply.substr(cut)}) {
      if (!part.empty()) chunks_.emplace_back(part);
    }
  }
  std::string GetChunk() override {
    return next_ < chunks_.size() ? chunks_[next_++] : std::string();
  }
  std::string ResponseText() const override { return {}; }

 private:
  std::vector<std::string> chunks_;
  std::size_t next_ = 0;
};

void CheckAddress(std::string_view address) {
  Check(address.find_first_of(std::string_view("\r\n\0", 3)) == address.npos,
        "what is typed adds no line to a request");
}

void CheckRows(FoodLists& lists, const std::vector<std::string>& foods) {
  lists.Populate(FoodView::internet);
  Check(lists.Count(FoodView::internet) == foods.size(), "every food is a row");
  constexpr std::size_t kLooked = 4;
  std::vector<std::size_t> rows;
  Text dragged = "add-";
  for (std::size_t row = 0; row < std::min(kLooked, foods.size()); ++row) {
    for (std::size_t column = 0; column < kFoodColumns; ++column) {
      (void)lists.Cell(FoodView::internet, row, column);
    }
    rows.push_back(row);
    dragged += foods[row] + kLineEnd;
  }
  Check(lists.DragPayload(FoodView::internet, rows) == dragged, "a drag takes whole foods");
  Check(PlainSplit(dragged, kLineEnd).size() == rows.size(), "a food is one line wherever it goes");
}

void CheckSearch(TestProgram& test, std::string_view reply) {
  CheckAddress(SearchAddress({.search = "http://nl.example/", .submission = {}}, reply));
  const auto foods = PlainFoods(reply);
  auto found = [&] {
    const AllocationMeter meter;
    auto made = FoodsOfReply(reply);
    Check(meter.Bytes() <= AllowedMemory(2 * reply.size()),
          "memory is bounded by the reply's size");
    return made;
  }();
  Check(found.has_value() == !foods.empty(), "a reply has foods if it has a quarter");
  if (!found) return;
  Check(std::equal(foods.begin(), foods.end(), found->begin(), found->end()),
        "a food is what each quarter closes");
  FoodLists lists(test.program);
  lists.temp_internet() = *std::move(found);
  CheckRows(lists, foods);
  Check(test.boxes.shown.empty(), "showing foods shows no box");
}

void CheckSubmission(std::string_view reply) {
  const OfferedFood food{.name = Text(reply), .values = {"1", "2", "3", "4", "5", "6", "7"}};
  const std::string address =
      SubmissionAddress({.search = {}, .submission = "http://nl.example/"}, food, reply);
  CheckAddress(address);
  Check(
      address.find("&kj=1&kcal=2&vvet=3&ovet=4&kdr=6&ew=5&nat=7&opmerking=Kelvora FOOD&gepost=") !=
          address.npos,
      "the values stand behind their keys");
  Brought transfer(reply);
  const Text whole = WholeReply(transfer);
  Check(whole == reply, "chunks join to the reply");
  Check(IsAccepted(whole) == (reply.size() >= 2 && reply[0] == 'O' && reply[1] == 'K'),
        "only an OK is accepted");
}

void CheckUpdate(std::string_view reply) {
  const Pieces fields = PlainSplit(reply, kFieldEnd);
  const auto split = FieldsOfUpdate(reply);
  Check(std::equal(split.begin(), split.end(), fields.begin(), fields.end()),
        "a field is what a half closes");
  const std::string version(fields.empty() ? std::string_view() : fields[0]);
  // Digits and points only, few enough for the C library to hold them.
  if (version.find_first_not_of(".0123456789") == std::string::npos && version.size() < 15) {
    std::string digits;
    for (const char letter : version) {
      if (letter != '.') digits += letter;
    }
    Check(IsNewerVersion(version) == (!digits.empty() && std::stoll(digits) > 224),
          "a version is the number of its digits");
  }
  (void)IsNewerVersion(version);
}

}  // namespace
}  // namespace kelvora

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvora;
  const std::string_view reply = InputOf(data, size);
  switch (size % 4) {
    case 0:
      CheckSubmission(reply);
      break;
    case 1:
      CheckUpdate(reply);
      break;
    default:
      CheckSearch(FreshBoxes(), reply);
  }
  return 0;
}
