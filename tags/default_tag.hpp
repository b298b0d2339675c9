// "ﾀｸﾞ・ﾊﾟﾗﾒｰﾀの補完": the tag at the caret takes the text that the dictionary holds for it.
#pragma once

#include "document/main_text.hpp"

namespace kestri {

void CompleteDefaultTag(MainText& text, const ClassCommon& common, MainTextHost& host);

}  // namespace kestri
