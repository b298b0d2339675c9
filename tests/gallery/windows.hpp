// Every window and dialog of the program with a little real work in it.
#pragma once

#include "tests/gallery/gallery.hpp"

namespace kestri::gallery {

void TakeEditor(Gallery& gallery);         // the editor, its popup and all its menus
void TakeDialogs(Gallery& gallery);        // the program's own dialogs and tool windows
void TakeCommonDialogs(Gallery& gallery);  // message boxes, file dialogs, the input box

}  // namespace kestri::gallery
