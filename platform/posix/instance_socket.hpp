// How the processes of this program find each other: each listens on a local socket that bears its process
// id, in a folder private to the user. Whoever connects is told by the system which process listens, so
// neither a file left by a crash nor a process id in its second life passes for a living instance.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "platform/posix/posix_calls.hpp"

namespace kestri::posix {

// What one process asks of another: one byte, answered with a text in UTF-8 and the end of the connection.
enum class InstanceRequest : char { Caption = 'c', BringToFront = 'f' };

inline constexpr int kInstancePatience = 200;  // milliseconds that an answer may take

class InstanceSocket {
 public:
  explicit InstanceSocket(std::string folder) : folder_(std::move(folder)) {}
  ~InstanceSocket() { Close(); }
  InstanceSocket(const InstanceSocket&) = delete;
  InstanceSocket& operator=(const InstanceSocket&) = delete;

  // This process listens from here on, until Close.
  bool Listen();
  void Close();
  // To watch for connections; -1 when this process does not listen.
  int Descriptor() const { return listener_ ? listener_->Get() : -1; }
  // The next connection of this user, in non-blocking mode. Nothing when none waits.
  std::optional<OpenFile> Accept();

  // Whether the process listens. Never waits.
  bool Living(std::int64_t process);
  // The answer of another process. Nothing when there is none within the patience.
  std::optional<std::string> Ask(std::int64_t process, InstanceRequest request);
  // Removes what processes that are gone left in the folder.
  void Sweep();

 private:
  enum class Found { Connected, Busy, None };
  Found Connect(std::int64_t process, std::optional<OpenFile>& connection);
  bool OpenFolder();
  // Paths of sockets are short; a descriptor of the folder makes the way to them short whatever its name.
  std::string PathOf(const std::string& name) const;
  void RemoveDead(std::int64_t process);

  PosixCalls calls_;
  std::string folder_;
  std::optional<OpenFile> folderFile_;
  std::optional<OpenFile> listener_;
};

// Sends the answer to a request that has arrived. False when it cannot be sent.
bool Answer(int connection, const std::string& text);
// The request that stands on the connection; nothing while none has arrived, or when it is none.
std::optional<InstanceRequest> ReadRequest(int connection);

}  // namespace kestri::posix
