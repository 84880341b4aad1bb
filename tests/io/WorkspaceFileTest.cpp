#include "io/WorkspaceFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstring>

#include "io/AllocationWatch.h"
#include "io/TempFolder.h"
#include "model/WorkspaceImage.h"

namespace vorlan {
namespace {

using test::asText;
using test::Bytes;
using test::slurp;
using test::spill;
using test::TempFolder;
using test::WorkspaceImage;

class WorkspaceFile : public testing::Test {
  protected:
    /// The error that opening bytes raises; none when they load.
    std::optional<FileError> openError(const Bytes& bytes) {
        spill(path_, asText(bytes));
        try {
            openWorkspace(path_);
        } catch (const FileError& error) {
            return error;
        }
        return std::nullopt;
    }

    TempFolder folder_;
    std::filesystem::path path_ = folder_ / "test.avp";
};

TEST_F(WorkspaceFile, RandomOnesAreSavedByteForByte) {
    for (std::uint64_t seed = 0; seed < 60; ++seed) {
        WorkspaceImage image(seed);
        image.longestText = seed % 10 == 0 ? 70000 : 300;
        image.workspace(seed % 4);
        if (seed % 3 == 1) {
            image.pages();
        }
        if (seed % 5 == 2) {
            image.put(std::uint16_t{8});
            image.raw(100);
        }
        spill(path_, asText(image.bytes));
        Workspace workspace = openWorkspace(path_);
        const std::filesystem::path again = folder_ / "again.avp";
        saveWorkspace(workspace, again);
        ASSERT_TRUE(slurp(again) == asText(image.bytes)) << "seed " << seed;
    }
}

/// One file with one probe at least, pages behind it.
WorkspaceImage sampleImage(std::size_t& pagesAt) {
    for (std::uint64_t seed = 1000;; ++seed) {
        WorkspaceImage image(seed);
        image.workspace(2);
        if (image.counts.size() > 300) {
            pagesAt = image.bytes.size();
            image.pages();
            return image;
        }
    }
}

TEST_F(WorkspaceFile, TruncatedAnywhereIsAnUnexpectedEnd) {
    std::size_t pagesAt = 0;
    const WorkspaceImage image = sampleImage(pagesAt);
    const std::size_t step = image.bytes.size() / 150;
    for (std::size_t length = 1; length < image.bytes.size(); length += length < 40 ? 1 : step) {
        const auto error = openError(Bytes(image.bytes.begin(), image.bytes.begin() + static_cast<long>(length)));
        if (length == pagesAt || length == pagesAt + 1) {
            continue;  // complete but for the pages
        }
        ASSERT_TRUE(error.has_value()) << length;
        EXPECT_EQ(error->kind(), FileError::Kind::EndOfFile) << length;
        ASSERT_TRUE(error->offset().has_value());
        EXPECT_LE(*error->offset(), length);
        EXPECT_EQ(std::string(error->what()).find("Unexpected end of file: " + path_.string()), 0U);
    }
}

TEST_F(WorkspaceFile, DamagedCountsCostNoMemory) {
    std::size_t pagesAt = 0;
    const WorkspaceImage image = sampleImage(pagesAt);
    const std::size_t limit = 16 * image.bytes.size() + 200000;
    const auto openedWithin = [&](const Bytes& bytes) {
        test::resetAllocations();
        auto error = openError(bytes);
        EXPECT_LT(test::allocatedBytes(), limit);
        return error;
    };
    for (std::size_t i = 0; i < image.counts.size(); i += 1 + i / 40) {
        const std::size_t at = image.counts[i];
        Bytes damaged = image.bytes;
        const std::int32_t huge = 0x7FFFFFFF;
        std::memcpy(damaged.data() + at, &huge, sizeof huge);
        const auto error = openedWithin(damaged);
        ASSERT_TRUE(error.has_value()) << "count " << i;
        EXPECT_EQ(error->kind(), FileError::Kind::EndOfFile);
        EXPECT_EQ(error->offset(), at);
        for (const std::int32_t wrong : {-1, std::numeric_limits<std::int32_t>::min(), 3}) {
            std::memcpy(damaged.data() + at, &wrong, sizeof wrong);
            openedWithin(damaged);
        }
    }
    const std::byte longPrefix[] = {std::byte{0xFF}, std::byte{0xFF}, std::byte{0xFF}, std::byte{0xF0},
                                    std::byte{0xFF}, std::byte{0xFF}, std::byte{0x7F}};
    for (std::size_t i = 0; i < image.texts.size(); i += 3) {
        Bytes damaged = image.bytes;
        const std::size_t room = std::min(sizeof longPrefix, damaged.size() - image.texts[i]);
        std::memcpy(damaged.data() + image.texts[i], longPrefix, room);
        const auto error = openedWithin(damaged);
        ASSERT_TRUE(error.has_value()) << "text " << i;
        EXPECT_EQ(error->kind(), FileError::Kind::EndOfFile);
    }
}

TEST_F(WorkspaceFile, SavingAndOpeningHoldNoSecondCopy) {
    Workspace workspace;
    workspace.dataFiles.files.GrowTo(0).probes.GrowTo(0).timeAxis.SetSize(2'000'000);
    test::resetAllocations();
    saveWorkspace(workspace, path_);
    EXPECT_LT(test::allocatedBytes(), 1'000'000U);
    EXPECT_GT(std::filesystem::file_size(path_), 8'000'000U);
    test::resetAllocations();
    openWorkspace(path_);
    EXPECT_LT(test::allocatedBytes(), 9'000'000U);
}

}  // namespace
}  // namespace vorlan
