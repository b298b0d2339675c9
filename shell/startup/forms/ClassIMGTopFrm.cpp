#include "shell/startup/forms/ClassIMGTopFrm.hpp"

#include <QImageReader>

#include "platform/qt/qt_text.hpp"
#include "shell/common/application_state.hpp"
#include "ui/program_resources.hpp"

namespace kestri {
namespace {

constexpr int kSplashPicture = 500;

QSize DeviceSize(const TopFrm& form) {
  return (QSizeF(form.size()) * form.devicePixelRatioF()).toSize();
}

// Only what the window shows of it is read.
QRect VisiblePart(const QImageReader& reader, QPoint scroll) {
  return QRect(scroll, TopFrm::kClientSize) & QRect(QPoint(), reader.size());
}

}  // namespace

std::unique_ptr<TopFrm> ClassIMGTopFrm::IMGTopFrm() const {
  auto form = std::make_unique<TopFrm>();
  if (!PaintPicture(*form)) form->ShowFailure();
  form->SetCredit(ToQt(kCreditLine));
  form->SetVersion(ToQt(SplashVersion(kVersionMajor, kVersionMinor, kVersionRevision)));
  form->show();
  return form;
}

bool ClassIMGTopFrm::PaintPicture(TopFrm& form) const {
  const auto wanted = SplashPictureOf(common_);
  if (!wanted) return false;
  if (!wanted->path.empty()) return PaintFile(form, *wanted);
  const QImage picture = ProgramResources(common_, resourceRoot_).LoadJpeg(kSplashPicture, DeviceSize(form));
  if (!picture.isNull()) form.SetPicture(picture, form.rect());
  return !picture.isNull();
}

bool ClassIMGTopFrm::PaintFile(TopFrm& form, const SplashPicture& wanted) const {
  QImageReader reader(ToQtPath(wanted.path));
  reader.setDecideFormatFromContent(true);
  const QPoint scroll(wanted.hScroll, wanted.vScroll);
  QRect visible;
  if (wanted.fit == PictureFit::Stretched) {
    reader.setScaledSize(DeviceSize(form));
  } else {
    visible = VisiblePart(reader, scroll);
    reader.setClipRect(visible);
  }
  const QImage picture = reader.read();
  if (picture.isNull()) return false;
  const bool stretched = wanted.fit == PictureFit::Stretched;
  form.SetPicture(picture, stretched ? form.rect() : QRect(visible.topLeft() - scroll, picture.size()));
  return true;
}

}  // namespace kestri
