// How the editor window ends: each stage in its place, and nothing of it when the user wants to stay.
#include <gtest/gtest.h>

#include <QSessionManager>
#include <QTimer>
#include <set>

#include "shell/forms/HTMLfrm.hpp"
#include "shell/forms/end_of_session.hpp"
#include "tests/shell/forms/editor_desk.hpp"

namespace kestri {
namespace {

using fakes::EditorDesk;
using Marks = std::set<std::string>;

// Another form of the program, which tells of its close.
class OtherForm : public QWidget {
 public:
  std::function<void()> closing;

 protected:
  void closeEvent(QCloseEvent* event) override {
    if (closing) closing();
    QWidget::closeEvent(event);
  }
};

// Tells of the first moment at which a widget is hidden.
class HideWatch : public QObject {
 public:
  explicit HideWatch(std::function<void()> hidden) : hidden_(std::move(hidden)) {}

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Hide && hidden_) std::exchange(hidden_, nullptr)();
    return false;
  }

 private:
  std::function<void()> hidden_;
};

class Close : public testing::Test {
 protected:
  void OpenBesideAnotherForm() {
    desk.Set(u"Setting", u"ClTimer", u"1");
    desk.folder.Write("page.htm", "x\r\n");
    desk.Open();
    ASSERT_TRUE(desk.window->OpenDocument(desk.folder.Text(u"page.htm")));
    other.show();
    ASSERT_TRUE(TimerShows("04:05:06 AM"));
    desk.clock.now.tm_hour = 7;
  }

  bool TimerShows(const std::string& time) const {
    return QTest::qWaitFor([&] { return desk.Pane(StatusPanes::kClock) == time; }, 1000);
  }
  // Null while there is none to be seen.
  const LabelText* LabelOverTheText() const {
    for (const QWidget* child : desk.window->TextView().findChildren<QWidget*>()) {
      const auto* label = dynamic_cast<const LabelText*>(child);
      if (label != nullptr && label->isVisible()) return label;
    }
    return nullptr;
  }
  // What is done of the close at this moment.
  Marks Done() const {
    Marks done;
    if (LabelOverTheText() != nullptr) done.insert("told");
    if (desk.common->GetINI(u"Kestri", u"Setting", u"DragModeTrue", u"") == u"1") done.insert("settings");
    if (!desk.window->TextView().LineNumbersShown()) done.insert("subclass");
    if (!desk.common->PathExists(desk.folder.Text(u"Kestri_TEMP_FileLog.INI"))) done.insert("log");
    if (!other.isVisible()) done.insert("other form");
    return done;
  }

  EditorDesk desk;
  OtherForm other;
};

TEST_F(Close, ItsStagesFollowEachOther) {
  OpenBesideAnotherForm();
  ASSERT_EQ(Done(), Marks());
  std::vector<std::pair<std::string, Marks>> moments;
  const auto note = [&](const char* moment) { return [&, moment] { moments.emplace_back(moment, Done()); }; };
  QTimer::singleShot(0, desk.window.get(), note("events"));
  HideWatch watch(note("subclass"));
  const_cast<Gutter&>(desk.window->TextView().LineNumbers()).installEventFilter(&watch);
  desk.instances.withdrawing = note("withdrawn");
  other.closing = note("other form");
  desk.window->close();
  const std::vector<std::pair<std::string, Marks>> expected{
      {"events", {"told"}},
      {"subclass", {"told", "settings", "subclass"}},
      {"withdrawn", {"told", "settings", "subclass"}},
      {"other form", {"told", "settings", "subclass", "log"}}};
  EXPECT_EQ(moments, expected);
  EXPECT_FALSE(other.isVisible());
  EXPECT_FALSE(desk.window->isVisible());
}

