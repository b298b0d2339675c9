// DirectoryTree: drives and folders, read one level at a time.
//
// The key of a node is its full path without a separator at its end ("C:", "C:\pages", "/home"; the root of
// one-rooted paths is "/"). A node that was never expanded has one child, the placeholder; a folder without
// folders in it has none. What was read is not read again until DeletePath or DeleteTree.
//
// A volume that stands as a drive of its own has no folders where it is mounted, so that each key has one
// place with folders below it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/class_common.hpp"

namespace kestri {

enum class NodeColor : std::uint8_t { Default, Hidden, ReadOnly };  // hidden counts before read-only

class DirectoryNode {
 public:
  enum class Kind : std::uint8_t { Drive, Folder };

  Kind NodeKind() const { return kind_; }
  NodeColor Color() const { return color_; }
  const std::u16string& Text() const { return text_; }  // a drive's display name, a folder's name
  const DirectoryNode* Parent() const { return parent_; }
  std::size_t Row() const { return row_; }  // among its siblings
  const std::vector<std::unique_ptr<DirectoryNode>>& Folders() const { return folders_; }
  bool HasPlaceholder() const { return placeholder_; }
  bool HasChildren() const { return placeholder_ || !folders_.empty(); }
  bool Expanded() const { return expanded_; }

 private:
  friend class DirectoryTree;
  Kind kind_ = Kind::Folder;
  NodeColor color_ = NodeColor::Default;
  bool placeholder_ = false;
  bool expanded_ = false;
  std::uint32_t row_ = 0;
  DirectoryNode* parent_ = nullptr;
  std::u16string text_;
  std::u16string driveKey_;
  std::vector<std::unique_ptr<DirectoryNode>> folders_;
};

// Where the tree is shown. A null parent stands for the place of the drives.
class DirectoryTreeScreen {
 public:
  virtual ~DirectoryTreeScreen() = default;
  virtual void NodesComing(const DirectoryNode*, std::size_t /*first*/, std::size_t /*count*/) {}
  virtual void NodesCame(const DirectoryNode*) {}
  virtual void NodesGoing(const DirectoryNode*) {}  // all of them
  virtual void NodesGone(const DirectoryNode*) {}
  virtual void NodeChanged(const DirectoryNode&) {}  // its plus sign or expansion
  virtual void NodeSelected(const DirectoryNode*) {}
  virtual void EnsureVisible(const DirectoryNode&) {}
  virtual void ScrollLeft() {}
  virtual void SetTreeVisible(bool) {}
  virtual void EditLabel(const DirectoryNode&) {}
  virtual void RefreshTree() {}
};

class DirectoryTree {
 public:
  using Node = DirectoryNode;
  static constexpr std::u16string_view kPlaceholder = u"[//ここは参照できません//]";

  explicit DirectoryTree(const ClassCommon& common) : common_(common) {}
  ~DirectoryTree() { path_.clear(); }
  DirectoryTree(const DirectoryTree&) = delete;
  DirectoryTree& operator=(const DirectoryTree&) = delete;

  // Null: nowhere.
  void SetScreen(DirectoryTreeScreen* screen) { screen_ = screen == nullptr ? &nowhere_ : screen; }
  // The ChangeDirectory event: the selected folder, and whether it exists.
  std::function<void(std::u16string_view path, bool exists)> ChangeDirectory;

  // The current folder; empty until the first one is set. Reading a folder makes it the current one too,
  // without the event.
  const std::u16string& Path() const { return path_; }
  void SetPath(std::u16string_view path);  // a path that is no folder is ignored

  void Refresh() const;
  bool EnsureVisible() const;  // the selected node; false without one
  std::u16string SelectPath() const;
  void CreateTree();
  void DeleteTree();
  void DeletePath(std::u16string_view path);
  // Empty: "新しいフォルダ". A name that is taken gets a number: "新しいフォルダ(2)".
  bool CreateNewDirectory(std::u16string_view name = {});
  void RenameDirectory() const;
  // Icon names of the desktop's theme; empty when there is no such node.
  std::u16string_view GetIcon(std::u16string_view path, bool selected) const;

  // What the user does to the tree.
  void Expand(const Node& node);
  void Collapse(const Node& node);
  void NodeClick(const Node& node);
  // The label edit of the selected node. Drives and the system's own folders keep their names.
  bool BeforeLabelEdit() const;
  bool AfterLabelEdit(std::u16string_view newText);  // false: the label stays as it was
  void SelectParent();                               // of the selected node, if it has one

  const std::vector<std::unique_ptr<Node>>& Drives() const { return drives_; }
  const Node* Selected() const { return selected_; }
  const Node* Find(std::u16string_view path) const;
  std::u16string Key(const Node& node) const;
  // Keys of the node's children; that of the placeholder when it was never expanded.
  std::vector<std::u16string> ChildKeys(const Node& node) const;
  enum class Picture { Normal, Open };
  static std::u16string_view IconOf(const Node& node, Picture picture);

 private:
  enum class Report { Always, OnlyChange };
  std::u16string KeyOfPath(std::u16string_view path) const;
  bool IsFolder(std::u16string_view path) const;
  bool SameName(std::u16string_view left, std::u16string_view right) const;
  bool LiesOn(std::u16string_view key, const Node& drive) const;
  Node* DriveOf(std::u16string_view key) const;
  Node* FindChild(const Node& parent, std::u16string_view name) const;
  // Names on the way from the drive to the key.
  std::vector<std::u16string_view> NamesBelow(std::u16string_view key, const Node& drive) const;
  Node* FindNode(std::u16string_view path) const;
  static Node& Own(const Node& node) { return const_cast<Node&>(node); }
  static bool LiesWithin(const Node* node, const Node& folder);
  const std::vector<std::unique_ptr<Node>>& Siblings(const Node& node) const;

  void AddDriveNodes();
  std::vector<std::u16string> DriveKeys() const;
  void AddDrive(const std::u16string& key);
  std::u16string DriveText(const std::u16string& key) const;
  bool AddFolderNodes(Node& node);
  bool IsDrive(std::u16string_view key) const;
  bool HasSubFolder(std::u16string_view path) const;
  std::unique_ptr<Node> NewFolderNode(Node& parent, std::u16string name, std::uint32_t attributes) const;
  void TakeIn(Node& parent, std::vector<std::unique_ptr<Node>> folders);
  Node* AddUnlisted(Node& parent, std::u16string_view name);
  void RemoveFolders(Node& node);
  static void NumberRows(Node& parent);
  void Open(Node& node);
  Node* ShowWay(const std::u16string& path);
  Node* ExpandDownTo(std::u16string_view key);
  void OpenBranch(Node& node);
  void ShowAround(const Node& node) const;
  void SelectNode(const Node& node, Report report);
  void Tell(std::u16string_view path);
  void SelectWholePath(std::u16string_view path);
  bool IsSystemFolder(std::u16string_view path) const;

  const ClassCommon& common_;
  DirectoryTreeScreen nowhere_;
  DirectoryTreeScreen* screen_ = &nowhere_;
  std::vector<std::unique_ptr<Node>> drives_;
  const Node* selected_ = nullptr;
  std::u16string path_;
  std::u16string told_;  // path of the last event
};

}  // namespace kestri
