// Any bytes decode; a stream in pieces gives the whole; what was decoded encodes to the length that was
// foretold.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "shell/common/code_page.hpp"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

// The first byte of the input sets the size of the pieces.
std::u16string DecodeInPieces(std::string_view bytes) {
  const std::size_t step = bytes.empty() ? 1 : 1 + static_cast<unsigned char>(bytes[0]) % 37;
  kestri::code_page::Decoder decoder;
  std::u16string text;
  for (std::size_t at = 0; at < bytes.size(); at += step) decoder.Append(bytes.substr(at, step), text);
  decoder.Finish(text);
  return text;
}

std::u16string UnitsOf(std::string_view bytes) {
  std::u16string text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    text += static_cast<char16_t>(static_cast<unsigned char>(bytes[at]) << 8 |
                                  static_cast<unsigned char>(bytes[at + 1]));
  }
  return text;
}

void CheckEncoding(const std::u16string& text) {
  const std::string encoded = kestri::code_page::Encode(text);
  Require(encoded.size() == kestri::code_page::EncodedLength(text));
  Require(kestri::code_page::RoundTrips(text) == (kestri::code_page::Decode(encoded) == text));
}

void CheckTruncation(std::string_view bytes, std::size_t size) {
  const std::string_view cut = kestri::code_page::Truncate(bytes, size);
  Require(cut.size() <= size && cut.size() <= bytes.size());
  Require(kestri::code_page::Decode(cut) + kestri::code_page::Decode(bytes.substr(cut.size())) ==
          kestri::code_page::Decode(bytes));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::u16string text = kestri::code_page::Decode(bytes);
  Require(DecodeInPieces(bytes) == text);
  CheckEncoding(text);
  CheckEncoding(UnitsOf(bytes));
  CheckTruncation(bytes, size / 2);
  return 0;
}
