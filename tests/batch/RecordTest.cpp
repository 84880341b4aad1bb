// What was done in a document can be taken back and done again, and is a recipe that this program repeats.
#include <random>

#include "Stored.h"
#include "analysis/FilterSettings.h"
#include "app/CommandState.h"
#include "app/RecordingPort.h"
#include "app/SampleDocument.h"
#include "batch/BatchTest.h"
#include "recipes/RecipeOfProbe.h"
#include "stages/PageDescription.h"

namespace vorlan {

namespace {

/// Somebody at a window: gives commands that it offers, and takes some of them back.
class User {
  public:
    User(CVorl_ADVDoc& document, RecordingPort& port, unsigned seed)
        : document_(document), port_(port), random_(seed) {}

    /// Commands on the active probe whose parameters suit the record.
    void act() {
        port_.answer = pick(3) != 0;
        switch (pick(20)) {
            case 0:
                return change(Command::ZoomAndClipping, [&] { document_.EnterZoomMode(); });
            case 1:
                return change(Command::ZoomAndClipping, [&] { document_.Clip(0.1 * pick(5), 9.7 - 0.1 * pick(9)); });
            case 2:
                return change(Command::ResetTimeSeries, [&] { document_.ResetTimeSeries(); });
            case 3:
                return change(Command::CoordinateSystem, [&] {
                    RotationSettings settings = rotationSettingsOf(document_.Probe());
                    settings.pitch = pick(60) / 7.0;
                    settings.position[0] += 0.1;
                    document_.ChangeCoordinateSystem(settings);
                });
            case 4:
                return change(Command::EditingTimeSeries, [&] {
                    EditingSettings settings = usable(document_.Settings().editing);
                    settings.velocityTest = pick(2) == 0;
                    if (settings.velocityTest) {
                        settings.velocityThreshold = 1.5 + 0.1 * pick(9);
                    }
                    settings.signalToNoise.on = pick(2) == 0;
                    document_.EditTimeSeries(settings);
                });
            case 5:
                return offered(Command::DigitalFiltration, [&] {
                    const auto shape = FilterShape(pick(4));
                    document_.FilterTimeSeries({shape, defaultTypeOf(shape), 2.0, 0.5});
                });
            case 6:
                return offered(Command::StationarityAnalysis, [&] {
                    document_.StationarityAnalysis({BandMode(pick(2)), 2 + pick(5)});
                });
            case 7:
                return offered(Command::Histograms, [&] { document_.Distributions({5 + pick(9), 80, pick(2) == 0}); });
            case 8:
            case 9:
                return offered(Command::SpectralAnalysis, [&] { document_.SpectralAnalysis(spectral()); });
            case 10:
                return offered(Command::CrossSpectralAnalysis, [&] { document_.CrossSpectralAnalysis(); });
            case 11:
                return offered(Command::QuadrantsAnalysis, [&] {
                    document_.QuadrantsAnalysis({0.1 + 0.1 * pick(9), 5.0, 1.0, 2.0, 2.0 + pick(2), pick(3)});
                });
            case 12:
                document_.SetMeanVelocity({static_cast<MeanVelocityMode>(pick(2)), 1.0 + pick(90) / 7.0});
                return;
            case 13:
                document_.VectorsOfMeanVelocities({pick(3), 10 + pick(9), 5.0, 2.0});
                return;
            case 14:
                document_.PlaceProbe(document_.ActiveFile(), document_.ActiveProbe(),
                                     PositionChange{std::nullopt, pick(9) / 7.0, std::nullopt});
                return;
            case 15:
                return ifSpectra([&] { document_.ExtractDissipationRate({DissipationSource(pick(2)), 2.0, 0.3}); });
            case 16:
                return ifSpectra([&] { document_.ExtractScales({ScalesSource(pick(2)), 0.0, 1.0 + 0.1 * pick(9)}); });
            case 18:
                document_.ChangeFrames(
                    frameSlotsOf(Stage::Spectral),
                    [&](const FrameSlot&, FrameAttributesType& frame) {
                        frame.plotTitle = "title " + std::to_string(pick(3));
                        frame.xMinMode = pick(2);
                        frame.xMin = frame.xMinMode != 0 ? -1.0 - pick(5) / 7.0 : frame.xMin;
                        frame.legendFont.setHeight(10 + pick(5));
                        frame.gridColour = pick(1 << 24);
                        frame.scaleType = 0;
                    },
                    pick(2) == 0);
                return;
            case 17: {
                PageAtrType page = pageOfStage(document_.GetWorkspace(), Stage::Spectral);
                page.header = "a \"page\" \\" + std::to_string(pick(9));
                page.leftMargin = 2.0 + pick(9) / 7.0;
                page.leftTop.height = 4.0 + 0.1 * pick(9);
                page.printRightTop = pick(2);
                document_.SetPage(Stage::Spectral, page);
                return;
            }
            default:
                pick(2) == 0 ? document_.Undo() : document_.Redo();
        }
    }

