#include "io/RecoveryCopy.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "io/FileError.h"
#include "io/TempFolder.h"
#include "io/WorkspaceFile.h"

namespace vorlan {
namespace {

/// A process that keeps a copy of a workspace and waits.
class Working {
  public:
    Working(const std::filesystem::path& folder, const std::filesystem::path& original) {
        int ready[2];
        EXPECT_EQ(::pipe(ready), 0);
        process_ = ::fork();
        if (process_ == 0) {
            RecoveryCopy copy(folder);
            Workspace workspace;
            workspace.settings.meanVelocity.value = 12.5;
            copy.write(workspace, {});
            copy.write(workspace, {original, fileStampOf(original)});
            (void)!::write(ready[1], "!", 1);
            ::pause();
            ::_exit(0);
        }
        char sign = 0;
        EXPECT_EQ(::read(ready[0], &sign, 1), 1);
        ::close(ready[0]);
        ::close(ready[1]);
    }
    ~Working() { kill(); }
    void kill() {
        if (process_ > 0) {
            ::kill(process_, SIGKILL);
            ::waitpid(process_, nullptr, 0);
            process_ = 0;
        }
    }

  private:
    pid_t process_ = 0;
};

TEST(RecoveryCopies, ArePickedUpOnceTheirProgramWasKilled) {
    test::TempFolder folder;
    const std::filesystem::path place = folder / "deep" / "recovery";
    EXPECT_TRUE(RecoveryCopy::leftBehind(place).empty());
    test::spill(folder / "first.avp", "as it was opened");
    Working first(place, folder / "first.avp");
    Working second(place, folder / "second.avp");
    EXPECT_TRUE(RecoveryCopy::leftBehind(place).empty()) << "both programs run";
    first.kill();
    {
        const auto left = RecoveryCopy::leftBehind(place);
        ASSERT_EQ(left.size(), 1U);
        EXPECT_EQ(left[0].original.path, folder / "first.avp");
        EXPECT_FALSE(left[0].isOriginalChanged());
        test::spill(folder / "first.avp", "of a colleague");
        EXPECT_TRUE(left[0].isOriginalChanged());
        EXPECT_EQ(openWorkspace(left[0].copy).settings.meanVelocity.value, 12.5);
        EXPECT_TRUE(RecoveryCopy::leftBehind(place).empty()) << "somebody else is asked about it";
    }
    second.kill();
    for (const auto& entry : std::filesystem::directory_iterator(place)) {
        if (entry.path().extension() == ".lock") {
            test::spill(entry.path(), "-81");
        }
    }
    EXPECT_EQ(RecoveryCopy::leftBehind(place)[0].original.path, "") << "half a line names nothing";
    ASSERT_EQ(RecoveryCopy::leftBehind(place).size(), 2U);
    RecoveryCopy::leftBehind(place)[0].discard();
    EXPECT_EQ(RecoveryCopy::leftBehind(place).size(), 1U);
}

TEST(RecoveryCopies, LeaveNothingBehindWhenTheyAreRemoved) {
    test::TempFolder folder;
    RecoveryCopy copy(folder / "r");
    copy.write(Workspace(), {});
    EXPECT_FALSE(std::filesystem::is_empty(folder / "r"));
    copy.remove();
    EXPECT_TRUE(std::filesystem::is_empty(folder / "r"));
    test::spill(folder / "file", "");
    EXPECT_THROW(RecoveryCopy(folder / "file").write(Workspace(), {}), FileError);
}

}  // namespace
}  // namespace vorlan
