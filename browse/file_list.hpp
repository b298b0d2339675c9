// FileListFrm's rules: the recent files, the table of new-document types, and what choosing a row does.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/common/class_common.hpp"

namespace kestri {

enum class FileListView { Recent = 0, New = 1 };  // the indices of Option1
struct FileListStart {
  FileListView view = FileListView::Recent;
  bool startBoxGrey = false;
};

// What the list needs of the main window. Each tells the user by itself what went wrong.
class FileListWindow {
 public:
  virtual ~FileListWindow() = default;
  virtual bool OpenFromList(std::u16string_view path) = 0;  // false: nothing was opened
  virtual bool NewFromList(std::int16_t kind) = 0;          // from its template; false: the user cancelled
};

class FileList {
 public:
  FileList(const ClassCommon& common, FileListWindow& window) : common_(common), window_(window) {}

  static constexpr int kColumns = 4;
  struct Row {
    std::array<std::u16string, kColumns> cells;  // the first one is the row's name
    std::u16string iconName;                     // of the desktop's icon theme; empty: the default picture
    std::u16string extension;                    // without dot, may be empty
  };
  static std::u16string_view OptionCaption(FileListView view);
  static std::u16string Caption(FileListView view);  // of the form while the view is shown
  static std::array<std::u16string_view, kColumns> Columns(FileListView view);

  enum class StartBox : std::int16_t { Off = 0, On = 1, Grey = 2 };  // values of Check1

  // A dialog opens: both views are unfilled, the boxes take their settings.
  void Load(FileListStart start);
  StartBox Check1() const { return check1_; }
  bool Check2() const { return check2_; }
  void SetCheck1(StartBox value) { check1_ = value; }
  void SetCheck2(bool details) { check2_ = details; }
  // The dialog closes: the boxes go to the settings, the grey one not.
  void Unload() const;

  // Option1: the view is shown. It is filled the first time; its rows then stay as they are.
  void Choose(FileListView view);
  FileListView Chosen() const { return view_; }
  std::span<const Row> Rows(FileListView view) const { return rows_[Index(view)]; }

  enum class Outcome { Stays, Closes };
  Outcome OK(std::optional<std::size_t> row);  // a row of the chosen view; nothing: no row is selected

 private:
  static constexpr std::size_t Index(FileListView view) { return static_cast<std::size_t>(view); }
  std::vector<Row> RecentRows() const;
  Row RecentRow(const std::u16string& path) const;
  std::vector<Row> NewRows() const;

  const ClassCommon& common_;
  FileListWindow& window_;
  FileListView view_ = FileListView::Recent;
  StartBox check1_ = StartBox::Off;
  bool check2_ = false;
  std::array<std::vector<Row>, 2> rows_;
  std::array<bool, 2> filled_{};
};

}  // namespace kestri
