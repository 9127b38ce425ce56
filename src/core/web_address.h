// The parts of a web address that a request needs. What stands behind the host is left as it is.
#pragma once

#include <string>
#include <string_view>

namespace kelvora {

struct WebAddress {
  std::string origin;  // the scheme and the host with its port: "http://host:port"
  std::string target;  // all behind it, with a "/" in front: "/path?query"
};
[[nodiscard]] WebAddress WebAddressOf(std::string_view address);

// The path of a target, without its query.
[[nodiscard]] std::string_view PathOf(std::string_view target);

// True if the address is of http or https.
[[nodiscard]] bool IsHttp(std::string_view address);

// Where a redirect leads that was sent from an address: `location` in full, as it stands otherwise,
// without what stands behind "#". May be an address of another kind.
[[nodiscard]] std::string RedirectedAddress(std::string_view from, std::string_view location);

// True if the host of the address is this machine by its own name or number.
[[nodiscard]] bool IsLoopback(std::string_view address);

// True if a text begins with another one, which is in lower case, capitals in the first or not.
[[nodiscard]] bool BeginsWithoutCase(std::string_view text, std::string_view lower_case);

// `line` without the blanks, tabs and line ends around it.
[[nodiscard]] std::string_view TrimmedLine(std::string_view line);

// `text` up to the first character that can't stand in a request: a line break or a NUL.
[[nodiscard]] std::string_view SendablePart(std::string_view text);

}  // namespace kelvora
