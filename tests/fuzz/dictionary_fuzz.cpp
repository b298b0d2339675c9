// Any bytes are a dictionary: every reader answers, whatever it reads keeps the table's rules, and what is
// written back reads as the same rows.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "tags/candidate_list.hpp"
#include "tests/fakes/common_world.hpp"

namespace kestri {
namespace {

void Need(bool holds) {
  if (!holds) std::abort();
}

struct World : fakes::MemoryWorld {
  Dictionaries dictionaries{common};
};

bool IsPlain(std::u16string_view value) {
  const bool trimmed = value == Trim(value) && value.find_first_of(u"\t\"'\u30FB?\v\f\x1A") == value.npos;
  return trimmed && Len(value) < 500;
}

void CheckParams(World& world) {
  const auto rows = world.dictionaries.Params();
  bool plain = rows.size() <= static_cast<std::size_t>(kMaxTableRows);
  for (const std::u16string& row : rows) {
    Need(!row.empty());
    Need(row.find_first_of(std::u16string_view(u"\r\n\0", 3)) == row.npos);
    plain = plain && IsPlain(row);
  }
  if (!plain) return;
  Need(world.dictionaries.WriteParams(rows));
  Need(world.dictionaries.Params() == rows);
}

void Check(std::string_view bytes) {
  World world;
  const std::string file(bytes);
  for (const auto* name : {u"SelectTAG.lib", u"Option.lib", u"Param.lib", u"FabStr.lib", u"words.def"}) {
    world.files.contents[u"/opt/Kestrile/DataFiles/" + std::u16string(name)] = file;
  }
  for (const TagRow& row : world.dictionaries.Tags()) Need(!row.name.empty());
  CandidateSources sources{.lowerCase = true, .fonts = false, .favourites = true, .userFile = {}};
  sources.userFile = world.dictionaries.PathOf(u"words.def");
  const auto rows = BuildCandidates(world.dictionaries, sources, {});
  Need(rows.size() >= 9);
  Need(FindItem(rows, u"") == 0);
  world.dictionaries.FindTag(u"a");
  CheckParams(world);
}

}  // namespace
}  // namespace kestri

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kestri::Check({reinterpret_cast<const char*>(data), size});
  return 0;
}
