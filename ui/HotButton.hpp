// The program's own flat button: it takes another colour while the mouse is over it.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QPushButton>
#include <QVariantMap>

class QShortcut;

namespace kestri {

class HotButton : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)
  Q_PROPERTY(bool Bold READ Bold WRITE SetBold)
  Q_PROPERTY(double FontSize READ FontSize WRITE SetFontSize)
  Q_PROPERTY(bool Default2 READ Default2 WRITE SetDefault2)
  Q_PROPERTY(bool Cancel2 READ Cancel2 WRITE SetCancel2)
  Q_PROPERTY(QString ToolTipText2 READ ToolTipText2 WRITE SetToolTipText2)
  Q_PROPERTY(bool Enabled READ isEnabled WRITE setEnabled)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
  Q_PROPERTY(QColor PointColor READ PointColor WRITE SetPointColor)
  Q_PROPERTY(bool OutRectangle READ OutRectangle WRITE SetOutRectangle)
  Q_PROPERTY(QPixmap Picture READ Picture WRITE SetPicture)
  Q_PROPERTY(bool UseMaskColor READ UseMaskColor WRITE SetUseMaskColor)
  Q_PROPERTY(QColor MaskColor READ MaskColor WRITE SetMaskColor)

 public:
  explicit HotButton(QWidget* parent = nullptr) : HotButton(QString(), parent) {}
  explicit HotButton(const QString& caption, QWidget* parent = nullptr);

  QString Caption() const { return text(); }
  void SetCaption(const QString& caption) { setText(caption); }
  bool Bold() const { return font().bold(); }
  void SetBold(bool bold);
  double FontSize() const { return font().pointSizeF(); }  // points
  void SetFontSize(double points);                         // 0 and less change nothing
  // Return presses the default button of a dialog, Esc the cancel button of a window.
  bool Default2() const { return isDefault(); }
  void SetDefault2(bool isDefault) { setDefault(isDefault); }
  bool Cancel2() const { return cancelKey_ != nullptr; }
  void SetCancel2(bool cancels);
  QString ToolTipText2() const { return toolTip(); }
  void SetToolTipText2(const QString& text) { setToolTip(text); }
  // The resting colour and the one under the mouse. An invalid colour follows the desktop's palette.
  QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);
  QColor PointColor() const { return pointColor_; }
  void SetPointColor(const QColor& color);
  // Whether a frame stands around the button while the mouse is over it.
  bool OutRectangle() const { return outRectangle_; }
  void SetOutRectangle(bool outlined);
  QPixmap Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);
  // With UseMaskColor the picture is transparent where it has the mask colour.
  bool UseMaskColor() const { return useMaskColor_; }
  void SetUseMaskColor(bool use);
  QColor MaskColor() const { return maskColor_; }
  void SetMaskColor(const QColor& color);

  // The persistent properties by their names. Names that the bag lacks keep their value.
  void ReadProperties(const QVariantMap& bag);
  QVariantMap WriteProperties() const;

  bool Hot() const { return hot_; }
  QColor ShownColor() const;  // of the face, as it stands now

 Q_SIGNALS:
  void MouseDown(QMouseEvent* event);
  void MouseMove(QMouseEvent* event);
  void MouseUp(QMouseEvent* event);

 protected:
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetHot(bool hot);
  void ShowPicture();
  void PaintFrame(QPainter& painter) const;
  void PaintLabel(QPainter& painter) const;
  QColor LabelColor() const;

  QColor backColor_;
  QColor pointColor_;
  bool outRectangle_ = true;
  QPixmap picture_;
  bool useMaskColor_ = false;
  QColor maskColor_{192, 192, 192};
  QShortcut* cancelKey_ = nullptr;
  bool hot_ = false;
};

// The colour itself when it can be read on the face, else black or white.
QColor ReadableOnFace(const QColor& color, const QColor& face);

}  // namespace kestri
