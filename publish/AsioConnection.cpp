#include "publish/AsioConnection.h"

#include <utility>

#include <asio/buffer.hpp>
#include <netinet/tcp.h>
#include <poll.h>

namespace vantorium::publish {

using tcp = asio::ip::tcp;

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

bool AsioFTPSocket::Connection::IsConnectionWaiting(Milliseconds time) {
  return IsReadyWithin(listener, tcp::acceptor::wait_read, time);
}

void AsioFTPSocket::Connection::BeginStream() {
  asio::error_code ignored;
  stream.non_blocking(true, ignored);
  isConnected = true;
}

void AsioFTPSocket::Connection::BeginFile() {
  asio::error_code ignored;
  stream.set_option(asio::socket_base::send_buffer_size(kSendBuffer), ignored);
  JoinSmallWrites(stream.native_handle());
}

bool AsioFTPSocket::Connection::ConnectTo(const std::string& address) {
  asio::error_code error;
  const tcp::endpoint peer(asio::ip::make_address(address, error), settings.port);
  if (!error) stream.open(peer.protocol(), error);
  if (error) return false;
  const auto outcome = std::make_shared<std::optional<asio::error_code>>();
  stream.async_connect(peer, [outcome](const asio::error_code& result) { *outcome = result; });
  const bool isOver = call_->Wait().Until([&](Milliseconds slice) {
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
  listener.close(ignored);
  return true;
}

std::size_t AsioFTPSocket::Connection::ReceiveSome(std::span<char> into, std::error_code& error) {
  const auto isOver = [&](Milliseconds slice) { return IsReadyWithin(stream, tcp::socket::wait_read, slice); };
  for (;;) {
    const std::size_t count = stream.read_some(asio::buffer(into.data(), into.size()), error);
    if (!WouldBlock(error) || call_ == nullptr || !call_->waitsToRead) return count;
    if (!call_->Wait().Until(isOver)) {
      error = asio::error::operation_aborted;
      return 0;
    }
  }
}

std::size_t AsioFTPSocket::Connection::SendSome(std::span<const char> bytes, std::error_code& error) {
  const auto isOver = [&](Milliseconds slice) { return IsReadyWithin(stream, tcp::socket::wait_write, slice); };
  for (;;) {
    const std::size_t count = stream.write_some(asio::buffer(bytes.data(), bytes.size()), error);
    if (!WouldBlock(error) || call_ == nullptr) return count;
    // The turn after the wait lets a cancel abort a call on a connection that is slow but never stalls.
    if (!call_->Wait().Until(isOver) || !call_->Wait().Turn()) {
      error = asio::error::operation_aborted;
      return 0;
    }
  }
}

std::size_t AsioFTPSocket::Connection::Receive(std::span<char> into) {
  if (tls) return tls->Read(into);
  asio::error_code error;
  const std::size_t count = ReceiveSome(into, error);
  return error ? 0 : count;
}

std::size_t AsioFTPSocket::Connection::Send(std::span<const char> bytes) {
  std::size_t sent = 0;
  while (sent < bytes.size()) {
    asio::error_code error;
    const auto rest = bytes.subspan(sent);
    const std::size_t count = tls ? tls->Write(rest) : SendSome(rest, error);
    if (error || count == 0) break;
    sent += count;
  }
  return sent;
}

TlsHandshake AsioFTPSocket::Connection::StartTls(const std::string& host, const std::shared_ptr<TlsTicket>& resumed) {
  try {
    tls = std::make_unique<TlsConnection>(context, *this, host, resumed);
    return tls->Handshake();
  } catch (const std::system_error& error) {
    return {.done = false, .problem = error.what(), .certificate = {}};
  }
}

/// The peer must not have ended before this side says that it does. After that, many servers just end the connection.
bool AsioFTPSocket::Connection::EndTls() {
  call_->waitsToRead = false;
  TlsEnd end = tls->End();
  if (end == TlsEnd::StillOpen) {
    asio::error_code ignored;
    stream.shutdown(tcp::socket::shutdown_send, ignored);
    call_->waitsToRead = true;
    end = tls->End();
    return end == TlsEnd::Orderly || end == TlsEnd::Silent;
  }
  return end == TlsEnd::Orderly;
}

bool AsioFTPSocket::Connection::HasNews() {
  pollfd entry = {stream.native_handle(), POLLIN, 0};
  return !isConnected || (tls && tls->HasReceived()) || ::poll(&entry, 1, 0) > 0;
}

void AsioFTPSocket::Connection::Close() {
  // Inside a blocking call, which may be in the middle of a record, nothing can be said any more.
  if (tls && isConnected && call_ == nullptr) std::ignore = tls->End();
  Abandon();
}

void AsioFTPSocket::Connection::Abandon() {
  asio::error_code ignored;
  stream.close(ignored);
  listener.close(ignored);
  isConnected = false;
  isAbandoned = true;
  if (call_ == nullptr) tls.reset();
}

}  // namespace vantorium::publish
