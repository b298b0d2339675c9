// Settings of the toolkit that must stand before or right after the application object is made.
#pragma once

namespace kestri {

// Before the application object: no OpenGL integration (the editor never draws with it, and loading it costs
// time and memory at every start), and a write beyond a size limit fails instead of ending the process.
void PrepareEnvironment();

// After it: the look, and Japanese faces in place of the names that settings and pages use.
void PrepareLook();

}  // namespace kestri
