// The conversion's dialog with real keys, on real files; boxes and file dialogs are scripted.
#include "document/forms/HenFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>

#include "platform/qt/qt_text.hpp"
#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

class HenFrmTest : public DocumentTest {
 protected:
  HenFrmTest() {
    std::filesystem::create_directory(std::filesystem::path(folder.Path()) / "tmp");
    environment.folders[SystemFolder::Temporary] = Whole("tmp");
    conversion.emplace(*document, *common, boxes);
    form.emplace(*conversion, dialogs, nullptr);
  }

  QLineEdit* Field(const char* name) { return form->findChild<QLineEdit*>(QLatin1String(name)); }
  QPushButton* Button(const char* caption) {
    for (auto* button : form->findChildren<QPushButton*>()) {
      if (button->text() == QLatin1String(caption)) return button;
    }
    return nullptr;
  }
  QCheckBox* Chk(int index) { return form->findChildren<QCheckBox*>().at(index); }

  // A mnemonic presses its button for a while before it clicks.
  static constexpr int kStepTime = 5;  // ms
  static constexpr int kLastStepTime = 300;

  // Runs the dialog; each step acts in turn while it is up, a step behind the last one closes it.
  bool RunWith(std::vector<std::function<void()>> steps) {
    std::size_t next = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      if (!form->isVisible()) return;
      timer.stop();
      if (next == steps.size()) return form->reject();
      steps[next++]();
      timer.start(next < steps.size() ? kStepTime : kLastStepTime);
    });
    timer.start(kStepTime);
    return form->Run();
  }

  std::optional<TextToHtml> conversion;
  std::optional<HenFrm> form;
};

TEST_F(HenFrmTest, SaysWhatItDoes) {
  QStringList texts;
  for (const QLabel* label : form->findChildren<QLabel*>()) texts << label->text();
  const QStringList expected = {
      QStringLiteral("●ﾃｷｽﾄﾃﾞｰﾀをHTML型に変換して開きます"),
      QStringLiteral("以下のﾌｧｲﾙを開きます(&F)："),
      QStringLiteral("変換後ﾌｧｲﾙ名(ﾗﾝﾀﾞﾑでOSが決定します)："),
      QStringLiteral("Html(Kestri_5).htm"),
      QStringLiteral("ﾀｲﾄﾙ(&T)："),
      QStringLiteral("ﾃｷｽﾄﾃﾞｰﾀの変換は以下の処理を行います．．．"),
      QStringLiteral("<   >  &  \"  などを特殊文字に変換"),
      QStringLiteral("改行を<BR>ﾀｸﾞに変換"),
      QStringLiteral("注) 変換される特殊文字は全て半角文字でなければなりません"),
  };
  EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()), QSet<QString>(expected.begin(), expected.end()));
  EXPECT_EQ(form->windowTitle(), QStringLiteral("HTMLへの変換"));
  EXPECT_EQ(Chk(0)->text(), QStringLiteral("<HTML> <HEAD> <TITLE> <BODY> ﾀｸﾞを設置する"));
  EXPECT_EQ(Chk(1)->text(), QStringLiteral("半角ｽﾍﾟｰｽは変換しない"));
  for (const char* caption : {"&Start", "&Close", "..."}) EXPECT_NE(Button(caption), nullptr) << caption;
  EXPECT_EQ(Field("TITLEText")->text(), QStringLiteral("タイトル"));
}

TEST_F(HenFrmTest, TheTitleIsOpenOnlyWhileTheFrameIsWanted) {
  Chk(0)->setChecked(true);
  EXPECT_TRUE(Field("TITLEText")->isEnabled());
  Chk(0)->setChecked(false);
  EXPECT_FALSE(Field("TITLEText")->isEnabled());
}

