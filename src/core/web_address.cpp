#include "core/web_address.h"

#include <algorithm>

#include "core/text.h"

namespace kelvora {
namespace {

constexpr std::string_view kAfterScheme = "://";

// Where the host ends, and the target begins.
std::size_t EndOfHost(std::string_view address) {
  const std::size_t scheme = address.find(kAfterScheme);
  const std::size_t host = scheme == address.npos ? 0 : scheme + kAfterScheme.size();
  return std::min(address.find_first_of("/?#", host), address.size());
}

// The host of an origin alone, in lower case: without the scheme, the brackets and the port.
std::string HostOf(std::string_view origin) {
  const std::size_t scheme = origin.find(kAfterScheme);
  if (scheme != origin.npos) origin.remove_prefix(scheme + kAfterScheme.size());
  if (origin.starts_with('[')) {
    origin = origin.substr(1, origin.find(']') - 1);
  } else {
    origin = origin.substr(0, origin.find(':'));
  }
  return LowerCase(origin);
}

// True if a text begins with the name of a scheme, and so is a whole address.
bool HasScheme(std::string_view text) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::size_t end = text.find(':');
  if (end == text.npos || end == 0 || kLetters.find(text[0]) == kLetters.npos) return false;
  return text.substr(0, end).find_first_of("/?") == text.npos;
}

// A path without its "." and ".." parts; one that would lead above the root ends there.
std::string WithoutDots(std::string_view path) {
  std::string whole;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('/', 1), path.size());
    const std::string_view part = path.substr(0, end);
    path.remove_prefix(end);
    if (part == "/.." && !whole.empty()) whole.erase(whole.rfind('/'));
    const bool dots = part == "/." || part == "/..";
    if (!dots) whole += part;
    if (dots && path.empty()) whole += '/';
  }
  return whole;
}

bool IsNumber(std::string_view host) {
  return host.find_first_not_of("0123456789.") == host.npos;
}

}  // namespace

WebAddress WebAddressOf(std::string_view address) {
  const std::size_t end = EndOfHost(address);
  std::string target(address.substr(end));
  if (!target.starts_with('/')) target.insert(0, 1, '/');
  return {std::string(address.substr(0, end)), std::move(target)};
}

std::string_view PathOf(std::string_view target) {
  return target.substr(0, target.find('?'));
}

bool IsHttp(std::string_view address) {
  return BeginsWithoutCase(address, "http://") || BeginsWithoutCase(address, "https://");
}

std::string RedirectedAddress(std::string_view from, std::string_view location) {
  location = location.substr(0, location.find('#'));
  if (HasScheme(location)) return std::string(location);
  const auto [origin, target] = WebAddressOf(from);
  if (location.starts_with("//")) {
    return origin.substr(0, origin.find(':') + 1) + std::string(location);
  }
  const std::string path(PathOf(target));
  if (location.empty()) return origin + target;
  if (location.starts_with('?')) return origin + path + std::string(location);
  const std::string_view query = location.substr(PathOf(location).size());
  const std::string folder = location.starts_with('/') ? "" : path.substr(0, path.rfind('/') + 1);
  return origin + WithoutDots(folder + std::string(PathOf(location))) + std::string(query);
}

bool IsLoopback(std::string_view address) {
  const std::string host = HostOf(address.substr(0, EndOfHost(address)));
  if (host == "localhost" || host.ends_with(".localhost") || host == "::1") return true;
  return host.starts_with("127.") && IsNumber(host);
}

bool BeginsWithoutCase(std::string_view text, std::string_view lower_case) {
  return text.size() >= lower_case.size() &&
         LowerCase(text.substr(0, lower_case.size())) == lower_case;
}

std::string_view TrimmedLine(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r\n";
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return line.substr(0, line.find_last_not_of(kBlanks) + 1);
}

std::string_view SendablePart(std::string_view text) {
  constexpr std::string_view kNotSent("\r\n\0", 3);
  return text.substr(0, text.find_first_of(kNotSent));
}

}  // namespace kelvora
