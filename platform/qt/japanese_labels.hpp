// The toolkit's own words (file dialog, colour and font dialogs, print dialog) in Japanese.
#pragma once

namespace kestri {

// Loads the toolkit's Japanese texts once, from lib/ beside the program or from the toolkit's own folder, and
// makes Japanese the language of names of file kinds. Called before the first dialog, so that the start does
// not pay for it.
void InstallJapaneseLabels();

}  // namespace kestri
