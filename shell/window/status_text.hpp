// Texts of the status bar's panes.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>

namespace kestri {

// Message with its time stamp; empty for an empty message.
std::u16string StampedMessage(std::u16string_view text, const std::tm& now);
// "hh:mm:ss AM/PM"
std::u16string ClockText(const std::tm& now);
// "7行 12列", both one-based.
std::u16string CaretPlaceText(std::int64_t row, std::int64_t column);

}  // namespace kestri
