// The helpers of forms on real widgets.
#include "ui/window_helpers.hpp"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <functional>

#include "ui/form_mover.hpp"

namespace kestri {
namespace {

// ---- ShowModalWindow

// Calls the look while the dialog is open, then closes it with the result.
void WhenOpen(QDialog& dialog, int result, std::function<void()> look) {
  QTimer::singleShot(50, &dialog, [&dialog, result, look = std::move(look)] {
    look();
    dialog.done(result);
  });
}

TEST(ShowModalWindow, StandsOverTheOwnerAndGivesItsResult) {
  QWidget owner;
  owner.resize(400, 300);
  auto* inside = new QLineEdit(&owner);
  owner.show();
  QDialog dialog;
  bool modal = false;
  QWidget* over = nullptr;
  QWidget* active = nullptr;
  WhenOpen(dialog, 7, [&] {
    modal = dialog.isModal() && dialog.isWindow();
    over = dialog.parentWidget();
    active = QApplication::activeWindow();
  });
  EXPECT_EQ(ShowModalWindow(dialog, inside), 7);
  EXPECT_TRUE(modal);
  EXPECT_EQ(over, &owner);
  EXPECT_EQ(active, &dialog);
  QCoreApplication::processEvents();
  EXPECT_EQ(QApplication::activeWindow(), &owner);
  EXPECT_EQ(dialog.parentWidget(), nullptr);
}

TEST(ShowModalWindow, ADialogInsideAnotherWindowIsNotClippedByIt) {
  QWidget owner;
  owner.show();
  QWidget frame;
  frame.resize(50, 50);
  frame.show();
  QDialog dialog(&frame);
  dialog.setWindowFlags(Qt::Widget);
  dialog.resize(300, 200);
  ASSERT_FALSE(dialog.isWindow());
  bool free = false;
  WhenOpen(dialog, QDialog::Rejected, [&] { free = dialog.isWindow() && dialog.width() == 300; });
  EXPECT_EQ(ShowModalWindow(dialog, &owner), QDialog::Rejected);
  EXPECT_TRUE(free);
  EXPECT_EQ(dialog.parentWidget(), &frame);
  EXPECT_FALSE(dialog.isWindow());
}

TEST(ShowModalWindow, ADialogThatDeletesItselfOnCloseMayDoSo) {
  QWidget owner;
  owner.show();
  QPointer<QDialog> dialog = new QDialog;
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  WhenOpen(*dialog, QDialog::Accepted, [] {});
  EXPECT_EQ(ShowModalWindow(*dialog, &owner), QDialog::Accepted);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(dialog.isNull());
}

TEST(ShowModalWindow, NeedsNoOwner) {
  QDialog dialog;
  WhenOpen(dialog, QDialog::Accepted, [] {});
  EXPECT_EQ(ShowModalWindow(dialog, nullptr), QDialog::Accepted);
}

// ---- FormAllControlsRefresh

class Painted : public QWidget {
 public:
  Painted(QStringList& order, const QString& name, QWidget* parent = nullptr)
      : QWidget(parent), order_(order) {
    setObjectName(name);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent*) override { order_ << objectName(); }

