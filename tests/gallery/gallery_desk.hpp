// The editor as its pictures show it.
#pragma once

#include <QDir>
#include <QFile>

#include "tests/shell/forms/editor_desk.hpp"

namespace kestri::gallery {

inline constexpr QSize kWindowSize(960, 680);

// The dictionaries and templates that the program comes with, a page with Japanese words, a few files opened
// before.
class GalleryDesk : public fakes::EditorDesk {
 public:
  GalleryDesk() {
    CopyDataFiles();
    Set(u"Setting", u"HintAnimation", u"0");
    Set(u"Setting", u"NawPath", folder.Text());
    Open();
    window->FinishLoading();
    window->FillFolderBar();
    window->resize(kWindowSize);
    window->move(0, 0);
    for (const char16_t* name : {u"album.htm", u"日記.htm", u"散歩.htm"}) OpenCopy(name);
  }

  // The page's caret behind the given words.
  void PutCaretBehind(std::u16string_view words) {
    const std::size_t at = window->Control().Text().find(words);
    window->Control().MoveCaret(static_cast<Position>(at + words.size()), EditControl::Extend::No);
  }

 private:
  void CopyDataFiles() {
    const QDir from(QStringLiteral(KESTRI_SOURCE_DIR "/data/DataFiles"));
    const QDir to(ToQt(folder.Text(u"DataFiles")));
    for (const QString& name : from.entryList(QDir::Files)) {
      QFile::remove(to.filePath(name));
      QFile::copy(from.filePath(name), to.filePath(name));
    }
  }
  void OpenCopy(std::u16string_view name) {
    const std::u16string path = folder.Text(name);
    QFile::copy(QStringLiteral(KESTRI_TEST_DATA "/sample.htm"), ToQt(path));
    window->OpenDocument(path);
  }
};

}  // namespace kestri::gallery
