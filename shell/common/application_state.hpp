// What one process shares between its subsystems. Created once in main and passed by reference.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kestri {

inline constexpr std::u16string_view kApplicationTitle = u"Kestrile";
inline constexpr std::u16string_view kCreditLine = u"(C) Kestrile の作者たち";
inline constexpr int kVersionMajor = 1;
inline constexpr int kVersionMinor = 0;
inline constexpr int kVersionRevision = 0;

// Booleans are 0 and -1 as everywhere in program state.
struct ApplicationState {
  std::u16string currentFile;    // full path; the bare name of a new document, or empty
  std::u16string currentFolder;  // through AppPath2
  std::u16string thirdPath;
  std::int32_t fileKind = 1002;       // FileTypeReturn code
  std::int16_t modified = 0;          // -1 when the text differs from disk
  std::int16_t modifiedShown = 0;     // 0 until the first change after a load or save
  std::u16string lineEnd = u"CR+LF";  // "CR+LF", "CR" or "LF": the document's kind on disk

  std::int32_t topMost = -2;  // -1 top-most, -2 not
  std::int32_t osType = 0;
  std::int32_t windowNumber = 1;
  std::u16string captionTail;

  std::int16_t tabASeT = 1;
  std::int16_t tabSpaceCount = 1;
  std::int16_t tabsKept = 0;  // -1 while a template is open: its last tab is the caret's mark
  std::int16_t htmlNAV = 1;
  std::int16_t htmlNAVkeyB = 0;
  std::int16_t htmlNAVkeyB_AUTO = 1;
  std::int16_t textTrp = 1;
  std::u16string trpString;
  std::int16_t dragModeTrue = 1;
  std::int16_t popUpMen = 1;
  std::int16_t gLine = 0;
  std::int16_t menuHints = 1;
  std::int16_t menuAnimation = 0;
  std::int16_t showInfoOnSelect = 0;  // the file pane tells a file's data when it is selected

  // 0: splash is up, or the owner window under /CL; 1: command-line mode; 2: unused.
  std::array<std::int64_t, 3> startupState{};
};

}  // namespace kestri
