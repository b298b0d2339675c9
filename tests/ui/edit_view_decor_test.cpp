// Line numbers, position text, guide lines, line-end marks, colours, and what is repainted for a key.
#include <gtest/gtest.h>

#include <QPainter>
#include <QScreen>
#include <QScrollBar>

#include "tests/fakes/screens.hpp"
#include "tests/ui/edit_view_desk.hpp"
#include "ui/line_rows.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

bool HasColor(const QImage& image, const QColor& color) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == color) return true;
    }
  }
  return false;
}

// The colour of the most opaque pixel.
QColor InkColor(const QImage& image) {
  QColor ink(0, 0, 0, 0);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y).alpha() > ink.alpha()) ink = image.pixelColor(x, y);
    }
  }
  return ink;
}

void ExpectMarkColor(const QColor& color) {
  EXPECT_NEAR(color.red(), kLineEndColor.red(), 4);
  EXPECT_NEAR(color.green(), kLineEndColor.green(), 4);
  EXPECT_NEAR(color.blue(), kLineEndColor.blue(), 4);
}

// Sees what part of the viewport is painted.
class PaintWatch : public QObject {
 public:
  explicit PaintWatch(QWidget* widget) : widget_(widget) { widget->installEventFilter(this); }
  ~PaintWatch() override { widget_->removeEventFilter(this); }
  QRegion painted;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }

 private:
  QWidget* widget_;
};

TEST(GutterTexts, PositionAndLineNumbers) {
  EXPECT_EQ(PositionText(7, 120), u" 7 / 120");
  EXPECT_EQ(PositionText(1, 1), u" 1 / 1");
  EXPECT_EQ(LineNumberText(7), u"00007");
  EXPECT_EQ(LineNumberText(99999), u"99999");
  EXPECT_EQ(LineNumberText(1234567), u"1234567");
  EXPECT_EQ(LineNumberDigits(3), 5);
  EXPECT_EQ(LineNumberDigits(100000), 6);
}

TEST(EditViewDecor, ThePositionTextFollowsTheCaret) {
  EditViewDesk desk;
  desk.Put(u"a\nb‸\nc");
  EXPECT_EQ(desk.view.PositionDisplay().Text(), QStringLiteral(" 2 / 3"));
  desk.Press(u"{Down}");
  EXPECT_EQ(desk.view.PositionDisplay().Text(), QStringLiteral(" 3 / 3"));
  desk.Press(u"{Enter}");
  EXPECT_EQ(desk.view.PositionDisplay().Text(), QStringLiteral(" 4 / 4"));
}

TEST(EditViewDecor, TheGutterKnowsTheCaretsLineAndHidesItsMarkWithASelection) {
  EditViewDesk desk;
  desk.Put(u"a\nb‸\nc");
  EXPECT_EQ(desk.view.LineNumbers().State(), (GutterState{0, 3, 1, true}));
  desk.Press(u"{Shift+Left}");
  EXPECT_EQ(desk.view.LineNumbers().State(), (GutterState{0, 3, 1, false}));
}

TEST(EditViewDecor, TheCurrentNumberIsRedTheOthersAreGrey) {
  EditViewDesk desk;
  desk.Put(u"a\nb‸\nc");
  auto* gutter = desk.view.findChild<Gutter*>();
  const int row = desk.view.Style().rowHeight;
  const QImage picture = gutter->grab().toImage();
  EXPECT_TRUE(HasColor(picture.copy(0, row, gutter->width(), row), kCurrentLineNumberColor));
  EXPECT_FALSE(HasColor(picture.copy(0, 0, gutter->width(), row), kCurrentLineNumberColor));
  EXPECT_TRUE(HasColor(picture.copy(0, 0, gutter->width(), row), kLineNumberColor));
}

