// Files in memory: paths are compared as they stand, folders exist as soon as a file lies in them.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/file_system.hpp"

namespace kestri::fakes {

class MemoryFileSystem : public FileSystem {
 public:
  std::optional<FileStatus> Status(std::u16string_view path) override {
    const auto found = contents.find(std::u16string(path));
    if (found != contents.end()) return FileStatus{.size = found->second.size()};
    return IsFolder(path) ? std::optional(FileStatus{.attributes = kAttributeDirectory}) : std::nullopt;
  }
  bool Read(std::u16string_view path, const ByteConsumer& consumer) override {
    ++reads;
    const auto found = contents.find(std::u16string(path));
    if (found == contents.end()) return false;
    if (!found->second.empty()) consumer(found->second);
    return true;
  }
  bool Replace(std::u16string_view path, const ByteProducer& producer) override {
    if (refuseWrites) return false;
    std::string bytes;
    const bool whole = producer([&bytes](std::string_view piece) {
      bytes += piece;
      return true;
    });
    if (whole) contents[std::u16string(path)] = bytes;
    if (whole) ++writes;
    return whole;
  }
  bool Append(std::u16string_view path, std::string_view bytes) override {
    if (refuseWrites) return false;
    contents[std::u16string(path)] += bytes;
    return true;
  }
  bool Remove(std::u16string_view path) override { return contents.erase(std::u16string(path)) > 0; }
  bool Copy(std::u16string_view from, std::u16string_view to) override {
    const auto found = contents.find(std::u16string(from));
    if (found == contents.end() || refuseWrites) return false;
    contents[std::u16string(to)] = std::string(found->second);
    return true;
  }
  bool CreateFolder(std::u16string_view) override { return true; }
  bool CreateLink(std::u16string_view, std::u16string_view) override { return false; }
  std::u16string Canonical(std::u16string_view path) override {
    return Status(path) ? std::u16string(path) : std::u16string();
  }
  std::vector<std::u16string> List(std::u16string_view) override { return {}; }
  std::uint64_t FolderSize(std::u16string_view) override { return 0; }
  std::unique_ptr<FileLock> Lock(std::u16string_view) override { return std::make_unique<FileLock>(); }

  std::map<std::u16string, std::string> contents;
  bool refuseWrites = false;
  int reads = 0;
  int writes = 0;

 private:
  bool IsFolder(std::u16string_view path) const {
    const std::u16string folder = std::u16string(path) + u"/";
    const auto next = contents.lower_bound(folder);
    return next != contents.end() && next->first.compare(0, folder.size(), folder) == 0;
  }
};

}  // namespace kestri::fakes
