#include "document/byte_loss.hpp"

#include <algorithm>
#include <string>

#include "shell/common/code_page.hpp"
#include "shell/common/text.hpp"

namespace kestri {
namespace {

constexpr char16_t kMiddleDot = u'・';
// Bytes; a longer UTF-8 file counts as one that would change.
constexpr std::size_t kMostCompared = 16u << 20;

// Counts the two-byte code of the middle dot in a file that arrives in pieces.
class MiddleDotCounter {
 public:
  void Append(std::string_view bytes) {
    for (const char byte : bytes) Take(static_cast<unsigned char>(byte));
  }
  std::size_t Count() const { return count_; }

 private:
  void Take(unsigned char byte) {
    const bool isTrail = lead_ != 0 && byte != 0;
    if (lead_ == 0x81 && byte == 0x45) ++count_;
    lead_ = !isTrail && code_page::IsLeadByte(byte) ? byte : 0;
  }

  unsigned char lead_ = 0;
  std::size_t count_ = 0;
};

// Follows a file that arrives in pieces for as long as it is UTF-8.
class Utf8Watch {
 public:
  bool Append(std::string_view bytes) {
    for (const char byte : bytes) {
      if (!Take(static_cast<unsigned char>(byte))) return holds_ = false;
    }
    return true;
  }
  bool Holds() const { return holds_ && following_ == 0 && foreign_; }  // with more than ASCII in it

 private:
  bool Take(unsigned char byte) {
    foreign_ = foreign_ || byte >= 0x80;
    if (following_ > 0) return (byte & 0xC0) == 0x80 && following_-- > 0;
    if (byte < 0x80) return true;
    if (byte < 0xC2 || byte > 0xF4) return false;
    following_ = byte < 0xE0 ? 1 : byte < 0xF0 ? 2 : 3;
    return true;
  }

  int following_ = 0;  // bytes that belong to the character begun
  bool foreign_ = false;
  bool holds_ = true;
};

bool HoldsUnreadableBytes(FileSystem& files, std::u16string_view path, std::u16string_view text) {
  const auto dots = static_cast<std::size_t>(std::count(text.begin(), text.end(), kMiddleDot));
  if (dots == 0) return false;
  MiddleDotCounter counter;
  const bool read = files.Read(path, [&counter](std::string_view bytes) {
    counter.Append(bytes);
    return true;
  });
  return read && counter.Count() < dots;
}

// A page in the code page stops being UTF-8 at its first word, so that next to nothing is read of it. One of
// single bytes alone, ASCII or half-width kana, comes back as it was.
bool WouldChangeUtf8(FileSystem& files, std::u16string_view path, std::u16string_view text) {
  const auto status = files.Status(path);
  if (!status || status->size <= text.size() + kCrLf.size()) return false;
  Utf8Watch watch;
  std::string begin;
  const bool read = files.Read(path, [&](std::string_view bytes) {
    if (begin.size() <= kMostCompared) begin += bytes;
    return watch.Append(bytes);
  });
  if (!read || !watch.Holds()) return false;
  return begin.size() > kMostCompared || code_page::Encode(code_page::Decode(begin)) != begin;
}

}  // namespace

ByteLoss ByteLossOf(FileSystem& files, std::u16string_view path, std::u16string_view text) {
  if (HoldsUnreadableBytes(files, path, text)) return ByteLoss::Unreadable;
  return WouldChangeUtf8(files, path, text) ? ByteLoss::Utf8 : ByteLoss::None;
}

}  // namespace kestri
