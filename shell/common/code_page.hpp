// Code page 932 (Shift-JIS with the vendor extensions) both ways, in one pass, table-driven.
// A byte sequence that maps to nothing becomes U+30FB; a character that maps to nothing becomes '?', a
// surrogate pair two of them. A character with a near relative in the code page (an accented letter) becomes
// that one.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kestri::code_page {

// A lead byte takes the next byte with it whatever that is, save a NUL: "\x82<" is one U+30FB.
std::u16string Decode(std::string_view bytes);
std::string Encode(std::u16string_view text);

// Length of Encode(text) in bytes, without building it.
std::size_t EncodedLength(std::u16string_view text);

// True when every character of the text comes back unchanged from Decode(Encode(text)).
bool RoundTrips(std::u16string_view text);

// Index, not before from, of the first unit that does not; npos when there is none.
std::size_t FindUnmappable(std::u16string_view text, std::size_t from);

// Decodes a stream that arrives in pieces; a lead byte at the end of a piece waits for the next one. A text
// never has more units than the stream has bytes: reserve that many in out when the size is known.
class Decoder {
 public:
  void Append(std::string_view bytes, std::u16string& out);
  void Finish(std::u16string& out);  // a waiting lead byte becomes U+30FB; the decoder is as new

 private:
  unsigned char pendingLead_ = 0;
};

bool IsLeadByte(unsigned char byte);

// The longest prefix of at most size bytes that does not end inside a double-byte character. Nothing is taken
// off when the whole fits.
std::string_view Truncate(std::string_view bytes, std::size_t size);

}  // namespace kestri::code_page
