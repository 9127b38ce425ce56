#include "platform/qt/curl_transfers.h"

#include <algorithm>
#include <ifaddrs.h>
#include <limits>
#include <net/if.h>
#include <stdexcept>

#include "platform/qt/curl_transfer.h"

namespace kelvora {

CurlTransfers::CurlTransfers(const TransferLimits& limits) : limits_(limits) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, [this] { Act(CURL_SOCKET_TIMEOUT, 0); });
}

CurlTransfers::~CurlTransfers() {
  if (multi_ == nullptr) return;
  curl_multi_cleanup(multi_);
  curl_global_cleanup();
}

std::unique_ptr<Transfer> CurlTransfers::Get(const std::string& address, OnState on_state) {
  if (multi_ == nullptr) {
    if (curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK) throw std::runtime_error("libcurl");
    multi_ = curl_multi_init();
    if (multi_ == nullptr) throw std::bad_alloc();
    curl_multi_setopt(multi_, CURLMOPT_SOCKETFUNCTION, &CurlTransfers::WatchSocket);
    curl_multi_setopt(multi_, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi_, CURLMOPT_TIMERFUNCTION, &CurlTransfers::SetTimer);
    curl_multi_setopt(multi_, CURLMOPT_TIMERDATA, this);
  }
  return std::make_unique<CurlTransfer>(*this, address, std::move(on_state));
}

bool CurlTransfers::NetworkIsUp() const {
  ifaddrs* all = nullptr;
  if (getifaddrs(&all) != 0) return true;  // unknown: the request will tell
  bool up = false;
  for (const ifaddrs* one = all; one != nullptr; one = one->ifa_next) {
    const bool has_address = one->ifa_addr != nullptr && (one->ifa_addr->sa_family == AF_INET ||
                                                          one->ifa_addr->sa_family == AF_INET6);
    up = up || (has_address && (one->ifa_flags & IFF_UP) != 0 &&
                (one->ifa_flags & IFF_RUNNING) != 0 && (one->ifa_flags & IFF_LOOPBACK) == 0);
  }
  freeifaddrs(all);
  return up;
}

void CurlTransfers::Begin(CURL* easy) {
  curl_multi_add_handle(multi_, easy);
}

void CurlTransfers::Remove(CURL* easy) {
  curl_multi_remove_handle(multi_, easy);
}

int CurlTransfers::WatchSocket(CURL*, curl_socket_t socket, int what, void* self, void*) {
  auto& all = *static_cast<CurlTransfers*>(self);
  if (what == CURL_POLL_REMOVE) {
    const auto found = all.watches_.find(socket);
    if (found == all.watches_.end()) return 0;
    found->second->reading.setEnabled(false);
    found->second->writing.setEnabled(false);
    all.done_.push_back(std::move(found->second));
    all.watches_.erase(found);
    QMetaObject::invokeMethod(
        &all, [&all] { all.done_.clear(); }, Qt::QueuedConnection);
    return 0;
  }
  Watch& watch = all.WatchOf(socket);
  watch.reading.setEnabled((what & CURL_POLL_IN) != 0);
  watch.writing.setEnabled((what & CURL_POLL_OUT) != 0);
  return 0;
}

CurlTransfers::Watch& CurlTransfers::WatchOf(curl_socket_t socket) {
  std::unique_ptr<Watch>& watch = watches_[socket];
  if (watch == nullptr) {
    watch = std::make_unique<Watch>(socket);
    connect(&watch->reading, &QSocketNotifier::activated, this,
            [this, socket] { Act(socket, CURL_CSELECT_IN); });
    connect(&watch->writing, &QSocketNotifier::activated, this,
            [this, socket] { Act(socket, CURL_CSELECT_OUT); });
  }
  return *watch;
}

int CurlTransfers::SetTimer(CURLM*, long milliseconds, void* self) {
  QTimer& timer = static_cast<CurlTransfers*>(self)->timer_;
  if (milliseconds < 0) {
    timer.stop();
  } else {
    timer.start(
        std::chrono::milliseconds(std::min<long>(milliseconds, std::numeric_limits<int>::max())));
  }
  return 0;
}

void CurlTransfers::Act(curl_socket_t socket, int events) {
  int running = 0;
  curl_multi_socket_action(multi_, socket, events, &running);
  TellEnded();
}

void CurlTransfers::TellEnded() {
  int left = 0;
  while (const CURLMsg* const message = curl_multi_info_read(multi_, &left)) {
    if (message->msg != CURLMSG_DONE) continue;
    CURL* const easy = message->easy_handle;
    const CURLcode result = message->data.result;
    CurlTransfer* transfer = nullptr;
    curl_easy_getinfo(easy, CURLINFO_PRIVATE, &transfer);
    Remove(easy);
    transfer->TakeEnd(result);
  }
}

}  // namespace kelvora
