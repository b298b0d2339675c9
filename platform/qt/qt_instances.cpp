#include "platform/qt/qt_instances.hpp"

#include <unistd.h>

#include <QTimer>
#include <utility>

#include "platform/posix/native_path.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

const std::string kDone = "1";

bool IsThisProcess(std::int64_t handle) {
  return handle == ::getpid();
}

}  // namespace

// One connection; it ends with its answer, or unanswered when no request comes.
class QtInstances::Visitor : public QObject {
 public:
  Visitor(QtInstances& host, posix::OpenFile connection)
      : QObject(&host), host_(host), connection_(std::move(connection)) {
    connect(&notifier_, &QSocketNotifier::activated, this, [this] { Answer(); });
    QTimer::singleShot(posix::kInstancePatience, this, [this] { deleteLater(); });
  }
  ~Visitor() override { notifier_.setEnabled(false); }

 private:
  void Answer() {
    notifier_.setEnabled(false);
    if (const auto request = posix::ReadRequest(connection_.Get()))
      posix::Answer(connection_.Get(), host_.AnswerTo(*request));
    connection_.Close();
    deleteLater();
  }

  QtInstances& host_;
  posix::OpenFile connection_;
  QSocketNotifier notifier_{connection_.Get(), QSocketNotifier::Read};
};

QtInstances::QtInstances(std::u16string_view folder) : socket_(posix::NativePath(folder).value_or("")) {}

QtInstances::~QtInstances() {
  Withdraw();
}

void QtInstances::Announce(CaptionProvider caption, FrontRequest bringToFront) {
  caption_ = std::move(caption);
  bringToFront_ = std::move(bringToFront);
  if (notifier_ != nullptr || !socket_.Listen()) return;
  notifier_ = new QSocketNotifier(socket_.Descriptor(), QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, [this] { AcceptAll(); });
  socket_.Sweep();
}

void QtInstances::Withdraw() {
  delete notifier_;
  socket_.Close();
  caption_ = nullptr;
  bringToFront_ = nullptr;
}

void QtInstances::AcceptAll() {
  while (auto connection = socket_.Accept()) new Visitor(*this, std::move(*connection));
}

std::string QtInstances::AnswerTo(posix::InstanceRequest request) {
  if (request == posix::InstanceRequest::Caption) return caption_ ? ToUtf8(caption_()) : std::string();
  if (!bringToFront_) return {};
  // Behind the answer: a window that is being restored may take longer than the other one waits.
  QTimer::singleShot(0, this, [this] {
    if (bringToFront_) bringToFront_();
  });
  return kDone;
}

bool QtInstances::Living(std::int64_t handle) {
  return IsThisProcess(handle) ? socket_.Descriptor() >= 0 : socket_.Living(handle);
}

std::optional<std::u16string> QtInstances::CaptionOf(std::int64_t handle) {
  if (IsThisProcess(handle)) return caption_ ? std::optional(caption_()) : std::nullopt;
  const auto answer = socket_.Ask(handle, posix::InstanceRequest::Caption);
  return answer ? std::optional(FromUtf8(*answer)) : std::nullopt;
}

bool QtInstances::BringToFront(std::int64_t handle) {
  if (!IsThisProcess(handle)) return socket_.Ask(handle, posix::InstanceRequest::BringToFront).has_value();
  if (!bringToFront_) return false;
  bringToFront_();
  return true;
}

}  // namespace kestri
