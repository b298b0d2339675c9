#include "browse/forms/FileListFrm.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <QTreeView>

#include "platform/qt/qt_text.hpp"
#include "tests/browse/file_list_desk.hpp"
#include "tests/fakes/screens.hpp"

namespace kestri {
namespace {

constexpr FileListStart kRecent{.view = FileListView::Recent};
constexpr FileListStart kNew{.view = FileListView::New};
constexpr FileListStart kNewGrey{.view = FileListView::New, .startBoxGrey = true};

class FileListFrmTest : public ::testing::Test, protected FileListDesk {
 protected:
  FileListFrmTest() {
    PutRecent(u"/home/author/pages/日記.htm", 4321);
    PutRecent(u"/home/author/pages/style.css", 999);
    PutRecent(u"/home/author/pages/index.htm", 1234567);
    FileHistory(common).RegisterHistory(u"/media/usb/消えたページ.htm");
    owner.show();
  }

  FileListFrm& Show(FileListStart start) {
    form = std::make_unique<FileListFrm>(list, start, &owner);
    form->show();
    QApplication::setActiveWindow(form.get());
    QApplication::processEvents();
    return *form;
  }
  TwoStyleList& Shown() const {
    return form->Option1(FileListView::New).isChecked() ? form->FormatView() : form->FileView();
  }
  static std::string Name(const TwoStyleList& view, int row) {
    return view.Model().index(row, 0).data().toString().toStdString();
  }
  void Press(int key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
  }
  void DoubleClick(int row) {
    QAbstractItemView& view = Shown().ShownView();
    const QPoint at = view.visualRect(view.model()->index(row, 0)).center();
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at);
  }

  QMainWindow owner;
  std::unique_ptr<FileListFrm> form;
};

TEST_F(FileListFrmTest, OpensOnTheAskedViewUnderItsCaption) {
  Show(kRecent);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("最近使用したﾌｧｲﾙ"));
  EXPECT_TRUE(form->FileView().isVisible());
  EXPECT_FALSE(form->FormatView().isVisible());
  Show(kNew);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("新規作成"));
  EXPECT_FALSE(form->FileView().isVisible());
  EXPECT_TRUE(form->FormatView().isVisible());
}

TEST_F(FileListFrmTest, ControlsCarryTheirCaptions) {
  Show(kRecent);
  EXPECT_EQ(form->Option1(FileListView::Recent).text(), QStringLiteral("最近使用したﾌｧｲﾙ(&L)"));
  EXPECT_EQ(form->Option1(FileListView::New).text(), QStringLiteral("新規作成(&N)"));
  EXPECT_EQ(form->Check1().text(), QStringLiteral("起動時にこのｳｨﾝﾄﾞｳを表示する(&W)"));
  EXPECT_EQ(form->Check2().text(), QStringLiteral("詳細"));
  EXPECT_EQ(form->HotButton1(0).text(), QStringLiteral("&OK"));
  EXPECT_EQ(form->HotButton1(1).text(), QStringLiteral("&CANCEL"));
}

TEST_F(FileListFrmTest, ReturnAtOnceOpensTheNewestFile) {
  Show(kRecent);
  Press(Qt::Key_Return);
  EXPECT_EQ(opened, std::vector<std::u16string>{u"/media/usb/消えたページ.htm"});
  EXPECT_FALSE(form->isVisible());
}

