// A tool tip that its owner shows and takes away.
#pragma once

#include <QColor>
#include <QPoint>
#include <QPointer>
#include <QString>

class QWidget;

namespace kestri {

class ToolTipWindow;

enum class ToolTipShape { Rectangle = 0, Balloon = 1 };

class ClassToolTip {
 public:
  ClassToolTip();
  ~ClassToolTip();
  ClassToolTip(const ClassToolTip&) = delete;
  ClassToolTip& operator=(const ClassToolTip&) = delete;

  // Changes show at once while the tip stands. Texts are plain; lines end as they come.
  const QString& ToolTipString() const { return string_; }
  void SetToolTipString(const QString& text);
  const QString& ToolTipTitle() const { return title_; }  // bold, above the text; empty: none
  void SetToolTipTitle(const QString& title);
  ToolTipShape ToolTipType() const { return type_; }
  void SetToolTipType(ToolTipShape type);
  // The desktop's tool tip colours until others are set; an invalid colour goes back to them.
  QColor ForeColor() const;
  void SetForeColor(const QColor& color);
  QColor BackColor() const;
  void SetBackColor(const QColor& color);

  // Shows the tip with its upper left corner at the place, kept whole on that screen. Global logical pixels.
  // The tip belongs to the window that is active then and goes with it, at the latest.
  void CreateToolTip(QPoint place);
  void DestroyToolTip();
  bool Visible() const;
  QWidget* Window() const;  // null while there is none

 private:
  void Refresh();

  QString string_;
  QString title_;
  ToolTipShape type_ = ToolTipShape::Rectangle;
  QColor foreColor_;
  QColor backColor_;
  QPoint place_;
  QPointer<ToolTipWindow> window_;
};

}  // namespace kestri
