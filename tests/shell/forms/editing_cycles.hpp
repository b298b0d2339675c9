// Many documents through one editor window: each cycle opens a page, edits it by keys and saves it, over real
// files. For figures and tests of what stays in memory.
#pragma once

#include <string>

#include "tests/shell/forms/editor_desk.hpp"

namespace kestri::fakes {

class EditingCycles {
 public:
  static constexpr int kPages = 7;  // of different lengths, all below the size that asks a question

  EditingCycles() { desk_.Open(); }

  // False when the window asked something or the page on disk does not hold what was typed.
  bool RunOne() {
    const std::string name = "page" + std::to_string(++cycle_ % kPages) + ".htm";
    desk_.folder.Write(name, PageOf(cycle_ % kPages));
    if (!desk_.window->OpenDocument(desk_.folder.Text(FromUtf8(name)))) return false;
    Edit();
    desk_.Run("MenFileM", 3);
    QApplication::processEvents();
    return desk_.boxes.asked.empty() && desk_.folder.Read(name).ends_with("<A>\r\ntext\r\n");
  }

 private:
  static std::string PageOf(int page) {
    static const std::string line =
        code_page::Encode(u"<P class=\"note\">駅から川沿いの道を歩きました。</P>\r\n");
    std::string bytes;
    for (int row = 0; row < 80 * (page + 1); ++row) bytes += line;
    return bytes;
  }

  // Typing, the popup, undo and redo, a selection, the page's other end.
  void Edit() {
    desk_.Press(u"{Enter}<a{Enter}{Enter}");
    desk_.Run("MenUNDO", 0);
    desk_.Run("MenUNDO", 1);
    desk_.Run("Edit", 5);
    desk_.Press(u"{Right}<a{Enter}{End}{Enter}text");
  }

  EditorDesk desk_;
  int cycle_ = 0;
};

}  // namespace kestri::fakes
