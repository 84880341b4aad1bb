#include "model/WorkspaceImage.h"

namespace vorlan {
namespace {

using namespace test;

Bytes joined(Bytes first, const Bytes& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Bytes pageBlock(const std::string& header) {
    ImageWriter image;
    image.put(std::uint16_t{7});
    for (int page = 0; page < 7; ++page) {
        for (int i = 0; i < 4; ++i) {
            image.i32(1);
        }
        image.text("-1-");
        image.text(page == 3 ? header : "");
        for (const double v : {1.0, 5.0, 16.0, 2.5, 5.0, 16.0, 5.0, 16.0, 1.5, 5.0, 16.0, 5.0, 2.5, 2.5}) {
            image.f64(v);
        }
        image.i32(1);
    }
    return image.bytes;
}

TEST(Pages, UntouchedOnesAreNotStored) {
    Workspace workspace;
    const Bytes bytes = stored(workspace);
    EXPECT_EQ(Bytes(bytes.end() - 4, bytes.end()), Bytes(4, std::byte{0}));
    Workspace back = loaded(bytes);
    EXPECT_EQ(back.pages.GetSize(), kStageCount);
    EXPECT_EQ(back.dataFiles.frameAttributes.GetSize(), 1);
    EXPECT_EQ(stored(back), bytes);
}

TEST(Pages, ChangedOnesFollowTheBoundaries) {
    Workspace workspace = loaded(numberedImage());
    workspace.pages.ElementAt(3).header = "Spectra";
    const Bytes expected = joined(numberedImage(), pageBlock("Spectra"));
    EXPECT_EQ(stored(workspace), expected);
    Workspace back = loaded(expected);
    EXPECT_EQ(back.pages, workspace.pages);
    // A file that had the block keeps it, also when everything is back at its default.
    back.pages.ElementAt(3).header.clear();
    EXPECT_EQ(stored(back), joined(numberedImage(), pageBlock("")));
}

TEST(Pages, UnknownTailsAreKept) {
    const Bytes strange = {std::byte{7}, std::byte{1}, std::byte{2}};
    const Bytes lone = {std::byte{7}};
    for (const Bytes& tail : {strange, lone, Bytes(5000, std::byte{0xEE})}) {
        Workspace workspace = loaded(joined(numberedImage(), tail));
        EXPECT_EQ(stored(workspace), joined(numberedImage(), tail));
        // Pages that the user changes afterwards are not lost either.
        workspace.pages.ElementAt(3).header = "new";
        const Bytes both = joined(joined(numberedImage(), pageBlock("new")), tail);
        EXPECT_EQ(stored(workspace), both);
        Workspace back = loaded(both);
        EXPECT_EQ(back.pages.GetAt(3).header, "new");
        EXPECT_EQ(stored(back), both);
    }
}

}  // namespace
}  // namespace vorlan
