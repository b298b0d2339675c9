// The current folder: how it is chosen, made, named, and found again in a tree that is built anew.
#include <array>

#include "browse/directory_tree.hpp"
#include "document/document.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kNewFolder = u"新しいフォルダ";
// Windows, system, desktop, favourites, program files, my documents.
constexpr std::array kSystemFolders = {36, 37, 0, 6, 38, 5};

}  // namespace

void DirectoryTree::SetPath(std::u16string_view path) {
  if (!IsFolder(path)) return;
  path_ = common_.AppPath2(path);
  CreateTree();
}

void DirectoryTree::Refresh() const {
  screen_->RefreshTree();
}

bool DirectoryTree::EnsureVisible() const {
  if (selected_ != nullptr) screen_->EnsureVisible(*selected_);
  return selected_ != nullptr;
}

std::u16string DirectoryTree::SelectPath() const {
  return selected_ == nullptr ? std::u16string() : common_.AppPath2(Key(*selected_));
}

void DirectoryTree::NodeClick(const Node& node) {
  SelectNode(node, Report::OnlyChange);
}

void DirectoryTree::SelectParent() {
  if (selected_ != nullptr && selected_->parent_ != nullptr)
    SelectNode(*selected_->parent_, Report::OnlyChange);
}

void DirectoryTree::SelectNode(const Node& node, Report report) {
  const std::u16string path = common_.AppPath2(Key(node));
  selected_ = &node;
  screen_->NodeSelected(selected_);
  if (report == Report::OnlyChange && path == told_) {
    path_ = path;
    return;
  }
  Tell(path);
}

void DirectoryTree::Tell(std::u16string_view path) {
  path_ = told_ = path;
  if (ChangeDirectory) ChangeDirectory(told_, common_.PathExists(told_));
}

void DirectoryTree::CreateTree() {
  const std::u16string wanted = path_;
  const Node* const node = ShowWay(wanted);
  path_ = wanted;
  if (node != nullptr) {
    SelectNode(*node, Report::Always);
  } else if (!wanted.empty()) {
    Tell(wanted);
  }
}

// The path's own node, with the tree open down to it; null when the way ends early.
DirectoryTree::Node* DirectoryTree::ShowWay(const std::u16string& path) {
  const BusyPointer busy(common_.PortSet().window);
  screen_->SetTreeVisible(false);
  AddDriveNodes();
  Node* const node = path.empty() ? nullptr : ExpandDownTo(KeyOfPath(path));
  if (node != nullptr) ShowAround(*node);
  screen_->SetTreeVisible(true);
  return node;
}

DirectoryTree::Node* DirectoryTree::ExpandDownTo(std::u16string_view key) {
  Node* node = DriveOf(key);
  if (node == nullptr) return nullptr;
  for (const std::u16string_view name : NamesBelow(key, *node)) {
    if (!node->expanded_ && node->HasChildren()) Open(*node);
    Node* const child = FindChild(*node, name);
    node = child != nullptr ? child : AddUnlisted(*node, name);
    if (node == nullptr) return nullptr;
    OpenBranch(*node->parent_);
  }
  if (node->HasChildren() && !node->expanded_) Open(*node);
  return node;
}

// After a folder was added to one that had none to expand.
void DirectoryTree::OpenBranch(Node& node) {
  if (node.expanded_) return;
  node.expanded_ = true;
  screen_->NodeChanged(node);
}

void DirectoryTree::ShowAround(const Node& node) const {
  const Node& lastSibling = *Siblings(node).back();
  if (&lastSibling != &node) {
    screen_->EnsureVisible(lastSibling);
  } else if (!node.folders_.empty()) {
    screen_->EnsureVisible(*node.folders_.back());
  }
  screen_->EnsureVisible(node);
  screen_->ScrollLeft();
}

bool DirectoryTree::CreateNewDirectory(std::u16string_view name) {
  const std::u16string parent = KeyOfPath(path_);
  const std::u16string base = common_.Join(parent, name.empty() ? kNewFolder : name);
  std::u16string path = base;
  for (int number = 2; common_.PathExists(path); ++number) path = base + u"(" + ToText(number) + u")";
  if (!common_.MakeDirectory(common_.Join(path, u"Dummy.file"))) return false;
  DeletePath(parent);
  CreateTree();
  SelectWholePath(path);
  return true;
}

void DirectoryTree::SelectWholePath(std::u16string_view path) {
  const Node* const node = Find(path);
  if (node == nullptr) return;
  screen_->EnsureVisible(*node);
  SelectNode(*node, Report::Always);
}

void DirectoryTree::RenameDirectory() const {
  if (selected_ != nullptr) screen_->EditLabel(*selected_);
}

bool DirectoryTree::IsSystemFolder(std::u16string_view path) const {
  for (const int number : kSystemFolders)
    if (SameName(common_.GetSystemDirectory(number), path)) return true;
  return false;
}

bool DirectoryTree::BeforeLabelEdit() const {
  if (selected_ == nullptr || selected_->kind_ == Node::Kind::Drive) return false;
  return !IsSystemFolder(SelectPath());
}

bool DirectoryTree::AfterLabelEdit(std::u16string_view newText) {
  const bool refused = newText.empty() || newText.back() == u'.' ||
                       newText.find(common_.Separator()) != newText.npos ||
                       newText.find(u'\0') != newText.npos;
  if (refused || selected_ == nullptr || newText == selected_->text_) return false;
  constexpr std::uint32_t kFlags = 384;
  const std::u16string parent = Key(*selected_->parent_);
  const std::u16string renamed = common_.Join(parent, newText);
  if (!common_.FileEdit(ClassCommon::FileOperation::Rename, SelectPath(), renamed, kFlags)) {
    common_.PortSet().window.Beep();
    return false;
  }
  DeletePath(parent);
  path_ = renamed;
  CreateTree();
  return true;
}

}  // namespace kestri
