// A file list over files in memory, with a main window that records what is opened and made.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "browse/file_list.hpp"
#include "document/document_template.hpp"
#include "document/file_history.hpp"
#include "tests/fakes/common_world.hpp"

namespace kestri {

struct FileListDesk : fakes::MemoryWorld, FileListWindow {
  bool OpenFromList(std::u16string_view path) override {
    opened.emplace_back(path);
    return answer;
  }
  bool NewFromList(std::int16_t kind) override {
    made.push_back(kind);
    return answer;
  }

  // The file is there and was the last one opened.
  void PutRecent(const std::u16string& path, std::size_t bytes) {
    files.contents[path] = std::string(bytes, 'x');
    FileHistory(common).RegisterHistory(path);
  }
  void PutTemplate(int kind) { files.contents[TemplatePath(common, kind)] = "x"; }
  std::u16string Setting(std::u16string_view key) const {
    return common.GetINI(common.ExeName(), u"Setting", key, u"(none)");
  }
  void Set(std::u16string_view key, std::u16string_view value) {
    common.SetINI(common.ExeName(), u"Setting", key, value);
  }

  std::vector<std::u16string> opened;
  std::vector<std::int16_t> made;
  bool answer = true;  // of the main window
  FileList list{common, *this};
};

}  // namespace kestri
