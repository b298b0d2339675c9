#include "document/save_slots.hpp"

#include <utility>

#include "document/lossy_characters.hpp"
#include "document/settings_values.hpp"

namespace kestri {
namespace {

bool IsSlot(std::int32_t number) {
  return number >= 0 && number < SaveSlots::kCount;
}

}  // namespace

std::u16string SaveSlots::FileOf(std::u16string_view numbered) const {
  const std::u16string folder = common_.Join(common_.ProgramFolder(), u"SlotSave");
  return common_.Join(folder, common_.CFile(state_.currentFile, 0)).append(numbered);
}

std::u16string SaveSlots::FileToWrite(std::int32_t number) const {
  return FileOf(u".s0" + ToText(number));
}

std::u16string SaveSlots::FileToRead(std::int32_t number) const {
  return FileOf(u".s" + FormatZeros(number, 2));
}

std::array<SaveSlots::Item, SaveSlots::kCount> SaveSlots::SlotSaveEdit() const {
  std::array<Item, kCount> items;
  for (std::int32_t i = 0; i < kCount; ++i) {
    const std::u16string path = FileToWrite(i);
    const bool filled = common_.PathExists(path);
    const std::u16string date =
        filled ? u"[" + common_.GetFileDateTimeFormat(path) + u"]" : std::u16string(u"------------");
    items[static_cast<std::size_t>(i)] = {ToText(i) + u": " + date, filled};
  }
  return items;
}

bool SaveSlots::SaveSlot(std::int32_t number) const {
  if (!Tell(number, u"Save", IsSlot(number) && Write(number))) return false;
  if (!LossyCharacters(control_).empty())
    window_.MessageToStatusBar(u"Slot(" + ToText(number) +
                               u").Save  ｼﾌﾄJISにない文字は「?」などになりました");
  return true;
}

bool SaveSlots::LoadSlot(std::int32_t number) {
  return Tell(number, u"Load", IsSlot(number) && Read(number));
}

bool SaveSlots::Slot(std::int32_t number) const {
  const bool done =
      IsSlot(number) && common_.SetINI(common_.ExeName(), u"Setting", u"SaveSlot", ToText(number));
  return Tell(number, u"Change", done);
}

std::int32_t SaveSlots::DefaultSlot() const {
  const std::int32_t number = NumberSetting(common_, u"Setting", u"SaveSlot", 0);
  return IsSlot(number) ? number : 0;
}

bool SaveSlots::Write(std::int32_t number) const {
  const std::u16string path = FileToWrite(number);
  return common_.MakeDirectory(path) &&
         common_.WriteTextPieces(path, control_.FirstPiece(), control_.SecondPiece(), LineEnd::CrLf);
}

bool SaveSlots::Read(std::int32_t number) {
  std::u16string text;
  return common_.ReadTextFile(FileToRead(number), text, -1) &&
         document_.SetDocumentText(std::move(text), KeepModified::Yes);
}

bool SaveSlots::Tell(std::int32_t number, std::u16string_view what, bool done) const {
  std::u16string message = done ? u"Slot(" : u"Error - Slot(";
  message.append(ToText(number)).append(u").").append(what);
  window_.MessageToStatusBar(message);
  return done;
}

}  // namespace kestri