TEST(EditViewDecor, ACaretMoveRepaintsOnlyTheTwoNumbersConcerned) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 100; ++i) text += u"line\r\n";
  desk.PutText(text);
  desk.Settle();
  const int before = desk.view.LineNumbers().RowsPainted();
  desk.Press(u"{Down}");
  desk.Settle();
  EXPECT_LE(desk.view.LineNumbers().RowsPainted() - before, 3);
  EXPECT_GE(desk.view.LineNumbers().RowsPainted() - before, 2);
}

TEST(EditViewDecor, ManyLinesMakeTheGutterWider) {
  EditViewDesk desk;
  desk.PutText(u"a");
  const int narrow = desk.view.LineNumbers().width();
  std::u16string text;
  for (int i = 0; i < 100000; ++i) text += u"\r\n";
  desk.PutText(text);
  EXPECT_GT(desk.view.LineNumbers().width(), narrow);
}

TEST(EditViewDecor, ATypedCharacterRepaintsItsRowAlone) {
  EditViewDesk desk;
  desk.Put(u"one\ntwo‸\nthree\nfour");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.Press(u"x");
  desk.Settle();
  const int row = desk.view.Style().rowHeight;
  EXPECT_FALSE(watch.painted.isEmpty());
  EXPECT_TRUE(QRect(0, row, 2000, row).contains(watch.painted.boundingRect()));
}

TEST(EditViewDecor, WhatStandsLeftOfATypedCharacterIsNotPaintedAgain) {
  EditViewDesk desk;
  desk.Put(u"plain text before‸ and behind");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.Press(u"x");
  desk.Settle();
  const int caret = desk.view.CaretRect().left();
  const double cell = desk.view.Style().cell;
  EXPECT_GT(watch.painted.boundingRect().left(), caret - 4 * cell);
  EXPECT_LT(watch.painted.boundingRect().left(), caret - cell);
  EXPECT_EQ(watch.painted.boundingRect().right(), desk.view.viewport()->rect().right());
}

TEST(EditViewDecor, ALineThatIsShapedIsPaintedWhole) {
  EditViewDesk desk;
  desk.Put(u"か\u3099 text before‸ and behind");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.Press(u"x");
  desk.Settle();
  EXPECT_EQ(watch.painted.boundingRect().left(), 0);
}

TEST(EditViewDecor, ANewLineMovesTheRowsBelowInsteadOfPaintingThem) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 100; ++i) text += u"line\r\n";
  desk.PutText(text);
  desk.Press(u"{Down*3}{End}");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.Press(u"{Enter}");
  desk.Settle();
  const int row = desk.view.Style().rowHeight;
  EXPECT_FALSE(watch.painted.intersects(QRect(0, 6 * row, 2000, row)));
  EXPECT_TRUE(watch.painted.intersects(QRect(0, 4 * row, 2000, row)));
}

