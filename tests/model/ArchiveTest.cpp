#include "model/Archive.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/PlainArrays.h"
#include "model/WorkspaceImage.h"

namespace vorlan {
namespace {

std::vector<std::byte> bytesOf(std::initializer_list<int> values) {
    std::vector<std::byte> bytes;
    for (const int v : values) {
        bytes.push_back(static_cast<std::byte>(v));
    }
    return bytes;
}

TEST(ArchiveErrors, TellWhere) {
    const auto bytes = bytesOf({1, 2, 3, 4, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x7F});
    Archive in = Archive::loading(bytes);
    std::uint32_t word = 0;
    in.value(word);
    std::string text;
    try {
        in.value(text);
        FAIL();
    } catch (const EndOfFileError& error) {
        EXPECT_EQ(error.offset(), 4U);
    }
    EXPECT_THROW(in.append(bytes), WrongModeError);
    Archive out = Archive::storing();
    EXPECT_THROW(out.takeRest(), WrongModeError);
}

TEST(ArchiveCounts, AreCheckedAgainstTheBytesThatAreLeft) {
    const auto negative = bytesOf({0xFF, 0xFF, 0xFF, 0xFF, 9});
    Archive in = Archive::loading(negative);
    EXPECT_EQ(in.count(0, 4), 0U);
    const auto two = bytesOf({2, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7});
    Archive narrow = Archive::loading(two);
    EXPECT_THROW(narrow.count(0, 4), EndOfFileError);
    Archive wide = Archive::loading(two);
    EXPECT_EQ(wide.count(0, 3), 2U);
    const auto longCount = bytesOf({0xFF, 0xFF, 3, 0, 0, 0, 0, 0, 0});
    Archive generic = Archive::loading(longCount);
    EXPECT_EQ(generic.shortCount(0, 1), 3U);
}

class Collector : public ByteSink {
  public:
    void write(std::span<const std::byte> bytes) override {
        largest = std::max(largest, bytes.size());
        all.insert(all.end(), bytes.begin(), bytes.end());
    }
    std::vector<std::byte> all;
    std::size_t largest = 0;
};

TEST(ArchiveSink, GetsTheSameBytesAsTheBuffer) {
    SIntArray marks;
    for (int i = 0; i < 100000; ++i) {
        marks.Add(i);
    }
    std::string text(40000, 't');
    Collector sink;
    Archive direct = Archive::storing(sink);
    Archive buffered = Archive::storing();
    for (Archive* archive : {&direct, &buffered}) {
        for (int i = 0; i < 3; ++i) {
            archive->value(text);
            marks.Serialize(*archive);
            EXPECT_EQ(archive->offset(), (i + 1) * (3 + 40000 + 4 + 400000U));
        }
    }
    direct.flush();
    EXPECT_EQ(sink.all, buffered.bytes());
    EXPECT_EQ(sink.largest, 400000U);
}

/// Gives its bytes, but never more than it was cut to.
class CutSource : public ByteSource {
  public:
    CutSource(std::vector<std::byte> bytes, std::size_t cut) : bytes_(std::move(bytes)), cut_(cut) {}
    std::size_t size() const override { return bytes_.size(); }
    std::size_t read(std::span<std::byte> bytes) override {
        const std::size_t given = std::min(bytes.size(), cut_ - std::min(cut_, taken_));
        std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(taken_), given, bytes.begin());
        taken_ += given;
        return given;
    }

  private:
    std::vector<std::byte> bytes_;
    std::size_t cut_;
    std::size_t taken_ = 0;
};

TEST(ArchiveSource, GivesWhatTheBufferGives) {
    // Blocks around the size of the window, at every alignment to it.
    Archive out = Archive::storing();
    std::vector<SIntArray> arrays;
    for (const int size : {0, 1, 16000, 16383, 16384, 16385, 5, 100000, 3, 16390, 2, 40000, 1}) {
        SIntArray marks;
        for (int i = 0; i < size; ++i) {
            marks.Add(i * 7 + size);
        }
        std::string text(static_cast<std::size_t>(size % 300), 'a');
        out.value(text);
        marks.Serialize(out);
        arrays.push_back(marks);
    }
    const std::size_t size = out.bytes().size();
    std::uint16_t last = 0x1234;
    out.value(last);
    CutSource source(out.bytes(), out.bytes().size());
    Archive in = Archive::loading(source);
    for (const SIntArray& expected : arrays) {
        std::string text;
        in.value(text);
        SIntArray marks;
        marks.Serialize(in);
        ASSERT_EQ(marks, expected);
    }
    EXPECT_EQ(in.offset(), size);
    EXPECT_EQ(in.peekShort(), 0x1234);
    EXPECT_EQ(in.offset(), size);
    EXPECT_EQ(in.takeRest().size(), 2U);
    EXPECT_EQ(in.peekShort(), 0);
    EXPECT_EQ(in.remaining(), 0U);
}

TEST(ArchiveSource, ShorterThanItSaidIsAnEndOfFile) {
    for (const std::size_t cut : {std::size_t{0}, std::size_t{3}, std::size_t{70000}, std::size_t{399999}}) {
        CutSource source(std::vector<std::byte>(400000, std::byte{1}), cut);
        Archive in = Archive::loading(source);
        std::vector<std::byte> block(200000);
        EXPECT_THROW(
            {
                in.raw(block.data(), 10);
                in.raw(block.data(), block.size());
                in.takeRest();
            },
            EndOfFileError)
            << cut;
    }
}

}  // namespace
}  // namespace vorlan
