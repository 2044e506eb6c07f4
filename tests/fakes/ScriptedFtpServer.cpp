#include "tests/fakes/ScriptedFtpServer.h"

#include "tests/fakes/SocketName.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <tuple>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

namespace vantorium::fakes {
namespace {

constexpr std::chrono::seconds kPatience{20};

int NewListener(const std::string& address) {
  SocketName name(address, 0);
  const int listener = name.NewSocket();
  if (::bind(listener, name.Plain(), name.size) != 0 || ::listen(listener, 8) != 0) {
    throw std::runtime_error("no server could be made on loopback");
  }
  return listener;
}

std::uint16_t PortOf(int listener) {
  SocketName name("::", 0);
  ::getsockname(listener, name.Plain(), &name.size);
  return ntohs(reinterpret_cast<sockaddr_in&>(name.bytes).sin_port);  // in the same place for both families
}

/// The last two numbers of an address in RFC 959.
std::string PortNumbers(unsigned port) {
  return std::to_string(port / 256) + "," + std::to_string(port % 256);
}

}  // namespace

ScriptedFtpServer::ScriptedFtpServer(Script script)
    : script_(std::move(script)),
      tls_(script_.certificate ? std::make_unique<TlsServer>(*script_.certificate) : nullptr),
      listener_(NewListener(script_.address)) {
  port_ = PortOf(listener_.Get());
  thread_ = std::thread([this] { Serve(); });
}

ScriptedFtpServer::~ScriptedFtpServer() {
  isStopping_ = true;
  thread_.join();
}

void ScriptedFtpServer::Serve() {
  sigset_t writesToNobody;
  sigemptyset(&writesToNobody);
  sigaddset(&writesToNobody, SIGPIPE);
  ::pthread_sigmask(SIG_BLOCK, &writesToNobody, nullptr);
  while (WaitToRead(listener_.Get())) {
    Session(*this, ::accept4(listener_.Get(), nullptr, nullptr, SOCK_CLOEXEC)).Run();
  }
}

bool ScriptedFtpServer::WaitToRead(int descriptor) const {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (!isStopping_ && std::chrono::steady_clock::now() < end) {
    pollfd entry = {descriptor, POLLIN, 0};
    if (::poll(&entry, 1, 5) > 0) return true;
  }
  return false;
}

void ScriptedFtpServer::Note(const std::string& command) {
  const std::scoped_lock lock(mutex_);
  commands_.push_back(command);
}

std::vector<std::string> ScriptedFtpServer::Commands() const {
  const std::scoped_lock lock(mutex_);
  return commands_;
}

std::map<std::string, std::string> ScriptedFtpServer::Files() const {
  const std::scoped_lock lock(mutex_);
  return files_;
}

void ScriptedFtpServer::PutFile(const std::string& name, const std::string& bytes) {
  const std::scoped_lock lock(mutex_);
  files_[name] = bytes;
}

bool ScriptedFtpServer::HasHeard(std::string_view command) const {
  return std::ranges::any_of(Commands(), [&](const std::string& line) { return line.starts_with(command); });
}

bool ScriptedFtpServer::WaitToHear(std::string_view command) const {
  const auto end = std::chrono::steady_clock::now() + kPatience;
  while (std::chrono::steady_clock::now() < end) {
    if (HasHeard(command)) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return false;
}

ScriptedFtpServer::Session::Session(ScriptedFtpServer& server, int control)
    : server_(server), control_(std::make_unique<ServerChannel>(control)) {
  const int on = 1;
  ::setsockopt(control, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

void ScriptedFtpServer::Session::Run() {
  if (server_.script_.greet) {
    server_.script_.greet(*this);
  } else {
    Say("220 Ready\r\n");
  }
  while (const auto line = NextLine()) {
    server_.Note(*line);
    const auto blank = line->find(' ');
    const std::string verb = line->substr(0, blank);
    const std::string argument = blank == std::string::npos ? "" : line->substr(blank + 1);
    const auto handler = server_.script_.on.find(verb);
    if (handler != server_.script_.on.end()) {
      handler->second(*this, argument);
    } else {
      Answer(verb, argument);
    }
  }
}

void ScriptedFtpServer::Session::Answer(const std::string& verb, const std::string& argument) {
  static const std::map<std::string, std::string> kReplies = {
      {"USER", "331 Password"}, {"PASS", "230 In"},      {"CWD", "250 There"},  {"MKD", "257 Made"},
      {"TYPE", "200 Binary"},   {"PORT", "200 Ok"},      {"RNTO", "250 Moved"}, {"EPRT", "200 Ok"},
      {"PBSZ", "200 PBSZ=0"},   {"PROT", "200 Private"},
  };
  const auto files = server_.Files();
  const auto file = files.find(argument);
  if (verb == "PORT" || verb == "EPRT") ListenTo(argument);
  if (verb == "STOR") {
    Store(argument);
  } else if (verb == "EPSV" || verb == "PASV") {
    OfferPort(verb);
  } else if (verb == "AUTH" && server_.tls_) {
    BeginEncryption();
  } else if (verb == "DELE") {
    Erase(argument);
  } else if (verb == "RNFR") {
    Say(file == files.end() ? "550 None\r\n" : "350 Go on\r\n");
  } else if (verb == "SIZE") {
    Say(file == files.end() ? "550 None\r\n" : "213 " + std::to_string(file->second.size()) + "\r\n");
  } else {
    const auto reply = kReplies.find(verb);
    Say(reply == kReplies.end() ? "500 What\r\n" : reply->second + "\r\n");
  }
}

void ScriptedFtpServer::Session::Store(const std::string& name) {
  Say("150 Send\r\n");
  if (!OpenData() || !EncryptData()) {
    Say("425 No connection\r\n");
    return;
  }
  const bool isWhole = Receive(name);
  CloseData();
  Say(isWhole ? "226 Stored\r\n" : "426 Broken\r\n");
}

void ScriptedFtpServer::Session::BeginEncryption() {
  Say("234 Go on\r\n");
  if (!StartTls()) HangUp();
}

void ScriptedFtpServer::Session::OfferPort(const std::string& verb) {
  const auto port = std::to_string(ListenForData());
  if (verb == "EPSV") return Say("229 Entering Extended Passive Mode (|||" + port + "|)\r\n");
  Say("227 Entering Passive Mode (127,0,0,1," + PortNumbers(dataPort_) + ").\r\n");
}

void ScriptedFtpServer::Session::Erase(const std::string& name) {
  const std::scoped_lock lock(server_.mutex_);
  Say(server_.files_.erase(name) > 0 ? "250 Gone\r\n" : "550 None\r\n");
}

void ScriptedFtpServer::Session::ListenTo(const std::string& portArgument) {
  unsigned high = 0;
  unsigned low = 0;
  dataListener_.reset();
  if (std::sscanf(portArgument.c_str(), "127,0,0,1,%u,%u", &high, &low) == 2) {
    dataPort_ = static_cast<std::uint16_t>(high * 256 + low);
  } else if (std::sscanf(portArgument.c_str(), "|2|::1|%u|", &low) == 1) {
    dataPort_ = static_cast<std::uint16_t>(low);
  }
}

std::uint16_t ScriptedFtpServer::Session::ListenForData() {
  dataListener_.emplace(NewListener(server_.script_.address));
  dataPort_ = PortOf(dataListener_->Get());
  return dataPort_;
}

bool ScriptedFtpServer::Session::StartTls(const TlsServer& tls) {
  encrypts_ = control_ && control_->StartTls(tls);
  return encrypts_;
}

void ScriptedFtpServer::Session::Say(std::string_view text) const {
  if (control_) control_->Send(text);
}

void ScriptedFtpServer::Session::SayByteByByte(std::string_view text) const {
  for (const char& letter : text) {
    Say(std::string_view(&letter, 1));
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

void ScriptedFtpServer::Session::StaySilent() {
  while (NextLine()) continue;
  HangUp();
}

void ScriptedFtpServer::Session::HangUp() {
  control_.reset();
}

bool ScriptedFtpServer::Session::OpenData(const char* source) {
  data_.reset();
  if (dataListener_) {
    if (!server_.WaitToRead(dataListener_->Get())) return false;
    data_ = std::make_unique<ServerChannel>(::accept4(dataListener_->Get(), nullptr, nullptr, SOCK_CLOEXEC));
    dataListener_.reset();
    return true;
  }
  SocketName from(source != nullptr ? source : server_.script_.address, 0);
  SocketName to(server_.script_.address, dataPort_);
  data_ = std::make_unique<ServerChannel>(from.NewSocket());
  const bool isOpen = ::bind(data_->Descriptor(), from.Plain(), from.size) == 0 &&
                      ::connect(data_->Descriptor(), to.Plain(), to.size) == 0;
  if (!isOpen) data_.reset();
  return isOpen;
}

bool ScriptedFtpServer::Session::EncryptData(const TlsServer& tls) {
  if (!data_ || !data_->StartTls(tls)) return false;
  if (data_->IsResumed()) ++server_.resumedSessions_;
  return true;
}

bool ScriptedFtpServer::Session::Receive(const std::string& name, std::size_t most) {
  std::string bytes;
  bool isAtEnd = false;
  while (bytes.size() < most && data_ && (data_->HasReceived() || server_.WaitToRead(data_->Descriptor()))) {
    const std::string block = data_->Receive(std::min<std::size_t>(65536, most - bytes.size()));
    isAtEnd = data_->IsAtEnd();
    if (block.empty()) break;
    bytes += block;
  }
  server_.PutFile(name, bytes);
  return isAtEnd;
}

void ScriptedFtpServer::Session::CloseData() {
  if (data_) data_->SayEnd();
  data_.reset();
}

void ScriptedFtpServer::Session::ResetData() {
  if (data_) data_->ResetOnClose();
  data_.reset();
}

std::optional<std::string> ScriptedFtpServer::Session::NextLine() {
  for (;;) {
    const auto end = received_.find("\r\n");
    if (end != std::string::npos) {
      const std::string line = received_.substr(0, end);
      received_.erase(0, end + 2);
      return line;
    }
    if (!control_ || (!control_->HasReceived() && !server_.WaitToRead(control_->Descriptor()))) return std::nullopt;
    const std::string block = control_->Receive(1024);
    if (block.empty()) return std::nullopt;
    received_ += block;
  }
}

}  // namespace vantorium::fakes
