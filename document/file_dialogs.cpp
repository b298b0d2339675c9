// The document's two file dialogs.
#include "document/document.hpp"
#include "document/file_filters.hpp"
#include "shell/common/text.hpp"

namespace kestri {
std::u16string Document::StartFolder(std::u16string_view folder) const {
  std::u16string start(folder.empty() ? state_.currentFolder : folder);
  if (!common_.PathExists(start))
    start = common_.GetSystemDirectory(static_cast<int>(SystemFolder::Documents));
  return common_.AppPath2(start);
}

std::optional<FileDialogAnswer> Document::AskFileToOpen(std::u16string_view startFolder,
                                                        std::uint32_t moreFlags) {
  const std::vector<FilterRow> rows = OpenFilterRows(common_);
  const auto answer = dialogs_.AskOpen({.title = u"ﾌｧｲﾙを開く",
                                        .filter = FilterText(rows),
                                        .filterIndex = StartFilterRow(common_, rows.size()),
                                        .folder = StartFolder(startFolder),
                                        .fileName = u"",
                                        .flags = kPathMustExist | kFileMustExist | moreFlags});
  if (answer) common_.SetINI(common_.ExeName(), u"Setting", u"ExtIndexNo", ToText(answer->filterIndex));
  return answer;
}

bool Document::OpenFileDialog(std::u16string_view startFolder) {
  const auto answer = AskFileToOpen(startFolder);
  return answer && OpenDocument(answer->fileName, answer->readOnly ? ReadOnly::Yes : ReadOnly::No);
}

bool Document::SaveAsDialog(std::u16string_view startFolder) {
  const std::u16string folder = StartFolder(startFolder);
  const int row = SaveFilterIndex(common_.CFile(state_.currentFile, 2));
  const std::u16string name = common_.CFile(state_.currentFile, row == kSaveRowAnyFile ? 0 : 1);
  const auto answer =
      dialogs_.AskSave({.title = u"名前を付けて保存",
                        .filter = FilterText(SaveFilterRows()),
                        .filterIndex = row,
                        .folder = folder,
                        .fileName = common_.Join(folder, name),
                        .unchangedName = Named() ? common_.Join(folder, common_.CFile(state_.currentFile, 0))
                                                 : std::u16string(),
                        .flags = kNoReadOnlyReturn | kFileMustExist | kHideReadOnly | kOverwritePrompt});
  return answer && WriteDocument(answer->fileName);
}

}  // namespace kestri