// After any edit the pixels on the screen are those of a view painted from nothing.
TEST(EditViewDecor, WhatWasMovedLooksAsIfItHadBeenPainted) {
  for (const bool guides : {false, true}) {
    EditViewDesk desk;
    desk.view.SetGuideLines(guides);
    std::u16string text;
    for (int i = 0; i < 60; ++i)
      text += u"行 " + ToText(i) + std::u16string(static_cast<std::size_t>(i), u'x') + u"\r\n";
    desk.PutText(text);
    QApplication::setCursorFlashTime(0);
    const char16_t* const scripts[] = {u"{Down*4}{Enter}",
                                       u"{Backspace}",
                                       u"{Up}{End}{Delete}",
                                       u"{Shift+Down*3}",
                                       u"{Delete}",
                                       u"{Ctrl+Z}",
                                       u"{PageDown}{Enter*3}",
                                       u"{Ctrl+Z}",
                                       u"{Ctrl+End}{Enter}a{Backspace*4}",
                                       u"{Ctrl+Home}{Enter}{Up}",
                                       u"{Ctrl+A}",
                                       u"{Down}{Shift+PageUp}",
                                       u"{Tab}",
                                       u"{Ctrl+End}{Up*8}{End}xyz{Enter}漢字",
                                       u"{Up*20}{Home}{Right*5}",
                                       u"a",
                                       u"漢",
                                       u"か",
                                       u"\u3099",
                                       u"b",
                                       u"{Left}{Backspace}",
                                       u"{Delete}",
                                       u"{Shift+Right}",
                                       u"c",
                                       u"{Ctrl+Z}",
                                       u"{End}d",
                                       u"{Backspace}"};
    for (const char16_t* script : scripts) {
      desk.Press(script);
      desk.Settle();
      QImage screen = desk.view.screen()->grabWindow(desk.view.winId()).toImage();
      const QImage fresh = desk.view.grab().toImage();
      ASSERT_FALSE(screen.isNull());
      EXPECT_TRUE(screen.convertToFormat(QImage::Format_RGB32) == fresh.convertToFormat(QImage::Format_RGB32))
          << "after " << ToUtf8(script) << (guides ? " with guides" : "");
      if (testing::Test::HasFailure()) {
        fakes::SavePicture(screen, QStringLiteral("EditView_moved"));
        fakes::SavePicture(fresh, QStringLiteral("EditView_moved_fresh"));
        return;
      }
    }
  }
}

TEST(EditViewDecor, GuideLinesStandAtTheCaretAndHideWithASelection) {
  EditViewDesk desk;
  desk.view.SetGuideLines(true);
  desk.Put(u"abc\nde‸f");
  desk.view.Flush();
  EXPECT_TRUE(desk.view.Guides().visible);
  EXPECT_EQ(desk.view.Guides().line, 1);
  desk.Press(u"{Shift+Left}");
  EXPECT_FALSE(desk.view.Guides().visible);
  desk.Press(u"{Right}{Up}");
  EXPECT_TRUE(desk.view.Guides().visible);
  EXPECT_EQ(desk.view.Guides().line, 0);
}

TEST(EditViewDecor, GuideLinesStayWhereTheyAreWhenTheFocusIsElsewhere) {
  EditViewDesk desk;
  desk.view.SetGuideLines(true);
  desk.Put(u"abc\nde‸f");
  const GuideLines before = desk.view.Guides();
  desk.view.clearFocus();
  desk.Control().EM_SETSEL(0, 0);
  desk.view.Flush();
  EXPECT_EQ(desk.view.Guides(), before);
}

TEST(EditViewDecor, GuideLinesHideWithASelectionMadeFromElsewhere) {
  EditViewDesk desk;
  desk.view.SetGuideLines(true);
  desk.Put(u"abc\nde‸f");
  desk.view.clearFocus();
  desk.Control().EM_SETSEL(0, 2);
  desk.view.Flush();
  EXPECT_FALSE(desk.view.Guides().visible);
}

TEST(EditViewDecor, ThePositionTextGoesWithTheLineNumbers) {
  EditViewDesk desk;
  desk.Put(u"a\nb‸");
  desk.view.InstallSubclass(0);
  EXPECT_FALSE(desk.view.LineNumbers().isVisible());
  EXPECT_FALSE(desk.view.PositionDisplay().isVisible());
  EXPECT_EQ(desk.view.viewport()->geometry().topLeft(), desk.view.contentsRect().topLeft());
  desk.Press(u"{Up}");
  desk.view.InstallSubclass(1);
  desk.Settle();
  EXPECT_TRUE(desk.view.LineNumbers().isVisible());
  EXPECT_TRUE(desk.view.PositionDisplay().isVisible());
  EXPECT_EQ(desk.view.PositionDisplay().Text(), QStringLiteral(" 1 / 2"));
  EXPECT_EQ(desk.view.LineNumbers().State().caretLine, 0);
}

