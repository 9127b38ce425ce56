// The real transfers: libcurl, driven by the event loop. Sockets wake it through notifiers and
// delays through one timer, so nothing waits and nothing asks again and again; libcurl is not
// touched before the first request.
#pragma once

#include <chrono>
#include <curl/curl.h>
#include <map>
#include <memory>
#include <vector>

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include "platform/transfer.h"

namespace kelvora {

// What ends a transfer as one whose connection fails.
struct TransferLimits {
  std::chrono::milliseconds connect = std::chrono::seconds(30);  // until the request can be sent
  std::chrono::milliseconds silence = std::chrono::seconds(60);  // without a byte from the server
  std::size_t bytes = std::size_t{64} << 20;                     // of a reply
  int redirects = 5;
};

class CurlTransfer;

class CurlTransfers : public QObject, public Transfers {
 public:
  explicit CurlTransfers(const TransferLimits& limits = {});
  ~CurlTransfers() override;
  CurlTransfers(const CurlTransfers&) = delete;
  CurlTransfers& operator=(const CurlTransfers&) = delete;

  std::unique_ptr<Transfer> Get(const std::string& address, OnState on_state) override;
  bool NetworkIsUp() const override;

 private:
  friend class CurlTransfer;

  struct Watch {
    explicit Watch(curl_socket_t socket)
        : reading(socket, QSocketNotifier::Read), writing(socket, QSocketNotifier::Write) {}
    QSocketNotifier reading;
    QSocketNotifier writing;
  };

  void Begin(CURL* easy);
  void Remove(CURL* easy);

  static int WatchSocket(CURL*, curl_socket_t socket, int what, void* self, void*);
  static int SetTimer(CURLM*, long milliseconds, void* self);
  Watch& WatchOf(curl_socket_t socket);
  void Act(curl_socket_t socket, int events);
  void TellEnded();

  const TransferLimits limits_;
  CURLM* multi_ = nullptr;
  QTimer timer_;
  std::map<curl_socket_t, std::unique_ptr<Watch>> watches_;
  std::vector<std::unique_ptr<Watch>> done_;  // one of them may just be telling
};

}  // namespace kelvora
