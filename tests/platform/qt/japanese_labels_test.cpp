// The toolkit's own dialogs speak Japanese throughout.
#include "platform/qt/japanese_labels.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPageSetupDialog>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeView>
#include <memory>

#include "platform/qt/qt_file_dialog.hpp"
#include "platform/qt/qt_input_box.hpp"
#include "platform/qt/qt_message_box.hpp"
#include "platform/qt/title_room.hpp"
#include "tests/fakes/screens.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/platform/qt/shown_words.hpp"

namespace kestri {
namespace {

using fakes::EnglishWords;
using fakes::ShownWords;

// What the dialog shows when it is up.
QStringList WordsOf(QWidget& dialog, const QString& picture) {
  dialog.show();
  QCoreApplication::processEvents();
  fakes::SavePicture(dialog.grab().toImage(), picture);
  return ShownWords(dialog);
}

// Looks at the modal window that the action opens, and closes it.
template <typename Action, typename Look>
void WhileOpen(Action action, Look look) {
  bool looked = false;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    if (!std::exchange(looked, true)) look(*dialog);
    dialog->reject();
  });
  user.start(100);
  action();
  EXPECT_TRUE(looked);
}

QStringList ButtonsOf(const QWidget& dialog) {
  QStringList captions;
  for (const auto* button : dialog.findChildren<QPushButton*>()) captions << button->text();
  return captions;
}

struct JapaneseLabels : testing::Test {
  JapaneseLabels() { InstallJapaneseLabels(); }
};

TEST_F(JapaneseLabels, EnglishIsSeen) {
  EXPECT_EQ(EnglishWords({QStringLiteral("開く(&O)"), QStringLiteral("&OK"), QStringLiteral("Look in:"),
                          QStringLiteral("Pages")}),
            (QStringList{QStringLiteral("Look in:"), QStringLiteral("Pages")}));
}

TEST_F(JapaneseLabels, OfTheOpenDialogAndItsMenus) {
  fakes::TemporaryFolder folder;
  folder.Write("１.htm", "<html>");
  folder.Write("２.txt", std::string(1234567, 'x'));
  folder.Write("長い名前のﾌｧｲﾙ.css", "x");
  std::filesystem::create_directory(folder.Path("３"));
  QtFileDialog dialogs;
  WhileOpen(
      [&] {
        dialogs.AskOpen({.title = u"開く",
                         .filter = u"すべてのﾌｧｲﾙ (*.*)|*.*",
                         .folder = folder.Text(),
                         .fileName = u""});
      },
      [](QDialog& dialog) {
        QStringList words = ShownWords(dialog);
        EXPECT_EQ(EnglishWords(words), QStringList());
        for (const char* word :
             {"フォルダの場所(&L):", "ファイル名(&N):", "ファイルの種類(&T):", "名前", "サイズ", "種類",
              "更新日", "開く(&O)", "キャンセル", "読み取り専用で開く(&R)", "名前の変更(&R)", "削除(&D)",
              "隠しファイルの表示(&H)"}) {
          EXPECT_TRUE(words.contains(QString::fromUtf8(word))) << word;
        }
        fakes::SavePicture(dialog.grab().toImage(), QStringLiteral("FileDialogOpen"));
      });
}

// What stands painted in a cell; the row is found by its name.
QString CellOf(QTreeView& list, const QString& name, int column) {
  const auto* files = qobject_cast<const QFileSystemModel*>(list.model());
  const QModelIndex row = files->index(files->rootPath() + u'/' + name, column);
  struct Delegate : QStyledItemDelegate {
    using QStyledItemDelegate::initStyleOption;
  };
  QStyleOptionViewItem option;
  const auto* delegate = qobject_cast<const QStyledItemDelegate*>(list.itemDelegateForIndex(row));
  if (delegate != nullptr) (delegate->*&Delegate::initStyleOption)(&option, row);
  return option.text;
}

TEST_F(JapaneseLabels, OfSizesAndDatesOfFiles) {
  fakes::TemporaryFolder folder;
  folder.Write("a", "12");
  folder.Write("b", std::string(1234567, 'x'));
  std::filesystem::create_directory(folder.Path("c"));
  QtFileDialog dialogs;
  WhileOpen(
      [&] { dialogs.AskOpen({.title = u"開く", .filter = u"", .folder = folder.Text(), .fileName = u""}); },
      [](QDialog& dialog) {
        auto& list = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
        EXPECT_EQ(CellOf(list, QStringLiteral("a"), 1), QStringLiteral("2 バイト"));
        EXPECT_EQ(CellOf(list, QStringLiteral("b"), 1), QStringLiteral("1.2 MB"));
        EXPECT_EQ(CellOf(list, QStringLiteral("c"), 1), QString());
        const auto date = QRegularExpression(QStringLiteral("^\\d{4}/\\d\\d/\\d\\d \\d\\d:\\d\\d$"));
        EXPECT_TRUE(date.match(CellOf(list, QStringLiteral("a"), 3)).hasMatch());
      });
}

TEST_F(JapaneseLabels, OfTheSaveAndTheFolderDialog) {
  QtFileDialog dialogs;
  WhileOpen(
      [&] {
        dialogs.AskSave(
            {.title = u"保存", .filter = u"すべてのﾌｧｲﾙ (*.*)|*.*", .folder = u"/", .fileName = u""});
      },
      [](QDialog& dialog) {
        EXPECT_EQ(EnglishWords(ShownWords(dialog)), QStringList());
        EXPECT_EQ(ButtonsOf(dialog), (QStringList{QStringLiteral("保存(&S)"), QStringLiteral("キャンセル")}));
      });
  WhileOpen(
      [&] { dialogs.AskFolder(u"ﾌｫﾙﾀﾞの参照", u"/"); },
      [](QDialog& dialog) {
        EXPECT_EQ(EnglishWords(ShownWords(dialog)), QStringList());
        EXPECT_EQ(ButtonsOf(dialog), (QStringList{QStringLiteral("選択(&C)"), QStringLiteral("キャンセル")}));
        fakes::SavePicture(dialog.grab().toImage(), QStringLiteral("FileDialogFolder"));
      });
}

