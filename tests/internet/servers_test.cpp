#include "internet/servers.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

constexpr std::string_view kConf =
    "# where the services are\r\n"
    "dutch = http://nl.example.org\r\n"
    "english=https://en.example.org  # the other one\n"
    "  update =\thttp://update.example.org\n"
    "unknown = http://x.example.org\n"
    "no value\n"
    "website = http://www.example.org";

class Servers : public testing::Test {
 protected:
  Servers() {
    std::filesystem::create_directories(test.program.paths.ProgramPath);
    WriteFileAnew(Conf(), kConf);
  }
  [[nodiscard]] std::string Conf() const { return test.program.paths.ProgramPath + "servers.conf"; }
  Text& Choice() { return test.program.settings[Setting::opt_server]; }

  TestProgram test;
};

TEST_F(Servers, HostsComeFromTheFileBesideTheProgram) {
  const ServerHosts hosts = ReadServerHosts(test.program.paths);
  EXPECT_EQ(hosts.dutch, "http://nl.example.org");
  EXPECT_EQ(hosts.english, "https://en.example.org");
  EXPECT_EQ(hosts.update, "http://update.example.org");
  EXPECT_EQ(hosts.website, "http://www.example.org");
}

TEST_F(Servers, TheSchemeOfAnAddressMayStandInCapitals) {
  EXPECT_EQ(ParseServerHosts("dutch = HTTPS://nl.example").dutch, "HTTPS://nl.example");
}

TEST_F(Servers, AValueThatIsNoWebAddressLeavesItsServiceUnset) {
  const ServerHosts hosts = ParseServerHosts(
      "dutch = ftp://nl.example\nenglish = www.example.org\nupdate = -h\nwebsite = "
      "http://w.example\n");
  EXPECT_EQ(hosts.dutch, "");
  EXPECT_EQ(hosts.english, "");
  EXPECT_EQ(hosts.update, "");
  EXPECT_EQ(hosts.website, "http://w.example");
}

TEST_F(Servers, TheSettingChoosesTheService) {
  Choice() = "1";
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(test.program.servers.search, "https://en.example.org/modules/kvzoek.php");
  EXPECT_EQ(test.program.servers.submission, "https://en.example.org/modules/swadd.php");
  Choice() = "0";
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(test.program.servers.search, "http://nl.example.org/modules/kvzoek.php");
  EXPECT_EQ(test.program.servers.submission, "http://nl.example.org/modules/swadd.php");
}

TEST_F(Servers, AnEmptyChoiceBecomesTheDutchService) {
  Choice() = "";
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(Choice(), "0");
  EXPECT_EQ(test.program.servers.search, "http://nl.example.org/modules/kvzoek.php");
}

TEST_F(Servers, AnyOtherChoiceChangesNothing) {
  Choice() = "0";
  Zet_Server_Adressen(test.program);
  Choice() = "7";
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(test.program.servers.search, "http://nl.example.org/modules/kvzoek.php");
}

TEST_F(Servers, AMissingKeyOrFileLeavesTheAddressEmpty) {
  WriteFileAnew(Conf(), "english = http://en.example.org");
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(test.program.servers.search, "");
  EXPECT_EQ(test.program.servers.submission, "");
  DeleteFileIfThere(Conf());
  Zet_Server_Adressen(test.program);
  EXPECT_EQ(test.program.servers.search, "");
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(ParseServerHosts, TakesAnythingWithoutHarm) {
  for (const std::string_view text : {"", "=", "#", "dutch", "dutch=", "\n\n", "dutch = #x"}) {
    EXPECT_EQ(ParseServerHosts(text).dutch, "") << text;
  }
}

}  // namespace
}  // namespace kelvora
