// Every call of the system on a file goes wrong once, in every way that it can: the files are the old ones or the new
// ones, whoever asked learns which file and why, nothing else remains, and the next run succeeds.
#include <fcntl.h>

#include <cerrno>
#include <map>

#include "batch/BatchTest.h"
#include "faults/Faults.h"
#include "io/FileDescriptor.h"

namespace vorlan {
namespace {

using test::Fault;
using test::SystemCall;

constexpr int kHalf = 0;

/// The ways in which a call goes wrong.
std::vector<int> errorsOf(const SystemCall& call) {
    if (call.name == "open" && (call.flags & O_TMPFILE) == O_TMPFILE) {
        return {EOPNOTSUPP, EISDIR, EIO};
    }
    const std::map<std::string, std::vector<int>> errors = {
        {"open", {EACCES, EMFILE, EIO, EINTR}},
        {"read", {EIO, EINTR, kHalf}},
        {"write", {ENOSPC, EIO, EDQUOT, EINTR, kHalf}},
        {"fsync", {EIO, ENOSPC, EINTR}},
        {"close", {EIO, EDQUOT, EINTR}},
        {"flock", {ENOLCK, EINTR}},
        {"fstat", {EIO}},
        {"stat", {EIO, EACCES}},
        {"faccessat", {EACCES, EROFS}},
        {"linkat", {EIO, EPERM, EDQUOT}},
        {"rename", {EIO, EACCES, ENOSPC}},
    };
    return errors.at(call.name);
}

struct Job {
    const char* name;
    std::vector<std::string> arguments;  ///< words that begin with "@" are names in the folder
    std::vector<std::string> outputs;
    bool replaced = true;  ///< there are old outputs
};

class FileFaults : public BatchTest, public testing::WithParamInterface<Job> {
  protected:
    using Files = std::map<std::string, std::string>;

    void SetUp() override {
        write("r.toml", "[[step]]\ndo = \"clip\"\nfrom = 0\nto = 5\n[[step]]\ndo = \"boundary-new\"\npath = \"" +
                            path("b.bnd") + "\"\n[[step]]\ndo = \"boundary-open\"\npath = \"" + path("a.bnd") +
                            "\"\n[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"" + path("e.dat") + "\"\n");
        write("t.csv", "u,v,w\n1,2,3\n4,5,6\n");
        write("a.bnd", "1 2 3\n");
        simulated("in.avp");
        for (const std::string& word : GetParam().arguments) {
            arguments_.push_back(word[0] == '@' ? path(word.substr(1)) : word);
        }
        if (GetParam().replaced) {
            for (const std::string& output : GetParam().outputs) {
                test::spill(path(output), read(path("in.avp")).substr(0, output.ends_with(".avp") ? -1 : 0));
            }
        }
        old_ = files();
    }
    Files files() const {
        Files all;
        for (const std::string& name : names()) {
            all[name] = read(path(name));
        }
        return all;
    }
    void restore() const {
        for (const std::string& name : names()) {
            std::filesystem::remove(path(name));
        }
        for (const auto& [name, bytes] : old_) {
            write(name, bytes);
        }
    }
    void expectOldOrNew(const Files& found, const Files& fresh, bool failed) const {
        for (const auto& [name, bytes] : found) {
            const auto before = old_.find(name);
            const auto after = fresh.find(name);
            EXPECT_TRUE(failed && before != old_.end()
                            ? bytes == before->second || (after != fresh.end() && bytes == after->second)
                            : after != fresh.end() && bytes == after->second)
                << name << " is neither the old nor the new one";
        }
        for (const auto& [name, bytes] : old_) {
            EXPECT_EQ(found.count(name), 1U) << name << " is gone";
        }
    }

