// Offering a food to the food server: the request to the byte, each box, and what is counted.
#include "internet/submission.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "storage/settings_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::string_view kThanks =
    "Kelvora FOOD|The new food item is saved in the 'my own list' and added to the internet "
    "database.\n\nThe submitted food item has a ' red ' status at this moment.\n"
    "One of our employees will check the new food item soon.\nThanks for your submission!";
constexpr std::string_view kNotSent =
    "Error #504|The new food item is saved in the 'my own list' but not added to the internet "
    "database.\nCheck your internet connection and try again.";

// An environment variable as it is to be while this object lives.
class Environment {
 public:
  Environment(const char* name, const char* value) : name_(name) {
    const char* const old = std::getenv(name);
    if (old != nullptr) old_ = old;
    Set(value);
  }
  ~Environment() { Set(old_ ? old_->c_str() : nullptr); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

 private:
  void Set(const char* value) {
    if (value != nullptr) {
      setenv(name_, value, 1);
    } else {
      unsetenv(name_);
    }
  }
  const char* name_;
  std::optional<std::string> old_;
};

class Submitting : public testing::Test {
 protected:
  Submitting() { program.servers.submission = "http://nl.example/modules/swadd.php"; }

  void Send() {
    submission.Send(food, [this] { ++ends; });
  }
  std::string Boxes() {
    std::string boxes;
    for (const Box& box : test.boxes.shown) boxes += box.title + "|" + box.text;
    return boxes;
  }

  TestProgram test;
  Program& program = test.program;
  OfferedFood food{.name = " Soup & bread",
                   .values = {"1000", "238", "2.10", "4.40", "8.00", "40.00", "1.200"}};
  FoodSubmission submission{test.program};
  int ends = 0;
};

TEST_F(Submitting, AsksWithTheValuesInTheirOrderAsTheyStand) {
  const Environment user("USERNAME", "Anna de Vries");
  Send();
  ASSERT_EQ(test.transfers.addresses.size(), 1u);
  EXPECT_EQ(test.transfers.addresses[0],
            "http://nl.example/modules/swadd.php?naam= Soup & bread&kj=1000&kcal=238&vvet=2.10"
            "&ovet=4.40&kdr=40.00&ew=8.00&nat=1.200&opmerking=Kelvora FOOD&gepost=Anna de Vries");
}

TEST_F(Submitting, NoValueReachesBeyondItsLine) {
  const Environment user("USERNAME", "Anna\nX: y");
  food.name = "Soup\r\nHost: elsewhere";
  Send();
  EXPECT_EQ(test.transfers.addresses[0],
            "http://nl.example/modules/swadd.php?naam=Soup&kj=1000&kcal=238&vvet=2.10"
            "&ovet=4.40&kdr=40.00&ew=8.00&nat=1.200&opmerking=Kelvora FOOD&gepost=Anna");
}

TEST_F(Submitting, IsSentByTheUserOfTheComputer) {
  const Environment user("USER", "bert");
  {
    const Environment named("USERNAME", "Zo\xC3\xAB");
    EXPECT_EQ(SenderName(), "Zo\xEB");
  }
  {
    const Environment empty("USERNAME", "");
    EXPECT_EQ(SenderName(), "bert");
  }
  const Environment unnamed("USERNAME", nullptr);
  EXPECT_EQ(SenderName(), "bert");
  const Environment nobody("USER", nullptr);
  EXPECT_EQ(SenderName(), "user");
}

TEST_F(Submitting, AnOkThanksAndCounts) {
  Send();
  EXPECT_TRUE(test.pointer.waiting);
  EXPECT_TRUE(submission.IsUnderWay());
  EXPECT_EQ(ends, 0);
  test.transfers.Complete({"O", "K, thanks"});
  EXPECT_EQ(Boxes(), kThanks);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::information);
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(submission.IsUnderWay());
  EXPECT_FALSE(test.pointer.waiting);
  EXPECT_EQ(program.settings[Setting::SubmitCount], "1");
  program.settings[Setting::SubmitCount] = "?";
  ASSERT_TRUE(ReadSettingsFile(program));
  EXPECT_EQ(program.settings[Setting::SubmitCount], "1");
}

TEST_F(Submitting, AnyOtherReplyIsPassedOverInSilence) {
  for (const char* reply : {"ok", "Ok", "O", "", " OK", "no"}) {
    Send();
    test.transfers.Complete({reply});
    EXPECT_FALSE(submission.IsUnderWay());
  }
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(ends, 6);
  EXPECT_EQ(program.settings[Setting::SubmitCount], "0");
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Submitting, AFailedConnectionTellsThatTheFoodIsSavedOnly) {
  Send();
  test.transfers.Fail();
  EXPECT_EQ(Boxes(), kNotSent);
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::error);
  EXPECT_EQ(ends, 1);
  EXPECT_EQ(program.settings[Setting::SubmitCount], "0");
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Submitting, OneThatIsGivenUpEndsAsAFailedConnection) {
  submission.GiveUp();
  EXPECT_EQ(Boxes(), "");
  Send();
  submission.GiveUp();
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(Boxes(), kNotSent);
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(test.pointer.waiting);
  submission.GiveUp();
  EXPECT_EQ(ends, 1);
}

TEST_F(Submitting, OneAtATime) {
  Send();
  Send();
  EXPECT_EQ(test.transfers.addresses.size(), 1u);
  test.transfers.Complete({"OK"});
  EXPECT_EQ(ends, 1);
  Send();
  test.transfers.Complete({"OK"});
  EXPECT_EQ(program.settings[Setting::SubmitCount], "2");
}

TEST_F(Submitting, OneWhoseWindowIsGoneIsNotHeardOfAgain) {
  {
    FoodSubmission gone(program);
    gone.Send(food, [this] { ++ends; });
  }
  EXPECT_EQ(test.transfers.cancelled, 1);
  EXPECT_EQ(Boxes(), "");
  EXPECT_EQ(ends, 0);
  EXPECT_FALSE(test.pointer.waiting);
}

TEST_F(Submitting, SpeaksDutch) {
  Make_Taal_Dutch(program.texts);
  Send();
  test.transfers.Complete({"OK"});
  EXPECT_EQ(Boxes(),
            "Kelvora FOOD|Het nieuwe voedingsmiddel is opgeslagen in 'mijn eigen lijst' en "
            "toegevoegd aan de internetdatabase.\n\nHet ingezonden voedingsmiddel heeft op dit "
            "moment de status ' rood '.\nEen van onze medewerkers controleert het nieuwe "
            "voedingsmiddel binnenkort.\nBedankt voor je inzending!");
}

}  // namespace
}  // namespace kelvora
