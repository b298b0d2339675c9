// The volatile record by which running instances know of each other: number, window handle, open file.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// " - Kestrile (Version 1.0.0e07)  #01"
std::u16string CaptionTail(std::int32_t windowNumber);

class InstanceLog {
 public:
  // Caption of the living window with this handle; nothing when there is none.
  using CaptionOfHandle = std::function<std::optional<std::u16string>(std::int64_t handle)>;

  InstanceLog(const ClassCommon& common, ApplicationState& state) : common_(common), state_(state) {}

  // The first number that no living window has; sets state.windowNumber and state.captionTail.
  std::int32_t AssignWindowNumber(const CaptionOfHandle& captionOf);

  // Records this window's handle and the path of its document. Control characters are written as blanks.
  void Register(std::u16string_view path) const;

  // At the window's end: only this number's entries go while other instances run, else the whole file.
  enum class Others { Running, None };
  void Unregister(Others others) const;

  std::u16string Path() const;

 private:
  const ClassCommon& common_;
  ApplicationState& state_;
};

}  // namespace kestri
