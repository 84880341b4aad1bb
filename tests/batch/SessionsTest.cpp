// Sessions with the program: tests/approved/session-*.txt hold commands and what they answer. A line that begins with
// "$ " is a command in an empty folder, any other text below it is its answer; "!" marks what goes to the error stream.
// ./approve writes the answers anew, so a new case is a new line with a command.
#include "Approved.h"
#include "batch/BatchTest.h"

namespace vorlan {

namespace {

class Sessions : public BatchTest, public testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        before_ = std::filesystem::current_path();
        std::filesystem::current_path(path(""));
        ::setenv("batch", VORLAN_BATCH_PROGRAM, 1);
    }
    void TearDown() override { std::filesystem::current_path(before_); }

    static std::string answerOf(const std::string& command) {
        std::vector<std::string> words = wordsOf(command);
        if (words[0] == "recipe") {
            // recipe 'TEXT' ARGUMENTS: a run with the text as its recipe
            std::string text = words[1];
            for (std::size_t at = 0; (at = text.find("\\n", at)) != std::string::npos;) {
                text.replace(at, 2, "\n");
            }
            std::ofstream("r.toml") << text;
            words.erase(words.begin(), words.begin() + 2);
            words.insert(words.begin(), {"vorlan-batch", "run", "--recipe", "r.toml"});
        }
        if (words[0] == "table") {
            // table 'TEXT' ARGUMENTS: the velocities of the text, written by printf, as they are imported
            outputOfShell("printf '" + words[1] + "' > t.csv");
            words.erase(words.begin(), words.begin() + 2);
            words.insert(words.begin(), {"import", "--out", "t.avp", "--interval", "1"});
            words.emplace_back("t.csv");
            const Result result = run(words);
            return indented(result.err, "  ! ") +
                   (result.status == 0 ? indented(run({"export", "velocities", "--out", "-", "t.avp"}).out, "  ") : "");
        }
        if (words[0] != "vorlan-batch") {
            return indented(outputOfShell(command), "  ");
        }
        words.erase(words.begin());
        const auto pipe = std::find(words.begin(), words.end(), "|");
        const std::string behind = pipe == words.end() ? "" : command.substr(command.find(" | ") + 3);
        words.erase(pipe, words.end());
        Result result = run(words);
        if (!behind.empty()) {
            std::ofstream("piped") << result.out;
            result.out = outputOfShell("<piped " + behind);
        }
        return indented(result.out, "  ") + indented(result.err, "  ! ") +
               (result.status == 0 ? "" : "  status " + std::to_string(result.status) + "\n");
    }

    /// The folder has another name each time.
    std::string withoutFolder(std::string text) const {
        for (std::size_t at = 0; (at = text.find(path(""), at)) != std::string::npos;) {
            text.erase(at, path("").size());
        }
        return text;
    }

  private:
    static std::vector<std::string> wordsOf(const std::string& command) {
        std::vector<std::string> words;
        bool quoted = false;
        bool inWord = false;
        for (const char c : command) {
            if (c == '\'') {
                quoted = !quoted;
            }
            if (c == ' ' && !quoted) {
                inWord = false;
                continue;
            }
            if (!inWord) {
                words.emplace_back();
                inWord = true;
            }
            if (c != '\'') {
                words.back() += c;
            }
        }
        return words;
    }
    static std::string indented(const std::string& text, const char* margin) {
        std::istringstream stream(text);
        std::string lines;
        for (std::string line; std::getline(stream, line);) {
            lines += (line.empty() ? "  ." : margin + line) + "\n";
        }
        return lines;
    }
    static std::string outputOfShell(const std::string& command) {
        std::string output;
        FILE* pipe = ::popen(("{ " + command + "\n} 2>&1").c_str(), "r");
        for (int c = 0; (c = std::fgetc(pipe)) != EOF;) {
            output += static_cast<char>(c);
        }
        ::pclose(pipe);
        return output;
    }

    std::filesystem::path before_;
};

TEST_P(Sessions, AnswerAsApproved) {
    std::istringstream session(test::approvedText(GetParam()));
    std::string text;
    for (std::string line; std::getline(session, line);) {
        if (line.rfind("  ", 0) != 0) {
            text += line + "\n";
        }
        if (line.rfind("$ ", 0) == 0) {
            text += withoutFolder(answerOf(line.substr(2)));
        }
    }
    EXPECT_FALSE(text.empty());
    EXPECT_EQ(test::changeOfApproved(GetParam(), text), "");
}

INSTANTIATE_TEST_SUITE_P(Approved, Sessions,
                         testing::Values("session-usage", "session-recipes", "session-refusals", "session-outputs",
                                         "session-import", "session-run", "session-tables", "session-hostile",
                                         "session-turbulence", "session-paper", "session-frames", "session-grid",
                                         "session-system"));

}  // namespace

}  // namespace vorlan