TEST_F(HenFrmTest, StartConvertsAndOpensWithTheDialogClosed) {
  form->SetSource(MakeFile("memo.txt", Encoded(u"一 <b>\r\n二")));
  EXPECT_TRUE(RunWith({[this] {
    Chk(0)->setChecked(false);
    Chk(1)->setChecked(true);
    QTest::keyClick(Field("Opentxt"), Qt::Key_Return);
  }}));
  EXPECT_EQ(ToUtf8(control.Text()), "一 &lt;b&gt;<BR>\r\n二");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(HenFrmTest, TheTypedTitleStandsInThePage) {
  form->SetSource(MakeFile("memo.txt", "memo"));
  EXPECT_TRUE(RunWith({[this] {
    Field("TITLEText")->setText(QStringLiteral("日記"));
    QTest::keyClick(&*form, Qt::Key_S, Qt::AltModifier);
  }}));
  EXPECT_EQ(ToUtf8(control.Text()), ToUtf8(ConvertTextToHtml(u"memo", {.title = u"日記"})));
}

TEST_F(HenFrmTest, AFailureLeavesTheDialogOpenForAnotherName) {
  const std::u16string source = MakeFile("memo.txt", "memo");
  bool stayed = false;
  EXPECT_TRUE(RunWith({[this] { Button("&Start")->click(); },
                       [&] {
                         stayed = form->isVisible() && boxes.asked.size() == 1;
                         form->SetSource(source);
                         Button("&Start")->click();
                       }}));
  EXPECT_TRUE(stayed);
  EXPECT_EQ(boxes.asked.at(0).caption, u"HTMLに変換して開く");
  EXPECT_EQ(state.currentFile, conversion->TargetPath());
}

TEST_F(HenFrmTest, ARefusedOpeningShowsTheDialogAgain) {
  boxes.answers = {MessageAnswer::No};
  form->SetSource(MakeFile("large.txt", std::string(40000, 'a')));
  bool again = false;
  EXPECT_FALSE(RunWith({[this] { Button("&Start")->click(); }, [&] { again = form->isVisible(); }}));
  EXPECT_TRUE(again);
  EXPECT_EQ(boxes.asked.size(), 2U);
}

TEST_F(HenFrmTest, CloseAndEscLeaveTheEditorAlone) {
  form->SetSource(MakeFile("memo.txt", "memo"));
  EXPECT_FALSE(RunWith({[this] { QTest::keyClick(&*form, Qt::Key_C, Qt::AltModifier); }}));
  EXPECT_FALSE(RunWith({[this] { QTest::keyClick(Field("Opentxt"), Qt::Key_Escape); }}));
  EXPECT_EQ(state.currentFile, u"");
  EXPECT_TRUE(boxes.asked.empty());
}

TEST_F(HenFrmTest, TheDotsAskForATextFile) {
  dialogs.answers = {FileDialogAnswer{.fileName = u"/home/author/a.txt"}, std::nullopt};
  Button("...")->click();
  EXPECT_EQ(Field("Opentxt")->text(), QStringLiteral("/home/author/a.txt"));
  ASSERT_EQ(dialogs.opens.size(), 1U);
  EXPECT_EQ(dialogs.opens[0].title, u"開く ");
  EXPECT_EQ(dialogs.opens[0].filter, u"ﾃｷｽﾄ 文書 (*.txt)|*.txt|すべてのﾌｧｲﾙ (*.*)|*.*");
  Button("...")->click();
  EXPECT_EQ(Field("Opentxt")->text(), QStringLiteral("/home/author/a.txt"));
}

TEST_F(HenFrmTest, TheKeyboardStartsInTheSourceAndFollowsTheEye) {
  form->show();
  form->activateWindow();
  QApplication::processEvents();
  EXPECT_EQ(form->focusWidget(), Field("Opentxt"));
  std::vector<QWidget*> order;
  for (int i = 0; i < 7; ++i) {
    order.push_back(QApplication::focusWidget());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(order, (std::vector<QWidget*>{Field("Opentxt"), Button("..."), Chk(0), Field("TITLEText"), Chk(1),
                                          Button("&Start"), Button("&Close")}));
}

TEST_F(HenFrmTest, PictureOfTheDialog) {
  form->SetSource(u"/home/author/文書/日記.txt");
  form->show();
  QApplication::processEvents();
  QDir().mkpath(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens"));
  EXPECT_TRUE(form->grab().save(QStringLiteral(KESTRI_SOURCE_DIR "/build/screens/HenFrm.png")));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
