// Nodes: what is read from the disk, and where a path stands in the tree.
#include "browse/directory_tree.hpp"

#include <algorithm>
#include <utility>

#include "browse/natural_order.hpp"
#include "document/document.hpp"
#include "shell/common/text_compare.hpp"

namespace kestri {
namespace {

constexpr std::u16string_view kMainDisk = u"ファイルシステム";
constexpr std::u16string_view kLocalDisk = u"ローカル ディスク";

}  // namespace

std::u16string DirectoryTree::KeyOfPath(std::u16string_view path) const {
  std::u16string key = common_.AppPath(path);
  return key.empty() ? std::u16string(path) : key;
}

std::u16string DirectoryTree::Key(const Node& node) const {
  if (node.kind_ == Node::Kind::Drive) return node.driveKey_;
  return common_.Join(Key(*node.parent_), node.text_);
}

std::vector<std::u16string> DirectoryTree::ChildKeys(const Node& node) const {
  if (node.placeholder_) return {common_.Join(Key(node), kPlaceholder)};
  std::vector<std::u16string> keys;
  for (const auto& child : node.folders_) keys.push_back(Key(*child));
  return keys;
}

std::u16string_view DirectoryTree::IconOf(const Node& node, Picture picture) {
  if (node.kind_ == Node::Kind::Folder) return picture == Picture::Open ? u"folder-open" : u"folder";
  const bool diskette = node.driveKey_ == u"A:" || node.driveKey_ == u"B:";
  const bool mainDisk = node.driveKey_ == u"/" || node.driveKey_.ends_with(u':');
  return mainDisk && !diskette ? u"drive-harddisk" : u"drive-removable-media";
}

std::u16string_view DirectoryTree::GetIcon(std::u16string_view path, bool selected) const {
  const Node* node = Find(path);
  if (node == nullptr) return {};
  return IconOf(*node, selected ? Picture::Normal : Picture::Open);
}

bool DirectoryTree::IsFolder(std::u16string_view path) const {
  return !path.empty() && common_.IsFileAttribute(path, kAttributeDirectory);
}

bool DirectoryTree::SameName(std::u16string_view left, std::u16string_view right) const {
  if (common_.Style() == PathStyle::Posix) return left == right;
  return text_compare::EqualIgnoringCase(left, right);
}

bool DirectoryTree::LiesOn(std::u16string_view key, const Node& drive) const {
  const std::u16string root = common_.AppPath(drive.driveKey_);
  if (key.size() < root.size() || !SameName(key.substr(0, root.size()), root)) return false;
  return key.size() == root.size() || key[root.size()] == common_.Separator();
}

DirectoryTree::Node* DirectoryTree::DriveOf(std::u16string_view key) const {
  Node* best = nullptr;
  for (const auto& drive : drives_) {
    const bool closer = best == nullptr || drive->driveKey_.size() > best->driveKey_.size();
    if (closer && LiesOn(key, *drive)) best = drive.get();
  }
  return best;
}

DirectoryTree::Node* DirectoryTree::FindChild(const Node& parent, std::u16string_view name) const {
  const auto& folders = parent.folders_;
  const auto found = std::find_if(folders.begin(), folders.end(),
                                  [&](const auto& child) { return SameName(child->text_, name); });
  return found == folders.end() ? nullptr : found->get();
}

std::vector<std::u16string_view> DirectoryTree::NamesBelow(std::u16string_view key, const Node& drive) const {
  std::vector<std::u16string_view> names;
  std::size_t from = common_.AppPath(drive.driveKey_).size() + 1;
  while (from < key.size()) {
    const std::size_t end = std::min(key.find(common_.Separator(), from), key.size());
    names.push_back(key.substr(from, end - from));
    from = end + 1;
  }
  return names;
}

DirectoryTree::Node* DirectoryTree::FindNode(std::u16string_view path) const {
  const std::u16string key = KeyOfPath(path);
  Node* node = path.empty() ? nullptr : DriveOf(key);
  if (node == nullptr) return nullptr;
  for (const std::u16string_view name : NamesBelow(key, *node)) {
    node = FindChild(*node, name);
    if (node == nullptr) return nullptr;
  }
  return node;
}

const DirectoryTree::Node* DirectoryTree::Find(std::u16string_view path) const {
  return FindNode(path);
}

bool DirectoryTree::LiesWithin(const Node* node, const Node& folder) {
  while (node != nullptr && node != &folder) node = node->parent_;
  return node != nullptr;
}

const std::vector<std::unique_ptr<DirectoryNode>>& DirectoryTree::Siblings(const Node& node) const {
  return node.parent_ == nullptr ? drives_ : node.parent_->folders_;
}

std::vector<std::u16string> DirectoryTree::DriveKeys() const {
  std::vector<std::u16string> keys;
  if (common_.Style() == PathStyle::Posix) {
    for (const std::u16string& root : common_.PortSet().environment.Drives()) keys.push_back(KeyOfPath(root));
    return keys;
  }
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    const std::u16string drive = std::u16string(1, letter) + u":";
    if (common_.DriveExists(drive + u"\\")) keys.push_back(drive);
  }
  return keys;
}

std::u16string DirectoryTree::DriveText(const std::u16string& key) const {
  const bool isVolume = common_.Style() == PathStyle::Posix && key != u"/";
  if (isVolume) return common_.CFile(key, 0);
  const std::u16string_view disk = common_.Style() == PathStyle::Posix ? kMainDisk : kLocalDisk;
  return std::u16string(disk).append(u" (").append(key).append(u")");
}

