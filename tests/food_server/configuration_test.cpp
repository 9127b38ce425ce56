#include "food_server/configuration.h"

#include <gtest/gtest.h>

namespace kelvora::server {
namespace {

std::string ErrorOf(std::string_view text) {
  try {
    (void)ParseConfiguration(text, "server.conf");
  } catch (const ConfigurationError& error) {
    return error.what();
  }
  return {};
}

TEST(Configuration, HasDefaultsOnTheLoopback) {
  const Configuration none = ParseConfiguration("# nothing\n\n", "server.conf");
  EXPECT_EQ(none.address, "127.0.0.1");
  EXPECT_EQ(none.port, 8080U);
  EXPECT_TRUE(none.foods.empty());
  EXPECT_EQ(none.log, LogLevel::info);
}

TEST(Configuration, TakesEveryKey) {
  const Configuration all = ParseConfiguration(
      "address = ::\r\n port=0\nstore = sqlite:/a b/c.db\nfoods = /one\nfoods = /two = 2\n"
      "workers = 3\nqueue = 4\nconnections = 50\nconnections_of_address = 6\nrequest_seconds = 7\n"
      "submissions_per_hour = 8\nunchecked_submissions = 0\nlog = debug",
      "server.conf");
  EXPECT_EQ(all.address, "::");
  EXPECT_EQ(all.port, 0U);
  EXPECT_EQ(all.store, "sqlite:/a b/c.db");
  EXPECT_EQ(all.foods, (std::vector<std::string>{"/one", "/two = 2"}));
  EXPECT_EQ(all.workers, 3U);
  EXPECT_EQ(all.queue, 4U);
  EXPECT_EQ(all.connections, 50U);
  EXPECT_EQ(all.connections_of_address, 6U);
  EXPECT_EQ(all.request_seconds, 7U);
  EXPECT_EQ(all.submissions_per_hour, 8U);
  EXPECT_EQ(all.unchecked_submissions, 0U);
  EXPECT_EQ(all.log, LogLevel::debug);
}

TEST(Configuration, TellsFileAndLineOfWhatIsWrong) {
  EXPECT_EQ(ErrorOf("port = 1\nprot = 2\n"), "server.conf:2: no key is named \"prot\"");
  EXPECT_EQ(ErrorOf("port = 1\nport = 1"), "server.conf:2: \"port\" is there twice");
  EXPECT_EQ(ErrorOf("port"), "server.conf:1: not of the form \"key = value\"");
  EXPECT_EQ(ErrorOf("port ="), "server.conf:1: \"port\" has no value");
  for (const char* const port : {"65536", "-1", "80a", "0x50", "99999999999999999999", "1 2"}) {
    EXPECT_EQ(ErrorOf("port = " + std::string(port)),
              "server.conf:1: \"port\" needs a number from 0 to 65535");
  }
  EXPECT_EQ(ErrorOf("queue = 0"), "server.conf:1: \"queue\" needs a number from 1 to 100000");
  EXPECT_EQ(ErrorOf("log = loud"), "server.conf:1: \"log\" is one of error, info and debug");
}

TEST(Configuration, NamesAFileThatCantBeRead) {
  EXPECT_THROW((void)ReadConfiguration("/nowhere/server.conf"), ConfigurationError);
}

}  // namespace
}  // namespace kelvora::server
