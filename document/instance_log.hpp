// The volatile record by which running instances know of each other: number, window handle, open file.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/instances.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

// "Kestrile (Version 1.0.0e07)"
std::u16string ProductTitle();
// " - Kestrile (Version 1.0.0e07)  #01"
std::u16string CaptionTail(std::int32_t windowNumber);

class InstanceLog {
 public:
  using IsLiving = std::function<bool(std::int64_t handle)>;

  InstanceLog(const ClassCommon& common, ApplicationState& state) : common_(common), state_(state) {}

  // The first number that no living window has; sets state.windowNumber and state.captionTail. The number is
  // recorded for this process under the same lock, so that instances starting together get different ones.
  // This process must have appeared before, see Instances. isLiving must not wait.
  std::int32_t AssignWindowNumber(const IsLiving& isLiving);

  // Records this window's handle and the path of its document. Control characters are written as blanks.
  void Register(std::u16string_view path) const;

  // At the window's end: only this number's entries go while other instances run, else the whole file. None
  // is made sure of under the file's lock, by the process count and by the handles in the log.
  enum class Others { Running, None };
  void Unregister(
      Others others, const IsLiving& isLiving = [](std::int64_t) { return false; }) const;

  // What stands in the log for the numbers 1 to last, dead entries included. A window without a document has
  // "Win No #001" in place of its file.
  struct Entry {
    std::int32_t number = 0;
    std::int64_t handle = 0;
    std::u16string file;
  };
  std::vector<Entry> Entries(std::int32_t last) const;

  std::u16string Path() const;

 private:
  std::int64_t OwnHandle() const;
  bool RemoveWhenLast(const IsLiving& isLiving) const;
  bool HoldsOther(const IsLiving& isLiving) const;
  void RemoveWhenEmpty() const;
  void Update(const std::function<void(ProfileContent&)>& change) const;

  const ClassCommon& common_;
  ApplicationState& state_;
};

// How AssignWindowNumber asks the running processes.
inline InstanceLog::IsLiving AmongInstances(Instances& instances) {
  return [&instances](std::int64_t handle) { return instances.Living(handle); };
}

}  // namespace kestri
