#pragma once

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Archive.h"
#include "model/Workspace.h"

namespace vorlan::test {

using Bytes = std::vector<std::byte>;

/// Puts a workspace file together field by field, without any code of the program.
class ImageWriter {
  public:
    Bytes bytes;
    std::vector<std::size_t> counts;  ///< offsets of the 32-bit counts
    std::vector<std::size_t> texts;   ///< offsets of the length prefixes

    template <class T>
    void put(T value) {
        const auto* first = reinterpret_cast<const std::byte*>(&value);
        bytes.insert(bytes.end(), first, first + sizeof value);
    }
    void i32(std::int32_t v) { put(v); }
    void u32(std::uint32_t v) { put(v); }
    void f64(double v) { put(v); }
    void count(std::size_t n) {
        counts.push_back(bytes.size());
        put(static_cast<std::int32_t>(n));
    }
    void text(std::string_view text) {
        texts.push_back(bytes.size());
        if (text.size() < 255) {
            put(static_cast<std::uint8_t>(text.size()));
        } else if (text.size() < 0xFFFE) {
            put(std::uint8_t{0xFF});
            put(static_cast<std::uint16_t>(text.size()));
        } else {
            put(std::uint8_t{0xFF});
            put(std::uint16_t{0xFFFF});
            put(static_cast<std::uint32_t>(text.size()));
        }
        for (const char c : text) {
            put(c);
        }
    }
};

/// A workspace file whose fields hold arbitrary bits, where they may, or 1, 2, 3, ... in their order, so that no two
/// can change places unseen.
class WorkspaceImage : public ImageWriter {
  public:
    explicit WorkspaceImage(std::uint64_t seed) : arbitrary_(true), random_(seed) {}
    WorkspaceImage() = default;

    std::size_t longestText = 300;
    std::string version = "Version 1.59";
    /// Codes of the document block in a numbered image: two stages, lag window, unit.
    std::array<std::int32_t, 4> codes = {1, 2, 3, 0};

    /// The workspace up to its boundaries.
    void workspace(std::size_t files = 1) {
        text(version);
        documentBlock();
        count(files);
        for (std::size_t i = 0; i < files; ++i) {
            file();
        }
        frames(below(3, 1));
        const std::size_t boundaries = below(3, 1);
        count(boundaries);
        for (std::size_t i = 0; i < boundaries; ++i) {
            someText();
            someText();
            columns(3);
        }
    }

    void pages() {
        put(std::uint16_t{7});
        for (int i = 0; i < 7; ++i) {
            words(4);
            someText();
            someText();
            words(28);
            words(1);
        }
    }

    void raw(std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            put(static_cast<std::uint8_t>(arbitrary_ ? random_() : ++number_));
        }
    }

  private:
    std::size_t below(std::size_t n, std::size_t numbered) {
        return arbitrary_ ? static_cast<std::size_t>(random_() % n) : numbered;
    }
    void words(std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            put(arbitrary_ ? static_cast<std::uint32_t>(random_()) : ++number_);
        }
    }
    void code(std::size_t n, std::uint32_t numbered) { u32(static_cast<std::uint32_t>(below(n, numbered))); }
    void doubles(std::size_t n) {
        if (arbitrary_) {
            return words(2 * n);
        }
        for (std::size_t i = 0; i < n; ++i) {
            f64(++number_ + 0.5);
        }
    }
    void floats(std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            put(arbitrary_ ? std::bit_cast<float>(static_cast<std::uint32_t>(random_()))
                           : static_cast<float>(++number_));
        }
    }
    void someText() {
        if (!arbitrary_) {
            return text("text " + std::to_string(++number_));
        }
        constexpr std::size_t lengths[] = {0, 1, 2, 20, 254, 255, 256, 0xFFFD, 0xFFFE, 70000};
        std::size_t length = lengths[random_() % 10];
        if (length > longestText) {
            length = random_() % 30;
        }
        std::string characters(length, '\0');
        for (char& c : characters) {
            c = static_cast<char>(random_());
        }
        text(characters);
    }

    void documentBlock() {
        words(6);
        code(8, codes[0]);
        code(8, codes[1]);
        words(10);
        doubles(6);
        words(3);
        doubles(2);
        words(13);
        code(4, codes[2]);
        code(2, codes[3]);
        doubles(5);
        words(3);
        doubles(3);
        words(1);
    }

    void file() {
        someText();
        words(1);
        raw(300);
        for (int channel = 0; channel < 8; ++channel) {
            raw(254 + 18 + 26 + 1);
            floats(3);
        }
        words(8);
        floats(6);
        words(2);
        doubles(2);
        words(1);
        doubles(1);
        words(1);
        someText();
        table();
        const std::size_t probes = below(3, 1);
        count(probes);
        for (std::size_t i = 0; i < probes; ++i) {
            probe();
        }
    }

    void probe() {
        words(1);
        doubles(1);
        words(2);
        someText();
        words(4);
        doubles(3);
        words(2);
        doubles(22);
        words(1);
        code(4, 3);
        code(2, 1);
        words(3);
        doubles(25);
        words(8);
        doubles(7);
        tables(5);
        const std::size_t marks = below(20, 2);
        count(marks);
        words(marks);
        columns(1);
        tables(10 + 1 + 6);
        for (int i = 0; i < 6; ++i) {
            series();
        }
        const std::size_t tabs = below(4, 1);
        count(tabs);
        for (std::size_t i = 0; i < tabs; ++i) {
            words(1);
            code(9, 5);
            words(1);
        }
        for (int i = 0; i < 7; ++i) {
            frames(below(3, 0));
        }
    }

    void series() {
        words(1);
        doubles(4);
        words(3);
        code(4, 2);
        code(2, 1);
        columns(9);
    }

    void columns(int n) {
        for (int i = 0; i < n; ++i) {
            constexpr double scales[] = {1.0, 0.01, 0.001, 1e-7, 0.0, -0.001};
            if (const std::size_t choice = below(8, 1); choice < 6) {
                f64(scales[choice]);
            } else if (choice == 6) {
                put(0x7FF4000000000123ULL | ((random_() % 1000) << 12));  // signalling NaN
            } else {
                doubles(1);
            }
            const std::size_t length = below(12, 1);
            count(length);
            words(length);
        }
    }

    void table() {
        const std::size_t n = below(4, 1);
        count(n);
        columns(static_cast<int>(n));
    }
    void tables(int n) {
        for (int i = 0; i < n; ++i) {
            table();
        }
    }

    void frames(std::size_t n) {
        count(n);
        for (std::size_t i = 0; i < n; ++i) {
            doubles(4);
            words(6);
            someText();
            someText();
            doubles(2);
            words(10);
            someText();
            raw(180);
            words(5);
            someText();
            raw(60);
        }
    }

    bool arbitrary_ = false;
    std::uint32_t number_ = 0;
    std::mt19937_64 random_;
};

/// A numbered workspace with one of everything.
inline Bytes numberedImage() {
    WorkspaceImage image;
    image.workspace();
    return image.bytes;
}

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

}  // namespace vorlan::test
