// The always-on-top state of the program's forms.
#pragma once

#include <cstdint>

class QWidget;

namespace kestri {

inline constexpr std::int32_t kTopMost = -1;
inline constexpr std::int32_t kNotTopMost = -2;

// Keeps the form's window above others, or lets it go, without hiding it and without taking the focus. Other
// modes change nothing. A form that is hidden stays hidden and has the state when it is shown.
void SetTopMost(QWidget& form, std::int32_t mode);
bool IsTopMost(const QWidget& form);

// The same for every visible window of the program but the start-up form TopFrm, popups, menus and tool tips.
void RefreshTopMost(std::int32_t mode);

}  // namespace kestri
