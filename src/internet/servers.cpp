#include "internet/servers.h"

#include <array>

#include "core/web_address.h"
#include "storage/record_file.h"

namespace kelvora {
namespace {

constexpr std::string_view kSearchPath = "/modules/kvzoek.php";
constexpr std::string_view kSubmissionPath = "/modules/swadd.php";

struct HostKey {
  std::string_view key;
  std::string ServerHosts::*host;
};
constexpr std::array kHostKeys = {
    HostKey{"dutch", &ServerHosts::dutch},
    HostKey{"english", &ServerHosts::english},
    HostKey{"update", &ServerHosts::update},
    HostKey{"website", &ServerHosts::website},
};

void TakeLine(std::string_view line, ServerHosts& hosts) {
  line = line.substr(0, line.find('#'));
  const std::size_t equals = line.find('=');
  if (equals == line.npos) return;
  const std::string_view value = TrimmedLine(line.substr(equals + 1));
  if (!IsHttp(value)) return;
  for (const auto& [key, host] : kHostKeys) {
    if (TrimmedLine(line.substr(0, equals)) == key) hosts.*host = value;
  }
}

std::string AddressOf(const std::string& host, std::string_view path) {
  return host.empty() ? std::string() : host + std::string(path);
}

}  // namespace

ServerHosts ParseServerHosts(std::string_view text) {
  ServerHosts hosts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    TakeLine(text.substr(0, end), hosts);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return hosts;
}

ServerHosts ReadServerHosts(const Paths& paths) {
  const std::string path = paths.ProgramPath + "servers.conf";
  return FileExists(path) ? ParseServerHosts(ReadFile(path)) : ServerHosts();
}

void Zet_Server_Adressen(Program& program) {
  program.Guard("#FF8-3", [&] {
    Text& choice = program.settings[Setting::opt_server];
    if (choice.empty()) choice = "0";
    const ServerHosts hosts = ReadServerHosts(program.paths);
    if (choice != "0" && choice != "1") return;
    const std::string& host = choice == "0" ? hosts.dutch : hosts.english;
    program.servers = {AddressOf(host, kSearchPath), AddressOf(host, kSubmissionPath)};
  });
}

}  // namespace kelvora
