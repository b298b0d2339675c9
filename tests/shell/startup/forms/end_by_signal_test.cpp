// Signals that end a process, as the editor takes them.
#include "shell/startup/forms/end_by_signal.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QTimer>
#include <csignal>

namespace kestri {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};

// Closes as the answer to its question says.
class Editor : public QWidget {
 public:
  std::function<bool()> mayClose = [] { return true; };
  int closes = 0;

 protected:
  void closeEvent(QCloseEvent* event) override {
    ++closes;
    event->setAccepted(mayClose());
  }
};

enum class Taken { ByDefault, Ignored, ByTheEditor };

Taken TakenNow(int signal) {
  struct sigaction now {};
  ::sigaction(signal, nullptr, &now);
  if (now.sa_handler == SIG_DFL) return Taken::ByDefault;
  return now.sa_handler == SIG_IGN ? Taken::Ignored : Taken::ByTheEditor;
}

void ExpectAllTaken(Taken how) {
  for (const int signal : kSignals) EXPECT_EQ(TakenNow(signal), how) << signal;
}

class SignalledEnd : public testing::Test {
 protected:
  SignalledEnd() { editor.show(); }
  void Listen() {
    signals.emplace(editor, [this] { return changed; });
  }
  static void Send(int signal) {
    std::raise(signal);
    QApplication::processEvents();
  }

  Editor editor;
  bool changed = false;
  std::optional<EndBySignal> signals;
};

TEST_F(SignalledEnd, EachOfThemClosesTheWindow) {
  for (const int signal : kSignals) {
    Listen();
    editor.show();
    Send(signal);
    EXPECT_FALSE(editor.isVisible()) << signal;
    signals.reset();
  }
  EXPECT_EQ(editor.closes, 3);
}

TEST_F(SignalledEnd, NothingIsTakenBeforeAndAfter) {
  ExpectAllTaken(Taken::ByDefault);
  Listen();
  ExpectAllTaken(Taken::ByTheEditor);
  signals.reset();
  ExpectAllTaken(Taken::ByDefault);
}

TEST_F(SignalledEnd, AUserWhoStaysIsAskedAgainByTheNextOne) {
  Listen();
  changed = true;
  editor.mayClose = [] { return false; };
  Send(SIGTERM);
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(editor.closes, 1);
  ExpectAllTaken(Taken::ByTheEditor);
  Send(SIGHUP);
  EXPECT_EQ(editor.closes, 2);
}

TEST_F(SignalledEnd, AMinimisedWindowStandsUpToAsk) {
  Listen();
  changed = true;
  editor.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
  editor.mayClose = [this] {
    EXPECT_EQ(editor.windowState(), Qt::WindowMaximized);
    return false;
  };
  Send(SIGTERM);
  EXPECT_EQ(editor.closes, 1);
}

TEST_F(SignalledEnd, SeveralAtOnceAskOnce) {
  Listen();
  changed = true;
  editor.mayClose = [] { return false; };
  for (const int signal : kSignals) std::raise(signal);
  Send(SIGTERM);
  EXPECT_EQ(editor.closes, 1);
  QApplication::processEvents();
  EXPECT_EQ(editor.closes, 1);
}

TEST_F(SignalledEnd, OneMoreWithinTheQuestionEndsTheProcessAtOnce) {
  for (const int signal : kSignals) {
    const auto signalWhileAsked = [&] {
      Listen();
      changed = true;
      editor.mayClose = [signal] {
        std::raise(signal);
        return false;
      };
      Send(SIGTERM);
    };
    EXPECT_EXIT(signalWhileAsked(), testing::KilledBySignal(signal), "");
  }
}

TEST_F(SignalledEnd, OneMoreWhileAnUnchangedDocumentClosesChangesNothing) {
  Listen();
  editor.mayClose = [] {
    ExpectAllTaken(Taken::ByTheEditor);
    Send(SIGHUP);
    return true;
  };
  Send(SIGTERM);
  EXPECT_FALSE(editor.isVisible());
  EXPECT_EQ(editor.closes, 1);
}

TEST_F(SignalledEnd, WhatTheProcessWasStartedToIgnoreStaysIgnored) {
  std::signal(SIGHUP, SIG_IGN);
  Listen();
  changed = true;
  editor.mayClose = [] {
    EXPECT_EQ(TakenNow(SIGHUP), Taken::Ignored);
    EXPECT_EQ(TakenNow(SIGTERM), Taken::ByDefault);
    return false;
  };
  Send(SIGHUP);
  EXPECT_EQ(editor.closes, 0);
  Send(SIGTERM);
  EXPECT_EQ(editor.closes, 1);
  EXPECT_EQ(TakenNow(SIGHUP), Taken::Ignored);
  signals.reset();
  EXPECT_EQ(TakenNow(SIGHUP), Taken::Ignored);
  std::signal(SIGHUP, SIG_DFL);
}

// The user closed the window already and stands before its question.
TEST_F(SignalledEnd, AQuestionThatStandsAlreadyIsNotAskedTwice) {
  Listen();
  changed = true;
  editor.mayClose = [this] {
    QDialog question(&editor);
    QTimer::singleShot(0, &question, [&] {
      ExpectAllTaken(Taken::ByTheEditor);
      Send(SIGTERM);
      ExpectAllTaken(Taken::ByDefault);
      question.reject();
    });
    question.exec();
    return false;
  };
  editor.close();
  EXPECT_TRUE(editor.isVisible());
  EXPECT_EQ(editor.closes, 1);
  ExpectAllTaken(Taken::ByTheEditor);
  editor.mayClose = [] { return false; };
  Send(SIGTERM);
  EXPECT_EQ(editor.closes, 2);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
