// The program's own dialogs and tool windows.
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "browse/forms/FileListFrm.hpp"
#include "browse/forms/WinShowFrm.hpp"
#include "shell/startup/forms/ClassIMGTopFrm.hpp"
#include "shell/startup/forms/RunArtFrm.hpp"
#include "tags/forms/FontFrm.hpp"
#include "tags/forms/NSColor.hpp"
#include "tags/forms/screen_fonts.hpp"
#include "tests/browse/window_list_desk.hpp"
#include "tests/gallery/gallery_desk.hpp"
#include "tests/gallery/layout_checks.hpp"
#include "tests/gallery/windows.hpp"

namespace kestri::gallery {
namespace {

void TakeWindowList(Gallery& gallery) {
  WindowListDesk desk;
  desk.StartWindow(1, 100, u"/home/author/pages/index.html");
  desk.StartWindow(2, 4711, u"/home/author/pages/日記.htm");
  desk.StartWindow(3, 300, u"");
  const QIcon icon = QIcon::fromTheme(QStringLiteral("text-html"));
  gallery.TakeModal(QStringLiteral("WinShowFrm"), [&] { WinShowFrm(desk.windows, icon, nullptr).exec(); });
}

QWidget* ShownWindow(const char* className) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    const bool named = widget->objectName() == QLatin1String(className);
    if (widget->isVisible() && (named || widget->inherits(className))) return widget;
  }
  return nullptr;
}

void TakeInsertBar(Gallery& gallery, fakes::EditorDesk& desk) {
  desk.Run("MenTool", 0);
  QWidget* form = ShownWindow("EditSubFrm");
  if (form == nullptr) return gallery.Tell(QStringLiteral("EditSubFrm"), {QStringLiteral("did not open")});
  gallery.TakeTool(QStringLiteral("EditSubFrm"), *form);
  auto* bar = form->findChild<QMenuBar*>();
  gallery.Tell(QStringLiteral("EditSubFrm"), ClashingMnemonics(*bar));
  for (int i = 0; i < bar->actions().size(); ++i) {
    const QString name = QStringLiteral("EditSubFrm-menu%1").arg(i + 1);
    QMenu* menu = bar->actions()[i]->menu();
    menu->popup(bar->mapToGlobal(bar->actionGeometry(bar->actions()[i]).bottomLeft()));
    gallery.TakeTool(name, *menu);
    gallery.Tell(name, ClashingMnemonics(*menu));
    menu->hide();
  }
  form->hide();
}

void TakeFloatingBar(Gallery& gallery, fakes::EditorDesk& desk) {
  desk.Run("MenV", 6);
  QWidget* holder = desk.window->findChild<QToolBar*>()->window();
  if (holder == desk.window.get())
    gallery.Tell(QStringLiteral("Toolbar1"), {QStringLiteral("stays in the window")});
  gallery.TakeTool(QStringLiteral("Toolbar1"), *holder);
  desk.Run("MenV", 6);
}

// The list opens nothing here; it is only looked at.
class NoListWindow : public FileListWindow {
 public:
  bool OpenFromList(std::u16string_view) override { return false; }
  bool NewFromList(std::int16_t) override { return false; }
};

void TakeFileList(Gallery& gallery, fakes::EditorDesk& desk) {
  NoListWindow window;
  FileList list(*desk.common, window);
  const auto take = [&](const QString& name, FileListStart start) {
    gallery.TakeModal(name, [&] { FileListFrm(list, start, desk.window.get()).exec(); });
  };
  take(QStringLiteral("FileListFrm-recent"), {});
  take(QStringLiteral("FileListFrm-new"), {.view = FileListView::New, .startBoxGrey = true});
}

void TakeStart(Gallery& gallery, const ClassCommon& common) {
  const std::unique_ptr<TopFrm> splash = ClassIMGTopFrm(common).IMGTopFrm();
  splash->Show(u"設定 復元開始...");
  gallery.TakeTool(QStringLiteral("TopFrm"), *splash);
  splash->hide();
  gallery.TakeModal(QStringLiteral("RunArtFrm"), [&] {
    RunArtFrm form(common);
    form.SetText(u"『 Windows98 Me 2000 XP』 以外のOSでの動作は保証しません");
    form.SetChecked(true);
    form.exec();
  });
}

void TakePickers(Gallery& gallery) {
  gallery.TakeModal(QStringLiteral("NSColor"), [] {
    NSColor form;
    form.Prepare(u"HTMLｶﾗｰｺｰﾄﾞ取得", u"#3366CC");
    form.exec();
  });
  gallery.TakeModal(QStringLiteral("FontFrm"), [] {
    FontFrm form(&ScreenFontFamilies);
    form.LoadValues({.name = u"IPAGothic", .size = 14});
    form.exec();
  });
}

}  // namespace

void TakeDialogs(Gallery& gallery) {
  GalleryDesk desk;
  TakeFloatingBar(gallery, desk);
  TakeFileList(gallery, desk);
  desk.Put(u"<P>\n⟦一行目\n二行目\n⟧</P>");
  gallery.TakeModal(QStringLiteral("FreeIndFrm"), [&] { desk.Run("HighEdit", 2); });
  gallery.TakeModal(QStringLiteral("LineIndexFrm"), [&] { desk.Run("SearEdit", 4); });
  desk.boxes.answers = {MessageAnswer::No};
  gallery.TakeModal(QStringLiteral("HenFrm"), [&] { desk.Run("MenFileOpenEx", 2); });
  TakeInsertBar(gallery, desk);
  TakeWindowList(gallery);
  TakePickers(gallery);
  TakeStart(gallery, *desk.common);
}

}  // namespace kestri::gallery
