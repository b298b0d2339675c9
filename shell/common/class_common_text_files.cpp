// Text files in the system code page, streamed both ways: no second copy of the whole text is ever held.
#include <algorithm>
#include <exception>

#include "shell/common/class_common.hpp"
#include "shell/common/code_page.hpp"

namespace kestri {
namespace {

constexpr std::int64_t kWholeFile = -1;
constexpr char kEndOfFileMark = '\x1A';
constexpr std::size_t kRoomForEdits = 64 * 1024;  // characters behind a text, so that it can grow where it is

// Takes a file's bytes as they come; stops at the asked count, fails at an end-of-file mark and above the
// limit.
class TextReader {
 public:
  TextReader(std::uint64_t wanted, std::uint64_t expected, std::size_t limit) : left_(wanted), limit_(limit) {
    text_.reserve(static_cast<std::size_t>(std::min(wanted, expected)) + kRoomForEdits);
  }

  bool Take(std::string_view bytes) {
    bytes = bytes.substr(0, static_cast<std::size_t>(std::min<std::uint64_t>(left_, bytes.size())));
    if (bytes.find(kEndOfFileMark) != std::string_view::npos) {
      isBinary_ = true;
      return false;
    }
    decoder_.Append(bytes, text_);
    left_ -= bytes.size();
    return left_ > 0 && !IsTooLong();
  }

  bool IsBinary() const { return isBinary_; }
  bool IsTooLong() const { return text_.size() > limit_; }
  std::uint64_t Left() const { return left_; }

  std::u16string Finish() {
    decoder_.Finish(text_);
    if (text_.ends_with(kCrLf)) text_.resize(text_.size() - kCrLf.size());
    return std::move(text_);
  }

 private:
  std::uint64_t left_;
  std::size_t limit_;
  bool isBinary_ = false;
  code_page::Decoder decoder_;
  std::u16string text_;
};

std::u16string_view LineEndText(LineEnd lineEnd) {
  switch (lineEnd) {
    case LineEnd::Cr:
      return u"\r";
    case LineEnd::Lf:
      return u"\n";
    case LineEnd::CrLf:
      break;
  }
  return kCrLf;
}

// A file with one in it would be no text when read again. No double-byte character holds that byte.
void HideEndOfFileMarks(std::string& bytes) {
  for (auto at = bytes.find(kEndOfFileMark); at != bytes.npos; at = bytes.find(kEndOfFileMark, at + 1)) {
    bytes[at] = '?';
  }
}

bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}

// Encodes text that comes in pieces; a CR LF or a character may lie on the border of two.
class TextWriter {
 public:
  TextWriter(const FileSystem::ByteConsumer& write, LineEnd lineEnd) : write_(write), lineEnd_(lineEnd) {}

  bool Append(std::u16string_view text) {
    constexpr std::size_t kChunk = 32 * 1024;
    while (!text.empty()) {
      const std::u16string_view piece = text.substr(0, kChunk);
      text.remove_prefix(piece.size());
      chunk_ += piece;
      if (!Flush(SettledLength())) return false;
    }
    return true;
  }

  bool Finish() { return Flush(chunk_.size()) && write_("\r\n"); }

 private:
  std::size_t SettledLength() const {
    const char16_t last = chunk_.back();
    return chunk_.size() - (last == u'\r' || IsHighSurrogate(last) ? 1 : 0);
  }

  bool Flush(std::size_t length) {
    const bool convert = lineEnd_ != LineEnd::CrLf;
    const std::size_t kept = convert ? ConvertLineEnds(length) : length;
    std::string bytes = code_page::Encode(std::u16string_view(chunk_).substr(0, kept));
    HideEndOfFileMarks(bytes);
    const bool written = write_(bytes);
    chunk_.erase(0, length);
    return written;
  }

  // Shortens the first length units of the chunk in place; returns how many are left.
  std::size_t ConvertLineEnds(std::size_t length) {
    const char16_t mark = LineEndText(lineEnd_).front();
    std::size_t out = 0;
    for (std::size_t in = 0; in < length; ++in) {
      const bool isPair = chunk_[in] == u'\r' && in + 1 < length && chunk_[in + 1] == u'\n';
      chunk_[out++] = isPair ? mark : chunk_[in];
      if (isPair) ++in;
    }
    return out;
  }

  const FileSystem::ByteConsumer& write_;
  LineEnd lineEnd_;
  std::u16string chunk_;
};

}  // namespace

bool ClassCommon::ReadTextFile(std::u16string_view path, std::u16string& text, std::int64_t length) const {
  return ReadText(path, text, length, std::u16string().max_size()) == TextRead::Done;
}

ClassCommon::TextRead ClassCommon::ReadWholeText(std::u16string_view path, std::u16string& text,
                                                 std::size_t mostUnits) const {
  constexpr std::size_t kFinalLineEnd = kCrLf.size();
  const TextRead read = ReadText(path, text, kWholeFile, mostUnits + kFinalLineEnd);
  return read == TextRead::Done && text.size() > mostUnits ? TextRead::TooLong : read;
}

ClassCommon::TextRead ClassCommon::ReadText(std::u16string_view path, std::u16string& text,
                                            std::int64_t length, std::size_t limit) const try {
  const auto status = ports_.files.Status(path);
  if (!status || (status->attributes & kAttributeDirectory) != 0 || length < kWholeFile)
    return TextRead::NoText;
  const bool whole = length == kWholeFile;
  TextReader reader(whole ? UINT64_MAX : static_cast<std::uint64_t>(length), status->size, limit);
  const bool read = ports_.files.Read(path, [&](std::string_view bytes) { return reader.Take(bytes); });
  if (reader.IsTooLong()) return TextRead::TooLong;
  const bool isShort = !whole && reader.Left() > 0;
  if (!read || reader.IsBinary() || isShort) return TextRead::NoText;
  text = reader.Finish();
  return TextRead::Done;
} catch (const std::exception&) {
  return TextRead::TooLong;  // no memory for it
}

bool ClassCommon::WriteTextFile(std::u16string_view path, std::u16string_view text) const {
  return WriteTextPieces(path, text, {}, LineEnd::CrLf);
}

bool ClassCommon::WriteTextPieces(std::u16string_view path, std::u16string_view first,
                                  std::u16string_view second, LineEnd lineEnd) const {
  return ports_.files.Replace(path, [&](const FileSystem::ByteConsumer& write) {
    TextWriter writer(write, lineEnd);
    return writer.Append(first) && writer.Append(second) && writer.Finish();
  });
}

}  // namespace kestri