// Drives that stand already stay as they are.
void DirectoryTree::AddDriveNodes() {
  for (const std::u16string& key : DriveKeys()) {
    const bool stands = std::any_of(drives_.begin(), drives_.end(),
                                    [&key](const auto& drive) { return drive->driveKey_ == key; });
    if (!stands) AddDrive(key);
  }
}

void DirectoryTree::AddDrive(const std::u16string& key) {
  auto drive = std::make_unique<Node>();
  drive->kind_ = Node::Kind::Drive;
  drive->placeholder_ = true;
  drive->row_ = static_cast<std::uint32_t>(drives_.size());
  drive->text_ = DriveText(key);
  drive->driveKey_ = key;
  screen_->NodesComing(nullptr, drives_.size(), 1);
  drives_.push_back(std::move(drive));
  screen_->NodesCame(nullptr);
}

bool DirectoryTree::HasSubFolder(std::u16string_view path) const {
  return common_.PortSet().files.HasFolder(path);
}

bool DirectoryTree::IsDrive(std::u16string_view key) const {
  return std::any_of(drives_.begin(), drives_.end(),
                     [key](const auto& drive) { return drive->driveKey_ == key; });
}

std::unique_ptr<DirectoryNode> DirectoryTree::NewFolderNode(Node& parent, std::u16string name,
                                                            std::uint32_t attributes) const {
  auto node = std::make_unique<Node>();
  node->parent_ = &parent;
  node->text_ = std::move(name);
  if ((attributes & kAttributeReadOnly) != 0) node->color_ = NodeColor::ReadOnly;
  if ((attributes & kAttributeHidden) != 0) node->color_ = NodeColor::Hidden;
  const std::u16string key = Key(*node);
  node->placeholder_ = !IsDrive(key) && HasSubFolder(key);
  return node;
}

bool DirectoryTree::AddFolderNodes(Node& node) {
  const std::u16string folder = Key(node);
  if (!common_.PathExists(common_.AppPath2(folder))) return false;
  path_ = folder;
  std::vector<std::unique_ptr<Node>> folders;
  for (FolderEntry& entry : common_.PortSet().files.Folders(common_.AppPath2(folder)))
    folders.push_back(NewFolderNode(node, std::move(entry.name), entry.attributes));
  TakeIn(node, std::move(folders));
  return true;
}

void DirectoryTree::TakeIn(Node& parent, std::vector<std::unique_ptr<Node>> folders) {
  if (folders.empty()) return;
  std::vector<std::pair<std::u16string, std::size_t>> order;
  order.reserve(folders.size());
  for (const auto& folder : folders) order.emplace_back(NaturalKey(folder->text_), order.size());
  std::sort(order.begin(), order.end(), [&folders](const auto& left, const auto& right) {
    if (left.first != right.first) return left.first < right.first;
    return folders[left.second]->text_ < folders[right.second]->text_;
  });
  screen_->NodesComing(&parent, 0, folders.size());
  parent.folders_.reserve(folders.size());
  for (const auto& [key, from] : order) parent.folders_.push_back(std::move(folders[from]));
  NumberRows(parent);
  screen_->NodesCame(&parent);
}

void DirectoryTree::NumberRows(Node& parent) {
  std::uint32_t row = 0;
  for (const auto& folder : parent.folders_) folder->row_ = row++;
}

// A folder that its own one does not list: nobody may read that one, or it came a moment ago.
DirectoryTree::Node* DirectoryTree::AddUnlisted(Node& parent, std::u16string_view name) {
  if (name.empty() || name == u"." || name == u"..") return nullptr;
  const auto status = common_.PortSet().files.Status(common_.Join(Key(parent), name));
  if (!status || (status->attributes & kAttributeDirectory) == 0) return nullptr;
  auto node = NewFolderNode(parent, std::u16string(name), status->attributes);
  Node* const added = node.get();
  const auto place =
      std::find_if(parent.folders_.begin(), parent.folders_.end(),
                   [name](const auto& sibling) { return NaturallyBefore(name, sibling->text_); });
  screen_->NodesComing(&parent, static_cast<std::size_t>(place - parent.folders_.begin()), 1);
  parent.folders_.insert(place, std::move(node));
  NumberRows(parent);
  screen_->NodesCame(&parent);
  return added;
}

void DirectoryTree::RemoveFolders(Node& node) {
  if (node.folders_.empty()) return;
  if (selected_ != &node && LiesWithin(selected_, node)) selected_ = nullptr;
  screen_->NodesGoing(&node);
  std::vector<std::unique_ptr<Node>> gone = std::move(node.folders_);
  node.folders_.clear();
  screen_->NodesGone(&node);
}

void DirectoryTree::DeleteTree() {
  selected_ = nullptr;
  screen_->NodesGoing(nullptr);
  drives_.clear();
  screen_->NodesGone(nullptr);
}

void DirectoryTree::DeletePath(std::u16string_view path) {
  Node* const node = FindNode(path);
  if (node == nullptr) return;
  RemoveFolders(*node);
  node->placeholder_ = true;
  node->expanded_ = false;
  screen_->NodeChanged(*node);
}

void DirectoryTree::Expand(const Node& node) {
  if (!node.placeholder_) return Open(Own(node));
  const BusyPointer busy(common_.PortSet().window);
  Open(Own(node));
}

void DirectoryTree::Open(Node& node) {
  if (std::exchange(node.placeholder_, false)) AddFolderNodes(node);
  node.expanded_ = !node.folders_.empty();
  screen_->NodeChanged(node);
}

void DirectoryTree::Collapse(const Node& node) {
  Own(node).expanded_ = false;
  screen_->NodeChanged(node);
  if (LiesWithin(selected_, node)) SelectNode(node, Report::Always);
}

}  // namespace kestri