    /// What a recipe cannot say: another probe's commands, and what is refused or cancelled.
    void actAround() {
        const int here = document_.ActiveProbe();
        switch (pick(4)) {
            case 0:
                document_.SelectProbe(1 - here);
                act();
                return document_.SelectProbe(here);
            case 1:
                return offered(Command::SpectralAnalysis, [&] { document_.SpectralAnalysis(lagsOf(100000)); });
            case 2:
                port_.pumpsLeft = 0;
                act();
                port_.pumpsLeft = -1;
                return;
            default:
                document_.SelectStage(pick(3));
        }
    }

  private:
    int pick(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

    template <class Act>
    void offered(Command command, Act act) {
        if (commandState(document_, command).enabled) {
            act();
        }
    }
    /// Offered on the first tab only.
    template <class Act>
    void change(Command command, Act act) {
        document_.SelectStage(document_.Probe().tabItems.IndexOfStage(0));
        offered(command, act);
    }
    template <class Act>
    void ifSpectra(Act act) {
        if (document_.Probe().IsDone(DoneMark::Spectral)) {
            act();
        }
    }

    SpectralDialogValues spectral() {
        SpectralDialogValues settings = spectralSettingsOf(document_.Settings());
        settings.windowButton = pick(4);
        settings.unitButton = pick(2);
        settings.truncationMode = pick(2);
        settings.percentFlag = settings.truncationMode == SpectralSettings::kPercentMode;
        (settings.percentFlag ? settings.percent : settings.lags) = 5 + pick(20);
        return settings;
    }

    CVorl_ADVDoc& document_;
    RecordingPort& port_;
    std::mt19937 random_;
};

class RecordTest : public BatchTest {
  protected:
    /// The workspace that the document's recipe makes of input.
    std::string repeated(const CVorl_ADVDoc& document, const std::string& input) const {
        const std::string recipe = write("recipe.toml", recipeOfProbe(document, "a.avp"));
        const Result result = run({"run", "--recipe", recipe, "--out", path("repeated.avp"), input});
        EXPECT_EQ(result.status, 0) << result.err << read(recipe);
        return path("repeated.avp");
    }

    /// Everything taken back is what was opened, everything done again what was done.
    static void expectHistory(CVorl_ADVDoc& document, const std::string& opened) {
        const std::string done = test::archived(document.GetWorkspace());
        int steps = 0;
        for (; document.Undo() == Outcome::Done; ++steps) {
        }
        EXPECT_GT(steps, 1);
        EXPECT_TRUE(sameBytes(test::archived(document.GetWorkspace()), opened));
        EXPECT_FALSE(document.IsModified());
        for (; steps > 0; --steps) {
            ASSERT_EQ(document.Redo(), Outcome::Done);
        }
        EXPECT_TRUE(sameBytes(test::archived(document.GetWorkspace()), done));
    }
};

TEST_F(RecordTest, TheRecipeOfADaysWorkMakesTheSameBytes) {
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        const bool amongOthers = seed > 12;
        const std::string input = withProbes("a.avp", amongOthers ? 2 : 1);
        RecordingPort port;
        CVorl_ADVDoc document(port);
        document.OpenWorkspace(input);
        const WorkspaceSettings loaded = document.Settings();
        const std::string opened = test::archived(document.GetWorkspace());
        if (amongOthers) {
            document.SimulateTimeSeries(sampleParameters(10.0), seed);
            document.SelectFile(0);
            document.SelectProbe(1);
        }
        User user(document, port, seed);
        for (int i = 0; i < 30; ++i) {
            amongOthers&& i % 3 == 0 ? user.actAround() : user.act();
        }
        expectHistory(document, opened);
        steps += document.CommandsOfProbe().commands.size();
        const std::string output = repeated(document, input);
        if (!amongOthers) {
            document.RestoreSelection(loaded);
            document.SaveWorkspace(path("done.avp"));
            EXPECT_TRUE(sameBytes(read(output), read(path("done.avp")))) << read(path("recipe.toml"));
            continue;
        }
        const Workspace workspace = openWorkspace(output);
        // Which tab is selected is no part of what was done.
        SAdvProbe expected = document.Probe();
        expected.selectedTab = probeOf(workspace, 0, 1).selectedTab;
        EXPECT_TRUE(sameBytes(test::archived(probeOf(workspace, 0, 1)), test::archived(expected)))
            << read(path("recipe.toml"));
        EXPECT_TRUE(probeOf(workspace, 0, 0) == probeOf(openWorkspace(input), 0, 0));
    }
    EXPECT_GT(steps, 100U);
}

}  // namespace

}  // namespace vorlan
