// A save that meets the process's limit for the size of a file ends like one on a full disk: with a box, the
// old file whole, and the process alive.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "shell/startup/forms/toolkit_setup.hpp"
#include "tests/document/document_fixture.hpp"

namespace kestri {
namespace {

constexpr rlim_t kLimit = 32 * 1024;  // bytes
const std::string kOld = "old\r\n";

void LimitFileSizes() {
  const rlimit limit{kLimit, kLimit};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
}

class SizeLimit : public DocumentTest {
 protected:
  // In a process of its own, prepared as the program prepares itself.
  template <typename Work>
  int StatusOf(Work work) {
    const pid_t child = ::fork();
    if (child == 0) {
      std::signal(SIGXFSZ, SIG_DFL);
      PrepareEnvironment();
      LimitFileSizes();
      work();
      ::_exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    return status;
  }
  void OpenAndTypeTooMuch() {
    path = MakeFile("a.txt", kOld);
    ASSERT_TRUE(Open(path));
    Type(std::u16string(4 * kLimit, u'x'));
  }
  std::u16string path;
};

TEST_F(SizeLimit, AFailedSaveIsToldAndTheDocumentStaysChanged) {
  OpenAndTypeTooMuch();
  const int status = StatusOf([this] {
    EXPECT_FALSE(document->WriteDocument(path));
    EXPECT_EQ(ToUtf8(OnlyBox().caption), "ﾌｧｲﾙ書き込みｴﾗｰ Kestrile");
    EXPECT_TRUE(OnlyBox().text.starts_with(u"ﾌｧｲﾙが 保存できません!!\r\n"));
    EXPECT_EQ(state.modified, -1);
    EXPECT_EQ(control.Length(), static_cast<Position>(4 * kLimit + kOld.size() - 2));
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(Bytes(path), kOld);
  const auto work = std::filesystem::directory_iterator(ToUtf8(Whole("work")));
  EXPECT_EQ(std::distance(begin(work), end(work)), 1) << "nothing half written stays beside it";
}

TEST_F(SizeLimit, AFileWithHardLinksStaysWholeToo) {
  OpenAndTypeTooMuch();
  std::filesystem::create_hard_link(ToUtf8(path), ToUtf8(Work("link.txt")));
  const int status = StatusOf([this] {
    EXPECT_FALSE(document->WriteDocument(path));
    EXPECT_EQ(boxes.asked.size(), 1U);
  });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(Bytes(path), kOld);
  EXPECT_EQ(Bytes(Work("link.txt")), kOld);
}

TEST_F(SizeLimit, ASaveWithinTheLimitGoesOn) {
  OpenAndTypeTooMuch();
  control.SetText(u"short");
  const int status = StatusOf([this] { EXPECT_TRUE(document->WriteDocument(path)); });
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  EXPECT_EQ(Bytes(path), "short\r\n");
}

}  // namespace
}  // namespace kestri

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
