// The popup in a real window over the real text: keys go to the text and arrive where they belong.
#include "tags/forms/InToTAGFrm.hpp"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QListView>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <cmath>

#include "platform/qt/qt_text.hpp"
#include "tags/forms/candidate_delegate.hpp"
#include "tags/forms/candidate_model.hpp"
#include "tags/forms/tip_line.hpp"
#include "tags/forms/view_caret_place.hpp"
#include "tests/fakes/completion_world.hpp"
#include "tests/fakes/screens.hpp"
#include "ui/edit_view.hpp"

namespace kestri {
namespace {

// Everything of the completion's world, with the real popup and the real view of the text.
class PopupDesk {
 public:
  PopupDesk() {
    world.tags.AttachPopup(&popup);
    popup_.Attach(&popup);
    window.setCentralWidget(view);
    window.resize(900, 640);
    window.show();
    view->setFocus();
    view->keyFilter = [this](QKeyEvent& event) { return popup_.HandleKey(&event); };
    popup_.TakeKeysOf(view);
    world.SetSettings(u"[Setting]\nHintAnimation=0\n");
    QApplication::setActiveWindow(&window);
  }

  void Put(std::u16string_view marked) {
    world.SetText(marked);
    view->Flush();
  }
  void Type(const char* keys) { QTest::keyClicks(view, QString::fromUtf8(keys)); }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(view, key, modifiers); }
  QListView* List() { return popup_.findChild<QListView*>(); }
  TipLine* Tip() { return popup_.findChild<TipLine*>(); }
  std::string Shown() const { return ToUtf8(world.Shown()); }
  void FillTables(int rows);

