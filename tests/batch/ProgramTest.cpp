// The program as a shell sees it.
#include <sys/wait.h>

#include <csignal>

#include "batch/BatchTest.h"
#include "batch/WorkspaceAccess.h"
#include "recipes/RunError.h"

namespace vorlan {

namespace {

class ProgramTest : public BatchTest {
  protected:
    /// Exit status of a shell command in which $batch is the program and $dir the folder.
    int shell(const std::string& command) const {
        const std::string line = "batch='" VORLAN_BATCH_PROGRAM "'; dir='" + path("") + "'; " + command;
        const int status = std::system(line.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
};

TEST_F(ProgramTest, ExitStatusesReachTheShell) {
    write("spectral.toml", "[[step]]\ndo = \"spectral\"\nlags = 9999\n");
    EXPECT_EQ(shell("\"$batch\" simulate --out $dir/a.avp --length 4 --seed 1"), 0);
    EXPECT_EQ(shell("\"$batch\" run --recipe $dir/spectral.toml --in-place $dir/a.avp 2>/dev/null"), 1);
    EXPECT_EQ(shell("\"$batch\" run 2>/dev/null"), 2);
    EXPECT_EQ(shell("\"$batch\" info $dir/none.avp 2>/dev/null"), 3);
    EXPECT_EQ(shell("\"$batch\" new $dir/none/a.avp 2>/dev/null"), 4);
    for (const char* writes : {"info $dir/a.avp", "info --json $dir/a.avp", "--help", "--version", "run --help",
                               "export velocities --out - $dir/a.avp"}) {
        EXPECT_EQ(shell("\"$batch\" " + std::string(writes) + " >/dev/full 2>/dev/null"), 4) << writes;
    }
}

TEST_F(ProgramTest, WhatTheSystemDoesNotGiveIsTold) {
    const std::string old = write("old.avp", read(simulated("a.avp")));
    EXPECT_EQ(shell("ulimit -f 1; \"$batch\" simulate --out $dir/old.avp 2>$dir/err"), 4);
    EXPECT_TRUE(holds(read(path("err")), "old.avp (file too large)"));
    EXPECT_TRUE(sameBytes(read(old), read(path("a.avp"))));
    write("r.toml", "[[step]]\ndo = \"reset\"\n");
    EXPECT_EQ(shell("mkdir $dir/d; cd $dir/d; rmdir $dir/d; \"$batch\" simulate --out b.avp 2>/dev/null"), 4);
    EXPECT_EQ(
        shell("mkdir $dir/d; cd $dir/d; rmdir $dir/d; \"$batch\" run --recipe ../r.toml --out b.avp b.avp 2>$dir/err"),
        3);
    EXPECT_EQ(read(path("err")).find("filesystem error"), std::string::npos);
    // Fewer descriptors than workers: those that find none wait for others to end.
    EXPECT_EQ(shell("cd $dir; mkdir out; i=0; w=; while [ $i -lt 30 ]; do cp a.avp w$i.avp; w=\"$w w$i.avp\"; "
                    "i=$((i+1)); done; "
                    "ulimit -n 24; \"$batch\" run --recipe r.toml --jobs 30 --out-dir out $w 2>err"),
              0);
    EXPECT_EQ(read(path("err")), "");
    EXPECT_EQ(shell("[ $(ls $dir/out | wc -l) -eq 30 ]"), 0);
}

TEST_F(ProgramTest, DefaultsToTheOffscreenPlatformAndKeepsThePointInNumbers) {
    EXPECT_EQ(shell("\"$batch\" simulate --out $dir/a.avp --length 4 --seed 1"), 0);
    write("r.toml", "[[step]]\ndo = \"render\"\nstage = \"pre-processing\"\nout = \"" + path("a.png") +
                        "\"\n[[step]]\ndo = \"export\"\nkind = \"velocities\"\nout = \"" + path("after.dat") + "\"\n");
    EXPECT_EQ(
        shell("env -u QT_QPA_PLATFORM -u DISPLAY LC_ALL=de_DE.UTF-8 \"$batch\" run --recipe $dir/r.toml $dir/a.avp "
              "2>$dir/err"),
        0);
    EXPECT_EQ(read(path("err")), "");
    EXPECT_EQ(read(path("after.dat")), done({"export", "velocities", "--out", "-", path("a.avp")}));
}

TEST_F(ProgramTest, WorkersDrawTheSamePicturesAsOneProcess) {
    write("r.toml",
          "[[step]]\ndo = \"render\"\nstage = \"pre-processing\"\nout = \"" + path("{workspace}.png") + "\"\n");
    simulated("a.avp", "1");
    simulated("b.avp", "2");
    EXPECT_EQ(shell("\"$batch\" run --recipe $dir/r.toml $dir/a.avp $dir/b.avp"), 0);
    const std::string a = read(path("a.png"));
    const std::string b = read(path("b.png"));
    EXPECT_FALSE(sameBytes(a, b));
    EXPECT_EQ(shell("rm $dir/?.png; \"$batch\" run --recipe $dir/r.toml --jobs 2 $dir/a.avp $dir/b.avp"), 0);
    EXPECT_TRUE(sameBytes(read(path("a.png")), a));
    EXPECT_TRUE(sameBytes(read(path("b.png")), b));
}

TEST_F(ProgramTest, AnInterruptLeavesEverythingAsItWas) {
    EXPECT_EQ(shell("\"$batch\" simulate --out $dir/a.avp --length 1000 --noise-variance 1,1,1 --seed 1"), 0);
    write("r.toml", [] {
        std::string text;
        for (int i = 0; i < 60; ++i) {
            text += "[[step]]\ndo = \"spectral\"\npercent = 50\n";
        }
        return text;
    }());
    const std::string before = read(path("a.avp"));
    for (const char* jobs : {"1", "2"}) {
        write("b.avp", before);
        const int status =
            shell(std::string("rm -f $dir/err; \"$batch\" run --progress --recipe $dir/r.toml --jobs ") + jobs +
                  " --in-place $dir/a.avp $dir/b.avp 2>$dir/err & worker=$!; while ! [ -s $dir/err ]; do sleep 0.02; "
                  "done; kill -TERM $worker; "
                  "wait $worker");
        EXPECT_EQ(status, 128 + SIGTERM);
        EXPECT_TRUE(holds(read(path("err")), "interrupted"));
        EXPECT_TRUE(sameBytes(read(path("a.avp")), before));
        EXPECT_TRUE(sameBytes(read(path("b.avp")), before));
        EXPECT_EQ(names(), (std::vector<std::string>{"a.avp", "b.avp", "err", "r.toml"}));
    }
}

TEST_F(ProgramTest, CommandsThatWriteOneFileEndAtOnceByTheSignal) {
    EXPECT_EQ(shell("\"$batch\" simulate --out $dir/a.avp --length 1000 --seed 1"), 0);
    // The table does not fit into the pipe: the program waits in the middle of its work, until somebody reads on.
    EXPECT_EQ(shell("cd $dir; mkfifo p; exec 3<>p; \"$batch\" export velocities --out - a.avp >p & worker=$!; "
                    "read -r first <&3; kill -TERM $worker; cat <&3 >/dev/null & reader=$!; wait $worker; status=$?; "
                    "kill $reader; exit $status"),
              128 + SIGTERM);
}

TEST_F(ProgramTest, RunsThatChangeOneWorkspaceAtTheSameTimeLoseNothing) {
    EXPECT_EQ(shell("cd $dir; \"$batch\" simulate --out a.avp --length 100 --seed 1; s=0; w=; "
                    "for i in 1 2 3 4 5 6 7 8; do \"$batch\" simulate --append --out a.avp --length 4 2>/dev/null & "
                    "w=\"$w $!\"; done; for i in $w; do wait $i || s=$?; done; exit $s"),
              0);
    EXPECT_EQ(openWorkspace(path("a.avp")).dataFiles.files.GetSize(), 9);
    // What any other program has written is not saved over.
    SilentPort port;
    CVorl_ADVDoc document(port);
    std::ostringstream messages;
    Console console{messages, messages, false};
    WorkspaceUpdate update(document, path("a.avp"), console);
    write("a.avp", "new");
    EXPECT_THROW(update.save(), RunError);
    EXPECT_EQ(read(path("a.avp")), "new");
}

TEST_F(ProgramTest, TheMeasuredRecordGoesThrough) {
    const char* const table = std::getenv("VORLAN_MEASURED_RECORD");
    if (table == nullptr) {
        GTEST_SKIP() << "VORLAN_MEASURED_RECORD names no table";
    }
    EXPECT_EQ(shell("\"$batch\" import --out $dir/t.avp --interval 0.03125 " + std::string(table)), 0);
    const SAdvProbe probe = probeOf(openWorkspace(path("t.avp")));
    EXPECT_EQ(probe.WorkingSamples(), 32000);
    EXPECT_NEAR(probe.VelocityMoments(0).mean, -93.0, 0.2);
    // The table has one decimal: what was stored comes out again.
    const std::string exported = done({"export", "velocities", "--out", "-", path("t.avp")});
    EXPECT_EQ(exported.substr(0, exported.find('\n')), "-75.40 4.00 -6.70");
    EXPECT_EQ(std::count(exported.begin(), exported.end(), '\n'), 32000);
}

}  // namespace

}  // namespace vorlan
