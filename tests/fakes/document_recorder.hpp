// A document's window and its fall-backs without a display: they record what was shown and answer what the
// test told them to.
#pragma once

#include <map>
#include <new>
#include <string>
#include <vector>

#include "document/document_window.hpp"

namespace kestri::fakes {

class DocumentRecorder : public DocumentWindow {
 public:
  void MessageToStatusBar(std::u16string_view text) override { messages.emplace_back(text); }
  void SetStatusPane(int pane, std::u16string_view text) override { panes[pane] = text; }
  void SetCaption(std::u16string_view value) override { caption = value; }
  void SetWindowIcon(std::u16string_view iconName) override {
    if (failingIcon) throw std::bad_alloc();
    icon = iconName;
  }
  void HTMLToolsEnable(bool enable) override { htmlTools = enable; }
  ScrollPosition GetScrollPosition() override { return scroll; }
  void SetScrollPosition(ScrollPosition position) override {
    if (failingScroll) throw std::bad_alloc();
    scroll = position;
  }
  void RefreshTagView() override { ++tagViewRefreshes; }
  void RefreshStatus() override { ++statusRefreshes; }
  void FocusText() override { ++textFocuses; }
  void DocumentChanged() override { ++documentChanges; }

  std::vector<std::u16string> messages;
  std::map<int, std::u16string> panes;
  std::u16string caption;
  std::u16string icon = u"(never set)";
  bool htmlTools = false;
  bool failingIcon = false;
  bool failingScroll = false;
  ScrollPosition scroll;
  int tagViewRefreshes = 0;
  int statusRefreshes = 0;
  int textFocuses = 0;
  int documentChanges = 0;
};

class ScriptedFallbacks : public OpenFallbacks {
 public:
  bool SusieSupports(std::u16string_view extension) override {
    askedExtensions.emplace_back(extension);
    return susieExtension == extension;
  }
  bool OpenArchiveQuietly(std::u16string_view path) override {
    askedArchives.emplace_back(path);
    return isArchive;
  }
  void ShowArchive(std::u16string_view path) override { shownArchives.emplace_back(path); }
  bool PackBackup(std::u16string_view path, std::u16string& message) override {
    packed.emplace_back(path);
    if (!packs) message = packMessage;
    return packs;
  }

  std::u16string susieExtension = u"(none)";
  bool isArchive = false;
  bool packs = true;
  std::u16string packMessage;
  std::vector<std::u16string> askedExtensions;
  std::vector<std::u16string> askedArchives;
  std::vector<std::u16string> shownArchives;
  std::vector<std::u16string> packed;
};

}  // namespace kestri::fakes