  fakes::CompletionWorld world;
  QMainWindow window;
  EditView* view = new EditView(world.control, world.text, &window);
  ViewCaretPlace place{*view};
  InToTAGFrm popup_{&window};
  InToTAG popup{{world.text, world.state, world.common, world.host, popup_, place, world.hints, {}, {}}};
};

void PopupDesk::FillTables(int rows) {
  std::u16string names = u"[NAME]\n", explains = u"[EXPLAIN]\n", options = u"[PRO]\n", params = u"[PARAM]\n";
  for (int row = 1; row <= rows; ++row) {
    const std::u16string key = FormatZeros(row, 3) + u"=";
    names += key + u"TAG" + ToText(row) + u"\n";
    explains += key + u"この要素の説明です\n";
    options += key + u"attr" + ToText(row) + u"\n";
    params += key + u"value" + ToText(row) + u"\n";
  }
  world.SetTags(names + explains);
  world.SetOptions(options + explains);
  world.SetParams(params);
}

struct PopupWindow : testing::Test {
  PopupDesk desk;
};

TEST_F(PopupWindow, OpensUnderTheLineAndLeavesTheFocusWithTheText) {
  desk.Put(u"本文‸");
  desk.Type("<");
  EXPECT_TRUE(desk.popup_.isVisible());
  EXPECT_TRUE(desk.view->hasFocus());
  const auto caret = desk.place.GetCaretPixel();
  EXPECT_GE(desk.popup_.geometry().top(), caret->Bottom());
  EXPECT_EQ(desk.Shown(), "本文<‸");
}

TEST_F(PopupWindow, ACaretScrolledOutOfSightOpensNothing) {
  std::u16string lines;
  for (int line = 0; line < 200; ++line) lines += u"line\n";
  desk.Put(u"x ‸\n" + lines);
  desk.view->SetScrollPosition({100, 0});
  EXPECT_FALSE(desk.place.GetCaretPixel());
  desk.popup.Preset(kModeTag);
  desk.popup.ShowPopup();
  EXPECT_FALSE(desk.popup_.isVisible());
  EXPECT_EQ(desk.world.services.beeps, 1);
}

TEST_F(PopupWindow, AWordThatStandsAlreadyHasThePopupAtItsStart) {
  desk.Put(u"x abb‸");
  const int caret = desk.place.GetCaretPixel()->left;
  const int word = desk.place.TextWidth(u"abb") / 15;
  desk.popup.Preset(kModeTag);
  int offset = 0;
  desk.popup.PrefixFromCaret(offset);
  desk.popup.ShowPopup(offset);
  EXPECT_NEAR(desk.popup_.geometry().left(), std::max(0, caret - word - 20), 1);
}

TEST_F(PopupWindow, NoKeyIsLostHoweverFastTheyCome) {
  desk.world.SetSettings(u"[Setting]\nHintAnimation=1\n");
  desk.Put(u"‸");
  desk.Type("<abb");
  desk.Press(Qt::Key_Return);
  desk.Type("<p");
  desk.Press(Qt::Key_Tab);
  desk.Type("x");
  EXPECT_EQ(desk.Shown(), "<ABBR<Px‸>");
}

TEST_F(PopupWindow, EscapeClosesItAndTheNextKeysGoToTheText) {
  desk.Put(u"‸");
  desk.Type("<a");
  desk.Press(Qt::Key_Escape);
  EXPECT_FALSE(desk.popup_.isVisible());
  desk.Type("bc");
  EXPECT_EQ(desk.Shown(), "<abc‸");
}

TEST_F(PopupWindow, BackspacePastTheStartClosesIt) {
  desk.Put(u"‸");
  desk.Type("<a");
  desk.Press(Qt::Key_Backspace);
  EXPECT_TRUE(desk.popup_.isVisible());
  desk.Press(Qt::Key_Backspace);
  EXPECT_FALSE(desk.popup_.isVisible());
  EXPECT_EQ(desk.Shown(), "‸");
}

TEST_F(PopupWindow, ArrowsWalkTheListAndShowItsTips) {
  desk.Put(u"‸");
  desk.Type("<");
  EXPECT_EQ(desk.Tip()->Text(), QStringLiteral("ﾀｸﾞ:ｱﾝｶｰ"));
  desk.Press(Qt::Key_Down);
  desk.Press(Qt::Key_Down);
  EXPECT_EQ(desk.List()->currentIndex().row(), 2);
  EXPECT_EQ(desk.Tip()->Text(), QStringLiteral("ﾀｸﾞ:段落"));
  EXPECT_EQ(desk.Tip()->Icon(), CandidateIcon::Tag);
  desk.Press(Qt::Key_End);
  EXPECT_EQ(desk.List()->currentIndex().row(), 18);
  desk.Press(Qt::Key_Left);
  EXPECT_FALSE(desk.popup_.isVisible());
  EXPECT_EQ(desk.Shown(), "<‸");
}

TEST_F(PopupWindow, TheFoundRowStandsAtTheTopOfTheList) {
  desk.FillTables(999);
  desk.Put(u"‸");
  desk.Type("<tag500");
  const QModelIndex row = desk.List()->currentIndex();
  EXPECT_EQ(row.data().toString(), QStringLiteral("TAG500"));
  EXPECT_EQ(desk.List()->visualRect(row).top(), 0);
}

TEST_F(PopupWindow, AClickSelectsAndADoubleClickAccepts) {
  desk.Put(u"‸");
  desk.Type("<");
  QWidget* rows = desk.List()->viewport();
  const QPoint second = desk.List()->visualRect(desk.List()->model()->index(1, 0)).center();
  QTest::mouseClick(rows, Qt::LeftButton, {}, second);
  EXPECT_TRUE(desk.popup_.isVisible());
  EXPECT_EQ(desk.popup.Selected(), 1);
  EXPECT_EQ(desk.Tip()->Text(), QStringLiteral("ﾀｸﾞ:略語"));
  QTest::mouseDClick(rows, Qt::LeftButton, {}, second);
  EXPECT_FALSE(desk.popup_.isVisible());
  EXPECT_EQ(desk.Shown(), "<ABBR‸>");
}

TEST_F(PopupWindow, AClickInTheTextClosesIt) {
  desk.Put(u"‸");
  desk.Type("<a");
  QTest::mouseClick(desk.view->viewport(), Qt::LeftButton, {}, QPoint(300, 300));
  EXPECT_FALSE(desk.popup_.isVisible());
  EXPECT_EQ(ToUtf8(desk.world.control.Text()), "<a");
}

TEST_F(PopupWindow, LosingTheMainWindowsActivationClosesIt) {
  desk.Put(u"‸");
  desk.Type("<a");
  QEvent deactivate(QEvent::WindowDeactivate);
  QApplication::sendEvent(&desk.window, &deactivate);
  EXPECT_FALSE(desk.popup_.isVisible());
}

TEST_F(PopupWindow, MovingTheMainWindowClosesIt) {
  desk.Put(u"‸");
  desk.Type("<a");
  desk.window.resize(800, 600);
  QApplication::processEvents();
  EXPECT_FALSE(desk.popup_.isVisible());
}

TEST_F(PopupWindow, CommandsWithControlCloseItAndStayWithTheText) {
  desk.Put(u"‸");
  desk.Type("<a");
  QKeyEvent command(QEvent::KeyPress, Qt::Key_S, Qt::ControlModifier, QStringLiteral("\x13"));
  EXPECT_FALSE(desk.popup_.HandleKey(&command));
  EXPECT_FALSE(desk.popup_.isVisible());
}

TEST_F(PopupWindow, AShiftKeyAloneDisturbsNothing) {
  desk.Put(u"‸");
  desk.Type("<");
  desk.Press(Qt::Key_Shift, Qt::ShiftModifier);
  EXPECT_TRUE(desk.popup_.isVisible());
  desk.Type("A");
  EXPECT_EQ(desk.Shown(), "<A‸");
}

TEST_F(PopupWindow, ShortcutsDoNotTakeItsKeysAndACommandsKeyClosesIt) {
  desk.Put(u"‸");
  desk.Type("<");
  for (const auto key : {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Down, Qt::Key_Return}) {
    QKeyEvent wish(QEvent::ShortcutOverride, key, Qt::NoModifier);
    wish.ignore();
    EXPECT_TRUE(desk.popup_.HandleKey(&wish));
    EXPECT_TRUE(wish.isAccepted());
  }
  QKeyEvent find(QEvent::ShortcutOverride, Qt::Key_F3, Qt::NoModifier);
  EXPECT_FALSE(desk.popup_.HandleKey(&find));
  EXPECT_FALSE(desk.popup_.isVisible()) << "the shortcut's command runs next, without a key press";
}

TEST_F(PopupWindow, WhileHiddenItTakesNoKey) {
  for (const auto key : {Qt::Key_Escape, Qt::Key_A, Qt::Key_Down}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("a"));
    EXPECT_FALSE(desk.popup_.HandleKey(&press));
  }
}

