#include "food_server/http_server.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <microhttpd.h>
#include <thread>
#include <unistd.h>

#include "food_server/connections.h"
#include "food_server/listening.h"
#include "food_server/log.h"
#include "food_server/work_queue.h"

namespace kelvora::server {
namespace {

using Clock = std::chrono::steady_clock;

// For the line and the head of a request together; more is answered with 414 or 431.
constexpr std::size_t kMostMemory = 32 * 1024;
constexpr std::chrono::seconds kLongestWait(5);    // in the queue
constexpr std::chrono::seconds kLongestEnding(5);  // of answers at the end
constexpr std::chrono::milliseconds kBetweenLooks(250);

// One request, from its first line until the library is done with it.
struct Exchange {
  Request request;
  RequestKind kind = RequestKind::other;
  bool begun = false;  // its head has come
  bool answered = false;
  Clock::time_point came;
  Reply reply;
};

Connections::Open* OpenOf(MHD_Connection* connection) {
  const auto* const info = MHD_get_connection_info(connection, MHD_CONNECTION_INFO_SOCKET_CONTEXT);
  return info == nullptr ? nullptr : static_cast<Connections::Open*>(info->socket_context);
}

MHD_Result Send(MHD_Connection* connection, const Reply& reply) {
  // The library copies it.
  void* const bytes = const_cast<char*>(reply.body.data());
  MHD_Response* const response =
      MHD_create_response_from_buffer(reply.body.size(), bytes, MHD_RESPMEM_MUST_COPY);
  if (response == nullptr) return MHD_NO;
  const std::string type(reply.type);
  MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, type.c_str());
  if (reply.status == 405) MHD_add_response_header(response, MHD_HTTP_HEADER_ALLOW, "GET, HEAD");
  if (reply.status == 503) MHD_add_response_header(response, MHD_HTTP_HEADER_RETRY_AFTER, "1");
  if (auto* const open = OpenOf(connection)) open->Enter(Connections::Phase::taking);
  const MHD_Result result =
      MHD_queue_response(connection, static_cast<unsigned>(reply.status), response);
  MHD_destroy_response(response);
  return result;
}

Reply TooMuch() {
  return {.status = 503, .body = "too much to do\n"};
}

void LogOfLibrary(void*, const char* format, va_list arguments) {
  char text[512];
  std::vsnprintf(text, sizeof text, format, arguments);
  std::string_view line = text;
  while (line.ends_with('\n')) line.remove_suffix(1);
  // What it says is about single connections.
  Log(LogLevel::debug, line);
}

}  // namespace

unsigned WorkersOf(const Configuration& configuration) {
  if (configuration.workers > 0) return static_cast<unsigned>(configuration.workers);
  return std::max(2U, std::thread::hardware_concurrency());
}

class HttpServer::Running {
 public:
  Running(const Configuration& configuration, Service& service, Metrics& metrics);
  ~Running();
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }

 private:
  // What the library calls.
  static void* BeginExchange(void* self, const char* target, MHD_Connection* connection);
  static MHD_Result TakePart(void* self, MHD_Connection* connection, const char* url,
                             const char* method, const char* version, const char* upload,
                             std::size_t* upload_size, void** context);
  static void EndExchange(void* self, MHD_Connection* connection, void** context,
                          MHD_RequestTerminationCode how);
  static void FollowConnection(void* self, MHD_Connection* connection, void** context,
                               MHD_ConnectionNotificationCode what);
  static MHD_Result Admit(void* self, const sockaddr* address, socklen_t size);

  MHD_Result Ask(MHD_Connection* connection, Exchange& exchange);
  void AnswerNow(MHD_Connection* connection, Exchange& exchange);
  MHD_Result SendAnswer(MHD_Connection* connection, Exchange& exchange);
  void EndWhatIsLate(const std::stop_token& stop);

  Service& service_;
  Metrics& metrics_;
  Connections connections_;
  int listener_;
  std::uint16_t port_;
  std::unique_ptr<WorkQueue> queue_;
  MHD_Daemon* daemon_ = nullptr;
  std::jthread late_;
};

HttpServer::Running::Running(const Configuration& configuration, Service& service, Metrics& metrics)
    : service_(service),
      metrics_(metrics),
      connections_({.all = configuration.connections,
                    .of_address = configuration.connections_of_address,
                    .request = std::chrono::seconds(configuration.request_seconds)}),
      listener_(Listen(configuration.address, configuration.port)),
      port_(PortOf(listener_)),
      queue_(std::make_unique<WorkQueue>(WorkersOf(configuration), configuration.queue)) {
  service.TellOf([this] {
    return Metrics::Now{.store = {},
                        .store_answers = false,
                        .connections = connections_.Count(),
                        .waiting = queue_->Waiting()};
  });
  const unsigned threads = std::max(1U, std::thread::hardware_concurrency());
  daemon_ = MHD_start_daemon(
      MHD_USE_EPOLL_INTERNALLY | MHD_ALLOW_SUSPEND_RESUME | MHD_USE_ERROR_LOG, 0, Admit, this,
      TakePart, this, MHD_OPTION_EXTERNAL_LOGGER, LogOfLibrary, nullptr,  //
      MHD_OPTION_LISTEN_SOCKET, listener_,                                //
      MHD_OPTION_THREAD_POOL_SIZE, threads,                               //
      MHD_OPTION_CONNECTION_LIMIT, static_cast<unsigned>(configuration.connections),
      MHD_OPTION_CONNECTION_MEMORY_LIMIT, kMostMemory,   //
      MHD_OPTION_URI_LOG_CALLBACK, BeginExchange, this,  //
      MHD_OPTION_NOTIFY_COMPLETED, EndExchange, this,    //
      MHD_OPTION_NOTIFY_CONNECTION, FollowConnection, this, MHD_OPTION_END);
  if (daemon_ == nullptr) {
    close(listener_);
    throw ListenFailure("the threads that serve can't be started");
  }
  late_ = std::jthread([this](const std::stop_token& stop) { EndWhatIsLate(stop); });
}