    std::vector<std::string> arguments_;
    Files old_;
};

TEST_P(FileFaults, LeaveTheOldFilesOrTheNewOnes) {
    test::watchCalls(path(""));
    done(arguments_);
    const std::vector<SystemCall> calls = test::watchedCalls();
    const Files fresh = files();
    EXPECT_GT(calls.size(), 5U);
    for (int n = 0; n < static_cast<int>(calls.size()); ++n) {
        const SystemCall& call = calls[static_cast<std::size_t>(n)];
        for (const int error : errorsOf(call)) {
            restore();
            SCOPED_TRACE("call " + std::to_string(n) + ", " + call.name + ": " + systemReason(error));
            test::watchCalls(path(""), {n, error, {}});
            const Result result = run(arguments_);
            test::watchedCalls();
            expectOldOrNew(files(), fresh, result.status != 0);
            if (error == EINTR || error == kHalf) {
                EXPECT_EQ(result.status, 0) << result.err;
            }
            if (result.status == 0) {
                EXPECT_TRUE(files() == fresh);
                continue;
            }
            EXPECT_TRUE(result.status == 3 || result.status == 4) << result.status << ": " << result.err;
            EXPECT_TRUE(holds(result.err, path("")));
            EXPECT_TRUE(result.err.find(systemReason(error)) != std::string::npos ||
                        result.err.find("Cannot find data file") != std::string::npos)
                << result.err;
        }
    }
    restore();
    done(arguments_);
}

using OtherPrograms = BatchTest;

// What one of them did before the run looked at the file is changed by the run; what it did later stays, and the run
// says so. Only between two looks that follow each other, and between the last one and the renaming, it would be lost.
TEST_F(OtherPrograms, LoseNothingWhateverTheyDoToAFileThatIsChanged) {
    const std::string file = simulated("in.avp");
    const std::string old = read(file);
    done({"simulate", "--out", path("other.avp"), "--length", "8"});
    const std::string others = read(path("other.avp"));
    const std::vector<std::string> append = {"simulate", "--append", "--out", file, "--length", "4", "--seed", "3"};
    const std::map<std::string, std::function<void()>> deeds = {
        {"replaces", [&] { std::filesystem::rename(write("new.avp", others), file); }},
        {"writes", [&] { write("in.avp", others); }},
        {"shortens", [&] { std::filesystem::resize_file(file, old.size() / 2); }},
        {"removes", [&] { std::filesystem::remove(file); }}};
    test::watchCalls(path(""));
    done(append);
    const int calls = static_cast<int>(test::watchedCalls().size());
    for (const auto& [deed, act] : deeds) {
        bool looked = false;
        for (int n = 0; n < calls; ++n) {
            SCOPED_TRACE(deed + " before call " + std::to_string(n));
            write("in.avp", old);
            std::string left;
            test::watchCalls(path(""), {n, 0, [&] {
                                            act();
                                            left = std::filesystem::exists(file) ? read(file) : "";
                                        }});
            const Result result = run(append);
            const auto watched = test::watchedCalls();
            const std::string& name = watched[static_cast<std::size_t>(n)].name;
            const bool late = std::none_of(watched.begin() + n + 1, watched.end(),
                                           [](const SystemCall& call) { return call.name == "rename"; });
            const std::string found = std::filesystem::exists(file) ? read(file) : "";
            if (result.status != 0) {
                looked = true;
                EXPECT_TRUE(result.status == 3 || result.status == 4) << result.err;
                EXPECT_TRUE(holds(result.err, file));
                EXPECT_TRUE(sameBytes(found, left));
            } else if (!late) {
                EXPECT_GT(openWorkspace(file).dataFiles.files.GetSize(), 1);
                EXPECT_TRUE(!looked || left.empty() || name == "stat" || name == "rename")
                    << "what the other program wrote is lost";
            }
        }
        EXPECT_TRUE(looked || deed == "removes");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Jobs, FileFaults,
    testing::Values(
        Job{"saving", {"simulate", "--out", "@o.avp", "--length", "4", "--seed", "2"}, {"o.avp"}},
        Job{"savingAnew", {"simulate", "--out", "@o.avp", "--length", "4", "--seed", "2"}, {"o.avp"}, false},
        Job{"appending", {"simulate", "--append", "--out", "@in.avp", "--length", "4", "--seed", "2"}, {}},
        Job{"importing", {"import", "--out", "@o.avp", "--interval", "1", "@t.csv"}, {"o.avp"}},
        Job{"exporting", {"export", "velocities", "--out", "@e.dat", "@in.avp"}, {"e.dat"}},
        Job{"rendering",
            {"render", "--stage", "pre-processing", "--pane", "left-top", "--size", "90x60", "--out", "@p.png",
             "@in.avp"},
            {"p.png"}},
        Job{"running", {"run", "--recipe", "@r.toml", "--out", "@o.avp", "@in.avp"}, {"o.avp", "b.bnd", "e.dat"}},
        Job{"runningInPlace", {"run", "--recipe", "@r.toml", "--in-place", "@in.avp"}, {}}),
    [](const auto& job) { return job.param.name; });

}  // namespace
}  // namespace vorlan
