#include "publish/AsioFTPSocket.h"

#include "env/RuntimeFailure.h"
#include "publish/AsioConnection.h"
#include "publish/HostLookup.h"

#include <algorithm>
#include <tuple>

namespace vantorium::publish {

using asio::ip::tcp;
using Milliseconds = std::chrono::milliseconds;

namespace {

/// An address as text, without the zone of a link-local one, which means something on this machine only.
std::string WithoutZone(const std::string& address) {
  return address.substr(0, address.find('%'));
}

}  // namespace

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
  connection_->Abandon();
}

void AsioFTPSocket::Configure(const FTPSocketSettings& settings) {
  connection_->settings = settings;
}

int AsioFTPSocket::Connect() {
  constexpr int kFailure = -1;
  connection_->Close();
  Connection::BlockingCall call(*connection_);
  const auto family = connection_->settings.anyFamily ? HostFamily::Any : HostFamily::IPv4;
  auto lookup = LookUpHost(connection_->settings.host, family);
  if (!call.Wait().Until([&](Milliseconds slice) { return lookup.wait_for(slice) == std::future_status::ready; })) {
    return kFailure;
  }
  const auto addresses = lookup.get();
  const auto connects = [&](const std::string& address) {
    return !connection_->isAbandoned && connection_->ConnectTo(address);
  };
  return std::ranges::any_of(addresses, connects) ? 0 : kFailure;
}

int AsioFTPSocket::Listen() {
  connection_->Close();
  asio::error_code error;
  auto& listener = connection_->listener;
  const auto& settings = connection_->settings;
  const tcp::endpoint here(asio::ip::make_address(settings.listenAddress, error), settings.listenPort);
  if (!error) listener.open(here.protocol(), error);
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

std::string AsioFTPSocket::ExtendedPortArgument() const {
  asio::error_code error;
  const unsigned port = connection_->listener.local_endpoint(error).port();
  const std::string address = WithoutZone(connection_->settings.portAddress);
  const char* family = address.find(':') == std::string::npos ? "1" : "2";
  return "|" + std::string(family) + "|" + address + "|" + std::to_string(port) + "|";
}

void AsioFTPSocket::Accept(const FTPSocket& control) {
  Connection::BlockingCall call(*connection_);
  asio::error_code error;
  bool isHopeless = false;
  const auto isOver = [&](Milliseconds slice) {
    isHopeless = control.HasNews();  // first: a connection that came before the news is still accepted
    if (connection_->TakeConnection(error) || isHopeless) return true;
    // After a wake-up, Until calls this again at once, with one cheap turn in between.
    std::ignore = connection_->IsConnectionWaiting(slice);
    return false;
  };
  if (!call.Wait().Until(isOver) || !connection_->isConnected) {
    throw env::RuntimeFailure(env::FailureKind::FileAccess, "The server has not opened the data connection");
  }
}

TlsHandshake AsioFTPSocket::StartTls(const std::string& host, const std::shared_ptr<TlsTicket>& resumed) {
  const Connection::BlockingCall call(*connection_);
  return connection_->StartTls(host, resumed);
}

std::shared_ptr<TlsTicket> AsioFTPSocket::Ticket() const {
  return connection_->tls ? connection_->tls->Ticket() : nullptr;
}

void AsioFTPSocket::BeginFile() {
  connection_->BeginFile();
}

bool AsioFTPSocket::Finish() {
  bool isWhole = connection_->isConnected;
  if (isWhole && connection_->tls) {
    const Connection::BlockingCall call(*connection_);
    isWhole = connection_->EndTls();
  }
  connection_->Abandon();
  return isWhole;
}

std::string AsioFTPSocket::Read(std::size_t most) {
  const Connection::BlockingCall call(*connection_);
  std::string text(most, '\0');
  text.resize(connection_->Receive(text));
  return text;
}

bool AsioFTPSocket::HasNews() const {
  return connection_->HasNews();
}

std::ptrdiff_t AsioFTPSocket::Write(std::string_view text) {
  return WriteBytes(text) == text.size() ? static_cast<std::ptrdiff_t>(text.size()) : -1;
}

std::size_t AsioFTPSocket::WriteBytes(std::span<const char> bytes) {
  const Connection::BlockingCall call(*connection_);
  return connection_->Send(bytes);
}

bool AsioFTPSocket::IsBlocking() const {
  return connection_->IsBlocking();
}

void AsioFTPSocket::CancelBlockingCall() {
  if (connection_->IsBlocking()) connection_->isAbandoned = true;
}

}  // namespace vantorium::publish
