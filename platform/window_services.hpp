// Port: small services of the window system.
#pragma once

namespace kestri {

class WindowServices {
 public:
  virtual ~WindowServices() = default;
  virtual void Beep() = 0;
  virtual void SetBusyPointer(bool busy) = 0;  // the whole application's pointer
  virtual void ProcessEvents() = 0;
  virtual int TwipsPerPixel() = 0;
};

}  // namespace kestri
