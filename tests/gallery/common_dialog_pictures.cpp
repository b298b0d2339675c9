// The dialogs that every part of the program asks with.
#include <filesystem>

#include "platform/qt/qt_file_dialog.hpp"
#include "platform/qt/qt_input_box.hpp"
#include "platform/qt/qt_message_box.hpp"
#include "tests/fakes/temporary_folder.hpp"
#include "tests/gallery/windows.hpp"

namespace kestri::gallery {
namespace {

void TakeBox(Gallery& gallery, const QString& name, const MessageRequest& request) {
  gallery.TakeModal(QStringLiteral("box-") + name, [&] { QtMessageBox().Ask(request); });
}

void TakeBoxes(Gallery& gallery) {
  TakeBox(gallery, QStringLiteral("plain"), {.text = u"11 文字です", .caption = u"ﾊﾞｲﾄ数 Kestrile"});
  TakeBox(gallery, QStringLiteral("critical"),
          {.text = u"INIのﾃﾞｰﾀが壊れています\r\nINIを削除してからこのﾌﾟﾛｸﾞﾗﾑを再起動して下さい",
           .caption = u"起動ｴﾗｰ Kestrile",
           .icon = MessageIcon::Critical});
  TakeBox(gallery, QStringLiteral("question"),
          {.text = u"\"日記.htm\" は変更されています\r\n保存しますか?",
           .caption = u"終了 Kestrile",
           .icon = MessageIcon::Question,
           .buttons = MessageButtons::YesNoCancel});
  TakeBox(gallery, QStringLiteral("exclamation"),
          {.text = u"\"/XX\" は無効なｽｲｯﾁです",
           .caption = u"ｽｲｯﾁｴﾗｰ Kestrile",
           .icon = MessageIcon::Exclamation});
  TakeBox(gallery, QStringLiteral("information"),
          {.text = u"登録しました",
           .caption = u"ｽﾛｯﾄ Kestrile",
           .icon = MessageIcon::Information,
           .buttons = MessageButtons::OkCancel});
}

}  // namespace

void TakeCommonDialogs(Gallery& gallery) {
  TakeBoxes(gallery);
  fakes::TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path("pages"));
  for (const char* name : {"日記.htm", "album.html", "style.css"}) folder.Write(name, "x");
  FileDialogRequest request;
  request.title = u"開く Kestrile";
  request.filter = u"HTML 文書 (*.htm;*.html)|*.htm;*.html|すべてのﾌｧｲﾙ (*.*)|*.*";
  request.folder = folder.Text();
  gallery.TakeModal(QStringLiteral("file-open"), [&] { QtFileDialog().AskOpen(request); });
  gallery.TakeModal(QStringLiteral("file-save"), [&] { QtFileDialog().AskSave(request); });
  gallery.TakeModal(QStringLiteral("folder"),
                    [&] { QtFileDialog().AskFolder(u"ﾌｫﾙﾀﾞの参照", folder.Text()); });
  gallery.TakeModal(QStringLiteral("input-box"),
                    [] { QtInputBox().Ask(u"拡張子を入力して下さい\r\n(例 htm)", u"ﾕｰｻﾞｰ定義型", u"htm"); });
}

}  // namespace kestri::gallery
