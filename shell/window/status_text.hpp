// Texts of the status bar's panes.
#pragma once

#include <ctime>
#include <string>
#include <string_view>

namespace kestri {

// Message with its time stamp; empty for an empty message.
std::u16string StampedMessage(std::u16string_view text, const std::tm& now);
// "hh:mm:ss AM/PM"
std::u16string ClockText(const std::tm& now);

}  // namespace kestri
