#include "browse/directory_tree.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/browse/folder_world.hpp"

namespace kestri {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Event {
  std::u16string path;
  bool exists;
  friend bool operator==(const Event&, const Event&) = default;
};

class RecordingScreen : public DirectoryTreeScreen {
 public:
  void SetTreeVisible(bool visible) override { visibility.push_back(visible); }
  void EnsureVisible(const DirectoryNode& node) override { shown.push_back(node.Text()); }
  void ScrollLeft() override { ++scrolledLeft; }
  void EditLabel(const DirectoryNode& node) override { edited.push_back(node.Text()); }
  std::vector<bool> visibility;
  std::vector<std::u16string> shown;
  std::vector<std::u16string> edited;
  int scrolledLeft = 0;
};

class DirectoryTreeTest : public ::testing::TestWithParam<PathStyle>, protected FolderDesk {
 protected:
  DirectoryTreeTest() : FolderDesk(GetParam()) {
    tree.SetScreen(&screen);
    tree.ChangeDirectory = [this](std::u16string_view path, bool exists) {
      events.push_back({std::u16string(path), exists});
      busyDuringEvent |= services.busy;
    };
  }
  const DirectoryNode& Node(std::u16string path) {
    const DirectoryNode* node = tree.Find(P(path));
    if (node == nullptr) ADD_FAILURE() << "no node " << ToUtf8(path);
    return *node;
  }
  std::vector<std::u16string> NamesBelow(std::u16string path) {
    std::vector<std::u16string> names;
    for (const auto& folder : Node(path).Folders()) names.push_back(folder->Text());
    return names;
  }
  std::u16string RootKey() const { return style == PathStyle::Posix ? u"/" : u"C:"; }

