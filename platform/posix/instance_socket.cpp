#include "platform/posix/instance_socket.hpp"

#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdio.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <charconv>
#include <chrono>
#include <limits>
#include <memory>

#include "platform/posix/xdg_folders.hpp"

namespace kestri::posix {
namespace {

constexpr std::size_t kLongestAnswer = 64 * 1024;

OpenFile NewSocket(PosixCalls& calls) {
  return {calls, ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)};
}

std::optional<sockaddr_un> AddressOf(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path) return std::nullopt;
  path.copy(address.sun_path, path.size());
  return address;
}

template <class Call>
int WithAddress(Call call, int file, const std::string& path) {
  const auto address = AddressOf(path);
  if (!address) return -1;
  return call(file, reinterpret_cast<const sockaddr*>(&*address), sizeof *address);
}

std::optional<ucred> PeerOf(int connection) {
  ucred peer{};
  socklen_t size = sizeof peer;
  if (::getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0) return std::nullopt;
  return peer;
}

bool IsOwnUser(int connection) {
  const auto peer = PeerOf(connection);
  return peer && peer->uid == ::geteuid();
}

bool IsProcessId(std::int64_t process) {
  return process > 0 && process <= std::numeric_limits<pid_t>::max();
}

bool IsGone(std::int64_t process) {
  return ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

std::optional<std::int64_t> ProcessOfName(std::string_view name) {
  std::int64_t process = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
  const bool whole = error == std::errc() && end == name.data() + name.size() && IsProcessId(process);
  return whole ? std::optional(process) : std::nullopt;
}

class Deadline {
 public:
  int Left() const {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end_ - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
  }
  // False when nothing came in time.
  bool AwaitInput(int file) const {
    pollfd watched{file, POLLIN, 0};
    int ready = ::poll(&watched, 1, Left());
    while (ready < 0 && errno == EINTR) ready = ::poll(&watched, 1, Left());
    return ready > 0;
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point end_ = Clock::now() + std::chrono::milliseconds(kInstancePatience);
};

std::optional<std::string> ReadAnswer(int connection) {
  const Deadline deadline;
  std::string answer;
  std::array<char, 4096> piece;
  while (answer.size() < kLongestAnswer && deadline.AwaitInput(connection)) {
    const ssize_t count = ::recv(connection, piece.data(), piece.size(), 0);
    if (count == 0) return answer.empty() ? std::nullopt : std::optional(answer);
    if (count < 0 && errno != EAGAIN && errno != EINTR) return std::nullopt;
    if (count > 0) answer.append(piece.data(), static_cast<std::size_t>(count));
  }
  return std::nullopt;
}

}  // namespace

bool InstanceSocket::OpenFolder() {
  if (folderFile_) return true;
  if (!MakeFolders(folder_)) return false;
  OpenFile folder(calls_, ::open(folder_.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!folder.IsOpen()) return false;
  folderFile_.emplace(std::move(folder));
  return true;
}

std::string InstanceSocket::PathOf(const std::string& name) const {
  return "/proc/self/fd/" + std::to_string(folderFile_->Get()) + "/" + name;
}

// The name is given only to a socket that listens already: a socket under its name that refuses is a dead
// one.
bool InstanceSocket::Listen() {
  if (listener_) return true;
  if (!OpenFolder()) return false;
  const std::string name = std::to_string(::getpid());
  const std::string unready = PathOf(name + ".new");
  ::unlink(unready.c_str());
  OpenFile listener = NewSocket(calls_);
  if (!listener.IsOpen() || WithAddress(::bind, listener.Get(), unready) != 0) return false;
  const bool ready = ::chmod(unready.c_str(), 0600) == 0 && ::listen(listener.Get(), SOMAXCONN) == 0 &&
                     ::rename(unready.c_str(), PathOf(name).c_str()) == 0;
  if (!ready) {
    ::unlink(unready.c_str());
    return false;
  }
  listener_.emplace(std::move(listener));
  return true;
}

void InstanceSocket::Close() {
  if (!listener_) return;
  ::unlink(PathOf(std::to_string(::getpid())).c_str());
  listener_.reset();
}

std::optional<OpenFile> InstanceSocket::Accept() {
  while (listener_) {
    OpenFile connection(calls_, ::accept4(listener_->Get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (connection.IsOpen() && IsOwnUser(connection.Get())) return connection;
    if (!connection.IsOpen() && errno != EINTR && errno != ECONNABORTED) break;
  }
  return std::nullopt;
}

InstanceSocket::Found InstanceSocket::Connect(std::int64_t process, std::optional<OpenFile>& connection) {
  if (!IsProcessId(process) || !OpenFolder()) return Found::None;
  OpenFile file = NewSocket(calls_);
  if (!file.IsOpen()) return Found::None;
  if (WithAddress(::connect, file.Get(), PathOf(std::to_string(process))) != 0) {
    if (errno == EAGAIN) return Found::Busy;  // so many wait there that the system takes no more
    if (errno == ECONNREFUSED) RemoveDead(process);
    return Found::None;
  }
  const auto listener = PeerOf(file.Get());
  if (!listener || listener->pid != process || listener->uid != ::geteuid()) return Found::None;
  connection.emplace(std::move(file));
  return Found::Connected;
}

bool InstanceSocket::Living(std::int64_t process) {
  std::optional<OpenFile> connection;
  return Connect(process, connection) != Found::None;
}

std::optional<std::string> InstanceSocket::Ask(std::int64_t process, InstanceRequest request) {
  std::optional<OpenFile> connection;
  if (Connect(process, connection) != Found::Connected) return std::nullopt;
  const char byte = static_cast<char>(request);
  if (::send(connection->Get(), &byte, 1, MSG_NOSIGNAL) != 1) return std::nullopt;
  return ReadAnswer(connection->Get());
}

// Another process may have got the id by now and be about to listen; its name is not taken from it.
void InstanceSocket::RemoveDead(std::int64_t process) {
  if (IsGone(process)) ::unlink(PathOf(std::to_string(process)).c_str());
}

void InstanceSocket::Sweep() {
  if (!OpenFolder()) return;
  const std::unique_ptr<DIR, int (*)(DIR*)> names(::opendir(folder_.c_str()), &::closedir);
  if (!names) return;
  while (const dirent* entry = ::readdir(names.get())) {
    std::string_view name = entry->d_name;
    if (name.ends_with(".new")) name.remove_suffix(4);
    const auto process = ProcessOfName(name);
    if (process && IsGone(*process)) ::unlink(PathOf(entry->d_name).c_str());
  }
}

bool Answer(int connection, const std::string& text) {
  const ssize_t sent = ::send(connection, text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  return sent == static_cast<ssize_t>(text.size());
}

std::optional<InstanceRequest> ReadRequest(int connection) {
  char byte = 0;
  if (::recv(connection, &byte, 1, 0) != 1) return std::nullopt;
  const auto request = static_cast<InstanceRequest>(byte);
  const bool known = request == InstanceRequest::Caption || request == InstanceRequest::BringToFront;
  return known ? std::optional(request) : std::nullopt;
}

}  // namespace kestri::posix
