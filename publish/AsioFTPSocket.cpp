#include "publish/AsioFTPSocket.h"

#include "env/RuntimeFailure.h"
#include "publish/HostLookup.h"
#include "publish/SlicedWait.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

#include <asio/buffer.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>
#include <netinet/tcp.h>
#include <poll.h>

namespace vantorium::publish {

using asio::ip::tcp;
using Milliseconds = std::chrono::milliseconds;

/// The non-blocking sockets and the code that waits for them.
class AsioFTPSocket::Connection {
 public:
  explicit Connection(env::EventLoop& loop) : loop_(loop) {}

  /// Marks a call as blocking while it exists.
  class BlockingCall {
   public:
    explicit BlockingCall(Connection& connection) : connection_(connection) {
      connection_.isBlocking = true;
      connection_.isAbandoned = false;
    }
    ~BlockingCall() { connection_.isBlocking = false; }
    BlockingCall(const BlockingCall&) = delete;
    BlockingCall& operator=(const BlockingCall&) = delete;

   private:
    Connection& connection_;
  };

  [[nodiscard]] SlicedWait NewWait() const { return {loop_, settings.timeLimit, isAbandoned}; }

  template <typename Socket>
  [[nodiscard]] bool IsReadyWithin(Socket& socket, asio::socket_base::wait_type what, Milliseconds time);
  [[nodiscard]] bool ConnectTo(const std::string& address, SlicedWait& wait);
  /// Tries once to accept a connection. Returns true if one from the right address was taken over, and on failure.
  [[nodiscard]] bool TakeConnection(asio::error_code& error);
  [[nodiscard]] std::size_t Send(std::span<const char> bytes);
  void Close();

  FTPSocketSettings settings;
  asio::io_context context;
  tcp::acceptor listener{context};
  tcp::socket stream{context};
  bool isConnected = false;
  bool isBlocking = false;
  bool isAbandoned = false;  ///< the blocking call in progress must fail

 private:
  void BeginStream();

  env::EventLoop& loop_;
};

namespace {

/// Large enough to keep a fast connection busy, small enough to be sent well before the wait for the closing reply
/// ends.
constexpr int kSendBuffer = 256 * 1024;

/// Makes the system join several of the small blocks into full packets. The rest is sent on close, or in a pause after
/// 200 milliseconds.
void JoinSmallWrites(int socket) {
  const int on = 1;
  ::setsockopt(socket, IPPROTO_TCP, TCP_CORK, &on, sizeof on);
}

bool WouldBlock(const asio::error_code& error) {
  return error == asio::error::would_block || error == asio::error::try_again;
}

}  // namespace

template <typename Socket>
bool AsioFTPSocket::Connection::IsReadyWithin(Socket& socket, asio::socket_base::wait_type what, Milliseconds time) {
  bool isReady = false;
  socket.async_wait(what, [&](const asio::error_code& error) { isReady = error != asio::error::operation_aborted; });
  context.restart();
  context.run_for(time);
  if (isReady) return true;
  // No operation may stay pending: a turn of the event loop follows, and it may close the socket.
  asio::error_code ignored;
  socket.cancel(ignored);
  context.restart();
  context.run();
  return isReady;
}

void AsioFTPSocket::Connection::BeginStream() {
  asio::error_code ignored;
  stream.non_blocking(true, ignored);
  isConnected = true;
}

bool AsioFTPSocket::Connection::ConnectTo(const std::string& address, SlicedWait& wait) {
  asio::error_code error;
  const tcp::endpoint peer(asio::ip::make_address_v4(address, error), settings.port);
  if (!error) stream.open(tcp::v4(), error);
  if (error) return false;
  const auto outcome = std::make_shared<std::optional<asio::error_code>>();
  stream.async_connect(peer, [outcome](const asio::error_code& result) { *outcome = result; });
  const bool isOver = wait.Until([&](Milliseconds slice) {
    context.restart();
    context.run_for(slice);
    return outcome->has_value();
  });
  if (isOver && !outcome->value()) {
    BeginStream();
    stream.set_option(tcp::no_delay(true), error);
    return true;
  }
  stream.close(error);
  context.restart();
  context.poll();
  return false;
}

bool AsioFTPSocket::Connection::TakeConnection(asio::error_code& error) {
  tcp::endpoint peer;
  tcp::socket candidate(context);
  listener.accept(candidate, peer, error);
  if (WouldBlock(error)) return false;
  if (error) return true;
  if (!settings.acceptFrom.empty() && peer.address().to_string() != settings.acceptFrom) return false;
  stream = std::move(candidate);
  BeginStream();
  asio::error_code ignored;
  stream.set_option(asio::socket_base::send_buffer_size(kSendBuffer), ignored);
  JoinSmallWrites(stream.native_handle());
  listener.close(ignored);
  return true;
}

std::size_t AsioFTPSocket::Connection::Send(std::span<const char> bytes) {
  const BlockingCall call(*this);
  SlicedWait wait = NewWait();
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    asio::error_code error;
    sent += stream.write_some(asio::buffer(bytes.data() + sent, bytes.size() - sent), error);
    if (!error) continue;
    if (!WouldBlock(error)) break;
    const auto isReady = [&](Milliseconds slice) { return IsReadyWithin(stream, tcp::socket::wait_write, slice); };
    // The turn after the wait lets a cancel abort a call on a connection that is slow but never stalls.
    if (!wait.Until(isReady) || !wait.Turn()) break;
  }
  return sent;
}

