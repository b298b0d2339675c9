// Fusion with arrows of our own on cut menu and tool bars. The stock ones are picture files, whose reading
// loads every picture plug-in of the toolkit before the first painting; these follow the palette besides.
// Menus have an edge that can be seen on the text area of a dark desktop, and icons that cannot be chosen
// look so there too.
#pragma once

#include <QProxyStyle>

namespace kestri {

class EditorStyle : public QProxyStyle {
 public:
  EditorStyle();
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                     const QWidget* widget = nullptr) const override;
  QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                              const QStyleOption* option) const override;
  int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                QStyleHintReturn* data = nullptr) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
};

// Of a window that pops up over others of the same colours.
QColor EdgeColor(const QPalette& palette);

}  // namespace kestri
