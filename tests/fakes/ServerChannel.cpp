#include "tests/fakes/ServerChannel.h"

#include <stdexcept>

#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <sys/socket.h>

namespace vantorium::fakes {
namespace {

template <typename Type>
using Owned = std::unique_ptr<Type, void (*)(Type*)>;

Owned<BIO> Reading(const std::string& text) {
  return {BIO_new_mem_buf(text.data(), static_cast<int>(text.size())), [](BIO* memory) { BIO_free(memory); }};
}

}  // namespace

struct TlsServer::Settings {
  Owned<SSL_CTX> context{SSL_CTX_new(TLS_server_method()), SSL_CTX_free};
};

struct ServerChannel::Session {
  Owned<SSL> handle;
};

TlsServer::TlsServer(const TestCertificate& certificate) : settings_(std::make_unique<Settings>()) {
  const Owned<X509> read(PEM_read_bio_X509(Reading(certificate.certificate).get(), nullptr, nullptr, nullptr),
                         X509_free);
  const Owned<EVP_PKEY> key(PEM_read_bio_PrivateKey(Reading(certificate.key).get(), nullptr, nullptr, nullptr),
                            EVP_PKEY_free);
  SSL_CTX* context = settings_->context.get();
  if (SSL_CTX_use_certificate(context, read.get()) != 1 || SSL_CTX_use_PrivateKey(context, key.get()) != 1) {
    throw std::runtime_error("OpenSSL takes no certificate for the server");
  }
}

TlsServer::~TlsServer() = default;

void TlsServer::SpeakOldVersionsOnly() {
  SSL_CTX_set_max_proto_version(settings_->context.get(), TLS1_1_VERSION);
  SSL_CTX_set_security_level(settings_->context.get(), 0);
}

ServerChannel::ServerChannel(int descriptor) : socket_(descriptor) {
  const timeval patience = {20, 0};
  ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
}

ServerChannel::~ServerChannel() = default;

bool ServerChannel::StartTls(const TlsServer& server) {
  tls_ = std::make_unique<Session>(Session{{SSL_new(server.settings_->context.get()), SSL_free}});
  SSL_set_fd(tls_->handle.get(), socket_.Get());
  return SSL_accept(tls_->handle.get()) == 1;
}

bool ServerChannel::IsResumed() const {
  return tls_ && SSL_session_reused(tls_->handle.get()) == 1;
}

void ServerChannel::Send(std::string_view text) {
  while (!text.empty()) {
    const auto count = tls_ ? SSL_write(tls_->handle.get(), text.data(), static_cast<int>(text.size()))
                            : ::send(socket_.Get(), text.data(), text.size(), MSG_NOSIGNAL);
    if (count <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

std::string ServerChannel::Receive(std::size_t most) {
  std::string bytes(most, '\0');
  const auto count = tls_ ? SSL_read(tls_->handle.get(), bytes.data(), static_cast<int>(most))
                          : ::recv(socket_.Get(), bytes.data(), most, 0);
  isAtEnd_ = tls_ ? SSL_get_error(tls_->handle.get(), static_cast<int>(count)) == SSL_ERROR_ZERO_RETURN : count == 0;
  bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
  return bytes;
}

bool ServerChannel::HasReceived() const {
  return tls_ && SSL_pending(tls_->handle.get()) > 0;
}

void ServerChannel::SayEnd() {
  if (tls_) SSL_shutdown(tls_->handle.get());
}

void ServerChannel::ResetOnClose() {
  const linger now = {1, 0};
  ::setsockopt(socket_.Get(), SOL_SOCKET, SO_LINGER, &now, sizeof now);
}

}  // namespace vantorium::fakes
