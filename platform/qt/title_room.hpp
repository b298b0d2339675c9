// Width of a window whose title must be readable.
#pragma once

class QWidget;

namespace kestri {

// The title's width in the letters of a frame, and room for the frame's icon and buttons. Logical pixels.
int RoomForTitle(const QWidget& window);

}  // namespace kestri
