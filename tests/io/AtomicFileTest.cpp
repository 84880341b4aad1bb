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

TEST(AtomicFiles, KeepPermissions) {
    const TempFolder folder;
    const mode_t mask = ::umask(027);
    const auto fresh = folder / "fresh";
    writeFileAtomically(fresh, "a");
    struct stat status {};
    ::stat(fresh.c_str(), &status);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    for (const mode_t mode : {0600U, 0664U, 0755U}) {
        ::chmod(fresh.c_str(), mode);
        writeFileAtomically(fresh, "b");
        ::stat(fresh.c_str(), &status);
        EXPECT_EQ(status.st_mode & 07777U, mode);
    }
    ::umask(mask);
}

TEST(AtomicFiles, FollowLinks) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "deep");
    spill(folder / "deep/data", "old");
    std::filesystem::create_symlink("deep/data", folder / "link");
    std::filesystem::create_symlink(folder / "link", folder / "link of link");
    writeFileAtomically(folder / "link of link", "new");
    EXPECT_EQ(slurp(folder / "deep/data"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link of link"));
    std::filesystem::create_symlink("deep/later", folder / "dangling");
    writeFileAtomically(folder / "dangling", "made");
    EXPECT_EQ(slurp(folder / "deep/later"), "made");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "dangling"));
    std::filesystem::create_symlink("round", folder / "round");
    EXPECT_EQ(errorOfWriting(folder / "round", "x").kind(), FileError::Kind::Unwritable);
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

TEST(AtomicFiles, RefuseFoldersAndMissingFolders) {
    const TempFolder folder;
    EXPECT_EQ(errorOfWriting(folder.path(), "x").kind(), FileError::Kind::NotAFile);
    const FileError missing = errorOfWriting(folder / "none/data", "x");
    EXPECT_EQ(missing.kind(), FileError::Kind::Missing);
    EXPECT_EQ(missing.reason(), "there is no such folder");
    spill(folder / "file", "");
    EXPECT_EQ(errorOfWriting(folder / "file/data", "x").kind(), FileError::Kind::Missing);
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
