#include "core/web_address.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(WebAddress, LeavesAllBehindTheHostAsItStands) {
  struct Case {
    const char* address;
    const char* origin;
    const char* target;
  };
  for (const Case& row : {
           Case{"http://nl.example/a/b.php?item=x", "http://nl.example", "/a/b.php?item=x"},
           Case{"https://nl.example:8080/p?q= a b\xE9%20#c", "https://nl.example:8080",
                "/p?q= a b\xE9%20#c"},
           Case{"http://nl.example", "http://nl.example", "/"},
           Case{"http://nl.example?version=2", "http://nl.example", "/?version=2"},
           Case{"http://[::1]:80/x", "http://[::1]:80", "/x"},
           Case{"nl.example/x", "nl.example", "/x"},
           Case{"", "", "/"},
       }) {
    const WebAddress parts = WebAddressOf(row.address);
    EXPECT_EQ(parts.origin, row.origin);
    EXPECT_EQ(parts.target, row.target);
  }
}

TEST(WebAddress, ThePathEndsBeforeTheQuery) {
  EXPECT_EQ(PathOf("/a/b.php?item=x?y/z"), "/a/b.php");
  EXPECT_EQ(PathOf("/a"), "/a");
}

// The examples of a relative reference are those of RFC 3986, 5.4, as far as a redirect has them;
// what stands behind "#" is left out.
TEST(WebAddress, ARedirectLeadsWhereItsLocationSaysSeenFromItsOwnAddress) {
  const char* const from = "http://a/b/c/d;p?q";
  for (const auto& [location, address] : {
           std::pair{"g", "http://a/b/c/g"},
           {"./g", "http://a/b/c/g"},
           {"g/", "http://a/b/c/g/"},
           {"/g", "http://a/g"},
           {"//g", "http://g"},
           {"?y", "http://a/b/c/d;p?y"},
           {"g?y", "http://a/b/c/g?y"},
           {"g#s", "http://a/b/c/g"},
           {"g?y#s", "http://a/b/c/g?y"},
           {";x", "http://a/b/c/;x"},
           {"", "http://a/b/c/d;p?q"},
           {".", "http://a/b/c/"},
           {"./", "http://a/b/c/"},
           {"..", "http://a/b/"},
           {"../", "http://a/b/"},
           {"../g", "http://a/b/g"},
           {"../..", "http://a/"},
           {"../../g", "http://a/g"},
           {"../../../g", "http://a/g"},
           {"/./g", "http://a/g"},
           {"/../g", "http://a/g"},
           {"g.", "http://a/b/c/g."},
           {"..g", "http://a/b/c/..g"},
           {"./../g", "http://a/b/g"},
           {"g;x=1/../y", "http://a/b/c/y"},
           {"g?y/../x", "http://a/b/c/g?y/../x"},
           {"https://other:8080/x y?\xE9#s", "https://other:8080/x y?\xE9"},
           {"ftp://other/x", "ftp://other/x"},
           {"file:///etc/x", "file:///etc/x"},
           {"/a:b", "http://a/a:b"},
           {"?a:b", "http://a/b/c/d;p?a:b"},
       }) {
    EXPECT_EQ(RedirectedAddress(from, location), address) << location;
  }
  EXPECT_EQ(RedirectedAddress("https://a", "g"), "https://a/g");
  EXPECT_EQ(RedirectedAddress("https://a", "//b/c"), "https://b/c");
}

TEST(WebAddress, TellsHttpFromOtherSchemes) {
  for (const char* http : {"http://a", "https://a", "HTTP://a", "HttpS://a/"}) {
    EXPECT_TRUE(IsHttp(http)) << http;
  }
  for (const char* other : {"ftp://a", "file:///a", "http:a", "xhttp://a", "", "http"}) {
    EXPECT_FALSE(IsHttp(other)) << other;
  }
}

TEST(WebAddress, KnowsThisMachineByNameAndNumber) {
  for (const char* own : {"http://localhost/x", "http://LocalHost:8080", "https://a.localhost/",
                          "http://127.0.0.1:1/", "http://127.255.3.4", "http://[::1]:80/x"}) {
    EXPECT_TRUE(IsLoopback(own)) << own;
  }
  for (const char* other :
       {"http://example.org/localhost", "http://127.example.org/", "http://localhost.example.org",
        "http://[::2]/", "http://128.0.0.1/", "http://mylocalhost/", "", "http://"}) {
    EXPECT_FALSE(IsLoopback(other)) << other;
  }
}

TEST(WebAddress, ALineBreakOrANulCanNotBeSent) {
  EXPECT_EQ(SendablePart("a b\tc"), "a b\tc");
  EXPECT_EQ(SendablePart("a\r\nX: y"), "a");
  EXPECT_EQ(SendablePart("a\nb"), "a");
  EXPECT_EQ(SendablePart(std::string_view("a\0b", 3)), "a");
  EXPECT_EQ(SendablePart("\n"), "");
}

}  // namespace
}  // namespace kelvora
