// What a person sees: pictures are written beside the test program, the things that can be measured are
// asserted.
#include <gtest/gtest.h>

#include <QDir>

#include "tests/ui/edit_view_desk.hpp"

namespace kestri {
namespace {

using fakes::EditViewDesk;

void Save(EditViewDesk& desk, const char* name) {
  desk.Settle();
  QDir().mkpath("screens");
  desk.view.grab().save(QStringLiteral("screens/edit_view_%1.png").arg(QLatin1String(name)));
}

const char16_t* const kPage =
    u"<html lang=\"ja\">\n<head>\n\t<title>日本語のページ</title>\n</head>\n<body>\n"
    u"　全角の空白から始まる段落。漢字、ひらがな、カタカナ、ｶﾅ。\n"
    u"abcdefghijklmnopqrstuvwxyz\nあいうえおかきくけこさしす\n"
    u"サロゲート 𠮷野家 と 😀、結合 か\u3099 e\u0301\n制御\rと\v文字\u200E\n</body>\n</html>";

TEST(EditViewLook, APageOnALightDesktop) {
  EditViewDesk desk;
  desk.Put(kPage);
  desk.Press(u"{Ctrl+Home}{Down*4}{Right*3}");
  Save(desk, "page");
  desk.view.SetGuideLines(true);
  desk.view.SetBlanksShown(true);
  desk.view.SetLineEndMarks(true, 1);
  desk.Press(u"{Down}{Down}");
  Save(desk, "guides");
  desk.Press(u"{Shift+Down*3}");
  Save(desk, "selection");
  desk.view.SetColorScheme(ReadColorScheme(u"07. 白．青"));
  Save(desk, "white_on_blue");
}

}  // namespace
}  // namespace kestri

KESTRI_VIEW_TEST_MAIN()
