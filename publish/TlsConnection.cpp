#include "publish/TlsConnection.h"

#include "publish/ReadCertificate.h"

#include <utility>

#include <asio/buffer.hpp>
#include <asio/io_context.hpp>
#include <asio/ip/address.hpp>
#include <asio/ssl.hpp>

namespace vantorium::publish {

namespace ssl = asio::ssl;

using OwnedSession = std::unique_ptr<SSL_SESSION, decltype(&SSL_SESSION_free)>;

/// The settings are shared too: reading the system's certificates takes longer than a handshake.
class TlsTicket {
 public:
  TlsTicket(std::shared_ptr<ssl::context> givenSettings, SSL_SESSION* givenSession)
      : settings(std::move(givenSettings)), session(givenSession, SSL_SESSION_free) {}

  std::shared_ptr<ssl::context> settings;
  OwnedSession session;  ///< null if the server offers none
};

namespace {

std::shared_ptr<ssl::context> NewSettings() {
  auto settings = std::make_shared<ssl::context>(ssl::context::tls_client);
  SSL_CTX_set_min_proto_version(settings->native_handle(), TLS1_2_VERSION);
  // The accepted certificate stays that of the session.
  SSL_CTX_set_options(settings->native_handle(), SSL_OP_NO_RENEGOTIATION);
  // With this mode OpenSSL checks the certificate, notes the result and goes on: the caller decides.
  settings->set_verify_mode(ssl::verify_none);
  settings->set_default_verify_paths();
  return settings;
}

/// A TlsCarrier as the synchronous stream that Asio expects.
class CarrierStream {
 public:
  using executor_type = asio::io_context::executor_type;
  using lowest_layer_type = CarrierStream;

  CarrierStream(asio::io_context& context, TlsCarrier& carrier) : context_(context), carrier_(carrier) {}

  [[nodiscard]] executor_type get_executor() { return context_.get_executor(); }
  [[nodiscard]] lowest_layer_type& lowest_layer() { return *this; }

  std::size_t read_some(const asio::mutable_buffer& into, std::error_code& error) {
    return carrier_.ReceiveSome({static_cast<char*>(into.data()), into.size()}, error);
  }
  std::size_t write_some(const asio::const_buffer& bytes, std::error_code& error) {
    return carrier_.SendSome({static_cast<const char*>(bytes.data()), bytes.size()}, error);
  }

 private:
  asio::io_context& context_;
  TlsCarrier& carrier_;
};

/// Makes the check of the certificate include the host. Sends the host's name, for servers of several names.
void SetHost(SSL* handle, const std::string& host) {
  std::error_code notAnAddress;
  const auto address = asio::ip::make_address(host.substr(0, host.find('%')), notAnAddress);
  if (!notAnAddress) {
    X509_VERIFY_PARAM_set1_ip_asc(SSL_get0_param(handle), address.to_string().c_str());
    return;
  }
  SSL_set_hostflags(handle, X509_CHECK_FLAG_NO_PARTIAL_WILDCARDS);
  SSL_set1_host(handle, host.c_str());
  SSL_set_tlsext_host_name(handle, host.c_str());
}

ServerCertificate CertificateOf(const SSL* handle) {
  const std::unique_ptr<X509, decltype(&X509_free)> peer(SSL_get1_peer_certificate(handle), X509_free);
  if (peer == nullptr) return {};
  ServerCertificate certificate = ReadCertificate(*peer);
  const long result = SSL_get_verify_result(handle);
  if (result != X509_V_OK) certificate.doubt = X509_verify_cert_error_string(result);
  return certificate;
}

}  // namespace

class TlsConnection::Session {
 public:
  Session(asio::io_context& context, TlsCarrier& carrier, const std::string& host,
          const std::shared_ptr<TlsTicket>& resumed)
      : settings(resumed ? resumed->settings : NewSettings()), stream(CarrierStream(context, carrier), *settings) {
    SetHost(Handle(), host);
    if (resumed && resumed->session) SSL_set_session(Handle(), resumed->session.get());
  }
  /// Pretends an orderly end, without which OpenSSL would let no other connection take up the session.
  ~Session() { SSL_set_shutdown(Handle(), SSL_SENT_SHUTDOWN | SSL_RECEIVED_SHUTDOWN); }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  [[nodiscard]] SSL* Handle() { return stream.native_handle(); }

  std::shared_ptr<ssl::context> settings;
  ssl::stream<CarrierStream> stream;
};

TlsConnection::TlsConnection(asio::io_context& context, TlsCarrier& carrier, const std::string& host,
                             const std::shared_ptr<TlsTicket>& resumed)
    : session_(std::make_unique<Session>(context, carrier, host, resumed)) {}

TlsConnection::~TlsConnection() = default;

TlsHandshake TlsConnection::Handshake() {
  std::error_code error;
  session_->stream.handshake(ssl::stream_base::client, error);
  if (error) return {.done = false, .problem = error.message(), .certificate = {}};
  return {.done = true, .problem = {}, .certificate = CertificateOf(session_->Handle())};
}

std::size_t TlsConnection::Read(std::span<char> into) {
  std::error_code error;
  const std::size_t count = session_->stream.read_some(asio::buffer(into.data(), into.size()), error);
  return error ? 0 : count;
}

std::size_t TlsConnection::Write(std::span<const char> bytes) {
  std::error_code error;
  const std::size_t count = session_->stream.write_some(asio::buffer(bytes.data(), bytes.size()), error);
  return error ? 0 : count;
}

bool TlsConnection::HasReceived() const {
  SSL* handle = session_->Handle();
  return SSL_has_pending(handle) == 1 || BIO_ctrl_pending(SSL_get_rbio(handle)) > 0;
}

TlsEnd TlsConnection::End() {
  std::error_code error;
  session_->stream.shutdown(error);
  if (!error || error == asio::error::eof) return TlsEnd::Orderly;
  if (error == ssl::error::stream_truncated) return TlsEnd::Silent;
  const bool isWaiting = error == asio::error::would_block || error == asio::error::try_again;
  return isWaiting ? TlsEnd::StillOpen : TlsEnd::Broken;
}

std::shared_ptr<TlsTicket> TlsConnection::Ticket() const {
  return std::make_shared<TlsTicket>(session_->settings, SSL_get1_session(session_->Handle()));
}

}  // namespace vantorium::publish
