#include "document/document_log.hpp"

#include "document/settings_values.hpp"
#include "shell/common/code_page.hpp"

namespace kestri {

std::u16string DocumentLog::Path() const {
  return common_.Join(common_.AppPath(common_.ProgramFolder()), common_.ExeName() + u".log");
}

bool DocumentLog::WriteLog(std::u16string_view message, std::u16string_view subject) const {
  std::u16string line = FormatTime(common_.PortSet().clock.Now(), "%Y/%m/%d %H:%M:%S");
  line.append(u" ").append(message);
  if (!subject.empty()) line.append(u" \"").append(subject).append(u"\"");
  const std::string bytes = code_page::Encode(WithoutControls(line)) + "\r\n";
  return common_.PortSet().files.Append(Path(), bytes);
}

}  // namespace kestri