TEST_F(PopupWindow, TextCommittedByTheInputMethodCountsAsTyped) {
  desk.Put(u"‸");
  desk.Type("<");
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("ab"));
  QApplication::sendEvent(desk.view, &commit);
  EXPECT_TRUE(desk.popup_.Visible());
  EXPECT_EQ(desk.Shown(), "<ab‸");
  EXPECT_EQ(desk.popup.Typed(), u"ab");
}

TEST_F(PopupWindow, FullWidthTextCommittedWithoutACompositionStaysInTheText) {
  desk.Put(u"‸");
  desk.Type("<");
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("aあ𠮷"));
  QApplication::sendEvent(desk.view, &commit);
  EXPECT_FALSE(desk.popup_.Visible());
  desk.Type("b");
  EXPECT_EQ(desk.Shown(), "<aあ𠮷b‸");
}

TEST_F(PopupWindow, AKeyThatTypesAnotherLetterStaysInTheText) {
  desk.Put(u"‸");
  desk.Type("<");
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::NoModifier, QStringLiteral("é"));
  QApplication::sendEvent(desk.view, &press);
  EXPECT_FALSE(desk.popup_.Visible());
  EXPECT_EQ(desk.Shown(), "<é‸");
}

TEST_F(PopupWindow, ACorrectionByTheInputMethodClosesItAndReachesTheText) {
  desk.Put(u"‸");
  desk.Type("<ab");
  QInputMethodEvent correction;
  correction.setCommitString(QStringLiteral("p"), -2, 2);
  QApplication::sendEvent(desk.view, &correction);
  EXPECT_FALSE(desk.popup_.Visible());
  EXPECT_EQ(desk.Shown(), "<p‸");
}

TEST_F(PopupWindow, RowsOfTheModeCarryTheMarkForEyesAndForReaders) {
  desk.Put(u"‸");
  desk.Type("<");
  const auto& model = static_cast<const CandidateModel&>(*desk.List()->model());
  const auto spoken = [&](int row) { return model.index(row).data(Qt::AccessibleTextRole).toString(); };
  EXPECT_EQ(model.Mark(0), QStringLiteral("*"));
  EXPECT_EQ(spoken(1), QStringLiteral("ABBR *"));
  EXPECT_EQ(model.Mark(4), QString());
  EXPECT_EQ(spoken(4), QStringLiteral("href"));
  desk.popup.Preset(kModeAttribute);
  EXPECT_EQ(spoken(0), QStringLiteral("href *")) << "the mark moves with the mode";
}

