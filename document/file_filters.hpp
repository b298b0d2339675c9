// The file-type tables of the open dialog and of Save As.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/common/class_common.hpp"

namespace kestri {

struct FilterRow {
  std::u16string caption;
  std::u16string pattern;  // "*.a;*.b"
};

// Rows of the open dialog with the settings as they stand: UserExt in the first, archives when FileArcOpen is
// on.
std::vector<FilterRow> OpenFilterRows(const ClassCommon& common);
std::vector<FilterRow> SaveFilterRows();
// One-based row that the open dialog starts on: the last one chosen when ExtIndex is on, else the first.
int StartFilterRow(const ClassCommon& common, std::size_t rows);

// "caption|pattern|caption|pattern", as file dialogs take it.
std::u16string FilterText(const std::vector<FilterRow>& rows);

inline constexpr int kSaveRowAnyFile = 15;
// One-based row of the Save As table by extension (without dot, any case); 15 for every other one.
int SaveFilterIndex(std::u16string_view extension);

}  // namespace kestri
