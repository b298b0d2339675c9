// New documents: their kinds, extensions and templates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "document/document.hpp"
#include "platform/input_box.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// Extension with its dot by the kind's number; empty for a number without one, and for 11, which asks.
std::optional<std::u16string> NewDocumentExtension(std::int16_t kind);

// Kind 11: asks for the extension; a leading "." is added when missing. Path separators and control
// characters are dropped. Nothing on cancel, and when nothing is left but dots.
std::optional<std::u16string> AskExtension(InputBox& box);

enum class UseTemplate { No, Yes };

// Replaces the document by a new one named "無題" in the current folder, filled from the template of its kind
// when there is one, with the caret at the template's mark. A template that cannot be read leaves it blank
// and says so. False when the user cancelled, or no room was left for the text; the document is then as it
// was.
bool NewText(std::int16_t kind, const ClassCommon& common, Document& document, DocumentWindow& window,
             ApplicationState& state, InputBox& box, UseTemplate useTemplate = UseTemplate::Yes);

}  // namespace kestri
