// A sheet of paper with a file's extension on it, drawn at any size: the picture of a kind of document where
// the desktop's icon theme has none.
#pragma once

#include <QIcon>
#include <QString>

namespace kestri {

// An empty extension gives a blank sheet.
QIcon PageIcon(const QString& extension);

}  // namespace kestri
