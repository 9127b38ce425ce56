#include "food_server/connections.h"

#include <arpa/inet.h>
#include <array>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace kelvora::server {
namespace {

using namespace std::chrono_literals;

std::string Counted(const char* text) {
  sockaddr_in6 six{};
  six.sin6_family = AF_INET6;
  if (inet_pton(AF_INET6, text, &six.sin6_addr) == 1) {
    return AddressOf(reinterpret_cast<const sockaddr*>(&six));
  }
  sockaddr_in four{};
  four.sin_family = AF_INET;
  EXPECT_EQ(inet_pton(AF_INET, text, &four.sin_addr), 1) << text;
  return AddressOf(reinterpret_cast<const sockaddr*>(&four));
}

TEST(Connections, CountAHouseholdAsOneAddress) {
  EXPECT_EQ(Counted("192.0.2.7"), "192.0.2.7");
  EXPECT_EQ(Counted("::ffff:192.0.2.7"), "192.0.2.7");
  EXPECT_EQ(Counted("2001:db8:1:2:3:4:5:6"), "2001:db8:1:2::/64");
  EXPECT_EQ(Counted("2001:db8:1:2::1"), "2001:db8:1:2::/64");
  EXPECT_EQ(AddressOf(nullptr), "");
}

TEST(Connections, OfThisMachineHaveNoLimit) {
  EXPECT_TRUE(IsOfThisMachine(Counted("127.0.0.9")));
  EXPECT_TRUE(IsOfThisMachine(Counted("::1")));
  EXPECT_FALSE(IsOfThisMachine(Counted("192.0.2.127")));
  Connections connections({.all = 100, .of_address = 1, .request = 1h});
  for (const char* const address : {"127.0.0.1", "127.0.0.1"}) {
    EXPECT_TRUE(connections.MayOpen(address));
    (void)connections.Add(-1, address);
  }
}

TEST(Connections, AnAddressHasItsLimit) {
  Connections connections({.all = 100, .of_address = 2, .request = 1h});
  Connections::Open* const first = connections.Add(-1, "192.0.2.7");
  EXPECT_TRUE(connections.MayOpen("192.0.2.7"));
  (void)connections.Add(-1, "192.0.2.7");
  EXPECT_FALSE(connections.MayOpen("192.0.2.7"));
  EXPECT_TRUE(connections.MayOpen("192.0.2.8"));
  connections.Close(first);
  EXPECT_TRUE(connections.MayOpen("192.0.2.7"));
  EXPECT_EQ(connections.Count(), 1U);
}

// Two ends of a connection; whether the far one has been ended.
struct Pair {
  Pair() { EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0, ends.data()), 0); }
  ~Pair() {
    for (const int end : ends) close(end);
  }
  Pair(const Pair&) = delete;
  Pair& operator=(const Pair&) = delete;
  [[nodiscard]] bool IsEnded() const {
    char byte = 0;
    return recv(ends[1], &byte, 1, 0) == 0;
  }
  std::array<int, 2> ends{};
};

TEST(Connections, WhatTakesTooLongIsEndedButNoneThatWaitsForItsAnswer) {
  Connections connections({.all = 100, .of_address = 0, .request = 20ms});
  const Pair slow, waiting, taking;
  (void)connections.Add(slow.ends[0], "a");
  connections.Add(waiting.ends[0], "a")->Enter(Connections::Phase::waiting);
  connections.Add(taking.ends[0], "a")->Enter(Connections::Phase::taking);
  EXPECT_EQ(connections.CountBusy(), 2U);
  std::this_thread::sleep_for(30ms);
  connections.EndLate();
  EXPECT_TRUE(slow.IsEnded());
  EXPECT_FALSE(waiting.IsEnded());
  EXPECT_TRUE(taking.IsEnded());
}

TEST(Connections, NobodyIsEndedInTime) {
  Connections connections({.all = 100, .of_address = 0, .request = 1h});
  const Pair pair;
  (void)connections.Add(pair.ends[0], "a");
  connections.EndLate();
  EXPECT_FALSE(pair.IsEnded());
}

}  // namespace
}  // namespace kelvora::server