TEST_F(PopupWindow, TheMarkStandsInAColumnAtTheRightOfItsRow) {
  desk.FillTables(1);
  desk.Put(u"‸");
  desk.Type("<");
  QApplication::processEvents();
  const QImage rows = desk.List()->viewport()->grab().toImage();
  const auto inked = [&](int row) {
    const QRect place = desk.List()->visualRect(desk.List()->model()->index(row, 0));
    const QColor plain = rows.pixelColor(place.right() - 40, place.center().y());
    for (int x = place.right() - 14; x < place.right(); ++x) {
      for (int y = place.top(); y <= place.bottom(); ++y)
        if (rows.pixelColor(x, y) != plain) return true;
    }
    return false;
  };
  EXPECT_TRUE(inked(0));
  EXPECT_FALSE(inked(1));
}

TEST_F(PopupWindow, ACompositionClosesItAndReachesTheText) {
  desk.Put(u"‸");
  desk.Type("<");
  QInputMethodEvent composing(QStringLiteral("にほん"), {});
  QApplication::sendEvent(desk.view, &composing);
  EXPECT_FALSE(desk.popup_.isVisible());
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("日本"));
  QApplication::sendEvent(desk.view, &commit);
  EXPECT_EQ(desk.Shown(), "<日本‸");
}

TEST_F(PopupWindow, SlidesOutInATenthOfASecondAndTakesKeysMeanwhile) {
  desk.world.SetSettings(u"[Setting]\nHintAnimation=1\n");
  desk.Put(u"‸");
  desk.Type("<");
  const int whole = desk.popup_.Size().height;
  EXPECT_LT(desk.popup_.height(), whole);
  desk.Type("p");
  EXPECT_EQ(desk.popup.Typed(), u"p");
  QTRY_COMPARE_WITH_TIMEOUT(desk.popup_.height(), whole, 1000);
  desk.Press(Qt::Key_Escape);
  EXPECT_FALSE(desk.popup_.Visible());
  desk.Type("q");
  EXPECT_EQ(desk.Shown(), "<pq‸");
  QTRY_VERIFY_WITH_TIMEOUT(!desk.popup_.isVisible(), 1000);
}

TEST_F(PopupWindow, ReopenedWhileItFoldsBackItStandsWhole) {
  desk.world.SetSettings(u"[Setting]\nHintAnimation=1\n");
  desk.Put(u"‸");
  desk.Type("<");
  QTest::qWait(150);
  desk.Press(Qt::Key_Escape);
  desk.Type("<");
  QTRY_COMPARE_WITH_TIMEOUT(desk.popup_.height(), desk.popup_.Size().height, 1000);
  EXPECT_TRUE(desk.popup_.isVisible());
}