 private:
  QStringList& order_;
};

TEST(FormAllControlsRefresh, PaintsEveryControlAtOnceAndTheFormLast) {
  QStringList order;
  Painted form(order, QStringLiteral("form"));
  form.resize(200, 200);
  Painted first(order, QStringLiteral("first"), &form);
  first.setGeometry(0, 0, 50, 50);
  Painted inner(order, QStringLiteral("inner"), &first);
  inner.setGeometry(0, 0, 20, 20);
  Painted hidden(order, QStringLiteral("hidden"), &form);
  hidden.hide();
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  QCoreApplication::processEvents();
  order.clear();
  FormAllControlsRefresh(form);
  EXPECT_LT(order.indexOf(QStringLiteral("first")), order.indexOf(QStringLiteral("form")));
  EXPECT_LT(order.indexOf(QStringLiteral("inner")), order.indexOf(QStringLiteral("form")));
  EXPECT_GE(order.indexOf(QStringLiteral("first")), 0);
  EXPECT_GE(order.indexOf(QStringLiteral("inner")), 0);
  EXPECT_FALSE(order.contains(QStringLiteral("hidden")));
}

// ---- MoveEx

TEST(MoveExOfControls, StaysInTheParent) {
  QWidget parent;
  parent.resize(300, 200);
  QWidget control(&parent);
  MoveEx(control, 10, 20, 100, 50);
  EXPECT_EQ(control.geometry(), QRect(10, 20, 100, 50));
  MoveEx(control, -5, -1, 100, 50);
  EXPECT_EQ(control.geometry(), QRect(0, 0, 100, 50));
  MoveEx(control, 250, 180, 100, 50);
  EXPECT_EQ(control.geometry(), QRect(150, 130, 100, 50));
  MoveEx(control, 40, 40, 400, 300);
  EXPECT_EQ(control.geometry(), QRect(0, 0, 400, 300));
}

TEST(MoveExOfControls, AnotherAreaStandsInForTheParent) {
  QWidget parent;
  parent.resize(300, 200);
  QWidget control(&parent);
  const QRect area(0, 0, 120, 80);
  MoveEx(control, 100, 60, 50, 40, &area);
  EXPECT_EQ(control.geometry(), QRect(50, 20, 50, 40));
}

TEST(MoveExOfWindows, StaysOnTheScreen) {
  QWidget window;
  const QRect screen = window.screen()->availableGeometry();
  MoveEx(window, screen.right() - 20, screen.bottom() - 20, 200, 100);
  EXPECT_EQ(window.pos(), QPoint(screen.right() - 220, screen.bottom() - 120));
  EXPECT_EQ(window.size(), QSize(200, 100));
  MoveEx(window, -300, -300, 200, 100);
  EXPECT_EQ(window.pos(), screen.topLeft());
}

// ---- fields, pictures, drawing

TEST(TextBoxSetSel, SelectsEverything) {
  QLineEdit line(QStringLiteral("検索する語"));
  TextBoxSetSel(line);
  EXPECT_EQ(line.selectedText(), line.text());
  QPlainTextEdit text(QStringLiteral("一\n二"));
  TextBoxSetSel(text);
  EXPECT_EQ(text.textCursor().selectionStart(), 0);
  EXPECT_EQ(text.textCursor().selectionEnd(), 3);
}

TEST(ConvertIcon, GivesThePictureAndNullForNull) {
  QPixmap red(16, 16);
  red.fill(Qt::red);
  const QPixmap picture = ConvertIcon(QIcon(red), {16, 16});
  EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(16, 16));
  EXPECT_EQ(picture.toImage().pixelColor(8, 8), QColor(Qt::red));
  EXPECT_TRUE(ConvertIcon(QIcon()).isNull());
  EXPECT_TRUE(ConvertIcon(QIcon(red), {}).isNull());
}

TEST(SetRedraw, NothingIsPaintedUntilItIsOnAgain) {
  QStringList order;
  Painted control(order, QStringLiteral("control"));
  control.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&control));
  QCoreApplication::processEvents();
  order.clear();
  SetRedraw(control, Redraw::Off);
  control.repaint();
  EXPECT_TRUE(order.isEmpty());
  SetRedraw(control, Redraw::On);
  QCoreApplication::processEvents();
  EXPECT_EQ(order, QStringList{QStringLiteral("control")});
}

TEST(StockIcons, EachIsAPictureOfItsOwn) {
  QWidget window;
  QList<QImage> seen;
  for (const StockIcon icon : {StockIcon::Hand, StockIcon::Question, StockIcon::Exclamation,
                               StockIcon::Asterisk, StockIcon::Application}) {
    const QPixmap picture = StockPicture(window, icon);
    ASSERT_FALSE(picture.isNull()) << static_cast<int>(icon);
    EXPECT_FALSE(seen.contains(picture.toImage())) << static_cast<int>(icon);
    seen << picture.toImage();
  }
  EXPECT_EQ(static_cast<int>(StockIcon::Question), 32514);
}

