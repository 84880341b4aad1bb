// Memory runs out at one request after another: whoever asked is told, and what was there stays as it was.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "Stored.h"
#include "app/CVorl_ADVDoc.h"
#include "batch/BatchTest.h"
#include "io/AllocationWatch.h"
#include "plot/PaintPane.h"
#include "stages/PaneDescription.h"

namespace vorlan {
namespace {

/// The next request to fail; the first ones one by one, later ones by a share of what was counted so far.
int after(int request) {
    return request + 1 + request / 24;
}

class Port : public SilentPort {
  public:
    void refuse(const std::string& text) override { refusals.push_back(text); }
    std::vector<std::string> refusals;
};

/// Whether the work ends with the word that memory ran out.
template <class Work>
bool runsOut(Work work) {
    try {
        work();
        return false;
    } catch (const std::bad_alloc&) {
        return true;
    } catch (const FileError& error) {
        return std::string(error.what()).ends_with("(not enough memory)");
    }
}

struct Step {
    const char* name;
    Outcome (*give)(CVorl_ADVDoc& document);
};

class MemoryOfCommands : public testing::TestWithParam<Step> {};

TEST_P(MemoryOfCommands, EndsThemAsIfTheyHadNotBegun) {
    int failed = 0;
    for (int request = 0;; request = after(request)) {
        SCOPED_TRACE(request);
        Port port;
        CVorl_ADVDoc document(port);
        document.SimulateTimeSeries({.length = 4.0, .whiteNoise = true}, 1);
        document.SelectProbe(0);
        document.SpectralAnalysis(SpectralSettings{});
        document.NewBoundary("/dev/null");  // the third step: one more needs room in the history
        const WorkspaceSettings settings = document.Settings();
        const std::string before = test::archived(document.GetWorkspace());
        Outcome outcome = Outcome::Refused;
        test::failAllocation(request);
        const bool thrown = runsOut([&] { outcome = GetParam().give(document); });
        if (!test::allocationFailed()) {
            EXPECT_EQ(outcome, Outcome::Done);
            break;
        }
        ++failed;
        EXPECT_FALSE(document.IsRunning());
        if (outcome == Outcome::Done) {
            continue;  // it could do without
        }
        EXPECT_TRUE(thrown || (!port.refusals.empty() && port.refusals.back() == "Out of memory."));
        // A refused command keeps its parameters, as one that can be taken back.
        EXPECT_TRUE(document.Settings() == settings || document.Undo() == Outcome::Done);
        EXPECT_TRUE(test::archived(document.GetWorkspace()) == before);
        EXPECT_EQ(GetParam().give(document), Outcome::Done) << "again, with memory";
    }
    EXPECT_GT(failed, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, MemoryOfCommands,
    testing::Values(Step{"simulate", [](CVorl_ADVDoc& d) { return d.SimulateTimeSeries({.length = 4.0}, 2); }},
                    Step{"clip", [](CVorl_ADVDoc& d) { return d.Clip(0.0, 2.0); }},
                    Step{"edit", [](CVorl_ADVDoc& d) { return d.EditTimeSeries({}); }},
                    Step{"rotate", [](CVorl_ADVDoc& d) { return d.ChangeCoordinateSystem({.heading = 9.0}); }},
                    Step{"stationarity",
                         [](CVorl_ADVDoc& d) {
                             return d.StationarityAnalysis({BandMode::Fixed, 5});
                         }},
                    Step{"distributions", [](CVorl_ADVDoc& d) { return d.Distributions({}); }},
                    Step{"crossSpectra", [](CVorl_ADVDoc& d) { return d.CrossSpectralAnalysis(); }},
                    Step{"quadrants",
                         [](CVorl_ADVDoc& d) {
                             return d.QuadrantsAnalysis({0.5, 5.0, 1.0, 2.0, 2.0, 1});
                         }},
                    Step{"node",
                         [](CVorl_ADVDoc& d) {
                             return d.InsertNode(0, 0, {1.0, 2.0, 3.0});
                         }}),
    [](const auto& step) { return step.param.name; });

class MemoryOfFiles : public BatchTest {};

TEST_F(MemoryOfFiles, LeavesWhatIsOpenAndWhatIsSaved) {
    const std::string file = simulated("a.avp");
    const std::string bytes = read(file);
    for (const bool saving : {true, false}) {
        for (int request = 0;; request = after(request)) {
            Port port;
            CVorl_ADVDoc document(port);
            document.SimulateTimeSeries({.length = 4.0}, 1);
            const std::string before = test::archived(document.GetWorkspace());
            test::failAllocation(request);
            const bool told = runsOut([&] { saving ? document.SaveWorkspace(file) : document.OpenWorkspace(file); });
            const bool failed = test::allocationFailed();
            EXPECT_EQ(told, failed);
            EXPECT_EQ(names().size(), 1U);
            if (!failed) {
                break;
            }
            EXPECT_TRUE(test::archived(document.GetWorkspace()) == before);
            EXPECT_TRUE(saving ? read(file) == bytes || read(file) == before : document.GetPath().empty()) << request;
            write("a.avp", bytes);
        }
        write("a.avp", bytes);
    }
}

TEST_F(MemoryOfFiles, EndsARunWithItsMessage) {
    const std::string in = simulated("in.avp");
    const std::string old = "old";
    const std::vector<std::string> arguments = {"export", "velocities", "--out", write("e.dat", old), in};
    for (int request = 0;; request = after(request)) {
        std::ostringstream out;
        std::ostringstream err;
        std::vector<std::string> given = arguments;
        test::failAllocation(request);
        const int status = runBatch(std::move(given), out, err);
        if (!test::allocationFailed()) {
            EXPECT_EQ(status, 0);
            EXPECT_NE(read(path("e.dat")), old);
            return;
        }
        EXPECT_EQ(names().size(), 2U);
        if (status != 0) {
            EXPECT_EQ(read(path("e.dat")), old);
            EXPECT_TRUE(holds(err.str(), "memory")) << request;
        }
        write("e.dat", old);
    }
}

TEST_F(MemoryOfFiles, IsNotMissedByPainting) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int count = 1;
    char name[] = "faults";
    char* arguments[] = {name, nullptr};
    const QGuiApplication application(count, arguments);
    const Workspace workspace = openWorkspace(simulated("a.avp"));
    QImage image(300, 200, QImage::Format_RGB32);
    const auto paint = [&](Stage stage) {
        QPainter painter(&image);
        paintPane(painter, image.rect(), describePane({workspace, 0, 0, stage, Pane::RightBottom}));
    };
    for (const Stage stage : {Stage::PreProcessing, Stage::MeanVelocityVectors}) {
        image.fill(Qt::white);
        paint(stage);
        const QImage painted = image.copy();
        for (int request = 0;; request = after(request)) {
            test::failAllocation(request);
            runsOut([&] { paint(stage); });
            if (!test::allocationFailed()) {
                break;
            }
            paint(stage);
            ASSERT_TRUE(image == painted);
        }
    }
}

}  // namespace
}  // namespace vorlan
