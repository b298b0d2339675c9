// The default of the setting TrpString: the characters that end a word.
#pragma once

#include <string>

namespace kestri {

inline std::u16string DefaultTrpString() {
  return u",、，\"”()（）.。・;；:：+＋-－<>＜＞=＝[]［］{}｛｝『』【】";
}

}  // namespace kestri
