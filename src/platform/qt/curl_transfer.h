// One GET of CurlTransfers. It follows redirects by itself, since libcurl would send the same
// target to each new place.
#pragma once

#include <array>
#include <curl/curl.h>
#include <deque>
#include <string>
#include <string_view>

#include <QObject>
#include <QTimer>

#include "platform/qt/curl_transfers.h"

namespace kelvora {

class CurlTransfer : public QObject, public Transfer {
 public:
  CurlTransfer(CurlTransfers& all, const std::string& address, Transfers::OnState on_state);
  ~CurlTransfer() override;
  CurlTransfer(const CurlTransfer&) = delete;
  CurlTransfer& operator=(const CurlTransfer&) = delete;

  std::string GetChunk() override;
  std::string ResponseText() const override { return response_text_; }

  // libcurl is done with the request, which is out of its hands by now.
  void TakeEnd(CURLcode result);

 private:
  void SetUp();
  void Send(const std::string& address);
  // Goes on at the place that the reply names.
  void Follow();
  // Let the event loop tell the state. What breaks a rule of ours is told in the words that libcurl
  // has for the like.
  void End(TransferState state);
  void Fail(CURLcode rule);
  void Stop();

  static std::size_t TakeHeader(char* data, std::size_t size, std::size_t count, void* self);
  static std::size_t TakeBody(char* data, std::size_t size, std::size_t count, void* self);
  static int AfterConnecting(void* self, char*, char*, int, int);
  void TakeHeaderLine(std::string_view line);
  // Counts what came from the server; false if it is too much.
  bool Count(std::size_t bytes);

  CurlTransfers& all_;
  Transfers::OnState on_state_;
  CURL* easy_;
  bool under_way_ = false;
  QTimer silence_;
  std::array<char, CURL_ERROR_SIZE> error_{};
  std::string response_text_;
  std::string address_;
  std::deque<std::string> chunks_;
  std::size_t received_ = 0;
  bool too_long_ = false;
  int redirects_ = 0;
  bool redirect_status_ = false;  // the reply is of a kind that names another place
  std::string location_;
};

}  // namespace kelvora
