#pragma once

#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "recipes/ProbePlace.h"

namespace vorlan {

/// The output that means standard output.
inline constexpr const char* kStandardOutput = "-";

/// Writes bytes to a file, complete or not at all, or to standard output; RunError Unwritable.
void writeOutput(const std::string& path, std::string_view bytes, std::ostream& standardOutput);

/// One name per file, however it is spelled: absolute, links followed as far as there are any.
std::string identityOf(const std::filesystem::path& path);

/// Refuses an output that is the input.
void requireOtherThanInput(const std::string& output, const std::string& input);

/// Refuses to put a table or a picture in the place of a workspace.
void requireOtherThanWorkspace(const std::string& output);

/// The folders that the steps of a recipe may write into. A recipe, and a workspace with the path of a boundary in it,
/// may come from a stranger: neither reaches what its reader has not named.
class OutputFolders {
  public:
    void add(const std::filesystem::path& folder) { folders_.push_back(identityOf(folder.empty() ? "." : folder)); }
    /// RunError Usage for a file outside of them, or a hidden one.
    void require(const std::string& output) const;

  private:
    std::vector<std::filesystem::path> folders_;
};

/// The files that a run makes. They are held back until everything succeeded, so a refused step leaves all of them as
/// they were.
class PendingOutputs {
  public:
    /// A later addition of the same path takes the earlier one's place; standard output gets all of them.
    void add(const std::string& path, std::string bytes);
    /// The text file of a boundary, which is written as the window writes it.
    void addBoundary(const std::string& path, std::string text);
    /// The text that was added last for a boundary's file, null without one.
    const std::string* boundaryText(const std::string& path) const;
    /// Writes them in the order in which they were added; RunError Unwritable at the first that cannot be.
    void commit(std::ostream& standardOutput);

  private:
    struct Output {
        std::string path;
        std::string bytes;
        bool boundary = false;
    };
    std::vector<Output> outputs_;
};

/// A name with the placeholders {workspace} (name of the input without folder and extension), {file} and {probe}
/// (numbers from 1).
class OutputPattern {
  public:
    explicit OutputPattern(std::string text) : text_(std::move(text)) {}

    /// Why the text is no pattern; empty when it is one.
    static std::string faultOf(const std::string& text);

    const std::string& text() const { return text_; }
    bool isStandardOutput() const { return text_ == kStandardOutput; }
    std::string expand(const std::filesystem::path& workspace, const ProbePlace& place) const;
    /// File and probe stay placeholders: equal texts of two inputs mean that they write one file.
    std::string expandWorkspace(const std::filesystem::path& workspace) const;

  private:
    std::string text_;
};

}  // namespace vorlan
