// Paints and shows the splash.
#pragma once

#include <QString>
#include <memory>

#include "shell/common/class_common.hpp"
#include "shell/startup/forms/TopFrm.hpp"
#include "shell/startup/splash_picture.hpp"

namespace kestri {

class ClassIMGTopFrm {
 public:
  explicit ClassIMGTopFrm(const ClassCommon& common, QString resourceRoot = QStringLiteral(":/"))
      : common_(common), resourceRoot_(std::move(resourceRoot)) {}

  // A picture that cannot be painted is told on the window itself; the window comes in any case.
  std::unique_ptr<TopFrm> IMGTopFrm() const;

 private:
  bool PaintPicture(TopFrm& form) const;
  bool PaintFile(TopFrm& form, const SplashPicture& picture) const;

  const ClassCommon& common_;
  QString resourceRoot_;
};

}  // namespace kestri