  RecordingScreen screen;
  std::vector<Event> events;
  bool busyDuringEvent = false;
  DirectoryTree tree{common};
};

INSTANTIATE_TEST_SUITE_P(Styles, DirectoryTreeTest, ::testing::Values(PathStyle::Posix, PathStyle::Windows),
                         [](const auto& tested) {
                           return tested.param == PathStyle::Posix ? "Posix" : "Windows";
                         });

TEST_P(DirectoryTreeTest, IsEmptyUntilAFolderIsSet) {
  EXPECT_THAT(tree.Drives(), IsEmpty());
  EXPECT_EQ(tree.Path(), u"");
  EXPECT_EQ(tree.SelectPath(), u"");
  EXPECT_FALSE(tree.EnsureVisible());
  EXPECT_EQ(files.statusCalls, 0);
}

TEST_P(DirectoryTreeTest, DriveStandsWithThePlaceholderAsItsOnlyChild) {
  tree.CreateTree();
  ASSERT_EQ(tree.Drives().size(), 1u);
  const DirectoryNode& drive = *tree.Drives().front();
  EXPECT_EQ(tree.Key(drive), RootKey());
  EXPECT_TRUE(drive.HasPlaceholder());
  EXPECT_THAT(tree.ChildKeys(drive), ElementsAre(P(u"/") + u"[//ここは参照できません//]"));
  EXPECT_THAT(drive.Folders(), IsEmpty());
  EXPECT_THAT(events, IsEmpty());
}

TEST_P(DirectoryTreeTest, KeysOfFoldersAreTheirPaths) {
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_EQ(tree.Key(Node(u"/home")), P(u"/home"));
  EXPECT_EQ(tree.Key(Node(u"/home/author/pages/日記")), P(u"/home/author/pages/日記"));
  EXPECT_EQ(tree.Find(P(u"/home/nobody")), nullptr);
  EXPECT_EQ(tree.Find(u""), nullptr);
}

TEST_P(DirectoryTreeTest, ExpandingReadsOneLevelUnderTheHourglass) {
  tree.CreateTree();
  files.subFolderTests = 0;
  tree.Expand(*tree.Drives().front());
  EXPECT_THAT(NamesBelow(u"/"), ElementsAre(u"home", u"state"));
  EXPECT_EQ(files.subFolderTests, 2);
  EXPECT_TRUE(Node(u"/home").HasPlaceholder());
  EXPECT_FALSE(Node(u"/home").Expanded());
  EXPECT_TRUE(tree.Drives().front()->Expanded());
  EXPECT_FALSE(services.busy);
}

TEST_P(DirectoryTreeTest, FolderWithOnlyFilesShowsNoPlusSign) {
  AddFile(P(u"/home/author/empty/a.txt"));
  tree.SetPath(P(u"/home/author"));
  EXPECT_FALSE(Node(u"/home/author/empty").HasChildren());
  EXPECT_TRUE(Node(u"/home/author/pages").HasChildren());
}

TEST_P(DirectoryTreeTest, FilledNodeIsNotReadAgainUntilItIsFolded) {
  tree.SetPath(P(u"/home/author/pages"));
  files.AddFolder(P(u"/home/author/pages/new"));
  tree.Collapse(Node(u"/home/author/pages"));
  tree.Expand(Node(u"/home/author/pages"));
  EXPECT_THAT(NamesBelow(u"/home/author/pages"), ElementsAre(u"img", u"日記"));
  tree.DeletePath(P(u"/home/author/pages"));
  EXPECT_TRUE(Node(u"/home/author/pages").HasPlaceholder());
  EXPECT_FALSE(Node(u"/home/author/pages").Expanded());
  tree.Expand(Node(u"/home/author/pages"));
  EXPECT_THAT(NamesBelow(u"/home/author/pages"), ElementsAre(u"img", u"new", u"日記"));
}

TEST_P(DirectoryTreeTest, FoldersStandInNaturalOrder) {
  for (const char16_t* name : {u"page10", u"page2", u"Page1", u"あ", u"ア2", u"ｲ"})
    files.AddFolder(P(u"/sorted/" + std::u16string(name)));
  tree.SetPath(P(u"/sorted"));
  EXPECT_THAT(NamesBelow(u"/sorted"), ElementsAre(u"Page1", u"page2", u"page10", u"あ", u"ア2", u"ｲ"));
}

TEST_P(DirectoryTreeTest, HiddenColorCountsBeforeReadOnly) {
  files.AddFolder(P(u"/c/plain"));
  files.AddFolder(P(u"/c/locked"), kAttributeReadOnly);
  files.AddFolder(P(u"/c/.hidden"), kAttributeHidden);
  files.AddFolder(P(u"/c/.both"), kAttributeHidden | kAttributeReadOnly);
  tree.SetPath(P(u"/c"));
  EXPECT_EQ(Node(u"/c/plain").Color(), NodeColor::Default);
  EXPECT_EQ(Node(u"/c/locked").Color(), NodeColor::ReadOnly);
  EXPECT_EQ(Node(u"/c/.hidden").Color(), NodeColor::Hidden);
  EXPECT_EQ(Node(u"/c/.both").Color(), NodeColor::Hidden);
}

TEST_P(DirectoryTreeTest, SettingThePathOpensTheTreeDownToItAndSelectsIt) {
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_EQ(tree.Path(), P(u"/home/author/pages"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages"));
  EXPECT_TRUE(Node(u"/home").Expanded());
  EXPECT_TRUE(Node(u"/home/author").Expanded());
  EXPECT_TRUE(Node(u"/home/author/pages").Expanded());
  EXPECT_THAT(NamesBelow(u"/home/author/pages"), ElementsAre(u"img", u"日記"));
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), true}));
  EXPECT_FALSE(busyDuringEvent);
}

TEST_P(DirectoryTreeTest, TreeIsHiddenWhileItIsBuiltAndScrolledToTheFolder) {
  files.AddFolder(P(u"/home/author/z"));
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_THAT(screen.visibility, ElementsAre(false, true));
  EXPECT_THAT(screen.shown, ElementsAre(u"z", u"pages"));
  EXPECT_EQ(screen.scrolledLeft, 1);
}

TEST_P(DirectoryTreeTest, LastFolderIsShownTogetherWithItsOpenedList) {
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_THAT(screen.shown, ElementsAre(u"日記", u"pages"));
}

TEST_P(DirectoryTreeTest, RootIsAPathToo) {
  tree.SetPath(P(u"/"));
  EXPECT_EQ(tree.Path(), P(u"/"));
  EXPECT_EQ(tree.Selected(), tree.Drives().front().get());
  EXPECT_THAT(events, ElementsAre(Event{P(u"/"), true}));
  EXPECT_EQ(tree.Find(P(u"/")), tree.Drives().front().get());
}

