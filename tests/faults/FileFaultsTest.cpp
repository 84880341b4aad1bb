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
            test::watchCalls(path(""), {n, error});
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