TEST_F(JapaneseLabels, OfKindsOfFiles) {
  EXPECT_EQ(EnglishWords({QMimeDatabase().mimeTypeForName(QStringLiteral("text/html")).comment()}),
            QStringList());
}

TEST_F(JapaneseLabels, OfEveryMessageBox) {
  const QStringList ok{QStringLiteral("OK(&O)")};
  const QStringList cancel{QStringLiteral("キャンセル(&C)")};
  const QStringList yesNo{QStringLiteral("はい(&Y)"), QStringLiteral("いいえ(&N)")};
  const std::pair<MessageButtons, QStringList> kinds[] = {{MessageButtons::Ok, ok},
                                                          {MessageButtons::OkCancel, ok + cancel},
                                                          {MessageButtons::YesNo, yesNo},
                                                          {MessageButtons::YesNoCancel, yesNo + cancel}};
  for (const auto& [kind, captions] : kinds) {
    QtMessageBox boxes;
    WhileOpen(
        [&, buttons = kind] {
          boxes.Ask({.text = u"変更を保存しますか?", .caption = u"保存", .buttons = buttons});
        },
        [&, expected = captions](QDialog& dialog) {
          QStringList shown = ButtonsOf(dialog);
          shown.sort();
          QStringList sorted = expected;
          sorted.sort();
          EXPECT_EQ(shown, sorted);
        });
  }
}

TEST_F(JapaneseLabels, OfTheStandardButtons) {
  QMessageBox box(QMessageBox::Question, QStringLiteral("題"), QStringLiteral("文"),
                  QMessageBox::StandardButtons(0x0FFFFC00));
  box.setDetailedText(QStringLiteral("詳細"));
  const QStringList words = WordsOf(box, QStringLiteral("StandardButtons"));
  EXPECT_EQ(EnglishWords(words), QStringList());
  EXPECT_GE(words.size(), 18);
}

TEST_F(JapaneseLabels, OfTheInputBox) {
  QtInputBox box;
  WhileOpen([&] { box.Ask(u"名前を入れて下さい", u"入力", u""); },
            [](QDialog& dialog) {
              EXPECT_EQ(ButtonsOf(dialog),
                        (QStringList{QStringLiteral("OK(&O)"), QStringLiteral("キャンセル(&C)")}));
              for (const QPushButton* button : dialog.findChildren<QPushButton*>())
                EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
            });
}

TEST_F(JapaneseLabels, TheInputBoxIsAsWideAsItsTitle) {
  QtInputBox box;
  WhileOpen([&] { box.Ask(u"?", u"新規作成 (拡張子のﾕｰｻﾞｰ指定)", u".txt"); },
            [](QDialog& dialog) {
              EXPECT_GE(dialog.width(), RoomForTitle(dialog));
              EXPECT_GE(RoomForTitle(dialog),
                        dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + 80);
              fakes::SavePicture(dialog.grab().toImage(), QStringLiteral("InputBox"));
            });
}

TEST_F(JapaneseLabels, OfTheColourDialog) {
  QColorDialog dialog;
  dialog.setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::ShowAlphaChannel);
  const QStringList words = WordsOf(dialog, QStringLiteral("ColorDialog"));
  EXPECT_EQ(EnglishWords(words), QStringList());
  EXPECT_TRUE(words.contains(QStringLiteral("基本カラー(&B)")));
}

TEST_F(JapaneseLabels, OfTheFontDialog) {
  QFontDialog dialog;
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  const QStringList words = WordsOf(dialog, QStringLiteral("FontDialog"));
  EXPECT_TRUE(words.contains(QStringLiteral("フォント(&F)")));
  const QStringList buttons = ButtonsOf(dialog);
  EXPECT_EQ(EnglishWords(words), QStringList());
  EXPECT_EQ(buttons, (QStringList{QStringLiteral("OK"), QStringLiteral("キャンセル")}));
}

TEST_F(JapaneseLabels, OfThePrintDialog) {
  QPrinter printer;
  QPrintDialog dialog(&printer);
  const QStringList words = WordsOf(dialog, QStringLiteral("PrintDialog"));
  EXPECT_TRUE(words.contains(QStringLiteral("印刷(&P)")));
  EXPECT_TRUE(words.contains(QStringLiteral("両面印刷")));
  EXPECT_EQ(EnglishWords(words), QStringList());
}

TEST_F(JapaneseLabels, OfTheMenuOfEveryField) {
  QLineEdit line(QStringLiteral("字"));
  QPlainTextEdit text(QStringLiteral("字"));
  for (QMenu* menu : {line.createStandardContextMenu(), text.createStandardContextMenu()}) {
    const std::unique_ptr<QMenu> owned(menu);
    QStringList captions;
    for (const QAction* action : menu->actions()) captions << action->text().section(u'\t', 0, 0);
    EXPECT_EQ(captions.value(0), QStringLiteral("元に戻す(&U)"));
    EXPECT_EQ(EnglishWords(captions), QStringList());
  }
}

TEST_F(JapaneseLabels, AreInstalledOnce) {
  const auto before = QCoreApplication::instance()->children().size();
  InstallJapaneseLabels();
  EXPECT_EQ(QCoreApplication::instance()->children().size(), before);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
