// The window over which a dialog stands.
#pragma once

#include <QWidget>

namespace kestri {

// Lets a window that was just shown come to its place on the screen, so that a dialog opens over it. At most
// half a second; keys and clicks wait. Null and hidden windows need nothing.
void LetWindowBePlaced(QWidget* window);

// The open modal window if there is one, else the owner, in its place.
QWidget* DialogOwner(QWidget* owner);

}  // namespace kestri