TEST_F(Close, SaysThatItGoesOnInTheMiddleOfTheText) {
  OpenBesideAnotherForm();
  QStringList told;
  QPoint aside(9999, 9999);
  QTimer::singleShot(0, desk.window.get(), [&] {
    const LabelText* label = LabelOverTheText();
    ASSERT_NE(label, nullptr);
    told = label->Lines();
    aside = label->geometry().center() - desk.window->TextView().rect().center();
  });
  desk.window->close();
  EXPECT_EQ(told,
            (QStringList{QStringLiteral(" しばらく待ちください..."), QStringLiteral("閉じています...")}));
  EXPECT_LE(aside.manhattanLength(), 2);
}

TEST_F(Close, TheTimerStandsStillFromItsBeginning) {
  OpenBesideAnotherForm();
  ASSERT_TRUE(TimerShows("07:05:06 AM"));
  desk.clock.now.tm_hour = 9;
  bool ticked = true;
  QTimer::singleShot(0, desk.window.get(), [&] {
    QTest::qWait(200);
    ticked = desk.Pane(StatusPanes::kClock) != "07:05:06 AM";
  });
  desk.window->close();
  EXPECT_FALSE(ticked);
}

TEST_F(Close, ARefusedQuestionChangesNothing) {
  OpenBesideAnotherForm();
  desk.Press(u"a");
  desk.effects.calls.clear();
  bool withdrawn = false;
  desk.instances.withdrawing = [&] { withdrawn = true; };
  const std::string settings = desk.folder.Read("Kestri.ini");
  const std::string log = desk.folder.Read("Kestri_TEMP_FileLog.INI");
  desk.boxes.answers = {MessageAnswer::Cancel};
  EXPECT_FALSE(desk.window->close());
  ASSERT_EQ(desk.boxes.asked.size(), 1u);
  EXPECT_EQ(desk.boxes.asked[0].caption, u"終了  Kestrile");
  EXPECT_TRUE(desk.window->isVisible());
  EXPECT_EQ(Done(), Marks());
  EXPECT_EQ(desk.folder.Read("Kestri.ini"), settings);
  EXPECT_EQ(desk.folder.Read("Kestri_TEMP_FileLog.INI"), log);
  EXPECT_FALSE(withdrawn);
  EXPECT_TRUE(desk.effects.calls.empty());
  EXPECT_EQ(desk.Row(), "a‸x");
  desk.Press(u"b");
  EXPECT_EQ(desk.Row(), "ab‸x");
  EXPECT_TRUE(TimerShows("07:05:06 AM"));
}

// The end of the session.

struct ScriptedSession {
  bool allowsInteraction() const { return mayAsk; }
  void cancel() { calls.emplace_back("cancel"); }
  void release() { calls.emplace_back("release"); }
  bool mayAsk = true;
  std::vector<std::string> calls;
};

using Calls = std::vector<std::string>;

TEST(EndOfSession, GoesOnWhenTheDocumentMayGo) {
  ScriptedSession session;
  AnswerEndOfSession(session, [] { return true; });
  EXPECT_EQ(session.calls, Calls{"release"});
}

TEST(EndOfSession, IsCancelledWhenTheUserWantsToStay) {
  ScriptedSession session;
  AnswerEndOfSession(session, [] { return false; });
  EXPECT_EQ(session.calls, (Calls{"cancel", "release"}));
}

TEST(EndOfSession, AsksNothingWhereNothingMayBeAsked) {
  ScriptedSession session{.mayAsk = false, .calls = {}};
  AnswerEndOfSession(session, [] {
    ADD_FAILURE() << "asked";
    return true;
  });
  EXPECT_EQ(session.calls, Calls());
}

TEST_F(Close, AnEndOfTheSessionWithoutQuestionsLeavesTheChangedDocumentStanding) {
  OpenBesideAnotherForm();
  desk.Press(u"a");
  auto* session = qApp->findChild<QSessionManager*>();
  ASSERT_NE(session, nullptr);
  ASSERT_FALSE(session->allowsInteraction());
  Q_EMIT qApp->commitDataRequest(*session);
  EXPECT_TRUE(desk.boxes.asked.empty());
  EXPECT_TRUE(desk.window->isVisible());
}

}  // namespace
}  // namespace kestri

KESTRI_WINDOW_TEST_MAIN()
