#include "recipes/RecipeText.h"

#include <algorithm>

namespace vorlan {

namespace {

constexpr std::size_t kMostBytes = 1 << 20;
constexpr int kMostKeyParts = 16;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Walks over a text outside its strings and comments.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    std::optional<RecipeTextFault> scan() {
        int points = 0;
        while (at_ < text_.size()) {
            const char c = text_[at_];
            if (c == '"' || c == '\'') {
                if (!mayBeginString()) {
                    return RecipeTextFault{line_, "a quote stands within a word"};
                }
                if (!skipString(c)) {
                    return RecipeTextFault{line_, "a letter outside ASCII stands behind a backslash"};
                }
                continue;
            }
            if (c == '#') {
                at_ = std::min(text_.find('\n', at_), text_.size());
                continue;
            }
            if (static_cast<unsigned char>(c) >= 0x80) {
                return RecipeTextFault{line_, "letters outside ASCII must stand in quotes"};
            }
            if (std::string_view("\n=,[]{}").find(c) != std::string_view::npos) {
                points = 0;
            } else if (c == '.' && ++points >= kMostKeyParts) {
                return RecipeTextFault{line_, "a key has at most " + std::to_string(kMostKeyParts) + " parts"};
            }
            line_ += c == '\n' ? 1 : 0;
            ++at_;
        }
        return std::nullopt;
    }

  private:
    /// The library reads on over a quote within a word, and over the letters behind it as if they stood in none.
    bool mayBeginString() const {
        return at_ == 0 || std::string_view(" \t\r\n=,[{").find(text_[at_ - 1]) != std::string_view::npos;
    }

    /// Whether the library looks for blanks in letters outside ASCII: behind a backslash and the blanks and line ends
    /// that it joins.
    bool asksForBlanks() const {
        const std::size_t next = text_.find_first_not_of(" \t\r\n", at_ + 1);
        return next != std::string_view::npos && static_cast<unsigned char>(text_[next]) >= 0x80;
    }

    /// Ends behind the string; at the end of its line when it is left open, which the library refuses. False where the
    /// library would have no answer.
    bool skipString(char quote) {
        const std::string triple(3, quote);
        const bool isBlock = text_.substr(at_).starts_with(triple);
        at_ += isBlock ? 3 : 1;
        for (; at_ < text_.size(); ++at_) {
            const char c = text_[at_];
            if (c == '\n' && !isBlock) {
                return true;
            }
            line_ += c == '\n' ? 1 : 0;
            if (c == quote && !isBlock) {
                ++at_;
                return true;
            }
            if (c == quote && text_.substr(at_).starts_with(triple)) {
                // Two more quotes in front of the closing ones belong to the text.
                at_ = std::min(text_.find_first_not_of(quote, at_), std::min(at_ + 5, text_.size()));
                return true;
            }
            if (c == '\\' && quote == '"' && asksForBlanks()) {
                return false;
            }
            if (c == '\\' && quote == '"' && at_ + 1 < text_.size() && text_[at_ + 1] != '\n') {
                ++at_;
            }
        }
        return true;
    }

    std::string_view text_;
    std::size_t at_ = 0;
    int line_ = 1;
};

}  // namespace

std::optional<RecipeTextFault> faultOfRecipeText(std::string_view text) {
    if (text.size() > kMostBytes) {
        return RecipeTextFault{1, "a recipe has at most " + std::to_string(kMostBytes) + " bytes"};
    }
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    return Scanner(text).scan();
}

}  // namespace vorlan
