#include "io/AtomicFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "io/FileError.h"
#include "io/TempFolder.h"

namespace vorlan {
namespace {

using test::slurp;
using test::spill;
using test::TempFolder;

FileError errorOfWriting(const std::filesystem::path& path, const std::string& text) {
    try {
        writeFileAtomically(path, text);
    } catch (const FileError& error) {
        return error;
    }
    ADD_FAILURE() << "nothing was refused";
    return FileError::cannotWrite(FileError::Kind::Empty, path, "");
}

/// Whether the file system keeps files without a name.
bool keepsNamelessFiles(const std::filesystem::path& folder) {
    const int file = ::open(folder.c_str(), O_WRONLY | O_TMPFILE, 0600);
    ::close(file);
    return file >= 0;
}

TEST(AtomicFiles, ReplaceOnlyOnCommit) {
    const TempFolder folder;
    const auto path = folder / "data";
    spill(path, "old");
    {
        AtomicFile file(path);
        file.write("new and longer");
        EXPECT_EQ(slurp(path), "old");
        EXPECT_EQ(folder.entries(), keepsNamelessFiles(path.parent_path()) ? 1U : 2U);
    }
    EXPECT_EQ(slurp(path), "old");
    EXPECT_EQ(folder.entries(), 1U);
    AtomicFile file(path);
    file.write("new");
    file.commit();
    EXPECT_EQ(slurp(path), "new");
    EXPECT_EQ(folder.entries(), 1U);
}

TEST(AtomicFiles, WriteDevicesDirectly) {
    const TempFolder folder;
    std::filesystem::create_symlink("/dev/full", folder / "full");
    const FileError error = errorOfWriting(folder / "full", "text");
    EXPECT_EQ(error.kind(), FileError::Kind::Unwritable);
    EXPECT_EQ(error.reason(), "no space left on device");
    EXPECT_EQ(error.what(), "File cannot be written: " + (folder / "full").string() + " (no space left on device)");
    EXPECT_NO_THROW(writeFileAtomically("/dev/null", "text"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/null"));
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

/// Makes the process an ordinary user while it lives, since nothing is protected from the superuser.
class OrdinaryUser {
  public:
    OrdinaryUser() : changed_(::geteuid() == 0 && ::seteuid(65534) == 0) {}
    ~OrdinaryUser() {
        if (changed_) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }

  private:
    bool changed_;
};

TEST(AtomicFiles, RespectProtection) {
    const TempFolder folder;
    ::chmod(folder.path().c_str(), 0755);
    spill(folder / "open", "old");
    ::chmod((folder / "open").c_str(), 0666);
    std::filesystem::create_directory(folder / "free");
    ::chmod((folder / "free").c_str(), 0777);
    spill(folder / "free/protected", "old");
    ::chmod((folder / "free/protected").c_str(), 0444);
    if (::geteuid() != 0) {
        ::chmod(folder.path().c_str(), 0555);
    }
    {
        const OrdinaryUser user;
        EXPECT_EQ(errorOfWriting(folder / "open", "new").reason(), "permission denied");
        EXPECT_EQ(errorOfWriting(folder / "other", "new").reason(), "permission denied");
        EXPECT_EQ(errorOfWriting(folder / "free/protected", "new").reason(), "permission denied");
    }
    ::chmod(folder.path().c_str(), 0755);
    EXPECT_EQ(slurp(folder / "open"), "old");
    EXPECT_EQ(slurp(folder / "free/protected"), "old");
    EXPECT_EQ(folder.entries(), 2U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder / "free"), {}), 1);
}

}  // namespace
}  // namespace vorlan
