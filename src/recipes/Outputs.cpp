#include "recipes/Outputs.h"

#include <algorithm>
#include <span>
#include <utility>

#include "io/AtomicFile.h"
#include "io/BoundaryFile.h"
#include "io/WorkspaceFile.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

constexpr std::string_view kWorkspaceHolder = "{workspace}";
constexpr std::string_view kFileHolder = "{file}";
constexpr std::string_view kProbeHolder = "{probe}";

/// The text with values in the place of their holders. What stands in a value is no holder.
std::string filled(std::string_view text, std::span<const std::pair<std::string_view, std::string>> holders) {
    std::string result;
    while (!text.empty()) {
        const std::size_t plain = std::min(text.find('{'), text.size());
        result += text.substr(0, plain);
        text.remove_prefix(plain);
        const auto holder = std::find_if(holders.begin(), holders.end(),
                                         [&](const auto& known) { return text.starts_with(known.first); });
        if (holder != holders.end()) {
            result += holder->second;
            text.remove_prefix(holder->first.size());
        } else if (!text.empty()) {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace

void writeOutput(const std::string& path, std::string_view bytes, std::ostream& standardOutput) {
    if (path == kStandardOutput) {
        standardOutput.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        standardOutput.flush();
        if (!standardOutput) {
            throw unwritable("Standard output cannot be written");
        }
        return;
    }
    try {
        writeFileAtomically(path, bytes);
    } catch (const FileError& error) {
        throw unwritable(textOf(error));
    }
}

std::string identityOf(const std::filesystem::path& path) {
    // Without a name, or in a folder that was removed, there is no absolute one.
    std::error_code error;
    std::filesystem::path whole = std::filesystem::absolute(path, error);
    if (!error) {
        whole = std::filesystem::weakly_canonical(whole, error);
    }
    return error ? path.lexically_normal().string() : whole.string();
}

void requireOtherThanInput(const std::string& output, const std::string& input) {
    if (output != kStandardOutput && identityOf(output) == identityOf(input)) {
        throw usageError(output + " is an input and would be overwritten");
    }
}

void requireOtherThanWorkspace(const std::string& output) {
    const std::string reason = refusalToReplace(output);
    if (!reason.empty()) {
        throw usageError(reason);
    }
}

void OutputFolders::require(const std::string& output) const {
    const std::filesystem::path file = identityOf(output);
    for (const std::filesystem::path& folder : folders_) {
        const auto [end, below] = std::mismatch(folder.begin(), folder.end(), file.begin(), file.end());
        if (end == folder.end()) {
            if (std::any_of(below, file.end(), [](const auto& name) { return name.string().starts_with('.'); })) {
                throw usageError(output + " is hidden: no recipe writes there");
            }
            return;
        }
    }
    throw usageError(output +
                     " is outside of the folders that the command line names; --write-below DIR names another one");
}

void PendingOutputs::add(const std::string& path, std::string bytes) {
    const auto same =
        std::find_if(outputs_.begin(), outputs_.end(), [&](const Output& output) { return output.path == path; });
    if (same == outputs_.end() || path == kStandardOutput) {
        outputs_.push_back({path, std::move(bytes)});
    } else {
        same->bytes = std::move(bytes);
    }
}

void PendingOutputs::addBoundary(const std::string& path, std::string text) {
    std::erase_if(outputs_, [&](const Output& output) { return output.boundary && output.path == path; });
    outputs_.push_back({path, std::move(text), true});
}

const std::string* PendingOutputs::boundaryText(const std::string& path) const {
    const auto held = std::find_if(outputs_.begin(), outputs_.end(),
                                   [&](const Output& output) { return output.boundary && output.path == path; });
    return held == outputs_.end() ? nullptr : &held->bytes;
}

void PendingOutputs::commit(std::ostream& standardOutput) {
    for (const Output& output : outputs_) {
        if (output.boundary) {
            try {
                writeBoundary(output.path, output.bytes);
            } catch (const FileError& error) {
                throw unwritable(textOf(error));
            }
            continue;
        }
        writeOutput(output.path, output.bytes, standardOutput);
    }
    outputs_.clear();
}

std::string OutputPattern::faultOf(const std::string& text) {
    if (text.empty()) {
        return "is empty";
    }
    if (text.find('\0') != std::string::npos) {
        return "holds a character that no file name can have";
    }
    for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1)) {
        const std::string_view rest = std::string_view(text).substr(at);
        if (!rest.starts_with(kWorkspaceHolder) && !rest.starts_with(kFileHolder) && !rest.starts_with(kProbeHolder)) {
            return "knows only the placeholders {workspace}, {file} and {probe}";
        }
    }
    return {};
}

std::string OutputPattern::expand(const std::filesystem::path& workspace, const ProbePlace& place) const {
    const std::pair<std::string_view, std::string> holders[] = {{kWorkspaceHolder, workspace.stem().string()},
                                                                {kFileHolder, std::to_string(place.file + 1)},
                                                                {kProbeHolder, std::to_string(place.probe + 1)}};
    return filled(text_, holders);
}

std::string OutputPattern::expandWorkspace(const std::filesystem::path& workspace) const {
    const std::pair<std::string_view, std::string> holders[] = {{kWorkspaceHolder, workspace.stem().string()}};
    return filled(text_, holders);
}

}  // namespace vorlan
