// The editor's window with a page, the popup and each menu.
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "browse/forms/DirFrame.hpp"
#include "tests/gallery/gallery_desk.hpp"
#include "tests/gallery/layout_checks.hpp"
#include "tests/gallery/windows.hpp"

namespace kestri::gallery {
namespace {

QString Numbered(const char* words, int number) {
  return QStringLiteral("%1%2").arg(QString::fromLatin1(words)).arg(number, 2, 10, QLatin1Char('0'));
}

// Of the folder tree's menu the words are given: its rows for opening and saving share one.
enum class Mnemonics { Distinct, AsGiven };

// The menu and, each by itself, the menus inside it.
void TakeMenu(Gallery& gallery, const QString& name, QWidget& window, QMenu& menu, QPoint at,
              Mnemonics mnemonics = Mnemonics::Distinct) {
  menu.popup(at);
  gallery.Take(name, window);
  if (mnemonics == Mnemonics::Distinct) gallery.Tell(name, ClashingMnemonics(menu));
  const QList<QAction*> actions = menu.actions();
  for (int i = 0; i < actions.size(); ++i) {
    QMenu* inner = actions[i]->menu();
    if (inner == nullptr) continue;
    const QPoint beside = menu.mapToGlobal(menu.actionGeometry(actions[i]).topRight());
    TakeMenu(gallery, name + QLatin1Char('-') + Numbered("", i), window, *inner, beside);
    inner->hide();
  }
  menu.hide();
}

void TakeMenus(Gallery& gallery, QMainWindow& window) {
  QMenuBar* bar = window.menuBar();
  gallery.Tell(QStringLiteral("HTMLfrm-menubar"), ClashingMnemonics(*bar));
  for (int i = 0; i < bar->actions().size(); ++i) {
    QAction* top = bar->actions()[i];
    const QPoint below = bar->mapToGlobal(bar->actionGeometry(top).bottomLeft());
    TakeMenu(gallery, Numbered("HTMLfrm-menu", i + 1), window, *top->menu(), below);
  }
}

void TakeToolMenus(Gallery& gallery, QMainWindow& window) {
  int number = 0;
  for (QToolButton* button : window.findChildren<QToolButton*>()) {
    QMenu* menu = button->defaultAction() == nullptr ? nullptr : button->defaultAction()->menu();
    if (menu == nullptr || !button->isVisible()) continue;
    const QPoint below = button->mapToGlobal(button->rect().bottomLeft());
    TakeMenu(gallery, Numbered("HTMLfrm-tool", ++number), window, *menu, below);
  }
  if (number == 0) gallery.Tell(QStringLiteral("HTMLfrm-tool"), {QStringLiteral("no drop-down menus")});
}

void TakePopup(Gallery& gallery, GalleryDesk& desk) {
  desk.PutCaretBehind(u"三分咲きです。");
  desk.Press(u"<");
  gallery.Take(QStringLiteral("InToTAGFrm-tags"), *desk.window);
  desk.Press(u"a{Enter} ");
  gallery.Take(QStringLiteral("InToTAGFrm-attributes"), *desk.window);
  desk.Press(u"target{Enter}=");
  gallery.Take(QStringLiteral("InToTAGFrm-values"), *desk.window);
  desk.Press(u"{Esc}");
}

void TakeHint(Gallery& gallery, GalleryDesk& desk) {
  desk.PutCaretBehind(u"<A h");
  desk.Press(u"{Left}");
  gallery.Take(QStringLiteral("LabelText"), *desk.window);
  desk.Press(u"{Esc}");
}

void TakeFolderBar(Gallery& gallery, GalleryDesk& desk) {
  auto& bar = *desk.window->findChild<DirFrame*>();
  bar.Bar().dirTreeFile.SetListIndex(0);
  desk.window->resize(760, 520);
  gallery.Take(QStringLiteral("DirFrame"), *desk.window);
  const QPoint at = bar.mapToGlobal(QPoint(60, 40));
  TakeMenu(gallery, QStringLiteral("DirFrame-tree"), *desk.window, *bar.DirTreeMenu(), at,
           Mnemonics::AsGiven);
  TakeMenu(gallery, QStringLiteral("DirFrame-files"), *desk.window, *bar.DirTreeFileMenu(), at);
}

}  // namespace

void TakeEditor(Gallery& gallery) {
  GalleryDesk desk;
  desk.PutCaretBehind(u"駅から");
  gallery.Take(QStringLiteral("HTMLfrm"), *desk.window);
  TakeMenus(gallery, *desk.window);
  TakeToolMenus(gallery, *desk.window);
  desk.Run("Edit", 5);
  gallery.Take(QStringLiteral("HTMLfrm-selected"), *desk.window);
  TakePopup(gallery, desk);
  TakeHint(gallery, desk);
  desk.Run("MenFileM", 3);
  TakeFolderBar(gallery, desk);
  desk.window->resize(420, 300);
  gallery.Take(QStringLiteral("HTMLfrm-small"), *desk.window);
}

}  // namespace kestri::gallery
