// Fusion with arrows of our own on cut menu and tool bars. The stock ones are picture files, whose reading
// loads every picture plug-in of the toolkit before the first painting; these follow the palette besides.
#pragma once

#include <QProxyStyle>

namespace kestri {

class EditorStyle : public QProxyStyle {
 public:
  EditorStyle();
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                     const QWidget* widget = nullptr) const override;
};

}  // namespace kestri