TEST_P(DirectoryTreeTest, SeparatorAtTheEndOfAPathDoesNotCount) {
  tree.SetPath(P(u"/home/author/"));
  EXPECT_EQ(tree.Path(), P(u"/home/author"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author"));
}

TEST_P(DirectoryTreeTest, PathThatDoesNotExistIsIgnored) {
  tree.SetPath(P(u"/home/author"));
  tree.SetPath(P(u"/home/nobody"));
  tree.SetPath(u"");
  AddFile(P(u"/home/author/a.txt"));
  tree.SetPath(P(u"/home/author/a.txt"));
  EXPECT_EQ(tree.Path(), P(u"/home/author"));
  EXPECT_EQ(events.size(), 1u);
}

TEST_P(DirectoryTreeTest, ClickingTheSameNodeTwiceTellsOnce) {
  tree.SetPath(P(u"/home/author"));
  events.clear();
  tree.NodeClick(Node(u"/home/author/empty"));
  tree.NodeClick(Node(u"/home/author/empty"));
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/empty"), true}));
}

TEST_P(DirectoryTreeTest, CollapsingTheSelectedNodeTellsAgain) {
  tree.SetPath(P(u"/home/author/pages"));
  events.clear();
  tree.Collapse(Node(u"/home/author/pages"));
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), true}));
}

TEST_P(DirectoryTreeTest, CollapsingAroundTheSelectedNodeSelectsTheCollapsedOne) {
  tree.SetPath(P(u"/home/author/pages/img"));
  events.clear();
  tree.Collapse(Node(u"/home"));
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home"), true}));
  EXPECT_EQ(tree.SelectPath(), P(u"/home"));
}

TEST_P(DirectoryTreeTest, CollapsingAnotherNodeTellsNothing) {
  tree.SetPath(P(u"/home/author/pages"));
  tree.NodeClick(Node(u"/home/author/empty"));
  events.clear();
  tree.Collapse(Node(u"/home/author/pages"));
  EXPECT_THAT(events, IsEmpty());
}

TEST_P(DirectoryTreeTest, FolderThatWasExpandedIsCurrentAndStillToldWhenItIsClicked) {
  tree.SetPath(P(u"/home/author"));
  events.clear();
  tree.Expand(Node(u"/home/author/pages"));
  EXPECT_EQ(tree.Path(), P(u"/home/author/pages"));
  EXPECT_THAT(events, IsEmpty());
  tree.NodeClick(Node(u"/home/author/pages"));
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), true}));
}

TEST_P(DirectoryTreeTest, VanishedFolderExpandsToNothingAndIsToldAsMissing) {
  tree.SetPath(P(u"/home/author"));
  events.clear();
  const DirectoryNode& pages = Node(u"/home/author/pages");
  files.RemoveTree(P(u"/home/author/pages"));
  tree.Expand(pages);
  EXPECT_FALSE(pages.HasChildren());
  tree.NodeClick(pages);
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), false}));
}

TEST_P(DirectoryTreeTest, FolderThatVanishesWhileItsParentIsReadHasNoPlusSign) {
  tree.CreateTree();
  tree.Expand(*tree.Drives().front());
  tree.Expand(Node(u"/home"));
  files.vanishAfterListing = {P(u"/home/author/pages")};
  tree.Expand(Node(u"/home/author"));
  EXPECT_FALSE(Node(u"/home/author/pages").HasChildren());
}

TEST_P(DirectoryTreeTest, RetryOnAFolderThatIsGoneTellsThatItIsMissing) {
  tree.SetPath(P(u"/home/author/pages"));
  files.RemoveTree(P(u"/home/author/pages"));
  events.clear();
  tree.DeletePath(tree.Path());
  tree.CreateTree();
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), false}));
  tree.DeleteTree();
  tree.CreateTree();
  EXPECT_EQ(events.back(), (Event{P(u"/home/author/pages"), false}));
  EXPECT_EQ(tree.Selected(), nullptr);
}

TEST_P(DirectoryTreeTest, UnreadableFolderIsEmptyButExists) {
  files.unreadable.insert(P(u"/home/author/pages"));
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_THAT(NamesBelow(u"/home/author/pages"), IsEmpty());
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/pages"), true}));
}

