#include "browse/folder_bar_menu.hpp"

#include "browse/folder_bar.hpp"

namespace kestri {
namespace {

using Menu = FolderBarMenu;
using Tool = FolderBarTool;

constexpr Menu kTreeTools = Menu::DirTreeSubSubMenu;
constexpr Menu kFileTools = Menu::DirTreeFileSubSubMenu;
constexpr Menu kFileSettings = Menu::DirTreeFileSubSubSettingMenu;

template <void (FolderBar::*command)()>
void Do(FolderBar& bar) {
  (bar.*command)();
}
template <bool (FolderBar::*state)() const>
bool Is(const FolderBar& bar) {
  return (bar.*state)();
}
template <Tool tool>
bool Has(const FolderBar& bar) {
  return bar.Offers(tool);
}
template <Tool tool>
bool HasForFile(const FolderBar& bar) {
  return bar.HasFileFor(tool);
}
template <SystemFolder folder>
void Go(FolderBar& bar) {
  bar.GoTo(folder);
}

constexpr bool (*kFile)(const FolderBar&) = &Is<&FolderBar::HasFile>;

constexpr FolderBarRow kTreeRows[] = {
    {Menu::DirTreeSubMenu, 0, u"再試行(&Y)", nullptr, &Do<&FolderBar::RetryFolder>, nullptr, nullptr, "F5"},
    {Menu::DirTreeSubMenu, 1, u"ﾃﾞｨﾚｸﾄﾘの再構築(&P)", nullptr, &Do<&FolderBar::RebuildTree>},
    {Menu::DirTreeSubMenu, 2, u""},
    {Menu::DirTreeSubMenu, 3, u"このﾃﾞｨﾚｸﾄﾘから開く(&A)...", nullptr, &Do<&FolderBar::OpenFromFolder>},
    {Menu::DirTreeSubMenu, 4, u"このﾃﾞｨﾚｸﾄﾘに名前をつけて保存(&A)...", nullptr,
     &Do<&FolderBar::SaveInFolder>},
    {Menu::DirTreeSubMenu, 5, u""},
    {Menu::DirTreeSubMenu, 6, u"&Grep検索開始...", &Has<Tool::Grep>, &Do<&FolderBar::Grep>},
    {Menu::DirTreeSubMenu, 7, u""},
    {Menu::DirTreeSubMenu, 8, u"ﾂｰﾙ(&T)", nullptr, nullptr, nullptr, &kTreeTools},
    {Menu::DirTreeSubMenu, 9, u""},
    {Menu::DirTreeSubMenu, 10, u"新しいﾃﾞｨﾚｸﾄﾘを作成(&N)", nullptr, &Do<&FolderBar::NewFolder>},
    {Menu::DirTreeSubMenu, 11, u"ﾃﾞｨﾚｸﾄﾘの名前を変更(&M)", &Is<&FolderBar::CanRename>,
     &Do<&FolderBar::RenameFolder>, nullptr, nullptr, "F2"},
    {Menu::DirTreeSubMenu, 12, u"ﾌﾟﾛﾊﾟﾃｨ(&R)...", nullptr, &Do<&FolderBar::FolderProperties>},
};

constexpr FolderBarRow kTreeToolRows[] = {
    {Menu::DirTreeSubSubMenu, 0, u"ｴｸｽﾌﾟﾛｰﾗｰ(&E)", nullptr, &Do<&FolderBar::Explore>},
    {Menu::DirTreeSubSubMenu, 1, u"ﾃﾞｨﾚｸﾄﾘ内のBMPをJPEGｺﾝﾊﾞｰﾄ(&B)...", &Has<Tool::ImageConversion>,
     &Do<&FolderBar::ConvertImages>},
    {Menu::DirTreeSubSubMenu, 2, u"圧縮する(&A)...", &Has<Tool::Pack>, &Do<&FolderBar::PackFolder>},
    {Menu::DirTreeSubSubMenu, 3, u"&PicPeek", &Is<&FolderBar::HasPicPeek>, &Do<&FolderBar::ShowPictures>},
};

constexpr FolderBarRow kBookRows[] = {
    {Menu::DirTreeBookMenu, 0, u""},
    {Menu::DirTreeBookMenu, 1, u"ﾏｲ ﾄﾞｷｭﾒﾝﾄへ移動", nullptr, &Go<SystemFolder::Documents>},
    {Menu::DirTreeBookMenu, 2, u"ﾃﾞｽｸﾄｯﾌﾟへ移動", nullptr, &Go<SystemFolder::Desktop>},
};

constexpr FolderBarRow kFileRows[] = {
    {Menu::DirTreeFileSubMenu, 0, u"開く(&O)", kFile, &Do<&FolderBar::OpenFile>},
    {Menu::DirTreeFileSubMenu, 1, u"新しいｳｨﾝﾄﾞｳで開く(&W)", kFile, &Do<&FolderBar::OpenInNewWindow>},
    {Menu::DirTreeFileSubMenu, 2, u"HTMLに変換して開く(&C)...", kFile, &Do<&FolderBar::OpenAsHtml>},
    {Menu::DirTreeFileSubMenu, 3, u""},
    {Menu::DirTreeFileSubMenu, 4, u"関連付けて開く(&E)", kFile, &Do<&FolderBar::OpenAssociated>},
    {Menu::DirTreeFileSubMenu, 5, u""},
    {Menu::DirTreeFileSubMenu, 6, u"ﾂｰﾙ(&T)", nullptr, nullptr, nullptr, &kFileTools},
    {Menu::DirTreeFileSubMenu, 7, u""},
    {Menu::DirTreeFileSubMenu, 8, u"設定", nullptr, nullptr, nullptr, &kFileSettings},
    {Menu::DirTreeFileSubMenu, 9, u"ﾌﾟﾛﾊﾟﾃｨ(&R)...", kFile, &Do<&FolderBar::FileProperties>},
    {Menu::DirTreeFileSubMenu, 10, u"ﾌｧｲﾙ情報(I&)...\tShift+ｸﾘｯｸ", &HasForFile<Tool::FileInformation>,
     &Do<&FolderBar::FileViewInhfo>},
};

constexpr FolderBarRow kFileToolRows[] = {
    {Menu::DirTreeFileSubSubMenu, 0, u"&URLの抽出...", &HasForFile<Tool::UrlExtraction>,
     &Do<&FolderBar::ExtractUrls>},
    {Menu::DirTreeFileSubSubMenu, 1, u"解凍する(&Z)...", &HasForFile<Tool::Unpack>, &Do<&FolderBar::Unpack>},
    {Menu::DirTreeFileSubSubMenu, 2, u"圧縮する(&A)...", &HasForFile<Tool::Pack>, &Do<&FolderBar::PackFile>},
    {Menu::DirTreeFileSubSubMenu, 3, u"開いているﾌｧｲﾙとの相対ﾊﾟｽを貼り付け",
     &Is<&FolderBar::CanPasteRelativePath>, &Do<&FolderBar::PasteRelativePath>},
};

constexpr FolderBarRow kFileSettingRows[] = {
    {Menu::DirTreeFileSubSubSettingMenu, 0, u"ﾌｧｲﾙを選択した時に ﾌｧｲﾙ情報を表示する(&I)", nullptr,
     &Do<&FolderBar::InvertShowInfoOnSelect>, &Is<&FolderBar::ShowsInfoOnSelect>},
};

}  // namespace

std::span<const FolderBarRow> RowsOf(FolderBarMenu menu) {
  switch (menu) {
    case Menu::DirTreeSubMenu:
      return kTreeRows;
    case Menu::DirTreeSubSubMenu:
      return kTreeToolRows;
    case Menu::DirTreeBookMenu:
      return kBookRows;
    case Menu::DirTreeFileSubMenu:
      return kFileRows;
    case Menu::DirTreeFileSubSubMenu:
      return kFileToolRows;
    case Menu::DirTreeFileSubSubSettingMenu:
      return kFileSettingRows;
  }
  return {};
}

}  // namespace kestri
