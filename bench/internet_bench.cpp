// A search on the internet whose reply holds 10,000 foods: from the moment when its last byte is
// sent until the list has its rows, through the real transfers and a real socket of the loopback.
// The limit is one copy of the bytes of the reply.
#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QApplication>
#include <QLineEdit>
#include <QToolButton>

#include "food/food_lists_window.h"
#include "food_data.h"
#include "platform/qt/curl_transfers.h"
#include "report.h"

namespace kelvora::bench {
namespace {

constexpr std::size_t kFoods = 10'000;
constexpr double kMostMicroseconds = 100'000;

std::string ReplyOf(std::size_t foods) {
  std::string body;
  for (const Text& line : SomeFoodLines(foods)) body += line + '\xBC';
  return "HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
}

// Takes one connection at a time, in steps between the events of the program.
class Server {
 public:
  Server() : listening_(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    bind(listening_, reinterpret_cast<sockaddr*>(&address), size);
    listen(listening_, 1);
    getsockname(listening_, reinterpret_cast<sockaddr*>(&address), &size);
    port_ = ntohs(address.sin_port);
  }
  ~Server() { close(listening_); }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  [[nodiscard]] std::string Address() const {
    return "http://127.0.0.1:" + std::to_string(port_) + "/modules/kvzoek.php";
  }
  // Sends all of the reply but its last byte, which SendLast sends.
  void SendMost(std::string_view reply) {
    while ((connection_ = accept(listening_, nullptr, nullptr)) < 0) QApplication::processEvents();
    std::array<char, 4096> request;
    while (recv(connection_, request.data(), request.size(), MSG_DONTWAIT) <= 0) {
      QApplication::processEvents();
    }
    last_ = reply.back();
    for (reply.remove_suffix(1); !reply.empty();) {
      const ssize_t sent = send(connection_, reply.data(), reply.size(), MSG_DONTWAIT);
      if (sent > 0) reply.remove_prefix(static_cast<std::size_t>(sent));
      QApplication::processEvents();
    }
    // What is on its way comes in.
    for (int i = 0; i < 100; ++i) QApplication::processEvents();
  }
  void SendLast() const { (void)send(connection_, &last_, 1, 0); }
  void Close() const { close(connection_); }

 private:
  int listening_;
  int port_ = 0;
  int connection_ = -1;
  char last_ = 0;
};

void Search(benchmark::State& state) {
  const std::string reply = ReplyOf(kFoods);
  Server server;
  CurlTransfers transfers;
  TestProgram test;
  test.transfers.real = &transfers;
  test.program.servers.search = server.Address();
  FoodListsWindow window(test.program, nullptr);
  window.resize(410, 600);
  window.show();
  window.findChild<QToolButton*>(QStringLiteral("Toolbar_4"))->click();
  auto* const box = window.findChild<QLineEdit*>(QStringLiteral("txt_internet"));
  auto* const list = window.findChild<FoodTable*>(QStringLiteral("LV_browse_internet"));
  for (auto _ : state) {
    state.PauseTiming();
    box->setText(QStringLiteral("food"));
    emit box->returnPressed();
    server.SendMost(reply);
    state.ResumeTiming();
    server.SendLast();
    while (list->Model().rowCount() == 0) QApplication::processEvents();
    QApplication::processEvents();
    state.PauseTiming();
    server.Close();
    state.ResumeTiming();
  }
  const bool complete = list->Model().rowCount() == static_cast<int>(kFoods);
  if (!complete || !test.boxes.shown.empty()) state.SkipWithError("foods are missing");
}

void CopyReply(benchmark::State& state) {
  const std::string reply = ReplyOf(kFoods);
  std::string copy(reply.size(), ' ');
  for (auto _ : state) {
    std::copy(reply.begin(), reply.end(), copy.begin());
    benchmark::DoNotOptimize(copy.data());
  }
}

}  // namespace

void AddInternetBenchmarks(Report& report) {
  report.AddPair("Zoek_Op_Internet/" + std::to_string(kFoods), UnderMicroseconds(kMostMicroseconds),
                 Plan::few, Search, CopyReply);
}

}  // namespace kelvora::bench
