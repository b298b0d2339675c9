#include "shell/common/code_page.hpp"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "shell/common/code_page_tables.hpp"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace kestri::code_page {
namespace {

constexpr char16_t kInvalid = u'\u30FB';

// Conversion goes through a buffer that stays in the first-level cache, so that the result is written once
// and never cleared first. Block stores may write up to kSlack elements behind the last one that counts.
constexpr std::size_t kChunk = 4096;
constexpr std::size_t kBlock = 16;
constexpr std::size_t kSlack = kBlock;

unsigned char Byte(char value) {
  return static_cast<unsigned char>(value);
}

char16_t DecodePair(unsigned char lead, unsigned char trail) {
  if (trail < kFirstTrail) return kInvalid;
  return kDecodeRows[kRowOfLead[lead]][trail - kFirstTrail];
}

std::uint16_t Code(char16_t unit) {
  return kEncodePages[kPageOfHighByte[unit >> 8]][unit & 0xFF];
}

bool IsUnmappable(char16_t unit) {
  if (unit < 0x80) return false;
  const std::uint16_t code = Code(unit);
  return unit !=
         (code > 0xFF ? DecodePair(static_cast<unsigned char>(code >> 8), code & 0xFF) : kSingleUnits[code]);
}

bool IsDoubleByte(char16_t unit) {
  return (kDoubleByteUnits[unit >> 5] >> (unit & 31)) & 1;
}

#if defined(__SSE2__)

__m128i Load(const void* from) {
  return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

void Store(void* to, __m128i value) {
  _mm_storeu_si128(static_cast<__m128i*>(to), value);
}

// Widens kBlock bytes; tells how many of them are ASCII before the first that is not.
std::size_t WidenAscii(const char* from, char16_t* to) {
  const __m128i bytes = Load(from);
  Store(to, _mm_unpacklo_epi8(bytes, _mm_setzero_si128()));
  Store(to + 8, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
  const auto others = static_cast<unsigned>(_mm_movemask_epi8(bytes));
  return static_cast<std::size_t>(std::countr_zero(others | 1U << kBlock));
}

// One bit a unit of a block: set where the unit is not ASCII.
unsigned NonAsciiMask(const char16_t* from) {
  const __m128i high = _mm_set1_epi16(static_cast<std::int16_t>(0xFF80));
  const __m128i first = _mm_cmpeq_epi16(_mm_and_si128(Load(from), high), _mm_setzero_si128());
  const __m128i second = _mm_cmpeq_epi16(_mm_and_si128(Load(from + 8), high), _mm_setzero_si128());
  return ~static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(first, second))) & 0xFFFFU;
}

std::size_t NarrowAscii(const char16_t* from, char* to) {
  Store(to, _mm_packus_epi16(Load(from), Load(from + 8)));
  return static_cast<std::size_t>(std::countr_zero(NonAsciiMask(from) | 1U << kBlock));
}

#else

std::size_t WidenAscii(const char* from, char16_t* to) {
  std::size_t count = 0;
  for (; count < kBlock && Byte(from[count]) < 0x80; ++count) to[count] = Byte(from[count]);
  return count;
}

unsigned NonAsciiMask(const char16_t* from) {
  unsigned mask = 0;
  for (std::size_t i = 0; i < kBlock; ++i) mask |= static_cast<unsigned>(from[i] >= 0x80) << i;
  return mask;
}

std::size_t NarrowAscii(const char16_t* from, char* to) {
  std::size_t count = 0;
  for (; count < kBlock && from[count] < 0x80; ++count) to[count] = static_cast<char>(from[count]);
  return count;
}

#endif

// Fills out with at most kChunk units; returns the first byte not taken. A lone lead byte at the end stays.
const char* DecodeChunk(const char* from, const char* end, char16_t* out, char16_t*& outEnd) {
  const char16_t* const limit = out + kChunk;
  while (from < end && out < limit) {
    if (end - from >= static_cast<std::ptrdiff_t>(kBlock)) {
      const std::size_t ascii = WidenAscii(from, out);
      from += ascii;
      out += ascii;
      if (ascii == kBlock) continue;
    }
    do {
      const unsigned char lead = Byte(*from);
      if (kRowOfLead[lead] == kNotALead) {
        *out++ = kSingleUnits[lead];
        ++from;
        if (lead < 0x80) break;
        continue;
      }
      if (end - from < 2) {
        outEnd = out;
        return from;
      }
      const unsigned char trail = Byte(from[1]);
      *out++ = DecodePair(lead, trail);
      from += trail == 0 ? 1 : 2;
    } while (from < end && out < limit);
  }
  outEnd = out;
  return from;
}

const char16_t* EncodeChunk(const char16_t* from, const char16_t* end, char* out, char*& outEnd) {
  const char* const limit = out + kChunk;
  while (from < end && out < limit) {
    if (end - from >= static_cast<std::ptrdiff_t>(kBlock)) {
      const std::size_t ascii = NarrowAscii(from, out);
      from += ascii;
      out += ascii;
      if (ascii == kBlock) continue;
    }
    do {
      const char16_t unit = *from++;
      const std::uint16_t code = Code(unit);
      const bool two = code > 0xFF;
      out[0] = static_cast<char>(two ? code >> 8 : code);
      out[1] = static_cast<char>(code);
      out += two ? 2 : 1;
      if (unit < 0x80) break;
    } while (from < end && out < limit);
  }
  outEnd = out;
  return from;
}

// Appends the text of the bytes; returns how many it took, all but a lone lead byte at the end.
std::size_t AppendDecoded(std::string_view bytes, std::u16string& out) {
  char16_t buffer[kChunk + kSlack];
  const char* from = bytes.data();
  const char* const end = from + bytes.size();
  for (bool reserved = bytes.size() <= kChunk; from < end;) {
    char16_t* bufferEnd = buffer;
    const char* const next = DecodeChunk(from, end, buffer, bufferEnd);
    if (!reserved) out.reserve(out.size() + bytes.size());
    reserved = true;
    out.append(buffer, bufferEnd);
    from = next;
    if (end - from == 1 && IsLeadByte(Byte(*from))) break;
  }
  return static_cast<std::size_t>(from - bytes.data());
}

}  // namespace