TEST_F(FileListFrmTest, ReturnChoosesTheSelectedRowInBothStyles) {
  for (const bool details : {false, true}) {
    Set(u"ViweS", details ? u"1" : u"0");
    Show(kRecent);
    Press(details ? Qt::Key_Down : Qt::Key_Right);
    Press(Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
  }
  const std::u16string index = u"/home/author/pages/index.htm";
  EXPECT_EQ(opened, (std::vector<std::u16string>{index, index}));
}

TEST_F(FileListFrmTest, DoubleClickChoosesOnceInBothStyles) {
  for (const bool details : {false, true}) {
    Set(u"ViweS", details ? u"1" : u"0");
    Show(kNew);
    DoubleClick(3);
    EXPECT_FALSE(form->isVisible());
  }
  EXPECT_EQ(made, (std::vector<std::int16_t>{3, 3}));
}

TEST_F(FileListFrmTest, OkButtonChoosesAndCancelAndEscapeDoNot) {
  Show(kNew);
  QTest::mouseClick(&form->HotButton1(1), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  Show(kNew);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_TRUE(made.empty());
  Show(kNew);
  QTest::mouseClick(&form->HotButton1(0), Qt::LeftButton);
  EXPECT_EQ(made, std::vector<std::int16_t>{0});
}

TEST_F(FileListFrmTest, StaysWhenNothingWasOpenedOrMade) {
  answer = false;
  Show(kRecent);
  Press(Qt::Key_Return);
  EXPECT_TRUE(form->isVisible());
  form->Option1(FileListView::New).click();
  QTest::mouseClick(&form->HotButton1(0), Qt::LeftButton);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(opened.size() + made.size(), 2u);
}

TEST_F(FileListFrmTest, EmptyListBeepsAndStays) {
  FileHistory(common).Clear();
  Show(kRecent);
  Press(Qt::Key_Return);
  EXPECT_EQ(services.beeps, 1);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(FileListFrmTest, OptionsMnemonicLeadsIntoItsList) {
  Show(kRecent);
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("新規作成"));
  EXPECT_TRUE(form->FormatView().ShownView().hasFocus());
  Press(Qt::Key_Right);
  Press(Qt::Key_L, Qt::AltModifier);
  EXPECT_EQ(form->windowTitle(), QStringLiteral("最近使用したﾌｧｲﾙ"));
  Press(Qt::Key_N, Qt::AltModifier);
  EXPECT_EQ(form->FormatView().SelectedRow(), std::optional<std::size_t>(1));
  EXPECT_EQ(form->FormatView().Model().rowCount(), 15);
  Press(Qt::Key_Return);
  EXPECT_EQ(made, std::vector<std::int16_t>{1});
}

TEST_F(FileListFrmTest, ReportHasTheColumnsAndCells) {
  Set(u"ViweS", u"1");
  Show(kRecent);
  const auto& view = dynamic_cast<QTreeView&>(form->FileView().ShownView());
  const QAbstractItemModel& model = *view.model();
  EXPECT_EQ(model.headerData(3, Qt::Horizontal).toString(), QStringLiteral("FilePath"));
  EXPECT_EQ(model.index(0, 1).data().toString(), QStringLiteral("???"));
  EXPECT_EQ(model.index(0, 2).data().toString(), QStringLiteral("???KB"));
  EXPECT_EQ(model.index(1, 2).data().toString(), QStringLiteral("1,234.57KB"));
  EXPECT_EQ(model.index(2, 2).data().toString(), QStringLiteral("1.00KB"));
  EXPECT_EQ(model.index(3, 3).data().toString(), QStringLiteral("/home/author/pages/日記.htm"));
  for (int row = 0; row < 4; ++row) EXPECT_FALSE(model.index(row, 0).data(Qt::DecorationRole).isNull());
}

TEST_F(FileListFrmTest, DetailsBoxSwitchesTheStyleAndKeepsTheSelection) {
  Show(kNew);
  Press(Qt::Key_Right);
  EXPECT_EQ(form->FormatView().CurrentStyle(), TwoStyleList::Style::LargeIcons);
  form->Check2().click();
  EXPECT_EQ(form->FormatView().CurrentStyle(), TwoStyleList::Style::Report);
  EXPECT_EQ(form->FileView().CurrentStyle(), TwoStyleList::Style::Report);
  EXPECT_EQ(form->FormatView().SelectedRow(), std::optional<std::size_t>(1));
  form->reject();
  EXPECT_EQ(Setting(u"ViweS"), u"1");
}

TEST_F(FileListFrmTest, StartBoxIsKeptHoweverTheDialogCloses) {
  Show(kRecent);
  EXPECT_EQ(form->Check1().checkState(), Qt::Unchecked);
  Press(Qt::Key_W, Qt::AltModifier);
  QTRY_COMPARE_WITH_TIMEOUT(form->Check1().checkState(), Qt::Checked, 2000);
  Press(Qt::Key_Escape);
  EXPECT_EQ(Setting(u"WinF"), u"1");
  Show(kRecent);
  EXPECT_EQ(form->Check1().checkState(), Qt::Checked);
  form->Check1().click();
  form->close();
  EXPECT_EQ(Setting(u"WinF"), u"0");
}

TEST_F(FileListFrmTest, GreyStartBoxIsWrittenOnlyOnceItWasClicked) {
  Set(u"WinF", u"1");
  Show(kNewGrey);
  EXPECT_EQ(form->Check1().checkState(), Qt::PartiallyChecked);
  form->reject();
  EXPECT_EQ(Setting(u"WinF"), u"1");
  Set(u"WinF", u"0");
  Show(kNewGrey);
  form->Check1().click();
  EXPECT_EQ(form->Check1().checkState(), Qt::Checked);
  form->Check1().click();
  EXPECT_EQ(form->Check1().checkState(), Qt::Unchecked);
  form->Check1().click();
  form->reject();
  EXPECT_EQ(Setting(u"WinF"), u"1");
}

QPalette Dark() {
  QPalette palette;
  const QColor window(0x2B, 0x2D, 0x30);
  for (const auto& [role, color] : std::initializer_list<std::pair<QPalette::ColorRole, QColor>>{
           {QPalette::Window, window},
           {QPalette::Base, QColor(0x1E, 0x1F, 0x22)},
           {QPalette::AlternateBase, QColor(0x26, 0x28, 0x2B)},
           {QPalette::Button, QColor(0x3A, 0x3D, 0x41)},
           {QPalette::WindowText, QColor(0xDF, 0xE1, 0xE5)},
           {QPalette::Text, QColor(0xDF, 0xE1, 0xE5)},
           {QPalette::ButtonText, QColor(0xDF, 0xE1, 0xE5)},
           {QPalette::Highlight, QColor(0x2F, 0x65, 0xCA)},
           {QPalette::HighlightedText, QColor(Qt::white)},
       })
    palette.setColor(role, color);
  return palette;
}

TEST_F(FileListFrmTest, PicturesInBothViewsAndStylesOnLightAndDarkAtBothSizes) {
  for (const int kind : {2, 3, 4, 5, 13, 14}) PutTemplate(kind);
  const QPalette light = QApplication::palette();
  for (const bool isDark : {false, true}) {
    QApplication::setPalette(isDark ? Dark() : light);
    for (const FileListStart start : {kRecent, kNewGrey}) {
      for (const bool details : {false, true}) {
        Set(u"ViweS", details ? u"1" : u"0");
        Show(start);
        for (const int scale : {1, 2}) {
          QImage picture(form->size() * scale, QImage::Format_ARGB32_Premultiplied);
          picture.setDevicePixelRatio(scale);
          form->render(&picture);
          fakes::SavePicture(picture, QStringLiteral("FileListFrm_%1_%2_%3_%4")
                                          .arg(start.view == FileListView::New ? "new" : "recent")
                                          .arg(details ? "report" : "icons")
                                          .arg(isDark ? "dark" : "light")
                                          .arg(scale * 100));
        }
      }
    }
  }
  QApplication::setPalette(light);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
