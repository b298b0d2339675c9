// Text that is set glyph by glyph stands and looks as the toolkit's own layout of it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "shell/common/text.hpp"
#include "tests/ui/edit_view_desk.hpp"
#include "ui/plain_text.hpp"
#include "ui/shaped_text.hpp"

namespace kestri {
namespace {

constexpr int kWidth = 700;

TextStyle Style(const char* family, int pixels) {
  QFont font(QString::fromLatin1(family));
  font.setStyleHint(QFont::Monospace);
  font.setKerning(false);
  font.setPixelSize(pixels);
  return MakeTextStyle(font);
}

QImage Picture(const LaidOutText& text, const TextStyle& style, TextPaint paint, double scale = 1) {
  QImage image(static_cast<int>(kWidth * scale), static_cast<int>(style.rowHeight * scale),
               QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setClipRect(QRectF(paint.left, 0, paint.right - paint.left, style.rowHeight));
  text.Draw(painter, paint);
  return image;
}

TextPaint Whole() {
  return {.origin = QPointF(0, 0), .left = 0, .right = kWidth, .fore = Qt::black, .selectionFore = Qt::red};
}

const std::vector<QString>& PlainRows() {
  static const std::vector<QString> rows = {
      QString(),
      QStringLiteral("<p class=\"note\">plain text &amp; signs {}[]()+-*/=!?</p>"),
      QStringLiteral("\t<a href=\"x\">\t日本語の文章、ｶﾅ　と　空白。</a>  "),
      QStringLiteral("§ ΑΒΓαβγ Русский ※①Ⅱ㎡〒→■♪（）「」ー〜＝～"),
  };
  return rows;
}

TEST(LaidOutText, PlainTextStandsWhereShapedTextStands) {
  for (const int pixels : {9, 12, 14, 18, 24, 40}) {
    const TextStyle style = Style("IPAGothic", pixels);
    for (const QString& row : PlainRows()) {
      const auto plain = PlainText::Of(row, style);
      ASSERT_NE(plain, nullptr) << row.toStdString();
      const ShapedText shaped(row, {}, style);
      for (int offset = 0; offset <= row.size(); ++offset)
        EXPECT_DOUBLE_EQ(plain->XOf(offset), shaped.XOf(offset)) << row.toStdString() << " at " << offset;
      for (double x = -3; x < shaped.Width() + 20; x += 1.5)
        EXPECT_EQ(plain->OffsetAt(x), shaped.OffsetAt(x)) << row.toStdString() << " at " << x;
      EXPECT_DOUBLE_EQ(plain->Width(), shaped.Width());
    }
  }
}

TEST(LaidOutText, PlainTextLooksAsShapedText) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    for (const int pixels : {12, 18, 24}) {
      const TextStyle style = Style("IPAGothic", pixels);
      for (const QString& row : PlainRows()) {
        const QImage plain = Picture(*PlainText::Of(row, style), style, Whole(), scale);
        EXPECT_EQ(plain, Picture(ShapedText(row, {}, style), style, Whole(), scale)) << row.toStdString();
      }
    }
  }
}

TEST(LaidOutText, SelectedCharactersHaveTheSelectionsColour) {
  const TextStyle style = Style("IPAGothic", 18);
  const QString row = PlainRows()[1];
  TextPaint paint = Whole();
  paint.selectionBegin = 3;
  paint.selectionEnd = 12;
  const auto plain = PlainText::Of(row, style);
  EXPECT_EQ(Picture(*plain, style, paint), Picture(ShapedText(row, {}, style), style, paint));
  EXPECT_NE(Picture(*plain, style, paint), Picture(*plain, style, Whole()));
}

TEST(LaidOutText, APartLooksAsItDoesInTheWhole) {
  const TextStyle style = Style("IPAGothic", 18);
  const auto plain = PlainText::Of(PlainRows()[2], style);
  const QImage whole = Picture(*plain, style, Whole());
  for (int left = 0; left < 300; left += 7) {
    TextPaint paint = Whole();
    paint.left = left;
    paint.right = left + 40;
    const QRect part(left, 0, 40, style.rowHeight);
    EXPECT_EQ(Picture(*plain, style, paint).copy(part), whole.copy(part)) << "from " << left;
  }
}

TEST(LaidOutText, WhatJoinsOrComesFromAnotherFontIsShaped) {
  const TextStyle style = Style("IPAGothic", 18);
  for (const QString& text :
       {QStringLiteral("か\u3099"), QStringLiteral("e\u0301"), QStringLiteral("x\u20DD"),
        QStringLiteral("سلام"), QStringLiteral("שלום"), QStringLiteral("สวัสดี"), QStringLiteral("한국"),
        QStringLiteral("葛\U000E0100"), QStringLiteral("☺\uFE0F"), QStringLiteral("a\u200Db"),
        QStringLiteral("𠮷野家")}) {
    EXPECT_EQ(PlainText::Of(text, style), nullptr) << text.toStdString();
  }
  EXPECT_EQ(PlainText::Of(QStringLiteral("漢字"), Style("DejaVu Sans Mono", 18)), nullptr);
}

TEST(LaidOutText, FormattedTextIsShaped) {
  QTextCharFormat underlined;
  underlined.setFontUnderline(true);
  const TextStyle style = Style("IPAGothic", 18);
  const QString text = QStringLiteral("composing");
  const auto laidOut = LayOutText(text, {{0, 4, underlined}}, style);
  EXPECT_NE(Picture(*laidOut, style, Whole()), Picture(*PlainText::Of(text, style), style, Whole()));
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
