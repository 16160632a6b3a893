// The only unit that includes Boost.Beast: it is slow to compile.
#include "service/http_server.h"

#include <sys/socket.h>
#include <vela/vela.h>

#include <atomic>
#include <boost/asio.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <unordered_map>
#include <vector>

#include "service/routes.h"

namespace vela::service {
namespace {

namespace beast = boost::beast;
namespace http = beast::http;
namespace net = boost::asio;
using tcp = net::ip::tcp;
using Clock = std::chrono::steady_clock;

class Server;

// One connection: wait for a request (idle timeout), read it whole (request
// timeout), answer it (the same timeout to write), and again while both
// sides keep the connection alive.
class Session : public std::enable_shared_from_this<Session> {
 public:
  Session(tcp::socket&& socket, Server& server);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  void start();
  void refuse();  // over the connection cap: 503, then close
  void closeIfIdle();
  net::any_io_executor executor() { return stream_.get_executor(); }

 private:
  void waitForRequest(std::chrono::milliseconds timeout);
  void onFirstBytes(beast::error_code ec, std::size_t bytes);
  void readRequest();
  void onRead(beast::error_code ec, std::size_t bytes);
  void answer(int status, std::string_view message);
  void send(Response&& response, bool head, bool keepAlive);
  void onWrite(bool keepAlive, beast::error_code ec, std::size_t bytes);
  void close();

  beast::tcp_stream stream_;
  beast::flat_buffer buffer_;
  std::optional<http::request_parser<http::string_body>> parser_;
  http::response<http::string_body> response_;
  Server& server_;
  bool waiting_ = false;  // for the first byte of a request
  bool counted_ = false;
};

// One per core: an I/O context run by one thread, with its own listening
// socket on the shared port (SO_REUSEPORT: the kernel spreads connections), so
// workers share no queue and no lock on the way of a request.
struct Worker {
  net::io_context ioc{1};
  tcp::acceptor acceptor{ioc};
};

class Server {
 public:
  explicit Server(const Config& config);
  int run();

  Service& service() { return service_; }
  const Config& config() const { return service_.config(); }
  bool stopping() const { return stopping_.load(); }
  // False when the server is stopping: the session must close.
  bool add(const std::shared_ptr<Session>& session);
  void remove(Session* session);

 private:
  bool listen();
  bool listenOn(Worker& worker, const tcp::endpoint& endpoint);
  void accept(Worker& worker);
  void onAccept(Worker& worker, beast::error_code ec, tcp::socket socket);
  void waitForSignals();
  void waitForHangup();
  void stop();

