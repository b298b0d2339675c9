// Small services that forms share. Lengths are logical pixels; callers that keep twips divide by 15 first
// (ClassCommon::ConvPixelX, ConvPixelY).
#pragma once

#include <QIcon>
#include <QPixmap>
#include <QRect>
#include <QSize>

class QComboBox;
class QDialog;
class QLineEdit;
class QPainter;
class QPlainTextEdit;
class QWidget;

namespace kestri {

// Shows the dialog modally over the owner's window, as a window of its own even when it lies inside another
// one, and gives the front back to the owner afterwards. Result of the dialog: QDialog::Accepted, Rejected or
// its own. The owner may be null. Where the dialog was before, it is again at the return.
int ShowModalWindow(QDialog& dialog, QWidget* owner);

// Repaints every control of the form at once, the form itself last. Hidden ones have nothing to paint.
void FormAllControlsRefresh(QWidget& form);

// Places a control in its parent, or a window (its frame) on its screen, with the given size. What stands out
// to the left or top moves to the edge; what passes the right or bottom edge moves back by its own size, at
// least to the edge. parentArea stands in for the parent's or the screen's rectangle.
void MoveEx(QWidget& widget, int left, int top, int width, int height, const QRect* parentArea = nullptr);

// Selects everything.
void TextBoxSetSel(QLineEdit& text);
void TextBoxSetSel(QPlainTextEdit& text);

// Null for a null icon, and for an empty size.
QPixmap ConvertIcon(const QIcon& icon, QSize size = {32, 32});

// Off: the control keeps its picture until on, then it is painted anew.
enum class Redraw { Off, On };
void SetRedraw(QWidget& control, Redraw redraw);

// The Down key opens the closed list instead of choosing the next row; F4 opens and closes it as everywhere.
void SetExtendedUI(QComboBox& combo);

// Returns when the display has read the picture that the window sent last. Qt waits for that before it paints
// there again; called in the pause behind a painting this takes the wait out of the next key press. The pixel
// must have been painted by the last painting and not scrolled since: it counts as painted once more.
void AwaitPictureRead(const QWidget& window, QPoint painted);

// Numbers of the system's own icons.
enum class StockIcon : int {
  Application = 32512,
  Hand = 32513,
  Question = 32514,
  Exclamation = 32515,
  Asterisk = 32516,
};
QPixmap StockPicture(const QWidget& over, StockIcon icon, QSize size = {32, 32});
void DrawStockIcon(QPainter& painter, const QRect& place, const QWidget& over, StockIcon icon);

}  // namespace kestri
