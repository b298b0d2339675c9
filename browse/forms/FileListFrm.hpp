// FileListFrm: the dialog with the recent files and the table of new-document types.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QRadioButton>
#include <QStackedWidget>
#include <array>

#include "browse/file_list.hpp"
#include "browse/forms/two_style_list.hpp"
#include "ui/HotButton.hpp"

namespace kestri {

class FileListFrm : public QDialog {
 public:
  // The owner is the main window.
  FileListFrm(FileList& list, FileListStart start, QWidget* owner);

  QRadioButton& Option1(FileListView view) const { return *option1_[Index(view)]; }
  QCheckBox& Check1() const { return *check1_; }
  QCheckBox& Check2() const { return *check2_; }
  TwoStyleList& FileView() const { return *views_[Index(FileListView::Recent)]; }
  TwoStyleList& FormatView() const { return *views_[Index(FileListView::New)]; }
  HotButton& HotButton1(int index) const { return *hotButton1_[static_cast<std::size_t>(index)]; }

  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  static constexpr std::size_t Index(FileListView view) { return static_cast<std::size_t>(view); }
  void MakeOption(FileListView view);
  void MakeBoxes();
  void MakeButtons();
  void Arrange();
  void Choose(FileListView view);
  void Fill(FileListView view);
  void SetViewStyle();
  TwoStyleList& ShownList() const { return *views_[Index(list_.Chosen())]; }
  void OK();

  FileList& list_;
  std::array<QRadioButton*, 2> option1_{};
  std::array<TwoStyleList*, 2> views_{};
  QStackedWidget* shown_;
  QCheckBox* check1_;
  QCheckBox* check2_;
  std::array<HotButton*, 2> hotButton1_{};
};

}  // namespace kestri
