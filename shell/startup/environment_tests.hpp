// What must hold on this machine before a window may open.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "shell/common/class_common.hpp"

namespace kestri {

inline constexpr std::u16string_view kOsWarning = u"『 Windows98 Me 2000 XP』 以外のOSでの動作は保証しません";

// GetOSType codes of the systems that the program is made for.
bool IsSupportedSystem(std::int32_t osType);

// The file services answer for the program's own folder.
bool FileServicesAnswer(const ClassCommon& common);

// Every failure on a line of its own, each behind a line break; empty when the start is allowed.
std::u16string EnvironmentFailures(const ClassCommon& common);

}  // namespace kestri