HttpServer::Running::~Running() {
  // From here on the socket is ours; a thread of the library may be just about to look at it.
  const MHD_socket listener = MHD_quiesce_daemon(daemon_);
  const auto until = Clock::now() + kLongestEnding;
  while (connections_.CountBusy() > 0 && Clock::now() < until) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  // The library can't stop while a connection waits for its answer.
  queue_.reset();
  late_ = {};
  MHD_stop_daemon(daemon_);
  if (listener != MHD_INVALID_SOCKET) close(listener);
}

void HttpServer::Running::EndWhatIsLate(const std::stop_token& stop) {
  while (!stop.stop_requested()) {
    connections_.EndLate();
    std::this_thread::sleep_for(kBetweenLooks);
  }
}

MHD_Result HttpServer::Running::Admit(void* self, const sockaddr* address, socklen_t) {
  const bool may = static_cast<Running*>(self)->connections_.MayOpen(AddressOf(address));
  return may ? MHD_YES : MHD_NO;
}

void HttpServer::Running::FollowConnection(void* self, MHD_Connection* connection, void** context,
                                           MHD_ConnectionNotificationCode what) {
  Connections& connections = static_cast<Running*>(self)->connections_;
  if (what == MHD_CONNECTION_NOTIFY_STARTED) {
    const auto* const socket =
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CONNECTION_FD);
    const auto* const address =
        MHD_get_connection_info(connection, MHD_CONNECTION_INFO_CLIENT_ADDRESS);
    *context = connections.Add(socket->connect_fd, AddressOf(address->client_addr));
  } else if (*context != nullptr) {
    connections.Close(static_cast<Connections::Open*>(*context));
    *context = nullptr;
  }
}

void* HttpServer::Running::BeginExchange(void*, const char* target, MHD_Connection* connection) {
  auto exchange = std::make_unique<Exchange>();
  exchange->request.target = target;
  exchange->kind = KindOf(exchange->request.target);
  if (const auto* const open = OpenOf(connection)) exchange->request.address = open->Address();
  return exchange.release();
}

void HttpServer::Running::EndExchange(void*, MHD_Connection* connection, void** context,
                                      MHD_RequestTerminationCode) {
  delete static_cast<Exchange*>(*context);
  *context = nullptr;
  if (auto* const open = OpenOf(connection)) open->Enter(Connections::Phase::bringing);
}

MHD_Result HttpServer::Running::TakePart(void* self, MHD_Connection* connection, const char*,
                                         const char* method, const char*, const char*,
                                         std::size_t* upload_size, void** context) {
  auto& exchange = *static_cast<Exchange*>(*context);
  auto& running = *static_cast<Running*>(self);
  if (!exchange.begun) {
    exchange.begun = true;
    exchange.came = Clock::now();
    if (std::strcmp(method, MHD_HTTP_METHOD_GET) == 0 ||
        std::strcmp(method, MHD_HTTP_METHOD_HEAD) == 0) {
      return MHD_YES;
    }
    exchange.reply = {.status = 405, .body = "GET only\n"};
    return running.SendAnswer(connection, exchange);
  }
  if (*upload_size > 0) {  // a body, which nobody reads
    *upload_size = 0;
    return MHD_YES;
  }
  return exchange.answered ? running.SendAnswer(connection, exchange)
                           : running.Ask(connection, exchange);
}

MHD_Result HttpServer::Running::Ask(MHD_Connection* connection, Exchange& exchange) {
  const bool refusable =
      exchange.kind == RequestKind::search || exchange.kind == RequestKind::submission;
  if (refusable && queue_->IsFull()) {
    exchange.reply = TooMuch();
    return SendAnswer(connection, exchange);
  }
  if (auto* const open = OpenOf(connection)) open->Enter(Connections::Phase::waiting);
  // Before the work can end: what is resumed must have been suspended.
  MHD_suspend_connection(connection);
  queue_->Add([this, connection, &exchange] { AnswerNow(connection, exchange); });
  return MHD_YES;
}

void HttpServer::Running::AnswerNow(MHD_Connection* connection, Exchange& exchange) {
  const bool late = Clock::now() - exchange.came > kLongestWait;
  exchange.reply = late ? TooMuch() : service_.Answer(exchange.request);
  exchange.answered = true;
  MHD_resume_connection(connection);
}

MHD_Result HttpServer::Running::SendAnswer(MHD_Connection* connection, Exchange& exchange) {
  metrics_.Count(exchange.kind, exchange.reply.status, Clock::now() - exchange.came);
  return Send(connection, exchange.reply);
}

HttpServer::HttpServer(const Configuration& configuration, Service& service, Metrics& metrics)
    : running_(std::make_unique<Running>(configuration, service, metrics)) {}

HttpServer::~HttpServer() = default;

std::uint16_t HttpServer::Port() const {
  return running_->Port();
}

}  // namespace kelvora::server
