// Profile (INI) files in code page 932, with the rules of the platform's private-profile calls: section and
// key names compare without ASCII case, the first hit counts, blanks around names and values are not kept,
// matching quotes around a value are taken off at read, a value is one line. Lines in front of the first
// header belong to the section without a name. A file with a UTF-16 byte order mark is read and stays in that
// form. A write changes only the line it concerns, under the file's lock. For other processes, and when this
// one is killed, the file holds the whole old or the whole new content.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.hpp"

namespace kestri {

// The content of one profile file; lookups do not touch the disk.
class ProfileContent {
 public:
  // The bytes of the file.
  explicit ProfileContent(std::string bytes);

  // The content in the code page.
  const std::string& Bytes() const { return bytes_; }
  // The content as it goes to the disk: the same, or UTF-16 where the file was.
  std::string FileBytes() const;

  // Value as bytes of the code page; nothing when section or key is missing.
  std::optional<std::string> Get(std::string_view section, std::string_view key) const;

  // All keys of a section with their values, in file order, first occurrence of each key, in one pass.
  struct Entry {
    std::string_view key;
    std::string_view value;
  };
  std::vector<Entry> Section(std::string_view section) const;

  // Each edits the content in place and leaves every other line as it is. Set adds section and key when
  // missing. A new line ends with CR LF. The section without a name is not deleted.
  void Set(std::string_view section, std::string_view key, std::string_view value);
  void DeleteKey(std::string_view section, std::string_view key);
  void DeleteSection(std::string_view section);

 private:
  void Splice(std::size_t start, std::size_t length, std::string_view text);
  void InsertLine(std::size_t position, std::string_view text);

  std::string bytes_;
  std::optional<std::u16string> wide_;  // the whole text of a UTF-16 file, changed along with bytes_
};

// What a power failure may do to a file that is being written.
enum class Keeping {
  Whole,     // the old or the new content is there
  Volatile,  // it may be empty: for records that no next start needs; writes do not wait for the disk
};

class ProfileFile {
 public:
  explicit ProfileFile(FileSystem& files) : files_(files) {}

  // Paths are complete. size counts bytes of the buffer with its end mark: at most size - 1 bytes come back,
  // cut in front of a double-byte character that does not fit. The default loses trailing blanks and its
  // quotes as well.
  std::u16string Get(std::u16string_view path, std::u16string_view section, std::u16string_view key,
                     std::u16string_view defaultValue, std::size_t size) const;

  // The whole file; an unreadable one is empty.
  ProfileContent Load(std::u16string_view path) const;

  // False when the file could not be written; it is then as it was. Nothing is written when nothing changes.
  bool Set(std::u16string_view path, std::u16string_view section, std::u16string_view key,
           std::u16string_view value) const;
  bool DeleteKey(std::u16string_view path, std::u16string_view section, std::u16string_view key) const;
  bool DeleteSection(std::u16string_view path, std::u16string_view section) const;

  // Several changes as one write under one lock.
  bool Update(std::u16string_view path, const std::function<void(ProfileContent&)>& change,
              Keeping keeping = Keeping::Whole) const;

 private:
  FileSystem& files_;
};

}  // namespace kestri
