// The input method's programs: the best one that is there is started with its argument.
#include "platform/qt/qt_input_method_tools.hpp"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>

#include "tests/fakes/temporary_folder.hpp"

namespace kestri {
namespace {

class InstalledTools : public testing::Test {
 protected:
  // A program that notes its name and argument.
  void Install(const std::string& name) {
    folder_.Write(name, "#!/bin/sh\necho \"" + name + " $1\" > '" + folder_.Path("part") + "'\nmv '" +
                            folder_.Path("part") + "' '" + folder_.Path("started") + "'\n");
    std::filesystem::permissions(folder_.Path(name), std::filesystem::perms::owner_all);
  }
  std::string Started() const {
    QElapsedTimer waited;
    waited.start();
    while (!std::filesystem::exists(folder_.Path("started")) && waited.elapsed() < 20000) QThread::msleep(5);
    return folder_.Read("started");
  }

  fakes::TemporaryFolder folder_;
  QtInputMethodTools tools_{QStringList{QString::fromStdString(folder_.Path())}};
};

TEST_F(InstalledTools, WithoutAnyProgramEveryToolIsRefused) {
  EXPECT_FALSE(tools_.ShowProperties());
  EXPECT_FALSE(tools_.RegisterWord());
  EXPECT_FALSE(tools_.ShowPad());
  EXPECT_FALSE(tools_.Reconvert());
}

TEST_F(InstalledTools, TheEnginesDialogGoesBeforeTheFrameworks) {
  Install("ibus-setup");
  Install("mozc_tool");
  EXPECT_TRUE(tools_.ShowProperties());
  EXPECT_EQ(Started(), "mozc_tool --mode=config_dialog\n");
}

TEST_F(InstalledTools, TheFrameworksDialogStandsInForTheEngines) {
  Install("fcitx5-configtool");
  EXPECT_TRUE(tools_.ShowProperties());
  EXPECT_EQ(Started(), "fcitx5-configtool \n");
}

TEST_F(InstalledTools, WordRegistrationNeedsAProgramForIt) {
  Install("ibus-setup");
  EXPECT_FALSE(tools_.RegisterWord());
  Install("mozc_tool");
  EXPECT_TRUE(tools_.RegisterWord());
  EXPECT_EQ(Started(), "mozc_tool --mode=word_register_dialog\n");
}

TEST_F(InstalledTools, ATableOfCharactersStandsInForHandwriting) {
  Install("gucharmap");
  EXPECT_TRUE(tools_.ShowPad());
  EXPECT_EQ(Started(), "gucharmap \n");
}

TEST_F(InstalledTools, AFileThatIsNoProgramIsPassedOver) {
  folder_.Write("mozc_tool", "no program");
  Install("ibus-setup");
  EXPECT_TRUE(tools_.ShowProperties());
  EXPECT_EQ(Started(), "ibus-setup \n");
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
