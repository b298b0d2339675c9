// The two reports of the search menu about the text, for the status bar.
#pragma once

#include <string>

#include "document/document_window.hpp"
#include "document/edit_control/edit_control.hpp"

namespace kestri {

// "12(ｲﾝﾃﾞｯｸｽ) / 340(総ｲﾝﾃﾞｯｸｽ)": where the caret stands and how long the text is. Takes the selection back
// to its start.
void ShowTotalIndex(EditControl& control, DocumentWindow& window);

// Size of the selection, else of the whole text, in bytes of the code page.
void ShowTotalBytes(const EditControl& control, DocumentWindow& window);

}  // namespace kestri