TEST(EditViewDecor, WithoutTheSubclassTheTextIsBare) {
  EditViewDesk desk;
  desk.view.SetGuideLines(true);
  desk.Put(u"abc\nde‸f");
  const QImage dressed = desk.view.grab().toImage();
  desk.view.InstallSubclass(0);
  desk.Settle();
  EXPECT_FALSE(desk.text.Subclassed());
  EXPECT_EQ(desk.text.ExpandTabs(u"\t"), u"\t");
  EXPECT_FALSE(desk.view.LineNumbers().isVisible());
  EXPECT_FALSE(desk.view.PositionDisplay().isVisible());
  EXPECT_FALSE(desk.view.LineEndMarksShown());
  EXPECT_FALSE(desk.view.GuideLinesShown());
  EXPECT_EQ(desk.view.viewport()->x(), desk.view.contentsRect().x());
  const QImage bare = desk.view.viewport()->grab().toImage();
  EXPECT_FALSE(HasColor(bare, kLineEndColor));
  desk.view.SetGuideLines(true);
  desk.Settle();
  EXPECT_TRUE(desk.view.viewport()->grab().toImage() == bare)
      << "guide lines stay hidden without the subclass";
  desk.view.InstallSubclass(1);
  desk.Settle();
  EXPECT_EQ(desk.text.ExpandTabs(u"\t"), u"    ");
  EXPECT_TRUE(desk.view.grab().toImage() == dressed);
}

TEST(EditViewDecor, LineEndMarksAreOffInAProportionalFont) {
  EditViewDesk desk;
  EXPECT_TRUE(desk.view.LineEndMarksShown());
  desk.view.SetTextFont(u"ＭＳ Ｐゴシック", 14);
  desk.view.SetLineEndMarks(true, 0);
  EXPECT_FALSE(desk.view.LineEndMarksShown());
  desk.view.SetTextFont(u"ＭＳ 明朝", 14);
  EXPECT_TRUE(desk.view.LineEndMarksShown());
  desk.view.SetLineEndMarks(false, 0);
  EXPECT_FALSE(desk.view.LineEndMarksShown());
}

TEST(EditViewDecor, TheMarkOfTheLastLineIsAnotherOne) {
  EditViewDesk desk;
  desk.Put(u"abc\nabc‸");
  const int row = desk.view.Style().rowHeight;
  const int x = desk.view.RectOf(3).left();
  const QImage picture = desk.view.viewport()->grab().toImage();
  const QImage first = picture.copy(x + 4, 0, 40, row);
  const QImage last = picture.copy(x + 4, row, 40, row);
  EXPECT_NE(first, last);
  desk.view.SetLineEndMarks(false, 0);
  EXPECT_NE(desk.view.viewport()->grab().toImage().copy(x + 4, 0, 40, row), first);
}

TEST(LineEndMarks, ThePictureHasTwoCellsInTheMarksColour) {
  QFont font(QStringLiteral("IPAGothic"));
  font.setPixelSize(18);
  for (const double ratio : {1.0, 1.5, 2.0}) {
    LineEndMarks marks;
    marks.BuildMarkImage(font, 0, ratio);
    EXPECT_EQ(marks.CellSize(), QSizeF(27, 13));
    EXPECT_EQ(marks.Picture().height(), std::ceil(13 * ratio));
    const QImage picture = marks.Picture().toImage();
    const auto column = static_cast<int>(kReturnColumn * ratio);
    ExpectMarkColor(InkColor(picture.copy(0, 0, column, picture.height())));
    ExpectMarkColor(InkColor(picture.copy(column, 0, picture.width() - column, picture.height())));
    LineEndMarks stroke;
    stroke.BuildMarkImage(font, 1, ratio);
    EXPECT_EQ(stroke.Picture().toImage().copy(0, 0, column, picture.height()),
              picture.copy(0, 0, column, picture.height()));
    EXPECT_NE(stroke.Picture().toImage(), picture);
  }
}

