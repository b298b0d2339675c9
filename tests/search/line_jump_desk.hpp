// Three lines of text in a real edit control, their heads at 0, 5 and 10, and everything that a jump needs.
#pragma once

#include "search/line_jump.hpp"
#include "tests/fakes/document_recorder.hpp"
#include "tests/fakes/main_text_recorder.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri {

struct LineJumpDesk {
  LineJumpDesk() { control.SetText(u"abc\r\ndef\r\nghi"); }

  fakes::MemoryFileSystem files;
  fakes::FakeEnvironment environment;
  fakes::FakeShell shell;
  fakes::FakeClock clock;
  fakes::FakeWindowServices services;
  fakes::FakeClipboard clipboard;
  fakes::FakeMessageBox boxes;
  fakes::DocumentRecorder window;
  fakes::Journal journal;
  fakes::MainTextRecorder host{journal};
  fakes::TagRecorder tags{journal};
  ClassCommon common{Ports{files, environment, shell, clock, services}, PathStyle::Posix};
  ApplicationState state;
  EditControl control{clipboard};
  MainText text{control, state, common, host, tags, clipboard, boxes};
  LineJump jump{text, common, boxes, window};
};

}  // namespace kestri
