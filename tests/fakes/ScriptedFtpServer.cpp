#include "tests/fakes/ScriptedFtpServer.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <tuple>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

namespace vantorium::fakes {
namespace {

constexpr std::chrono::seconds kPatience{20};

sockaddr_in Loopback(std::uint16_t port, const char* address = "127.0.0.1") {
  sockaddr_in name = {};
  name.sin_family = AF_INET;
  name.sin_port = htons(port);
  ::inet_pton(AF_INET, address, &name.sin_addr);
  return name;
}

const sockaddr* Plain(const sockaddr_in& name) {
  return reinterpret_cast<const sockaddr*>(&name);
}

int NewListener() {
  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_in name = Loopback(0);
  if (::bind(listener, Plain(name), sizeof name) != 0 || ::listen(listener, 8) != 0) {
    throw std::runtime_error("no server could be made on loopback");
  }
  return listener;
}

std::uint16_t PortOf(int listener) {
  sockaddr_in name = {};
  socklen_t size = sizeof name;
  ::getsockname(listener, reinterpret_cast<sockaddr*>(&name), &size);
  return ntohs(name.sin_port);
}

void Send(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const auto count = ::send(descriptor, text.data(), text.size(), MSG_NOSIGNAL);
    if (count <= 0) return;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
}

}  // namespace

ScriptedFtpServer::ScriptedFtpServer(Script script) : script_(std::move(script)), listener_(NewListener()) {
  port_ = PortOf(listener_.Get());
  thread_ = std::thread([this] { Serve(); });
}

ScriptedFtpServer::~ScriptedFtpServer() {
  isStopping_ = true;
  thread_.join();
}

void ScriptedFtpServer::Serve() {
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

ScriptedFtpServer::Session::Session(ScriptedFtpServer& server, int control) : server_(server), control_(control) {
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
      {"USER", "331 Password"}, {"PASS", "230 In"}, {"CWD", "250 There"},  {"MKD", "257 Made"},
      {"TYPE", "200 Binary"},   {"PORT", "200 Ok"}, {"RNTO", "250 Moved"},
  };
  const auto files = server_.Files();
  const auto file = files.find(argument);
  if (verb == "PORT") ListenTo(argument);
  if (verb == "STOR") {
    Store(argument);
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
  if (!OpenData()) {
    Say("425 No connection\r\n");
    return;
  }
  const bool isWhole = Receive(name);
  CloseData();
  Say(isWhole ? "226 Stored\r\n" : "426 Broken\r\n");
}

void ScriptedFtpServer::Session::Erase(const std::string& name) {
  const std::scoped_lock lock(server_.mutex_);
  Say(server_.files_.erase(name) > 0 ? "250 Gone\r\n" : "550 None\r\n");
}

void ScriptedFtpServer::Session::ListenTo(const std::string& portArgument) {
  unsigned high = 0;
  unsigned low = 0;
  if (std::sscanf(portArgument.c_str(), "127,0,0,1,%u,%u", &high, &low) == 2) {
    dataPort_ = static_cast<std::uint16_t>(high * 256 + low);
  }
}

void ScriptedFtpServer::Session::Say(std::string_view text) const {
  if (control_) Send(control_->Get(), text);
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
  data_.emplace(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
  const sockaddr_in from = Loopback(0, source);
  const sockaddr_in to = Loopback(dataPort_);
  const bool isOpen =
      ::bind(data_->Get(), Plain(from), sizeof from) == 0 && ::connect(data_->Get(), Plain(to), sizeof to) == 0;
  if (!isOpen) data_.reset();
  return isOpen;
}

bool ScriptedFtpServer::Session::Receive(const std::string& name, std::size_t most) {
  std::string bytes;
  std::array<char, 65536> block = {};
  bool isAtEnd = false;
  while (bytes.size() < most && data_ && server_.WaitToRead(data_->Get())) {
    const auto count = ::recv(data_->Get(), block.data(), std::min(block.size(), most - bytes.size()), 0);
    isAtEnd = count == 0;
    if (count <= 0) break;
    bytes.append(block.data(), static_cast<std::size_t>(count));
  }
  server_.PutFile(name, bytes);
  return isAtEnd;
}

void ScriptedFtpServer::Session::ResetData() {
  const linger now = {1, 0};
  if (data_) ::setsockopt(data_->Get(), SOL_SOCKET, SO_LINGER, &now, sizeof now);
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
    std::array<char, 1024> block = {};
    if (!control_ || !server_.WaitToRead(control_->Get())) return std::nullopt;
    const auto count = ::recv(control_->Get(), block.data(), block.size(), 0);
    if (count <= 0) return std::nullopt;
    received_.append(block.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace vantorium::fakes