  Service service_;
  std::vector<std::unique_ptr<Worker>> workers_;
  net::signal_set signals_;
  net::signal_set hangup_;
  std::atomic<bool> stopping_{false};
  std::mutex sessionsMutex_;
  std::unordered_map<Session*, std::weak_ptr<Session>> sessions_;
};

// ------------------------------------------------------------------ Session

Session::Session(tcp::socket&& socket, Server& server)
    : stream_(std::move(socket)),
      buffer_(server.config().headerLimit + server.config().bodyLimit + 4096),
      server_(server) {}

Session::~Session() {
  server_.remove(this);
  if (counted_) server_.service().connectionClosed();
}

void Session::start() {
  counted_ = true;
  server_.service().connectionOpened();
  if (!server_.add(shared_from_this())) return close();
  net::dispatch(stream_.get_executor(),
                [self = shared_from_this()] { self->waitForRequest(self->server_.config().timeout); });
}

void Session::refuse() {
  net::dispatch(stream_.get_executor(), [self = shared_from_this()] {
    self->send(errorResponse(503, "too many connections"), false, false);
  });
}

void Session::closeIfIdle() {
  if (waiting_ && buffer_.size() == 0) close();
}

// The first request must start within the request timeout, a later one
// within the idle timeout.
void Session::waitForRequest(std::chrono::milliseconds timeout) {
  if (server_.stopping()) return close();
  waiting_ = true;
  stream_.expires_after(timeout);
  stream_.async_read_some(buffer_.prepare(4096),
                          beast::bind_front_handler(&Session::onFirstBytes, shared_from_this()));
}

void Session::onFirstBytes(beast::error_code ec, std::size_t bytes) {
  waiting_ = false;
  if (ec) return close();
  buffer_.commit(bytes);
  readRequest();
}

void Session::readRequest() {
  parser_.emplace();
  parser_->header_limit(static_cast<std::uint32_t>(server_.config().headerLimit));
  parser_->body_limit(server_.config().bodyLimit);
  stream_.expires_after(server_.config().timeout);
  http::async_read(stream_, buffer_, *parser_,
                   beast::bind_front_handler(&Session::onRead, shared_from_this()));
}

void Session::onRead(beast::error_code ec, std::size_t) {
  if (ec == http::error::header_limit || ec == http::error::buffer_overflow)
    return answer(431, "the request's header is too large");
  if (ec == http::error::body_limit) return answer(413, "the request's body is too large");
  if (ec == http::error::end_of_stream || ec == http::error::partial_message || ec == beast::error::timeout ||
      ec == net::error::operation_aborted || ec == net::error::connection_reset || ec == net::error::eof)
    return close();
  if (ec) return answer(400, std::string("malformed request: ") + ec.message());

  const auto started = Clock::now();
  const auto& message = parser_->get();
  const auto field = [&](http::field name) {
    const auto it = message.find(name);
    return it == message.end() ? std::string_view() : std::string_view(it->value());
  };
  const Request request{message.method_string(), message.target(), field(http::field::if_none_match),
                        field(http::field::host)};
  std::size_t route = 0;
  Response response = respond(server_.service(), request, route);
  const double elapsed = std::chrono::duration<double>(Clock::now() - started).count();
  server_.service().metrics().countRequest(route, response.status, elapsed);
  send(std::move(response), message.method() == http::verb::head, message.keep_alive());
}

// Answers a request that could not be read, and closes.
void Session::answer(int status, std::string_view message) {
  server_.service().metrics().countRequest(server_.service().metrics().unmatchedRoute(), status, 0);
  send(errorResponse(status, message), false, false);
}

void Session::send(Response&& response, bool head, bool keepAlive) {
  keepAlive = keepAlive && !server_.stopping();
  response_ = {};
  response_.version(11);
  response_.result(static_cast<unsigned>(response.status));
  static const std::string server = std::string("vela/") + vela_version();
  response_.set(http::field::server, server);
  response_.set("X-Content-Type-Options", "nosniff");
  if (!response.contentType.empty()) response_.set(http::field::content_type, response.contentType);
  for (const auto& [name, value] : response.headers) response_.set(name, value);
  response_.keep_alive(keepAlive);
  if (response.status != 304) {
    response_.content_length(response.body.size());
    if (!head) response_.body() = std::move(response.body);
  }
  stream_.expires_after(server_.config().timeout);
  http::async_write(stream_, response_,
                    beast::bind_front_handler(&Session::onWrite, shared_from_this(), keepAlive));
}

void Session::onWrite(bool keepAlive, beast::error_code ec, std::size_t) {
  if (ec || !keepAlive) return close();
  if (buffer_.size() != 0) return readRequest();  // a pipelined request already arrived
  waitForRequest(server_.config().idleTimeout);
}

void Session::close() {
  beast::error_code ignored;
  stream_.socket().shutdown(tcp::socket::shutdown_both, ignored);
  stream_.socket().close(ignored);
}

// ------------------------------------------------------------------ Server

unsigned workerCount(const Config& config) {
  return config.threads != 0 ? config.threads : std::max(1u, std::thread::hardware_concurrency());
}

Server::Server(const Config& config)
    : service_(config, routeNames()),
      workers_([&] {
        std::vector<std::unique_ptr<Worker>> workers;
        for (unsigned i = 0; i < workerCount(config); ++i) workers.push_back(std::make_unique<Worker>());
        return workers;
      }()),
      signals_(workers_[0]->ioc, SIGTERM, SIGINT),
      hangup_(workers_[0]->ioc, SIGHUP) {}

bool Server::listenOn(Worker& worker, const tcp::endpoint& endpoint) {
  beast::error_code ec;
  worker.acceptor.open(endpoint.protocol(), ec);
  if (!ec) worker.acceptor.set_option(net::socket_base::reuse_address(true), ec);
  if (!ec) {
    const int on = 1;
    if (setsockopt(worker.acceptor.native_handle(), SOL_SOCKET, SO_REUSEPORT, &on, sizeof on) != 0)
      ec.assign(errno, boost::system::system_category());
  }
  if (!ec) worker.acceptor.bind(endpoint, ec);
  if (!ec) worker.acceptor.listen(net::socket_base::max_listen_connections, ec);
  if (ec) {
    std::fprintf(stderr, "vela serve: cannot listen on %s:%u: %s\n", config().address.c_str(),
                 static_cast<unsigned>(endpoint.port()), ec.message().c_str());
    return false;
  }
  return true;
}

bool Server::listen() {
  beast::error_code ec;
  const auto address = net::ip::make_address(config().address, ec);
  if (ec) {
    std::fprintf(stderr, "vela serve: not an address: %s\n", config().address.c_str());
    return false;
  }
  // The first socket takes the port (a free one for port 0); the others join it.
  if (!listenOn(*workers_[0], tcp::endpoint(address, config().port))) return false;
  const tcp::endpoint bound = workers_[0]->acceptor.local_endpoint();
  for (std::size_t i = 1; i < workers_.size(); ++i)
    if (!listenOn(*workers_[i], bound)) return false;
  const std::string shown =
      bound.address().is_v6() ? "[" + bound.address().to_string() + "]" : bound.address().to_string();
  std::fprintf(stderr, "vela serve: listening on %s:%u\n", shown.c_str(),
               static_cast<unsigned>(bound.port()));
  return true;
}

int Server::run() {
  if (!listen()) return 1;
  waitForSignals();
  waitForHangup();
  for (auto& worker : workers_) accept(*worker);
  std::vector<std::thread> threads;
  for (std::size_t i = 1; i < workers_.size(); ++i)
    threads.emplace_back([this, i] { workers_[i]->ioc.run(); });
  workers_[0]->ioc.run();
  for (std::thread& thread : threads) thread.join();
  std::fprintf(stderr, "vela serve: stopped\n");
  return 0;
}

void Server::accept(Worker& worker) {
  worker.acceptor.async_accept(worker.ioc, [this, &worker](beast::error_code ec, tcp::socket socket) {
    onAccept(worker, ec, std::move(socket));
  });
}

void Server::onAccept(Worker& worker, beast::error_code ec, tcp::socket socket) {
  if (stopping()) return;
  if (!ec) {
    auto session = std::make_shared<Session>(std::move(socket), *this);
    if (static_cast<std::size_t>(service_.openConnections()) >= config().maxConnections) {
      session->refuse();
    } else {
      session->start();
    }
  }
  accept(worker);
}

void Server::waitForSignals() {
  signals_.async_wait([this](beast::error_code ec, int) {
    if (!ec) stop();
  });
}

void Server::waitForHangup() {
  hangup_.async_wait([this](beast::error_code ec, int) {
    if (ec) return;
    service_.reload();
    std::fprintf(stderr, "vela serve: reloaded\n");
    waitForHangup();
  });
}

bool Server::add(const std::shared_ptr<Session>& session) {
  std::lock_guard lock(sessionsMutex_);
  if (stopping()) return false;
  sessions_.emplace(session.get(), session);
  return true;
}

void Server::remove(Session* session) {
  std::lock_guard lock(sessionsMutex_);
  sessions_.erase(session);
}

// Stops accepting and closes the connections that wait for a request; the
// others close once their answer is written.
void Server::stop() {
  // The sessions are collected under the lock and told outside it: the last
  // owner of a session may be this function, and a session's destructor
  // takes the lock to remove itself.
  std::vector<std::shared_ptr<Session>> open;
  {
    std::lock_guard lock(sessionsMutex_);
    stopping_ = true;
    for (auto& [raw, weak] : sessions_)
      if (auto session = weak.lock()) open.push_back(std::move(session));
  }
  for (auto& session : open) net::post(session->executor(), [session] { session->closeIfIdle(); });
  open.clear();
  for (auto& worker : workers_)
    net::post(worker->ioc, [&acceptor = worker->acceptor] {
      beast::error_code ignored;
      acceptor.close(ignored);
    });
  hangup_.cancel();
}

}  // namespace

int serve(const Config& config) {
  Server server(config);
  return server.run();
}

}  // namespace vela::service
