#pragma once

#include "platform/window_services.hpp"

namespace kestri {

class QtWindowServices : public WindowServices {
 public:
  void Beep() override;
  void SetBusyPointer(bool busy) override;
  void ProcessEvents() override;
  int TwipsPerPixel() override { return 15; }

 private:
  bool busy_ = false;
};

}  // namespace kestri
