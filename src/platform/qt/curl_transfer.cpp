#include "platform/qt/curl_transfer.h"

#include <algorithm>
#include <stdexcept>

#include <QPointer>

#include "core/common.h"
#include "core/web_address.h"

namespace kelvora {
namespace {

constexpr std::string_view kLocation = "location:";
// A chunk grows to about this size before the next one is begun.
constexpr std::size_t kChunkSize = 1 << 20;

bool IsRedirect(std::string_view status_line) {
  const std::string_view code =
      status_line.substr(std::min(status_line.find(' ') + 1, status_line.size())).substr(0, 3);
  return code == "301" || code == "302" || code == "303" || code == "307" || code == "308";
}

}  // namespace

CurlTransfer::CurlTransfer(CurlTransfers& all, const std::string& address,
                           Transfers::OnState on_state)
    : all_(all), on_state_(std::move(on_state)), easy_(curl_easy_init()) {
  if (easy_ == nullptr) throw std::bad_alloc();
  silence_.setSingleShot(true);
  silence_.setInterval(all.limits_.silence);
  connect(&silence_, &QTimer::timeout, this, [this] {
    Stop();
    Fail(CURLE_OPERATION_TIMEDOUT);
  });
  SetUp();
  Send(address);
}

CurlTransfer::~CurlTransfer() {
  Stop();
  curl_easy_cleanup(easy_);
}

void CurlTransfer::SetUp() {
  curl_easy_setopt(easy_, CURLOPT_PRIVATE, this);
  curl_easy_setopt(easy_, CURLOPT_ERRORBUFFER, error_.data());
  curl_easy_setopt(easy_, CURLOPT_USERAGENT, (Text(AppTitle) + "/" + Text(VersionText)).c_str());
  curl_easy_setopt(easy_, CURLOPT_PROTOCOLS_STR, "http,https");
  curl_easy_setopt(easy_, CURLOPT_DISALLOW_USERNAME_IN_URL, 1L);
  curl_easy_setopt(easy_, CURLOPT_SSL_VERIFYPEER, 1L);
  curl_easy_setopt(easy_, CURLOPT_SSL_VERIFYHOST, 2L);
  // Later versions escape what stands in the target.
  curl_easy_setopt(easy_, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
  // No request stands for long: what it opened is closed with it.
  curl_easy_setopt(easy_, CURLOPT_FORBID_REUSE, 1L);
  curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
  // Otherwise a transfer that is given up would wait for a name server that does not answer.
  curl_easy_setopt(easy_, CURLOPT_QUICK_EXIT, 1L);
  // A proxy must hand the target on untouched.
  curl_easy_setopt(easy_, CURLOPT_HTTPPROXYTUNNEL, 1L);
  curl_easy_setopt(easy_, CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
  curl_easy_setopt(easy_, CURLOPT_CONNECTTIMEOUT_MS,
                   static_cast<long>(all_.limits_.connect.count()));
  curl_easy_setopt(easy_, CURLOPT_PREREQFUNCTION, &CurlTransfer::AfterConnecting);
  curl_easy_setopt(easy_, CURLOPT_PREREQDATA, this);
  curl_easy_setopt(easy_, CURLOPT_HEADERFUNCTION, &CurlTransfer::TakeHeader);
  curl_easy_setopt(easy_, CURLOPT_HEADERDATA, this);
  curl_easy_setopt(easy_, CURLOPT_WRITEFUNCTION, &CurlTransfer::TakeBody);
  curl_easy_setopt(easy_, CURLOPT_WRITEDATA, this);
}

void CurlTransfer::Send(const std::string& address) {
  address_ = address;
  received_ = 0;
  chunks_.clear();
  location_.clear();
  redirect_status_ = false;
  const WebAddress parts = WebAddressOf(address);
  curl_easy_setopt(easy_, CURLOPT_URL, (parts.origin + "/").c_str());
  curl_easy_setopt(easy_, CURLOPT_REQUEST_TARGET, parts.target.c_str());
  // No proxy is asked for this machine, whatever the environment says.
  curl_easy_setopt(easy_, CURLOPT_PROXY, IsLoopback(address) ? "" : nullptr);
  under_way_ = true;
  all_.Begin(easy_);
}

void CurlTransfer::Stop() {
  silence_.stop();
  if (under_way_) all_.Remove(easy_);
  under_way_ = false;
}

void CurlTransfer::TakeEnd(CURLcode result) {
  silence_.stop();
  under_way_ = false;
  if (too_long_) return Fail(CURLE_FILESIZE_EXCEEDED);
  if (redirect_status_ && !location_.empty()) return Follow();
  if (result == CURLE_OK) return End(TransferState::completed);
  if (error_[0] == '\0') return Fail(result);
  response_text_ = error_.data();
  End(TransferState::error);
}

void CurlTransfer::Follow() {
  if (redirects_ == all_.limits_.redirects) return Fail(CURLE_TOO_MANY_REDIRECTS);
  const std::string address = RedirectedAddress(address_, location_);
  if (!IsHttp(address)) return Fail(CURLE_UNSUPPORTED_PROTOCOL);
  ++redirects_;
  Send(address);
}

void CurlTransfer::Fail(CURLcode rule) {
  response_text_ = curl_easy_strerror(rule);
  End(TransferState::error);
}

void CurlTransfer::End(TransferState state) {
  if (state == TransferState::error) chunks_.clear();
  const QPointer<CurlTransfer> self(this);
  QMetaObject::invokeMethod(
      &all_,
      [self, state] {
        if (self == nullptr) return;
        // The call may let this transfer go.
        const Transfers::OnState on_state = std::move(self->on_state_);
        on_state(state);
      },
      Qt::QueuedConnection);
}

std::string CurlTransfer::GetChunk() {
  if (chunks_.empty()) return {};
  std::string chunk = std::move(chunks_.front());
  chunks_.pop_front();
  return chunk;
}

int CurlTransfer::AfterConnecting(void* self, char*, char*, int, int) {
  static_cast<CurlTransfer*>(self)->silence_.start();
  return CURL_PREREQFUNC_OK;
}

bool CurlTransfer::Count(std::size_t bytes) {
  silence_.start();
  received_ += bytes;
  too_long_ = received_ > all_.limits_.bytes;
  return !too_long_;
}

// A callback that takes less than it is given ends the transfer; no exception may leave it.
std::size_t CurlTransfer::TakeHeader(char* data, std::size_t size, std::size_t count, void* self) {
  auto& transfer = *static_cast<CurlTransfer*>(self);
  try {
    if (!transfer.Count(size * count)) return 0;
    transfer.TakeHeaderLine({data, size * count});
    return size * count;
  } catch (const std::bad_alloc&) {
    return 0;
  }
}

void CurlTransfer::TakeHeaderLine(std::string_view line) {
  if (line.starts_with("HTTP/")) {
    redirect_status_ = IsRedirect(line);
    location_.clear();
  } else if (location_.empty() && BeginsWithoutCase(line, kLocation)) {
    location_ = TrimmedLine(line.substr(kLocation.size()));
  } else if (TrimmedLine(line).empty()) {
    received_ = 0;  // the reply itself begins behind the headers
  }
}

std::size_t CurlTransfer::TakeBody(char* data, std::size_t size, std::size_t count, void* self) {
  auto& transfer = *static_cast<CurlTransfer*>(self);
  // What a redirect says besides its place is of no concern.
  if (transfer.redirect_status_ && !transfer.location_.empty()) return 0;
  try {
    if (!transfer.Count(size * count)) return 0;
    auto& chunks = transfer.chunks_;
    if (chunks.empty() || chunks.back().size() + size * count > kChunkSize) chunks.emplace_back();
    chunks.back().append(data, size * count);
    return size * count;
  } catch (const std::bad_alloc&) {
    return 0;
  }
}

}  // namespace kelvora
