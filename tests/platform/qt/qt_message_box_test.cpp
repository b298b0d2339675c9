// The desktop's message box by its real widgets.
#include "platform/qt/qt_message_box.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

namespace kestri {
namespace {

// Whether the label has room for all its lines once the box is shown.
bool ShowsAll(const std::u16string& text) {
  bool all = false;
  QTimer user;
  QObject::connect(&user, &QTimer::timeout, [&all] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    const auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    all = label != nullptr && label->height() >= label->heightForWidth(label->width()) &&
          label->width() >= label->minimumSizeHint().width();
    box->buttons().constFirst()->click();
  });
  user.start(20);
  QtMessageBox().Ask({.text = text,
                      .caption = u"上書き保存の確認 Kestrile",
                      .icon = MessageIcon::Exclamation,
                      .buttons = MessageButtons::YesNo});
  return all;
}

TEST(QtMessageBox, TheQuestionBehindALongNameShows) {
  for (const std::size_t length : {10u, 92u, 132u, 254u}) {
    const std::u16string name(length, u'n');
    EXPECT_TRUE(ShowsAll(u"\"" + name +
                         u".htm\"\r\nこのﾌｧｲﾙは 開いた後に他のﾌﾟﾛｸﾞﾗﾑで変更されています\r\n"
                         u"上書きすると その変更は失われます\r\n上書き保存しますか？"))
        << length;
  }
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