TEST_P(DirectoryTreeTest, FolderBehindAnUnreadableOneIsReachedByItsPath) {
  files.unreadable.insert(P(u"/home"));
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages"));
  EXPECT_THAT(NamesBelow(u"/home"), ElementsAre(u"author"));
  EXPECT_TRUE(Node(u"/home").Expanded());
}

TEST_P(DirectoryTreeTest, RebuildingAddsNothingTwice) {
  tree.SetPath(P(u"/home/author/pages"));
  tree.CreateTree();
  EXPECT_EQ(tree.Drives().size(), 1u);
  EXPECT_THAT(NamesBelow(u"/home"), ElementsAre(u"author"));
  EXPECT_EQ(services.beeps, 0);
}

TEST_P(DirectoryTreeTest, DeleteTreeLeavesNothingButThePath) {
  tree.SetPath(P(u"/home/author/pages"));
  tree.DeleteTree();
  EXPECT_THAT(tree.Drives(), IsEmpty());
  EXPECT_EQ(tree.Selected(), nullptr);
  EXPECT_EQ(tree.Path(), P(u"/home/author/pages"));
  tree.CreateTree();
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages"));
}

TEST_P(DirectoryTreeTest, DeletePathOfAnUnknownFolderDoesNothing) {
  tree.SetPath(P(u"/home/author"));
  tree.DeletePath(P(u"/nowhere"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author"));
}

TEST_P(DirectoryTreeTest, NewFoldersAreNumbered) {
  tree.SetPath(P(u"/home/author/empty"));
  events.clear();
  EXPECT_TRUE(tree.CreateNewDirectory());
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/empty/新しいフォルダ"));
  EXPECT_EQ(events.back(), (Event{P(u"/home/author/empty/新しいフォルダ"), true}));
  for (int i = 0; i < 2; ++i) {
    tree.NodeClick(Node(u"/home/author/empty"));
    EXPECT_TRUE(tree.CreateNewDirectory());
  }
  EXPECT_THAT(NamesBelow(u"/home/author/empty"),
              ElementsAre(u"新しいフォルダ", u"新しいフォルダ(2)", u"新しいフォルダ(3)"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/empty/新しいフォルダ(3)"));
}

TEST_P(DirectoryTreeTest, NewFolderMayBeGivenAName) {
  tree.SetPath(P(u"/home/author"));
  EXPECT_TRUE(tree.CreateNewDirectory(u"pages"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages(2)"));
}

TEST_P(DirectoryTreeTest, FolderThatCannotBeMadeChangesNothing) {
  tree.SetPath(P(u"/home/author/empty"));
  events.clear();
  files.refuseWrites = true;
  EXPECT_FALSE(tree.CreateNewDirectory());
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/empty"));
}

TEST_P(DirectoryTreeTest, RenamedFolderIsSelectedUnderItsNewName) {
  tree.SetPath(P(u"/home/author/pages"));
  events.clear();
  tree.RenameDirectory();
  EXPECT_THAT(screen.edited, ElementsAre(u"pages"));
  EXPECT_TRUE(tree.AfterLabelEdit(u"ﾎｰﾑﾍﾟｰｼﾞ"));
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/ﾎｰﾑﾍﾟｰｼﾞ"));
  EXPECT_EQ(tree.Path(), P(u"/home/author/ﾎｰﾑﾍﾟｰｼﾞ"));
  EXPECT_EQ(tree.Find(P(u"/home/author/pages")), nullptr);
  EXPECT_TRUE(files.Status(P(u"/home/author/ﾎｰﾑﾍﾟｰｼﾞ/img")).has_value());
  EXPECT_THAT(events, ElementsAre(Event{P(u"/home/author/ﾎｰﾑﾍﾟｰｼﾞ"), true}));
}

TEST_P(DirectoryTreeTest, NamesThatCannotBeAreRefusedSilently) {
  tree.SetPath(P(u"/home/author/pages"));
  const std::u16string withSeparator = std::u16string(u"a") + common.Separator() + u"b";
  for (const std::u16string& name :
       {std::u16string(), std::u16string(u"pages."), std::u16string(u"."), std::u16string(u".."),
        std::u16string(u"pages"), withSeparator, std::u16string(u"a\0b", 3)}) {
    EXPECT_FALSE(tree.AfterLabelEdit(name)) << ToUtf8(name);
  }
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages"));
  EXPECT_EQ(services.beeps, 0);
}

TEST_P(DirectoryTreeTest, FailedRenameBeepsAndLeavesTheLabel) {
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_FALSE(tree.AfterLabelEdit(u"empty"));
  files.refuseWrites = true;
  EXPECT_FALSE(tree.AfterLabelEdit(u"other"));
  EXPECT_EQ(services.beeps, 2);
  EXPECT_EQ(tree.SelectPath(), P(u"/home/author/pages"));
}

TEST_P(DirectoryTreeTest, DrivesAndSystemFoldersKeepTheirNames) {
  for (const char16_t* path :
       {u"/", u"/state", u"/home/author/Desktop", u"/home/author/Documents", u"/opt/lib", u"/programs"}) {
    files.AddFolder(P(path));
    tree.SetPath(P(path));
    EXPECT_FALSE(tree.BeforeLabelEdit()) << ToUtf8(path);
  }
  tree.SetPath(P(u"/home/author/pages"));
  EXPECT_TRUE(tree.BeforeLabelEdit());
}

TEST_P(DirectoryTreeTest, NothingIsRenamedWithoutASelection) {
  tree.RenameDirectory();
  EXPECT_FALSE(tree.BeforeLabelEdit());
  EXPECT_FALSE(tree.AfterLabelEdit(u"x"));
  EXPECT_THAT(screen.edited, IsEmpty());
}

TEST_P(DirectoryTreeTest, ParentOfTheSelectedNodeIsSelected) {
  tree.SetPath(P(u"/home/author"));
  tree.SelectParent();
  EXPECT_EQ(tree.SelectPath(), P(u"/home"));
  tree.SelectParent();
  tree.SelectParent();
  EXPECT_EQ(tree.SelectPath(), P(u"/"));
}

TEST_P(DirectoryTreeTest, IconsAreTheThemesNames) {
  tree.SetPath(P(u"/home/author"));
  EXPECT_EQ(tree.GetIcon(P(u"/home"), true), u"folder");
  EXPECT_EQ(tree.GetIcon(P(u"/home"), false), u"folder-open");
  EXPECT_EQ(tree.GetIcon(P(u"/"), true), u"drive-harddisk");
  EXPECT_EQ(tree.GetIcon(P(u"/nowhere"), true), u"");
}

TEST_P(DirectoryTreeTest, StrangeNamesAreOrdinaryFolders) {
  const std::u16string longName(255, u'長');
  for (const std::u16string& name :
       {std::u16string(u"two\nlines"), std::u16string(u"\"quoted\""), std::u16string(u"\xDC93\xDCFA"),
        std::u16string(u" "), std::u16string(DirectoryTree::kPlaceholder.substr(0, 1)), longName}) {
    files.AddFolder(P(u"/odd/" + name + u"/below"));
    tree.SetPath(P(u"/odd/" + name));
    EXPECT_EQ(tree.SelectPath(), P(u"/odd/" + name));
    EXPECT_THAT(NamesBelow(u"/odd/" + name), ElementsAre(u"below"));
    tree.DeletePath(P(u"/odd"));
  }
}

TEST_P(DirectoryTreeTest, DotsInAPathEndTheWay) {
  files.AddFolder(P(u"/home/.."));
  tree.SetPath(P(u"/home"));
  tree.DeleteTree();
  files.unreadable.insert(P(u"/home"));
  tree.SetPath(P(u"/home/.."));
  EXPECT_EQ(tree.Selected(), nullptr);
  EXPECT_THAT(NamesBelow(u"/home"), IsEmpty());
}

TEST_P(DirectoryTreeTest, ThousandFoldersAreReadWithoutAskingForEachOne) {
  files.AddFolder(P(u"/many"));
  for (int i = 0; i < 1000; ++i) files.AddFolder(P(u"/many/" + ToText(i)));
  tree.SetPath(P(u"/home"));
  files.statusCalls = files.subFolderTests = 0;
  tree.Expand(Node(u"/many"));
  EXPECT_EQ(Node(u"/many").Folders().size(), 1000u);
  EXPECT_EQ(Node(u"/many").Folders()[10]->Text(), u"10");
  EXPECT_EQ(files.statusCalls, 1);
  EXPECT_EQ(files.subFolderTests, 1000);
}

class Drives : public ::testing::Test {};

TEST_F(Drives, OfWindowsGoByTheirLetters) {
  FolderDesk desk(PathStyle::Windows);
  desk.environment.drives = {u"C:\\", u"A:\\", u"z:\\"};
  DirectoryTree tree(desk.common);
  tree.CreateTree();
  ASSERT_EQ(tree.Drives().size(), 3u);
  EXPECT_EQ(tree.Key(*tree.Drives()[0]), u"A:");
  EXPECT_EQ(tree.Key(*tree.Drives()[1]), u"C:");
  EXPECT_EQ(tree.Key(*tree.Drives()[2]), u"Z:");
  EXPECT_EQ(tree.GetIcon(u"A:\\", true), u"drive-removable-media");
  EXPECT_EQ(tree.GetIcon(u"Z:\\", true), u"drive-harddisk");
}

TEST_F(Drives, WithoutAMediumStandAndExpandToNothing) {
  FolderDesk desk(PathStyle::Windows);
  desk.environment.drives = {u"A:\\", u"C:\\"};
  DirectoryTree tree(desk.common);
  std::vector<Event> events;
  tree.ChangeDirectory = [&](std::u16string_view path, bool exists) {
    events.push_back({std::u16string(path), exists});
  };
  tree.CreateTree();
  const DirectoryNode& diskette = *tree.Drives()[0];
  EXPECT_TRUE(diskette.HasPlaceholder());
  tree.Expand(diskette);
  EXPECT_FALSE(diskette.HasChildren());
  tree.NodeClick(diskette);
  EXPECT_THAT(events, ElementsAre(Event{u"A:\\", false}));
}

TEST_F(Drives, AreFoundInAnyCaseUnderWindows) {
  FolderDesk desk(PathStyle::Windows);
  DirectoryTree tree(desk.common);
  tree.CreateTree();
  EXPECT_EQ(tree.Find(u"c:\\"), tree.Drives().front().get());
  tree.SetPath(u"C:\\home\\author");
  EXPECT_EQ(tree.Find(u"c:\\HOME\\Author"), tree.Selected());
}

TEST_F(Drives, OfMountedVolumesHoldTheFoldersOfTheirPaths) {
  FolderDesk desk(PathStyle::Posix);
  desk.environment.drives = {u"/", u"/media/author/USB", u"/mnt"};
  desk.files.AddFolder(u"/media/author/USB/photos/2003");
  desk.files.AddFolder(u"/mnt");
  DirectoryTree tree(desk.common);
  tree.SetPath(u"/media/author/USB/photos");
  ASSERT_EQ(tree.Drives().size(), 3u);
  EXPECT_EQ(tree.Drives()[1]->Text(), u"USB");
  EXPECT_EQ(tree.Selected()->Parent(), tree.Drives()[1].get());
  EXPECT_EQ(tree.Key(*tree.Selected()), u"/media/author/USB/photos");
  EXPECT_FALSE(tree.Drives()[0]->Expanded());
  EXPECT_EQ(tree.GetIcon(u"/mnt", true), u"drive-removable-media");
}

TEST_F(Drives, AreNotOpenedASecondTimeWhereTheyAreMounted) {
  FolderDesk desk(PathStyle::Posix);
  desk.environment.drives = {u"/", u"/media/author/USB"};
  desk.files.AddFolder(u"/media/author/USB/photos");
  DirectoryTree tree(desk.common);
  tree.SetPath(u"/media/author");
  ASSERT_EQ(tree.Selected()->Folders().size(), 1u);
  EXPECT_FALSE(tree.Selected()->Folders().front()->HasChildren());
  EXPECT_TRUE(tree.Drives()[1]->HasPlaceholder());
}

TEST_F(Drives, ThatCameLaterAreAddedByARebuild) {
  FolderDesk desk(PathStyle::Posix);
  DirectoryTree tree(desk.common);
  tree.SetPath(u"/home");
  desk.environment.drives.push_back(u"/mnt/disk");
  desk.files.AddFolder(u"/mnt/disk");
  tree.CreateTree();
  ASSERT_EQ(tree.Drives().size(), 2u);
  EXPECT_EQ(tree.Drives()[1]->Text(), u"disk");
}

}  // namespace
}  // namespace kestri
