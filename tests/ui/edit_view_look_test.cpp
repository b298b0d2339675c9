// Pictures of the view for a person to look at, in the folder screens; what can be measured in them is
// asserted.
#include <gtest/gtest.h>

#include <QDir>
#include <QPainter>

#include "tests/fakes/screens.hpp"
#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

QImage Picture(EditViewDesk& desk, const char* name) {
  desk.Settle();
  fakes::SavePicture(desk.view.grab().toImage(), QStringLiteral("EditView_") + QLatin1String(name));
  return desk.view.viewport()->grab().toImage();
}

// Rows of the viewport in which something stands out from the background.
int InkedRows(EditViewDesk& desk, const QImage& picture, const QColor& back) {
  const int height = desk.view.Style().rowHeight;
  int rows = 0;
  for (int top = 0; top + height <= picture.height(); top += height) {
    bool ink = false;
    for (int y = top; y < top + height && !ink; ++y) {
      for (int x = 0; x < picture.width() && !ink; ++x) ink = picture.pixelColor(x, y) != back;
    }
    rows += ink ? 1 : 0;
  }
  return rows;
}

const char16_t* const kPage =
    u"<html lang=\"ja\">\n<head>\n\t<title>日本語のページ</title>\n</head>\n<body>\n"
    u"　全角の空白から始まる段落。漢字、ひらがな、カタカナ、ｶﾅ。\n"
    u"abcdefghijklmnopqrstuvwxyz\nあいうえおかきくけこさしす\n"
    u"サロゲート 𠮷野家 と 😀、結合 か\u3099 e\u0301\n制御\rと\v文字\u200E\n</body>\n</html>";
constexpr int kPageRows = 12;

TEST(EditViewLook, APageOnALightDesktop) {
  EditViewDesk desk;
  desk.Put(kPage);
  desk.Press(u"{Ctrl+Home}{Down*4}{Right*3}");
  EXPECT_EQ(InkedRows(desk, Picture(desk, "page"), desk.view.palette().color(QPalette::Base)), kPageRows);
}

TEST(EditViewLook, ABarePageWithoutTheSubclass) {
  EditViewDesk desk;
  desk.view.SetGuideLines(true);
  desk.Put(kPage);
  desk.view.InstallSubclass(0);
  const QImage picture = Picture(desk, "bare");
  EXPECT_EQ(InkedRows(desk, picture, desk.view.palette().color(QPalette::Base)), kPageRows);
  EXPECT_GT(picture.width(), desk.view.width() - 30) << "the text begins at the window's left edge";
}

TEST(EditViewLook, GuideLinesCrossAtTheCaret) {
  EditViewDesk desk;
  desk.Put(kPage);
  const QImage plain = Picture(desk, "plain");
  desk.view.SetGuideLines(true);
  desk.view.SetLineEndMarks(true, 1);
  desk.Press(u"{Ctrl+Home}{Down*6}{Right*3}");
  const QImage decorated = Picture(desk, "guides");
  EXPECT_NE(decorated, plain);
  EXPECT_NE(decorated.pixelColor(500, 7 * desk.view.Style().rowHeight - 1), plain.pixelColor(500, 1));
}

TEST(EditViewLook, ASelectionTakesTheLineEndsWithIt) {
  EditViewDesk desk;
  desk.view.SetColorScheme(ReadColorScheme(u"07. 白．青"));
  desk.Put(kPage);
  desk.Press(u"{Ctrl+Home}{Down*6}{Right*3}{Shift+Down*3}");
  const QImage picture = Picture(desk, "selection");
  const QRect lineEnd = desk.view.RectOf(desk.Control().LineEnd(7));
  const QColor selected = desk.view.palette().color(QPalette::Highlight);
  EXPECT_EQ(picture.pixelColor(lineEnd.left() + 1, lineEnd.top() + 1), selected);
  EXPECT_EQ(picture.pixelColor(300, 350), QColor(0, 0, 255)) << "below the selection";
}

TEST(EditViewLook, ThePreeditIsUnderlinedInItsLine) {
  EditViewDesk desk;
  desk.Put(u"<p>今日は‸です。</p>");
  const QImage before = Picture(desk, "before_preedit");
  QTextCharFormat target;
  target.setBackground(desk.view.palette().highlight());
  target.setForeground(desk.view.palette().highlightedText());
  QInputMethodEvent event(QStringLiteral("良い天気"), {{QInputMethodEvent::Cursor, 2, 1, QVariant()},
                                                       {QInputMethodEvent::TextFormat, 0, 2, target}});
  QApplication::sendEvent(&desk.view, &event);
  EXPECT_NE(Picture(desk, "preedit"), before);
}

TEST(EditViewLook, ADarkDesktop) {
  EditViewDesk desk;
  QPalette dark;
  dark.setColor(QPalette::Base, QColor(30, 30, 34));
  dark.setColor(QPalette::Text, QColor(222, 222, 222));
  dark.setColor(QPalette::Window, QColor(45, 45, 50));
  dark.setColor(QPalette::WindowText, QColor(222, 222, 222));
  desk.view.setPalette(dark);
  desk.view.SetGuideLines(true);
  desk.Put(kPage);
  desk.Press(u"{Ctrl+Home}{Down*8}{Right*3}");
  const QImage picture = Picture(desk, "dark");
  EXPECT_EQ(picture.pixelColor(500, 300), QColor(30, 30, 34));
}

TEST(EditViewLook, LargeTextAndALongLine) {
  EditViewDesk desk;
  desk.view.SetTextFont(u"ＭＳ ゴシック", 28);
  std::u16string text = u"短い行\r\n";
  for (int i = 0; i < 2000; ++i) text += u"<td>漢字</td>";
  for (int i = 0; i < 120000; ++i) text += u"\r\n";
  desk.PutText(text);
  desk.Control().SetSelStart(5000);
  desk.view.ScrollCaret();
  const QImage picture = Picture(desk, "large");
  EXPECT_TRUE(desk.view.viewport()->rect().contains(desk.view.CaretRect()));
  EXPECT_GT(desk.view.ScrollPosition().x, 0);
}

TEST(EditViewLook, AtTwiceTheResolution) {
  EditViewDesk desk;
  desk.Put(kPage);
  QImage picture(desk.view.size() * 2, QImage::Format_RGB32);
  picture.setDevicePixelRatio(2);
  desk.view.render(&picture);
  fakes::SavePicture(picture, QStringLiteral("EditView_double"));
  EXPECT_EQ(picture.width(), 1280);
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
