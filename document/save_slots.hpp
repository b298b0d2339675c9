// Save slots: numbered snapshots of the text beside the program, kept by the document's file name alone, so
// that documents with the same name in different folders share them. Every outcome is told in the status bar.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "document/document.hpp"
#include "document/document_window.hpp"
#include "document/edit_control/edit_control.hpp"
#include "shell/common/application_state.hpp"
#include "shell/common/class_common.hpp"

namespace kestri {

class SaveSlots {
 public:
  static constexpr std::int32_t kCount = 10;  // numbers 0 to 9

  SaveSlots(const EditControl& control, const ApplicationState& state, const ClassCommon& common,
            Document& document, DocumentWindow& window)
      : control_(control), state_(state), common_(common), document_(document), window_(window) {}

  // Caption of the menu items of one slot, for saving and for loading: "3: [2003/02/01 04:05:06]", or
  // "3: ------------" for an empty slot, which cannot be loaded.
  struct Item {
    std::u16string caption;
    bool filled = false;
  };
  std::array<Item, kCount> SlotSaveEdit() const;

  // False when the command failed; the user was told then. A number outside the slots is such a failure.
  bool SaveSlot(std::int32_t number) const;
  bool LoadSlot(std::int32_t number);    // the document keeps its name and counts as changed
  bool Slot(std::int32_t number) const;  // makes it the default slot
  bool DefSlotSave() const { return SaveSlot(DefaultSlot()); }
  bool DefSlotLoad() { return LoadSlot(DefaultSlot()); }
  std::int32_t DefaultSlot() const;  // as set, 0 when nothing usable is set

 private:
  std::u16string FileOf(std::u16string_view numbered) const;
  std::u16string FileToWrite(std::int32_t number) const;
  std::u16string FileToRead(std::int32_t number) const;
  bool Write(std::int32_t number) const;
  bool Read(std::int32_t number);
  bool Tell(std::int32_t number, std::u16string_view what, bool done) const;

  const EditControl& control_;
  const ApplicationState& state_;
  const ClassCommon& common_;
  Document& document_;
  DocumentWindow& window_;
};

}  // namespace kestri