TEST(EditViewDecor, TheCaretsPixelIsUnknownOutsideOfWhatShows) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 100; ++i) text += u"line\r\n";
  desk.PutText(text);
  desk.Press(u"{Down}");
  const QPoint shown = desk.view.GetCaretPixel();
  const QPoint top = desk.view.viewport()->mapToGlobal(QPoint(0, 0));
  EXPECT_EQ(shown.y() - top.y(), 2 * desk.view.Style().rowHeight);
  desk.view.SetScrollPosition({50, 0});
  EXPECT_EQ(desk.view.GetCaretPixel(), QPoint(-9999, -9999));
  desk.view.EnsureCaretVisible();
  EXPECT_NE(desk.view.GetCaretPixel(), QPoint(-9999, -9999));
}

TEST(EditViewDecor, AScrollPositionToldWhileNothingIsPaintedHoldsForTheNewText) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 400; ++i) text += u"line\r\n";
  desk.desk.control.WM_SETREDRAW(false);
  desk.desk.control.SetText(std::move(text));
  desk.view.SetScrollPosition({.firstLine = 154, .x = 0});
  desk.desk.control.WM_SETREDRAW(true);
  desk.view.Flush();
  EXPECT_EQ(desk.view.ScrollPosition().firstLine, 154);
}

TEST(EditViewDecor, TheScrollPositionIsKeptAndRestored) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 300; ++i) text += u"line\r\n";
  desk.PutText(text);
  desk.view.SetScrollPosition({120, 300});
  const EditView::ScrollState state = desk.view.ScrollPosition();
  EXPECT_EQ(state.firstLine, 120);
  EXPECT_EQ(state.x, 300);
}

TEST(EditViewDecor, LinesPutInAboveDoNotMoveWhatShows) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 300; ++i) text += u"line " + ToText(i) + u"\r\n";
  desk.PutText(text);
  desk.view.SetScrollPosition({120, 0});
  desk.Settle();
  const QImage before = desk.view.viewport()->grab().toImage();
  desk.Control().EM_SETSEL(10, 10);
  desk.Control().EM_REPLACESEL(true, u"\r\nx\r\ny");
  desk.Settle();
  EXPECT_EQ(desk.view.FirstVisibleLine(), 122);
  EXPECT_EQ(desk.view.viewport()->grab().toImage(), before);
}

TEST(EditViewDecor, LinesThatGoAboveNearTheEndOfTheTextArePaintedAnew) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 120; ++i) text += u"line " + ToText(i) + u"\r\n";
  desk.PutText(text);
  EditControl& control = desk.Control();
  control.SetSelStart(control.LineStart(100));
  desk.Settle();
  std::u16string more;
  for (int i = 0; i < 10; ++i) more += u"more " + ToText(i) + u"\r\n";
  desk.text.ReplaceSelHwnd(more, true, true);
  desk.Settle();
  desk.view.verticalScrollBar()->setValue(desk.view.verticalScrollBar()->maximum());
  desk.Settle();
  desk.text.MenUNDO(0);
  desk.Settle();
  const QImage screen = desk.view.screen()->grabWindow(desk.view.winId()).toImage();
  const QImage fresh = desk.view.grab().toImage();
  EXPECT_EQ(screen.convertToFormat(QImage::Format_RGB32), fresh.convertToFormat(QImage::Format_RGB32));
}

TEST(EditViewDecor, NothingIsPaintedWhileRedrawIsOff) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.Control().WM_SETREDRAW(false);
  desk.Control().WM_CHAR(u'x');
  desk.Settle();
  EXPECT_TRUE(watch.painted.isEmpty());
  desk.Control().WM_SETREDRAW(true);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !watch.painted.isEmpty(); }, 2000));
}

