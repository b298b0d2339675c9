// The system's common dialogs as small objects with the properties that the forms set.
#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_dialog.hpp"
#include "platform/message_box.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// Set in Flags when the user ticked the read-only box of the open dialog.
inline constexpr std::uint32_t kOpenedReadOnly = 0x1;

class ClassCommonDialogFile {
 public:
  // Name under which a failure inside the dialog is reported.
  static constexpr const char* kErrorSource = "CommonDialogBox";

  explicit ClassCommonDialogFile(FileDialog& dialogs) : dialogs_(dialogs) {}

  // "caption|pattern;pattern|caption|pattern"; NUL characters between the fields are taken as well.
  const std::u16string& Filter() const { return filter_; }
  void SetFilter(std::u16string_view filter);
  int FilterIndex() const { return filterIndex_; }  // one-based
  void SetFilterIndex(int index) { filterIndex_ = index; }
  const std::u16string& FileName() const { return fileName_; }  // a suggestion before, a whole path after
  void SetFileName(std::u16string_view fileName) { fileName_ = fileName; }
  const std::u16string& DialogTitle() const { return dialogTitle_; }
  void SetDialogTitle(std::u16string_view title) { dialogTitle_ = title; }
  // The window that becomes active again when the dialog closes.
  QWidget* OwnerhWnd() const { return owner_; }
  void SetOwnerhWnd(QWidget* owner) { owner_ = owner; }
  std::uint32_t Flags() const { return flags_; }  // FileDialogFlag
  void SetFlags(std::uint32_t flags) { flags_ = flags; }

  // False on cancel, with every property as it was.
  bool ShowOpen() { return Show(&FileDialog::AskOpen); }
  bool ShowSave() { return Show(&FileDialog::AskSave); }

 private:
  using AskProcedure = std::optional<FileDialogAnswer> (FileDialog::*)(const FileDialogRequest&);
  bool Show(AskProcedure ask);

  FileDialog& dialogs_;
  std::u16string filter_ = u"All Files (*.*)|*.*";
  int filterIndex_ = 1;
  std::u16string fileName_;
  std::u16string dialogTitle_;
  QPointer<QWidget> owner_;
  std::uint32_t flags_ = 0;
};

class ClassCommonDialogFolder {
 public:
  using CallBackProc = std::function<std::u16string()>;  // the folder to start in

  ClassCommonDialogFolder(FileDialog& dialogs, MessageBox& boxes, const ClassCommon& common)
      : dialogs_(dialogs), boxes_(boxes), common_(common) {}

  const std::u16string& Path() const { return path_; }
  void SetPath(std::u16string_view path) { path_ = path; }
  QWidget* OwnerhWnd() const { return owner_; }
  void SetOwnerhWnd(QWidget* owner) { owner_ = owner; }
  const std::u16string& DialogTitle() const { return dialogTitle_; }
  void SetDialogTitle(std::u16string_view title) { dialogTitle_ = title; }
  // Kept for the caller; folders are all that the dialog shows in any case.
  std::uint32_t Flags() const { return flags_; }
  void SetFlags(std::uint32_t flags) { flags_ = flags; }
  // Asked each time the dialog opens. Without one the dialog starts in Path.
  void SetCallBackProc(CallBackProc callBack) { callBack_ = std::move(callBack); }
  void FleeCallBackProc() { callBack_ = nullptr; }

  // The answer is in Path, empty on cancel. A folder that cannot be entered is told and another one asked
  // for.
  bool Show();

 private:
  bool Accessible(const std::u16string& folder) const;
  void TellNoAccess(const std::u16string& folder) const;
  std::u16string Choose() const;

  FileDialog& dialogs_;
  MessageBox& boxes_;
  const ClassCommon& common_;
  std::u16string path_;
  QPointer<QWidget> owner_;
  std::u16string dialogTitle_;
  std::uint32_t flags_ = 0;
  CallBackProc callBack_;
};

}  // namespace kestri
