// Pictures for a person to look at: every test that draws a window leaves one in build/screens/.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

namespace kestri::fakes {

inline void SavePicture(const QImage& picture, const QString& name) {
  const QString folder = QStringLiteral(KESTRI_SOURCE_DIR "/build/screens");
  QDir().mkpath(folder);
  EXPECT_TRUE(picture.save(folder + u'/' + name + QStringLiteral(".png"))) << name.toStdString();
}

}  // namespace kestri::fakes