TEST(EditViewDecor, NothingIsPaintedWhileTheTextIsHidden) {
  EditViewDesk desk;
  desk.Put(u"abc‸");
  desk.Settle();
  PaintWatch watch(desk.view.viewport());
  desk.view.SetTextHidden(true);
  desk.Control().WM_CHAR(u'x');
  QCoreApplication::processEvents();
  EXPECT_TRUE(watch.painted.isEmpty());
  desk.view.SetTextHidden(false);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !watch.painted.isEmpty(); }, 2000));
}

TEST(EditViewDecor, ANewTextShowsFromItsTop) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 300; ++i) text += std::u16string(200, u'x') + u"\r\n";
  desk.PutText(text);
  desk.view.SetScrollPosition({200, 400});
  desk.PutText(text + u"more");
  EXPECT_EQ(desk.view.ScrollPosition().firstLine, 0);
  EXPECT_EQ(desk.view.ScrollPosition().x, 0);
}

TEST(EditViewDecor, AShortTextAfterALongOneLeavesNothingToScroll) {
  EditViewDesk desk;
  const QScrollBar& across = *desk.view.horizontalScrollBar();
  const QScrollBar& down = *desk.view.verticalScrollBar();
  std::u16string text;
  for (int i = 0; i < 300; ++i) text += std::u16string(200, u'x') + u"\r\n";
  desk.PutText(text);
  desk.Settle();
  EXPECT_GT(down.maximum(), 200);
  EXPECT_GT(across.maximum(), 400);
  EXPECT_TRUE(across.isVisible());
  desk.view.SetScrollPosition({200, 400});
  desk.PutText(u"short");
  desk.Settle();
  EXPECT_EQ(down.maximum(), 0);
  EXPECT_EQ(across.maximum(), 0);
  EXPECT_TRUE(down.isVisible());
  EXPECT_FALSE(across.isVisible());
  EXPECT_EQ(desk.view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
  EXPECT_EQ(desk.view.horizontalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
}

TEST(EditViewDecor, TheCaretShowsAgainWhenItIsScrolledBackIntoSight) {
  EditViewDesk desk;
  std::u16string text;
  for (int i = 0; i < 300; ++i) text += u"\r\n";
  desk.PutText(text);
  desk.Press(u"{Down*3}");
  QScrollBar& bar = *desk.view.verticalScrollBar();
  const auto shown = [&] {
    const QPoint middle = desk.view.CaretRect().center();
    return desk.view.viewport()->grab().toImage().pixelColor(middle) ==
           desk.view.palette().color(QPalette::Text);
  };
  ASSERT_TRUE(shown());
  for (const bool flushed : {false, true}) {
    bar.setValue(250);
    if (flushed) {
      desk.view.SetLineEndMarks(false, 0);
      desk.view.SetGuideLines(false);
      desk.Settle();
    }
    bar.setValue(8);
    bar.setValue(2);
    EXPECT_TRUE(shown()) << flushed;
  }
}

// ---- rows of very many lines

TEST(LineRows, FarLinesStayOnTheirSideWithoutOverflow) {
  constexpr std::int32_t kMany = 1'000'000'000;
  EXPECT_EQ(RowTopOf(7, 5, 22), 44);
  EXPECT_EQ(RowTopOf(5, 7, 22), -44);
  EXPECT_EQ(RowTopOf(kMany + 2, kMany, 22), 44);
  EXPECT_EQ(RowTopOf(kMany, 0, 22), kFarAway);
  EXPECT_EQ(RowTopOf(0, kMany, 22), -kFarAway);
  EXPECT_EQ(RowTopOf(INT32_MAX, 0, 200), kFarAway);
  EXPECT_EQ(HeightOfRows(-kMany, 22), -kFarAway);
  EXPECT_EQ(NearPixels(2e10), kFarAway);
  EXPECT_EQ(NearPixels(-2e10), -kFarAway);
}

TEST(Gutter, ShowsABillionLines) {
  constexpr std::int32_t kMany = 1'000'000'000;
  QFont font(QStringLiteral("IPAGothic"));
  font.setPixelSize(18);
  Gutter gutter(nullptr);
  gutter.SetStyle(MakeTextStyle(font));
  gutter.resize(gutter.WidthFor(kMany), 200);
  gutter.show();
  gutter.Show({.firstLine = 0, .lineCount = kMany, .caretLine = 0});
  const QImage top = gutter.grab().toImage();
  PaintWatch watch(&gutter);
  gutter.Show({.firstLine = kMany - 3, .lineCount = kMany, .caretLine = kMany - 1});
  EXPECT_TRUE(QTest::qWaitFor([&] { return watch.painted.contains(gutter.rect()); }, 2000));
  EXPECT_NE(gutter.grab().toImage(), top);
}

// ---- colours

TEST(ColorSchemes, WordsOfTheLabelNameTheColours) {
  struct Row {
    const char16_t* label;
    SchemeColor fore, back, guide;
  };
  const Row rows[] = {
      {u"01. 白．黒", {255, 255, 255}, {0, 0, 0}, {255, 180, 180}},
      {u"02. 青．黒", {0, 0, 255}, {0, 0, 0}, {255, 180, 180}},
      {u"03. 緑．黒", {0, 255, 0}, {0, 0, 0}, {255, 180, 180}},
      {u"04. 黄．灰", {255, 255, 0}, {100, 100, 100}, {220, 220, 255}},
      {u"05. 黒．白", {0, 0, 0}, {255, 255, 255}, {180, 180, 180}},
      {u"06. 青．白", {0, 0, 255}, {255, 255, 255}, {180, 180, 180}},
      {u"07. 白．青", {255, 255, 255}, {0, 0, 255}, {150, 150, 255}},
      {u"08. 灰．青", {170, 170, 170}, {0, 0, 255}, {150, 150, 255}},
  };
  for (const Row& row : rows) {
    const ColorScheme scheme = ReadColorScheme(row.label);
    EXPECT_EQ(scheme.name, row.label);
    EXPECT_EQ(scheme.fore, row.fore) << ToUtf8(row.label);
    EXPECT_EQ(scheme.back, row.back) << ToUtf8(row.label);
    EXPECT_EQ(scheme.guide, row.guide) << ToUtf8(row.label);
    EXPECT_FALSE(scheme.fromPalette);
  }
}

TEST(ColorSchemes, UnknownWordsFallBackAndShowTheDefaultLabel) {
  const ColorScheme fore = ReadColorScheme(u"09. 赤．白");
  EXPECT_EQ(fore.name, u"00. ﾃﾞﾌｫﾙﾄ");
  EXPECT_EQ(fore.fore, (SchemeColor{150, 150, 150}));
  EXPECT_EQ(fore.back, (SchemeColor{255, 255, 255}));
  const ColorScheme back = ReadColorScheme(u"09. 白．緑");
  EXPECT_EQ(back.name, u"00. ﾃﾞﾌｫﾙﾄ");
  EXPECT_EQ(back.back, (SchemeColor{0, 0, 0}));
  EXPECT_EQ(back.guide, (SchemeColor{100, 100, 100}));
  EXPECT_FALSE(back.fromPalette);
  EXPECT_EQ(ReadColorScheme(u"").name, u"00. ﾃﾞﾌｫﾙﾄ");
}

TEST(ColorSchemes, TheDefaultLabelTakesTheDesktopsColours) {
  EditViewDesk desk;
  desk.Put(u"‸");
  desk.view.SetColorScheme(ReadColorScheme(u"00. ﾃﾞﾌｫﾙﾄ"));
  EXPECT_EQ(desk.view.viewport()->grab().toImage().pixelColor(300, 200),
            desk.view.palette().color(QPalette::Base));
  desk.view.SetColorScheme(ReadColorScheme(u"07. 白．青"));
  EXPECT_EQ(desk.view.viewport()->grab().toImage().pixelColor(300, 200), QColor(0, 0, 255));
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
