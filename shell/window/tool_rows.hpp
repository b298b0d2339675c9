// The tool bar's buttons and their drop-downs, as rows.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace kestri {

enum class ToolKind {
  Command,  // runs the command of array and index
  Separator,
  ToolOfDocument,   // runs the command that fits the kind of the open document
  LiveCommand,      // a command whose caption follows the program's state
  ExternalProgram,  // a command whose caption names the registered program
};

struct ToolEntry {
  std::string_view key;
  std::u16string_view caption;  // empty: made when the drop-down opens
  std::string_view array;
  int index = 0;
  ToolKind kind = ToolKind::Command;
};

struct ToolRow {
  std::string_view key;
  std::u16string_view caption;
  std::string_view icon;
  std::string_view array;
  int index = 0;
  std::span<const ToolEntry> entries = {};  // of the drop-down
  ToolKind kind = ToolKind::Command;
};

std::span<const ToolRow> ToolRows();

// What the button "Tool" runs in a document of this kind.
struct DocumentTool {
  std::string_view array;
  int index;
  std::string_view icon;
};
DocumentTool ToolOfDocument(std::int32_t fileKind);

// An empty name: no program is registered.
std::u16string ExternalProgramCaption(std::u16string_view programName);

}  // namespace kestri