TEST(StockIcons, AreDrawnInTheirPlaceOnly) {
  QWidget window;
  QImage paper(64, 64, QImage::Format_ARGB32_Premultiplied);
  paper.fill(Qt::white);
  QPainter painter(&paper);
  DrawStockIcon(painter, QRect(0, 0, 32, 32), window, StockIcon::Question);
  painter.end();
  QImage blank(32, 32, paper.format());
  blank.fill(Qt::white);
  EXPECT_NE(paper.copy(0, 0, 32, 32), blank);
  EXPECT_EQ(paper.copy(32, 32, 32, 32), blank);
}

// ---- combo boxes

struct ExtendedCombo : testing::Test {
  ExtendedCombo() {
    combo.addItems({QStringLiteral("一"), QStringLiteral("二"), QStringLiteral("三")});
    SetExtendedUI(combo);
    combo.show();
    combo.activateWindow();
    combo.setFocus();
    QCoreApplication::processEvents();
  }
  bool Opened() const { return combo.view()->isVisible(); }
  QComboBox combo;
};

TEST_F(ExtendedCombo, DownOpensTheListAndChoosesNothing) {
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_TRUE(Opened());
  EXPECT_EQ(combo.currentIndex(), 0);
  combo.hidePopup();
}

TEST_F(ExtendedCombo, F4OpensAndClosesTheList) {
  QTest::keyClick(&combo, Qt::Key_F4);
  EXPECT_TRUE(Opened());
  QTest::keyClick(combo.view(), Qt::Key_F4);
  EXPECT_FALSE(Opened());
}

TEST_F(ExtendedCombo, DownInAnEditableFieldOpensItsListToo) {
  combo.setEditable(true);
  combo.lineEdit()->setFocus();
  QTest::keyClick(combo.lineEdit(), Qt::Key_Down);
  EXPECT_TRUE(Opened());
  combo.hidePopup();
}

TEST_F(ExtendedCombo, AnEmptyListStaysClosedAndTheUpKeyChooses) {
  combo.setCurrentIndex(2);
  QTest::keyClick(&combo, Qt::Key_Up);
  EXPECT_EQ(combo.currentIndex(), 1);
  combo.clear();
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_FALSE(Opened());
}

// ---- bars without a title

struct MovedForm : testing::Test {
  MovedForm() {
    form.setGeometry(100, 100, 200, 150);
    bar.setGeometry(0, 0, 200, 20);
    new FormMover(bar);
    form.show();
    QCoreApplication::processEvents();
    start = form.pos();
  }
  void Send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, bar.mapFromGlobal(at), at, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(&bar, &event);
  }
  QWidget form;
  QWidget bar{&form};
  QPoint start;
};

TEST_F(MovedForm, FollowsTheMouseWhileTheLeftButtonIsHeld) {
  const QPoint grip = start + QPoint(10, 5);
  Send(QEvent::MouseButtonPress, grip, Qt::LeftButton, Qt::LeftButton);
  Send(QEvent::MouseMove, grip + QPoint(30, 40), Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(form.pos(), start + QPoint(30, 40));
  Send(QEvent::MouseButtonRelease, grip + QPoint(30, 40), Qt::LeftButton, Qt::NoButton);
  Send(QEvent::MouseMove, grip + QPoint(90, 90), Qt::NoButton, Qt::NoButton);
  EXPECT_EQ(form.pos(), start + QPoint(30, 40));
}

TEST_F(MovedForm, TheRightButtonMovesNothing) {
  Send(QEvent::MouseButtonPress, start + QPoint(10, 5), Qt::RightButton, Qt::RightButton);
  Send(QEvent::MouseMove, start + QPoint(40, 45), Qt::NoButton, Qt::RightButton);
  EXPECT_EQ(form.pos(), start);
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
