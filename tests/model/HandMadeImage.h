#pragma once

#include <gtest/gtest.h>

#include "model/Archive.h"
#include "model/Workspace.h"
#include "model/WorkspaceImage.h"

namespace vorlan::test {

inline Workspace loaded(const Bytes& bytes) {
    Archive archive = Archive::loading(bytes);
    Workspace workspace;
    workspace.Serialize(archive);
    EXPECT_EQ(archive.remaining(), 0U);
    return workspace;
}

inline Bytes stored(Workspace& workspace) {
    Archive archive = Archive::storing();
    workspace.Serialize(archive);
    return archive.takeBytes();
}

/// Puts 100 + position into the integers and position + 0.5 into the doubles of the document block.
inline void numberedBlock(ImageWriter& image, std::int32_t codeA, std::int32_t codeB, std::int32_t codeC,
                          std::int32_t unit) {
    const auto integers = [&](int first, int last) {
        for (int position = first; position <= last; ++position) {
            image.i32(100 + position);
        }
    };
    const auto doubles = [&](int first, int last) {
        for (int position = first; position <= last; ++position) {
            image.f64(position + 0.5);
        }
    };
    integers(1, 6);
    image.i32(codeA);
    image.i32(codeB);
    integers(9, 18);
    doubles(19, 24);
    integers(25, 27);
    doubles(28, 29);
    integers(30, 42);
    image.i32(codeC);
    image.i32(unit);
    doubles(45, 49);
    integers(50, 52);
    doubles(53, 55);
    integers(56, 56);
}

inline Bytes documentImage(std::int32_t codeA, std::int32_t codeB, std::int32_t codeC, std::int32_t unit,
                           const std::string& version = "Version 1.59") {
    ImageWriter image;
    image.text(version);
    numberedBlock(image, codeA, codeB, codeC, unit);
    image.count(0);
    image.count(0);
    image.count(0);
    return image.bytes;
}

inline void putColumn(ImageWriter& image, double scale, std::initializer_list<std::int32_t> integers) {
    image.f64(scale);
    image.count(integers.size());
    for (const std::int32_t n : integers) {
        image.i32(n);
    }
}

inline void putTable(ImageWriter& image, std::int32_t mark) {
    image.count(1);
    putColumn(image, 0.01, {mark, -mark});
}

/// Every number of the image differs from its neighbours, so that no two fields can change places unseen.
inline void putProbe(ImageWriter& image) {
    image.u32(11);
    image.f64(0.04);
    image.u32(12);
    image.i32(13);
    image.text("caption");
    for (const std::uint32_t word : {14, 15, 16, 17}) {
        image.u32(word);
    }
    for (const double v : {1.25, 2.25, 3.25}) {
        image.f64(v);
    }
    image.u32(18);
    image.u32(19);
    for (int i = 0; i < 22; ++i) {
        image.f64(100 + i);
    }
    for (const std::uint32_t word : {20, 3, 1, 21, 22, 23}) {
        image.u32(word);
    }
    for (int i = 0; i < 25; ++i) {
        image.f64(200 + i);
    }
    for (std::uint32_t i = 0; i < 6; ++i) {
        image.u32(300 + i);
    }
    image.u32(24);
    image.u32(25);
    for (int i = 0; i < 7; ++i) {
        image.f64(400 + i);
    }
    for (int i = 0; i < 5; ++i) {
        putTable(image, 500 + i);
    }
    image.count(2);
    image.i32(1);
    image.i32(0);
    putColumn(image, 0.5, {26});
    for (int i = 0; i < 10; ++i) {
        putTable(image, 600 + i);
    }
    putTable(image, 610);
    for (int i = 0; i < 6; ++i) {
        putTable(image, 620 + i);
    }
    for (int kind = 0; kind < 6; ++kind) {
        image.u32(700 + kind);
        for (int i = 0; i < 4; ++i) {
            image.f64(710 + i);
        }
        for (const std::uint32_t word : {714, 715, 716, 2, 1}) {
            image.u32(word);
        }
        for (int i = 0; i < 9; ++i) {
            putColumn(image, 0.001, {720 + i});
        }
    }
    image.count(1);
    for (const std::uint32_t word : {3, 5, 27}) {
        image.u32(word);
    }
    for (int group = 0; group < 7; ++group) {
        image.count(0);
    }
}

inline void putFrame(ImageWriter& image) {
    for (int i = 0; i < 4; ++i) {
        image.f64(800 + i);
    }
    for (int i = 0; i < 6; ++i) {
        image.i32(810 + i);
    }
    image.text("x title");
    image.text("y title");
    image.f64(820);
    image.f64(821);
    for (int i = 0; i < 10; ++i) {
        image.i32(830 + i);
    }
    image.text("frame title");
    for (int font = 0; font < 3; ++font) {
        for (int i = 0; i < 60; ++i) {
            image.put(static_cast<std::uint8_t>(60 * font + i));
        }
    }
    for (int i = 0; i < 5; ++i) {
        image.i32(840 + i);
    }
    image.text("legend title");
    for (int i = 0; i < 60; ++i) {
        image.put(static_cast<std::uint8_t>(180 + i));
    }
}

inline void putDataFile(ImageWriter& image) {
    image.text("C:\\data\\run.adv");
    image.u32(2);
    for (int i = 0; i < 300; ++i) {
        image.put(static_cast<std::uint8_t>(i));
    }
    for (int channel = 0; channel < 8; ++channel) {
        for (int i = 0; i < 254 + 18 + 26; ++i) {
            image.put(static_cast<std::uint8_t>(channel * 31 + i));
        }
        image.put(static_cast<std::uint8_t>(40 + channel));
        for (int i = 0; i < 3; ++i) {
            image.put(static_cast<float>(10 * channel + i));
        }
    }
    for (std::uint32_t i = 0; i < 8; ++i) {
        image.u32(900 + i);
    }
    for (int i = 0; i < 6; ++i) {
        image.put(static_cast<float>(910 + i));
    }
    image.u32(920);
    image.u32(921);
    image.f64(922);
    image.f64(923);
    image.u32(924);
    image.f64(925);
    image.u32(926);
    image.text("a comment");
    putTable(image, 930);
    image.count(1);
    putProbe(image);
}

inline Bytes fullImage() {
    ImageWriter image;
    image.text("Version 1.59");
    numberedBlock(image, 1, 2, 3, 0);
    image.count(1);
    putDataFile(image);
    image.count(1);
    putFrame(image);
    image.count(1);
    image.text("bank");
    image.text("/site/bank.bnd");
    putColumn(image, 0.001, {1, 2});
    putColumn(image, 0.002, {3, 4});
    putColumn(image, 0.003, {5, 6});
    return image.bytes;
}

}  // namespace vorlan::test