void AsioFTPSocket::Connection::Close() {
  asio::error_code ignored;
  stream.close(ignored);
  listener.close(ignored);
  isConnected = false;
  isAbandoned = true;
}

AsioFTPSocket::AsioFTPSocket(env::EventLoop& loop) : connection_(std::make_unique<Connection>(loop)) {}

AsioFTPSocket::~AsioFTPSocket() {
  connection_->Close();
}

bool AsioFTPSocket::IsConnected() const {
  return connection_->isConnected;
}

void AsioFTPSocket::Close() {
  connection_->Close();
}

void AsioFTPSocket::Reset() {
  asio::error_code ignored;
  connection_->stream.set_option(asio::socket_base::linger(true, 0), ignored);
  connection_->Close();
}

void AsioFTPSocket::Configure(const FTPSocketSettings& settings) {
  connection_->settings = settings;
}

int AsioFTPSocket::Connect() {
  constexpr int kFailure = -1;
  connection_->Close();
  const Connection::BlockingCall call(*connection_);
  SlicedWait wait = connection_->NewWait();
  auto lookup = LookUpHost(connection_->settings.host);
  if (!wait.Until([&](Milliseconds slice) { return lookup.wait_for(slice) == std::future_status::ready; })) {
    return kFailure;
  }
  const auto addresses = lookup.get();
  const auto connects = [&](const std::string& address) {
    return !connection_->isAbandoned && connection_->ConnectTo(address, wait);
  };
  return std::ranges::any_of(addresses, connects) ? 0 : kFailure;
}

int AsioFTPSocket::Listen() {
  connection_->Close();
  asio::error_code error;
  auto& listener = connection_->listener;
  const auto& settings = connection_->settings;
  const tcp::endpoint here(asio::ip::make_address_v4(settings.listenAddress, error), settings.listenPort);
  if (!error) listener.open(tcp::v4(), error);
  if (!error) listener.non_blocking(true, error);
  if (!error) listener.bind(here, error);
  if (!error) listener.listen(asio::socket_base::max_listen_connections, error);
  return error.value();
}

std::string AsioFTPSocket::LocalAddress() const {
  asio::error_code error;
  const auto endpoint = connection_->stream.local_endpoint(error);
  return error ? std::string() : endpoint.address().to_string();
}

std::string AsioFTPSocket::PeerAddress() const {
  asio::error_code error;
  const auto endpoint = connection_->stream.remote_endpoint(error);
  return error ? std::string() : endpoint.address().to_string();
}

std::string AsioFTPSocket::PortArgument() const {
  asio::error_code error;
  const unsigned port = connection_->listener.local_endpoint(error).port();
  std::string argument = connection_->settings.portAddress;
  std::ranges::replace(argument, '.', ',');
  return argument + "," + std::to_string(port / 256) + "," + std::to_string(port % 256);
}

void AsioFTPSocket::Accept(const FTPSocket& control) {
  const Connection::BlockingCall call(*connection_);
  asio::error_code error;
  bool isHopeless = false;
  const auto isOver = [&](Milliseconds slice) {
    isHopeless = control.HasNews();  // first: a connection that came before the news is still accepted
    if (connection_->TakeConnection(error) || isHopeless) return true;
    // After a wake-up, Until calls this again at once, with one cheap turn in between.
    std::ignore = connection_->IsReadyWithin(connection_->listener, tcp::acceptor::wait_read, slice);
    return false;
  };
  if (!connection_->NewWait().Until(isOver) || !connection_->isConnected) {
    throw env::RuntimeFailure(env::FailureKind::FileAccess, "The server has not opened the data connection");
  }
}

std::string AsioFTPSocket::Read(std::size_t most) {
  const Connection::BlockingCall call(*connection_);
  std::string text(most, '\0');
  asio::error_code error;
  const auto isOver = [&] {
    text.resize(most);
    text.resize(connection_->stream.read_some(asio::buffer(text), error));
    return !WouldBlock(error);
  };
  if (isOver()) return text;
  const bool isDone = connection_->NewWait().Until([&](Milliseconds slice) {
    return connection_->IsReadyWithin(connection_->stream, tcp::socket::wait_read, slice) && isOver();
  });
  return isDone ? text : std::string();
}

bool AsioFTPSocket::HasNews() const {
  pollfd stream = {connection_->stream.native_handle(), POLLIN, 0};
  return !connection_->isConnected || ::poll(&stream, 1, 0) > 0;
}

std::ptrdiff_t AsioFTPSocket::Write(std::string_view text) {
  return connection_->Send(text) == text.size() ? static_cast<std::ptrdiff_t>(text.size()) : -1;
}

std::size_t AsioFTPSocket::WriteBytes(std::span<const char> bytes) {
  return connection_->Send(bytes);
}

bool AsioFTPSocket::IsBlocking() const {
  return connection_->isBlocking;
}

void AsioFTPSocket::CancelBlockingCall() {
  if (connection_->isBlocking) connection_->isAbandoned = true;
}

}  // namespace vantorium::publish
