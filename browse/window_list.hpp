// The windows of all running instances, as the list shows them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/instance_log.hpp"
#include "platform/instances.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

class WindowList {
 public:
  WindowList(const ClassCommon& common, ApplicationState& state, Instances& instances)
      : common_(common), state_(state), instances_(instances), log_(common, state) {}

  struct Row {
    std::u16string text;  // "index.html : 2", the own window's with "(Me)" behind it
    std::u16string path;
    std::u16string title;  // the window's caption
    std::int64_t handle = 0;
    bool own = false;
  };
  // Asks each window for its caption; one that does not answer has no row.
  std::vector<Row> Rows() const;

  // True when another window was asked to come to the front and agreed.
  bool SetFocus(const Row& row) const;

 private:
  std::int32_t LastNumber() const;

  const ClassCommon& common_;
  const ApplicationState& state_;
  Instances& instances_;
  InstanceLog log_;
};

}  // namespace kestri
