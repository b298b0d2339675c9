// What opening and saving need of the window that holds the document, and of the subsystems that take over a
// file which is no text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kestri {

// Positions of the text's two scroll bars, in the bars' own units.
struct ScrollPosition {
  std::int32_t horizontal = 0;
  std::int32_t vertical = 0;
  bool operator==(const ScrollPosition&) const = default;
};

class DocumentWindow {
 public:
  virtual ~DocumentWindow() = default;
  virtual void MessageToStatusBar(std::u16string_view text) = 0;
  virtual void SetStatusPane(int pane, std::u16string_view text) = 0;  // one-based
  virtual void SetCaption(std::u16string_view caption) = 0;
  virtual void SetWindowIcon(std::u16string_view iconName) = 0;  // empty: the image of a new document
  virtual void HTMLToolsEnable(bool enable) = 0;
  virtual ScrollPosition GetScrollPosition() = 0;
  virtual void SetScrollPosition(ScrollPosition position) = 0;  // as far as the text allows
  virtual void RefreshTagView() = 0;
  virtual void RefreshStatus() = 0;  // caret and line displays, after the whole text was replaced
  virtual void FocusText() {}        // the keys go to MainText
  virtual void
  DocumentChanged() = 0;  // message 1151: another document or another state of it stands in MainText
};

class OpenFallbacks {
 public:
  virtual ~OpenFallbacks() = default;
  virtual bool SusieSupports(std::u16string_view extension) = 0;  // upper case, without dot
  virtual bool OpenArchiveQuietly(std::u16string_view path) = 0;  // true: an archive that can be listed
  virtual void ShowArchive(std::u16string_view path) = 0;         // the archive dialog, modal
  // Packs one file into an archive of the same name in its own folder. On failure the archiver's words are in
  // message.
  virtual bool PackBackup(std::u16string_view path, std::u16string& message) = 0;
};

// No plug-ins and no archivers: every question is answered with no.
class NoFallbacks : public OpenFallbacks {
 public:
  bool SusieSupports(std::u16string_view) override { return false; }
  bool OpenArchiveQuietly(std::u16string_view) override { return false; }
  void ShowArchive(std::u16string_view) override {}
  bool PackBackup(std::u16string_view, std::u16string& message) override {
    message = u"UNLHA32.DLLが見つかりません";
    return false;
  }
};

}  // namespace kestri