TEST_F(PopupWindow, TheGripResizesItAndTheSizeStays) {
  desk.Put(u"‸");
  desk.Type("<");
  const QSize before = desk.popup_.size();
  const QPoint grip(desk.Tip()->width() - 5, desk.Tip()->height() - 5);
  QTest::mousePress(desk.Tip(), Qt::LeftButton, {}, grip);
  QMouseEvent drag(QEvent::MouseMove, grip, desk.Tip()->mapToGlobal(grip) + QPoint(60, 40), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(desk.Tip(), &drag);
  QTest::mouseRelease(desk.Tip(), Qt::LeftButton, {}, grip);
  EXPECT_EQ(desk.popup_.size(), before + QSize(60, 40));
  desk.Press(Qt::Key_Escape);
  desk.Type("<");
  EXPECT_EQ(desk.popup_.size(), before + QSize(60, 40));
}

TEST_F(PopupWindow, ShowsTenToFourteenRows) {
  desk.FillTables(999);
  desk.Put(u"‸");
  desk.Type("<");
  EXPECT_GE(desk.popup_.RowsPerPage(), 10);
  EXPECT_LE(desk.popup_.RowsPerPage(), 14);
}

TEST_F(PopupWindow, EveryPartHasItsAccessibleName) {
  desk.Put(u"‸");
  desk.Type("<");
  for (QWidget* widget : {static_cast<QWidget*>(&desk.popup_), static_cast<QWidget*>(desk.List()),
                          static_cast<QWidget*>(desk.Tip())}) {
    EXPECT_FALSE(widget->accessibleName().isEmpty());
  }
  EXPECT_EQ(desk.List()->model()->index(0, 0).data(Qt::AccessibleDescriptionRole).toString(),
            QStringLiteral("ﾀｸﾞ:ｱﾝｶｰ"));
}

TEST_F(PopupWindow, OpensAtOnceWithFullTables) {
  desk.FillTables(999);
  desk.Put(u"‸");
  QElapsedTimer clock;
  clock.start();
  desk.Type("<");
  desk.popup_.repaint();
  const qint64 first = clock.nsecsElapsed();
  desk.Press(Qt::Key_Escape);
  clock.restart();
  desk.Type("<");
  desk.popup_.repaint();
  const qint64 warm = clock.nsecsElapsed();
  std::printf("first %.2f ms, warm %.2f ms\n", double(first) / 1e6, double(warm) / 1e6);
  EXPECT_LT(first, 1'000'000'000) << "sixteen times the figure, for a loaded machine with sanitizers";
  EXPECT_LT(warm, 250'000'000);
  EXPECT_EQ(desk.List()->model()->rowCount(), 3 * 999 + 9);
}

double Luminance(const QColor& color) {
  const auto channel = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) + 0.0722 * channel(color.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05, b = Luminance(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

TEST(CandidateColours, AreTheTablesOwnOnALightBaseAndReadableOnADarkOne) {
  QPalette light, dark;
  light.setColor(QPalette::Base, Qt::white);
  dark.setColor(QPalette::Base, QColor(35, 38, 41));
  EXPECT_EQ(ReadableOn(light, RGB(150, 0, 0)), QColor(150, 0, 0));
  EXPECT_EQ(GhostedOn(light), QColor(210, 210, 210));
  for (const std::int32_t color :
       {RGB(0, 0, 255), RGB(0, 0, 0), RGB(150, 0, 0), RGB(0, 150, 0), RGB(100, 100, 100)}) {
    EXPECT_GT(Contrast(ReadableOn(dark, color), dark.color(QPalette::Base)), 4.5) << color;
  }
  EXPECT_GT(Contrast(GhostedOn(dark), dark.color(QPalette::Base)), 1.5);
  EXPECT_LT(Contrast(GhostedOn(dark), dark.color(QPalette::Base)), 4.5);
}

void Picture(PopupDesk& desk, const char* name) {
  QApplication::processEvents();
  fakes::SavePicture(desk.popup_.grab().toImage(), QStringLiteral("InToTAGFrm_") + QLatin1String(name));
}

void FillForPictures(PopupDesk& desk) {
  desk.world.SetTags(
      u"[NAME]\n001=A\n002=ABBR\n003=BLOCKQUOTE\n004=!-- --\n005=H1\n[EXPLAIN]\n001=ﾘﾝｸ又はｱﾝｶｰを指定します\n"
      u"002=略語を表します\n003=引用文を表します\n005=最も大きい見出しを表します\n");
  desk.world.SetOptions(
      u"[PRO]\n001=href\n002=onclick\n003=!!nowrap\n[EXPLAIN]\n001=ﾘﾝｸ先のURLを指定します\n");
  desk.world.SetFavourites(u"[FabStr]\nFabStr000=お気に入りの文字列\n");
  desk.world.Put(u"words.def", u"[KEY]\n001=署名\n[HINTS]\n001=名前と日付\n");
  desk.world.SetSettings(
      u"[Setting]\nHintAnimation=0\nValFabStr=1\n[USERINTO]\nFILE=/opt/Kestrile/words.def\n");
  desk.Put(u"‸");
}

TEST_F(PopupWindow, PicturesOfItsModesOnALightDesktop) {
  FillForPictures(desk);
  desk.Type("<");
  Picture(desk, "tags");
  desk.popup.HidePopup(PopupFocus::ToText);
  desk.Put(u"<a‸>");
  desk.Type(" hr");
  Picture(desk, "attributes");
}

TEST_F(PopupWindow, PictureOnADarkDesktop) {
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(49, 54, 59), QColor(35, 38, 41));
  dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
  QApplication::setPalette(dark);
  FillForPictures(desk);
  desk.popup.Preset(kModeValue);
  desk.popup.ShowPopup();
  desk.Press(Qt::Key_Down);
  Picture(desk, "dark_values");
  desk.popup.Preset(kModeAttribute);
  Picture(desk, "dark_attributes");
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  return RUN_ALL_TESTS();
}
