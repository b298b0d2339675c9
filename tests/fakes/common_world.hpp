// The shared utilities on scripted ports, over a file system of the test's choice. A fixture has it as its
// base, so that it is there before the fixture's own members.
#pragma once

#include "shell/common/class_common.hpp"
#include "tests/fakes/memory_file_system.hpp"
#include "tests/fakes/ports.hpp"

namespace kestri::fakes {

template <typename Files>
struct CommonWorld {
  Files files;
  FakeEnvironment environment;
  FakeShell shell;
  FakeClock clock;
  FakeWindowServices services;
  ClassCommon common{Ports{files, environment, shell, clock, services}, PathStyle::Posix};
};

using MemoryWorld = CommonWorld<MemoryFileSystem>;

}  // namespace kestri::fakes