bool IsLeadByte(unsigned char byte) {
  return kRowOfLead[byte] != kNotALead;
}

std::u16string Decode(std::string_view bytes) {
  std::u16string result;
  if (AppendDecoded(bytes, result) < bytes.size()) result += kInvalid;
  return result;
}

std::string Encode(std::u16string_view text) {
  char buffer[kChunk + kSlack];
  std::string result;
  const char16_t* from = text.data();
  const char16_t* const end = from + text.size();
  if (text.size() > kChunk) result.reserve(2 * text.size());
  while (from < end) {
    char* bufferEnd = buffer;
    from = EncodeChunk(from, end, buffer, bufferEnd);
    result.append(buffer, bufferEnd);
  }
  return result;
}

std::size_t EncodedLength(std::u16string_view text) {
  std::size_t length = text.size();
  const char16_t* from = text.data();
  const char16_t* const end = from + text.size();
  for (; end - from >= static_cast<std::ptrdiff_t>(kBlock); from += kBlock) {
    if (NonAsciiMask(from) == 0) continue;
    for (std::size_t i = 0; i < kBlock; ++i) length += IsDoubleByte(from[i]);
  }
  for (; from < end; ++from) length += IsDoubleByte(*from);
  return length;
}

bool RoundTrips(std::u16string_view text) {
  return FindUnmappable(text, 0) == text.npos;
}

std::size_t FindUnmappable(std::u16string_view text, std::size_t from) {
  while (from < text.size()) {
    const std::u16string_view block = text.substr(from, kBlock);
    const bool isAscii = block.size() == kBlock && NonAsciiMask(block.data()) == 0;
    const auto found = isAscii ? block.end() : std::find_if(block.begin(), block.end(), IsUnmappable);
    if (found != block.end()) return from + static_cast<std::size_t>(found - block.begin());
    from += block.size();
  }
  return text.npos;
}

void Decoder::Append(std::string_view bytes, std::u16string& out) {
  if (bytes.empty()) return;
  if (pendingLead_ != 0) {
    const unsigned char trail = Byte(bytes.front());
    out += DecodePair(pendingLead_, trail);
    pendingLead_ = 0;
    if (trail != 0) bytes.remove_prefix(1);
  }
  if (AppendDecoded(bytes, out) < bytes.size()) pendingLead_ = Byte(bytes.back());
}

void Decoder::Finish(std::u16string& out) {
  if (pendingLead_ != 0) out += kInvalid;
  pendingLead_ = 0;
}

std::string_view Truncate(std::string_view bytes, std::size_t size) {
  if (bytes.size() <= size) return bytes;
  std::size_t leads = 0;  // a byte that is no lead byte always ends a character, so only these are in doubt
  while (leads < size && IsLeadByte(Byte(bytes[size - 1 - leads]))) ++leads;
  const bool cutsCharacter = leads % 2 == 1 && bytes[size] != '\0';
  return bytes.substr(0, cutsCharacter ? size - 1 : size);
}

}  // namespace kestri::code_page
