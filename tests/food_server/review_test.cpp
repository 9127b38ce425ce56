#include "food_server/review.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "core/text.h"
#include "food_server/service.h"
#include "support/test_program.h"

namespace kelvora::server {
namespace {

class ReviewOfSubmissions : public testing::Test {
 protected:
  ReviewOfSubmissions() { service_.SetReady(); }

  Reply Get(const std::string& target) {
    return service_.Answer({.target = target, .address = "192.0.2.7"});
  }
  Reply Submit(const std::string& name) {
    return Get("/modules/swadd.php?naam=" + name +
               "&kj=1000&kcal=238&vvet=1.50&ovet=2.25&kdr=30.00&ew=10.00&nat=0.100"
               "&opmerking=Kelvora FOOD&gepost=piet");
  }
  std::string Found(const std::string& term) {
    return Utf8FromText(Get("/modules/kvzoek.php?item=" + term).body);
  }
  CommandResult Run(const std::vector<std::string>& arguments) {
    return Review(*store_, arguments);
  }

  TemporaryFolder folder_;
  Configuration configuration_;
  std::unique_ptr<Store> store_ = OpenStore("sqlite:" + folder_.Path() + "/foods.db", {});
  Metrics metrics_;
  Service service_{configuration_, *store_, metrics_};
};

constexpr std::string_view kFood = "Muesli½100 gram½100½1000½238½10.00½2.25½1.50½30.00½0.100½0½½¼";

TEST_F(ReviewOfSubmissions, AcceptedOnesAreFoundAndRefusedOnesAreNot) {
  EXPECT_EQ(Submit("Muesli").body, "OK\n");
  EXPECT_EQ(Found("muesli"), "");
  EXPECT_EQ(Run({"accept", "1"}).out, "1: accepted\n");
  EXPECT_EQ(Found("muesli"), kFood);
  EXPECT_EQ(Run({"refuse", "1"}).out, "1: refused\n");
  EXPECT_EQ(Found("muesli"), "");
  EXPECT_EQ(Run({"refuse", "1"}).status, 1);
}

TEST_F(ReviewOfSubmissions, CorrectsBeforeAndAfterAccepting) {
  (void)Submit("Musli");
  EXPECT_EQ(Run({"correct", "1", "name=Muesli", "gram=40", "kj=400,5"}).status, 0);
  EXPECT_EQ(Run({"accept", "1"}).status, 0);
  EXPECT_EQ(Run({"correct", "1", "remark=Crème-muesli"}).status, 0);
  EXPECT_EQ(Found("creme"),
            "Muesli½100 gram½40½400.5½238½10.00½2.25½1.50½30.00½0.100½0½Crème-muesli½¼");
  EXPECT_EQ(Found("musli"), "");
}

TEST_F(ReviewOfSubmissions, ListsByState) {
  (void)Submit("Muesli");
  (void)Submit("M&M's");
  EXPECT_EQ(Run({"accept", "1"}).status, 0);
  const std::string unchecked = Run({"list"}).out;
  EXPECT_EQ(unchecked.substr(0, 2), "2\t");
  EXPECT_NE(unchecked.find("\tunchecked\t192.0.2.7\tpiet\tM (cut at \"&\")\t1000 kJ\n"),
            std::string::npos);
  EXPECT_NE(Run({"list", "accepted"}).out.find("\tMuesli\t"), std::string::npos);
  EXPECT_EQ(Run({"list", "refused"}).out, "");
  const std::string all = Run({"list", "all"}).out;
  EXPECT_EQ(std::ranges::count(all, '\n'), 2);
  EXPECT_NE(Run({"show", "2"}).out.find("request: naam=M&M's&kj=1000"), std::string::npos);
}

TEST_F(ReviewOfSubmissions, ShowsNoCommandsToATerminal) {
  (void)Get(
      "/modules/swadd.php?naam=x&kj=1&kcal=1&vvet=1&ovet=1&kdr=1&ew=1&nat=1&gepost=p&y\x1B[2J\x9B");
  for (const CommandResult& result : {Run({"list"}), Run({"show", "1"})}) {
    EXPECT_EQ(result.out.find('\x1B'), std::string::npos);
    EXPECT_EQ(result.out.find("\xC2\x9B"), std::string::npos);
  }
}

TEST_F(ReviewOfSubmissions, TellsWhatIsWrong) {
  (void)Submit("Muesli");
  for (const std::vector<std::string>& wrong :
       std::vector<std::vector<std::string>>{{},
                                             {"eat"},
                                             {"accept"},
                                             {"accept", "x"},
                                             {"show", "0"},
                                             {"list", "new"},
                                             {"correct", "1"},
                                             {"correct", "1", "nam=x"},
                                             {"correct", "1", "kj=much"},
                                             {"correct", "1", "name="},
                                             {"correct", "1", "name=½"}}) {
    const CommandResult result = Run(wrong);
    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors, "");
  }
  EXPECT_EQ(Run({"accept", "9", "1"}).status, 1);
  EXPECT_NE(Found("muesli"), "");
}

TEST_F(ReviewOfSubmissions, AnAddressHasALimitEachHour) {
  configuration_.submissions_per_hour = 2;
  EXPECT_EQ(Submit("A").status, 200);
  EXPECT_EQ(Submit("B").status, 200);
  EXPECT_EQ(Submit("C").status, 429);
  EXPECT_NE(Submit("C").body.substr(0, 2), "OK");
}

TEST_F(ReviewOfSubmissions, NoMoreIsKeptThanCanBeChecked) {
  configuration_.unchecked_submissions = 1;
  EXPECT_EQ(Submit("A").status, 200);
  EXPECT_EQ(Submit("B").status, 503);
  EXPECT_EQ(Run({"refuse", "1"}).status, 0);
  EXPECT_EQ(Submit("B").status, 200);
}

}  // namespace
}  // namespace kelvora::server
