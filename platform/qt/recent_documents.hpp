// The desktop's list of recently used documents (recently-used.xbel).
#pragma once

#include <QString>

namespace kestri {

// Puts the document at the end of the list, once. The list is replaced as a whole; a list that cannot be read
// or written is left alone.
void RegisterRecentDocument(const QString& path);

}  // namespace kestri
