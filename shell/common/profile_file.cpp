#include "shell/common/profile_file.hpp"

#include "shell/common/code_page.hpp"
#include "shell/common/profile_lines.hpp"

namespace kestri {
namespace {

// As the platform hands a default back: trailing blanks go, though never the first character, then quotes.
std::u16string_view CleanDefault(std::u16string_view text) {
  while (text.size() > 1 && text.back() == u' ') text.remove_suffix(1);
  const bool isQuoted =
      text.size() >= 2 && text.front() == text.back() && (text.front() == u'"' || text.front() == u'\'');
  return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::u16string CutToBuffer(std::string_view bytes, std::size_t size) {
  return size == 0 ? std::u16string() : code_page::Decode(code_page::Truncate(bytes, size - 1));
}

// A default that fits need not pass through the code page.
std::u16string CutToBuffer(std::u16string_view text, std::size_t size) {
  if (code_page::EncodedLength(text) < size) return std::u16string(text);
  return CutToBuffer(code_page::Encode(text), size);
}

std::optional<std::string> ReadAll(FileSystem& files, std::u16string_view path) {
  std::string bytes;
  const bool read = files.Read(path, [&](std::string_view piece) {
    bytes.append(piece);
    return true;
  });
  if (!read) return std::nullopt;
  return bytes;
}

}  // namespace

std::u16string ProfileFile::Get(std::u16string_view path, std::u16string_view section,
                                std::u16string_view key, std::u16string_view defaultValue,
                                std::size_t size) const {
  const auto value = Load(path).Get(code_page::Encode(section), code_page::Encode(key));
  return value ? CutToBuffer(*value, size) : CutToBuffer(CleanDefault(defaultValue), size);
}

ProfileContent ProfileFile::Load(std::u16string_view path) const {
  return ProfileContent(ReadAll(files_, path).value_or(std::string()));
}

bool ProfileFile::Set(std::u16string_view path, std::u16string_view section, std::u16string_view key,
                      std::u16string_view value) const {
  return Update(path, [&](ProfileContent& content) {
    content.Set(code_page::Encode(section), code_page::Encode(key), code_page::Encode(value));
  });
}

bool ProfileFile::DeleteKey(std::u16string_view path, std::u16string_view section,
                            std::u16string_view key) const {
  return Update(path, [&](ProfileContent& content) {
    content.DeleteKey(code_page::Encode(section), code_page::Encode(key));
  });
}

bool ProfileFile::DeleteSection(std::u16string_view path, std::u16string_view section) const {
  return Update(path, [&](ProfileContent& content) { content.DeleteSection(code_page::Encode(section)); });
}

bool ProfileFile::Update(std::u16string_view path, const std::function<void(ProfileContent&)>& change,
                         Keeping keeping) const {
  const auto lock = files_.Lock(path);
  auto bytes = ReadAll(files_, path);
  if (!bytes && files_.Status(path)) return false;  // there, but not to be read: it must not be overwritten
  const std::string before = bytes.value_or(std::string());
  ProfileContent content(before);
  change(content);
  const std::string after = content.FileBytes();
  if (after == before) return true;
  const auto produce = [&after](const FileSystem::ByteConsumer& write) { return write(after); };
  return keeping == Keeping::Whole ? files_.ReplaceOrdered(path, produce)
                                   : files_.ReplaceUnsynced(path, produce);
}

}  // namespace kestri
