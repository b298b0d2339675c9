// The fonts of the screen, read when they are asked for.
#pragma once

#include <QStringList>
#include <string>
#include <vector>

namespace kestri {

std::vector<std::u16string> ScreenFontFamilies();
// Each name once, as pages write it: "C059" for the toolkit's "C059 [urw]". The order stays.
std::vector<std::u16string> NamesWithoutFoundry(const QStringList& families);

}  // namespace kestri
