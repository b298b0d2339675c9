#pragma once

#include <QObject>
#include <QPointer>
#include <QSocketNotifier>
#include <string>
#include <string_view>

#include "platform/instances.hpp"
#include "platform/posix/instance_socket.hpp"

namespace kestri {

// Connections are answered by the event loop: a process whose loop stands still is living, but mute.
class QtInstances : public QObject, public Instances {
 public:
  // The folder in which the processes of this user meet.
  explicit QtInstances(std::u16string_view folder);
  ~QtInstances() override;

  bool Appear() override { return socket_.Listen(); }
  void Announce(CaptionProvider caption, FrontRequest bringToFront) override;
  void Withdraw() override;

  bool Living(std::int64_t handle) override;
  std::optional<std::u16string> CaptionOf(std::int64_t handle) override;
  bool BringToFront(std::int64_t handle) override;

 private:
  class Visitor;
  void AcceptAll();
  std::string AnswerTo(posix::InstanceRequest request);

  posix::InstanceSocket socket_;
  CaptionProvider caption_;
  FrontRequest bringToFront_;
  QPointer<QSocketNotifier> notifier_;
};

}  // namespace kestri
