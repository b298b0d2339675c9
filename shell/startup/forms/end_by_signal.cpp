#include "shell/startup/forms/end_by_signal.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <cerrno>
#include <csignal>

namespace kestri {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

using Action = void (*)(int);

// All that a handler can reach.
volatile std::sig_atomic_t noticeEnd = -1;

extern "C" void NoticeSignal(int) {
  const int error = errno;
  const char notice = 0;
  [[maybe_unused]] const ssize_t written = ::write(noticeEnd, &notice, 1);
  errno = error;
}

bool Ignored(int signal) {
  struct sigaction now {};
  ::sigaction(signal, nullptr, &now);
  return now.sa_handler == SIG_IGN;
}

void SetAction(Action action) {
  struct sigaction wanted {};
  wanted.sa_handler = action;
  wanted.sa_flags = SA_RESTART;
  for (const int signal : kSignals) {
    if (!Ignored(signal)) ::sigaction(signal, &wanted, nullptr);
  }
}

}  // namespace

EndBySignal::Pipe::Pipe() {
  if (::pipe2(ends_, O_CLOEXEC | O_NONBLOCK) != 0) ends_[0] = ends_[1] = -1;
}

EndBySignal::Pipe::~Pipe() {
  for (const int end : ends_) {
    if (end >= 0) ::close(end);
  }
}

void EndBySignal::Pipe::Empty() const {
  char notices[16];
  while (::read(ReadEnd(), notices, sizeof notices) > 0) {
  }
}

EndBySignal::EndBySignal(QWidget& window, std::function<bool()> willAsk)
    : window_(window), willAsk_(std::move(willAsk)), notifier_(QSocketNotifier::Read) {
  if (pipe_.ReadEnd() < 0) return;
  noticeEnd = pipe_.WriteEnd();
  QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this] { CloseWindow(); });
  notifier_.setSocket(pipe_.ReadEnd());
  Listen();
}

EndBySignal::~EndBySignal() {
  SetAction(SIG_DFL);
  noticeEnd = -1;
}

void EndBySignal::Listen() {
  pipe_.Empty();
  SetAction(&NoticeSignal);
  notifier_.setEnabled(true);
}

// Over a minimised window it might not be seen.
void EndBySignal::ExpectQuestion() {
  SetAction(SIG_DFL);
  window_.setWindowState(window_.windowState() & ~Qt::WindowMinimized);
}

void EndBySignal::CloseWindow() {
  notifier_.setEnabled(false);
  if (willAsk_()) ExpectQuestion();
  const bool closed = window_.close();
  QWidget* question = QApplication::activeModalWidget();
  if (closed && window_.isVisible() && question != nullptr) {
    // The user's own close stands at its question already: this signal waits for the answer with it.
    QObject::connect(question, &QObject::destroyed, &notifier_, [this] { Listen(); });
  } else {
    Listen();
  }
}

}  // namespace kestri
