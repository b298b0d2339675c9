// SIGTERM, SIGHUP and SIGINT close the editor as its close button does, so a changed document is asked for.
// One more of them while that question stands ends the process at once.
#pragma once

#include <QSocketNotifier>
#include <QWidget>
#include <functional>

namespace kestri {

class EndBySignal {
 public:
  // A signal that the process was started to ignore stays ignored. willAsk: a close would ask now.
  EndBySignal(QWidget& window, std::function<bool()> willAsk);
  ~EndBySignal();
  EndBySignal(const EndBySignal&) = delete;
  EndBySignal& operator=(const EndBySignal&) = delete;

 private:
  class Pipe {
   public:
    Pipe();
    ~Pipe();
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;
    int ReadEnd() const { return ends_[0]; }
    int WriteEnd() const { return ends_[1]; }
    void Empty() const;

   private:
    int ends_[2] = {-1, -1};
  };

  void CloseWindow();
  void ExpectQuestion();
  void Listen();

  QWidget& window_;
  std::function<bool()> willAsk_;
  Pipe pipe_;
  QSocketNotifier notifier_;
};

}  // namespace kestri
