// The file dialogs by their real widgets: filter rows, the extension of a saved name, the question before a
// file is replaced.
#include "platform/qt/qt_file_dialog.hpp"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <utility>

#include "platform/qt/qt_text.hpp"
#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

TEST(NameFilters, TheCaptionStaysAndThePatternsStandInASecondBracket) {
  const QStringList rows = NameFilters(u"Cﾌｧｲﾙ (*.c;*.h)|*.c;*.h;*.cpp|すべてのﾌｧｲﾙ (*.*)|*.*");
  EXPECT_EQ(rows, (QStringList{QStringLiteral("Cﾌｧｲﾙ (*.c;*.h) (*.c *.h *.cpp)"),
                               QStringLiteral("すべてのﾌｧｲﾙ (*.*) (*)")}));
}

class SaveDialog : public testing::Test {
 protected:
  // Types the name into the dialog and accepts it, answers the question if one comes, and gives up when the
  // dialog is there again.
  std::optional<FileDialogAnswer> Save(const std::optional<QString>& name, int row,
                                       const QString& answer = QString()) {
    bool typed = false;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
      QWidget* open = QApplication::activeModalWidget();
      if (auto* question = qobject_cast<QMessageBox*>(open)) return Answer(*question, answer);
      auto* dialog = qobject_cast<QFileDialog*>(open);
      if (dialog == nullptr) return;
      if (name) dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(*name);
      QMetaObject::invokeMethod(dialog, std::exchange(typed, true) ? "reject" : "accept");
    });
    user.start(20);
    QtFileDialog dialogs;
    return dialogs.AskSave({.title = u"名前を付けて保存",
                            .filter = u"HTML 文書 (*.htm;*.html)|*.htm;*.html|すべてのﾌｧｲﾙ (*.*)|*.*|"
                                      u"ｽﾀｲﾙｼｰﾄ (*.css)|*.css",
                            .filterIndex = row,
                            .folder = folder_.Text(),
                            .fileName = suggestion_,
                            .unchangedName = unchanged_,
                            .flags = kOverwritePrompt});
  }

  void Answer(QMessageBox& question, const QString& answer) {
    asked_ = question.text();
    for (QAbstractButton* button : question.buttons()) {
      if (button->text().startsWith(answer)) return button->click();
    }
  }

  fakes::TemporaryFolder folder_;
  std::u16string suggestion_;
  std::u16string unchanged_;
  QString asked_;
};

TEST_F(SaveDialog, AnExtensionOfAnotherRowIsKept) {
  const auto answer = Save(QStringLiteral("page.css"), 1);
  ASSERT_TRUE(answer.has_value());
  EXPECT_EQ(answer->fileName, folder_.Text(u"page.css"));
}

TEST_F(SaveDialog, TheRowsExtensionIsAddedToANameWithADotInIt) {
  const auto answer = Save(QStringLiteral("my.page"), 1);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->fileName, folder_.Text(u"my.page.htm"));
}

TEST_F(SaveDialog, ANameWithOneOfTheRowsExtensionsStays) {
  const auto answer = Save(QStringLiteral("index.HTML"), 1);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->fileName, folder_.Text(u"index.HTML"));
}

TEST_F(SaveDialog, TheRowOfAllFilesAddsNothing) {
  const auto answer = Save(QStringLiteral("README"), 2);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->fileName, folder_.Text(u"README"));
  EXPECT_EQ(answer->filterIndex, 2);
}

TEST_F(SaveDialog, AnExtensionThatTheDesktopKnowsIsKept) {
  const auto answer = Save(QStringLiteral("page.php"), 1);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->fileName, folder_.Text(u"page.php"));
}

TEST_F(SaveDialog, ASuggestionLeftAsItIsKeepsTheDocumentsOwnName) {
  for (const auto& [suggested, whole] : {std::pair(u"style.css", u"style.css.txt"),
                                         {u"INDEX", u"INDEX.HTM"},
                                         {u"5\" disk", u"5\" disk.htm"}}) {
    suggestion_ = folder_.Text(suggested);
    unchanged_ = folder_.Text(whole);
    const auto answer = Save(std::nullopt, 1);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->fileName, unchanged_);
  }
  const auto renamed = Save(QStringLiteral("other"), 1);
  ASSERT_TRUE(renamed);
  EXPECT_EQ(renamed->fileName, folder_.Text(u"other.htm"));
}

TEST_F(SaveDialog, QuotesBelongToTheName) {
  const auto answer = Save(QStringLiteral("my \"best\" page"), 1);
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->fileName, folder_.Text(u"my \"best\" page.htm"));
}

TEST_F(SaveDialog, TheFileThatWouldReallyBeReplacedIsAskedFor) {
  folder_.Write("a.htm", "old");
  EXPECT_TRUE(Save(QStringLiteral("a"), 1, QStringLiteral("はい")));
  EXPECT_EQ(asked_, QStringLiteral("a.htm は既に存在します\n上書きしますか?"));
  EXPECT_FALSE(Save(QStringLiteral("a"), 1, QStringLiteral("いいえ")));
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
