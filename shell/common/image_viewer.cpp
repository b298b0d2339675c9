#include "shell/common/image_viewer.hpp"

namespace kestri {

std::u16string SiblingImageViewer(const ClassCommon& common) {
  const std::u16string folder = common.AppPath(common.ProgramFolder());
  std::u16string named = common.Join(folder, u"PicPeek.exe");
  std::u16string plain = common.Join(folder, u"PicPeek");
  return !common.PathExists(named) && common.PathExists(plain) ? plain : named;
}

}  // namespace kestri
