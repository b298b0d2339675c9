// What a drag brings, and what one takes along.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

class QMimeData;

namespace kestri {

enum class DroppedKind { Text, Files, Other };

// Text goes before files. A file manager offers its files as text too, their paths or addresses one a line:
// that text is the files.
DroppedKind KindOf(const QMimeData& data);
std::vector<std::u16string> LocalFiles(const QMimeData& data);

// Other programs of the desktop end their lines with LF.
QString DesktopText(std::u16string_view text);

}  // namespace kestri
