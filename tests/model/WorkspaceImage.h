#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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

/// A workspace file with arbitrary bits in every field that may hold them.
class RandomImage : public ImageWriter {
  public:
    explicit RandomImage(std::uint64_t seed) : random_(seed) {}

    std::size_t longestText = 300;

    /// The workspace up to its boundaries.
    void workspace(std::size_t files) {
        text("Version 1.59");
        documentBlock();
        count(files);
        for (std::size_t i = 0; i < files; ++i) {
            file();
        }
        frames();
        const std::size_t boundaries = below(3);
        count(boundaries);
        for (std::size_t i = 0; i < boundaries; ++i) {
            someText();
            someText();
            column();
            column();
            column();
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

    std::size_t below(std::size_t n) { return static_cast<std::size_t>(random_() % n); }
    void words(std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            put(static_cast<std::uint32_t>(random_()));
        }
    }
    void raw(std::size_t n) {
        for (std::size_t i = 0; i < n; ++i) {
            put(static_cast<std::uint8_t>(random_()));
        }
    }
    void someText() {
        constexpr std::size_t lengths[] = {0, 1, 2, 20, 254, 255, 256, 0xFFFD, 0xFFFE, 70000};
        std::size_t length = lengths[below(10)];
        if (length > longestText) {
            length = below(30);
        }
        std::string characters(length, '\0');
        for (char& c : characters) {
            c = static_cast<char>(random_());
        }
        text(characters);
    }

  private:
    void doubles(std::size_t n) { words(2 * n); }

    void documentBlock() {
        words(6);
        i32(static_cast<int>(below(8)));
        i32(static_cast<int>(below(8)));
        words(10);
        doubles(6);
        words(3);
        doubles(2);
        words(13);
        i32(static_cast<int>(below(4)));
        i32(static_cast<int>(below(2)));
        doubles(5);
        words(3);
        doubles(3);
        words(1);
    }

    void file() {
        someText();
        words(1);
        raw(300);
        raw(8 * (254 + 18 + 26 + 1 + 12));
        words(8);
        words(4);
        words(2);
        words(2);
        doubles(2);
        words(1);
        doubles(1);
        words(1);
        someText();
        table();
        const std::size_t probes = below(3);
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
        words(2);
        words(2);
        doubles(3);
        words(2);
        doubles(22);
        words(1);
        u32(static_cast<std::uint32_t>(below(4)));
        u32(static_cast<std::uint32_t>(below(2)));
        words(3);
        doubles(25);
        words(6);
        words(2);
        doubles(7);
        for (int i = 0; i < 5; ++i) {
            table();
        }
        const std::size_t marks = below(20);
        count(marks);
        words(marks);
        column();
        for (int i = 0; i < 10 + 1 + 6; ++i) {
            table();
        }
        for (int i = 0; i < 6; ++i) {
            series();
        }
        const std::size_t tabs = below(4);
        count(tabs);
        for (std::size_t i = 0; i < tabs; ++i) {
            words(1);
            u32(static_cast<std::uint32_t>(below(9)));
            words(1);
        }
        for (int i = 0; i < 7; ++i) {
            frames();
        }
    }

    void series() {
        words(1);
        doubles(4);
        words(3);
        u32(static_cast<std::uint32_t>(below(4)));
        u32(static_cast<std::uint32_t>(below(2)));
        for (int i = 0; i < 9; ++i) {
            column();
        }
    }

    void column() {
        constexpr double scales[] = {1.0, 0.01, 0.001, 1e-7, 0.0, -0.001};
        if (const std::size_t choice = below(8); choice < 6) {
            f64(scales[choice]);
        } else if (choice == 6) {
            put(0x7FF4000000000123ULL | (static_cast<std::uint64_t>(below(1000)) << 12));  // signalling NaN
        } else {
            doubles(1);
        }
        const std::size_t length = below(12);
        count(length);
        words(length);
    }

    void table() {
        const std::size_t columns = below(4);
        count(columns);
        for (std::size_t i = 0; i < columns; ++i) {
            column();
        }
    }

    void frames() {
        const std::size_t n = below(3);
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

    std::mt19937_64 random_;
};

}  // namespace vorlan::test
