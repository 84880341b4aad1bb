#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "analysis/Editing.h"
#include "analysis/Simulation.h"
#include "app/BoundaryStorage.h"
#include "app/DocumentPort.h"
#include "app/DoneCommand.h"
#include "app/History.h"
#include "app/WorkspacePatch.h"
#include "app/WrittenBoundaries.h"
#include "export/ExportKind.h"
#include "io/FileStamp.h"
#include "model/FrameSlot.h"
#include "model/Workspace.h"

namespace vorlan {

/// How a command ended. Refused: it said why through the port. Cancelled: the user did not want it. Unchanged: there
/// was nothing to do. In all of these cases the probe is bit for bit what it was.
enum class Outcome { Done, Refused, Cancelled, Unchanged };

/// What changed, for those who show it.
enum class Change {
    Content,  ///< the workspace, or what of it is selected
    View,     ///< the active view only: nothing has to be drawn again
};

/// The workspace document: the model, the selection, the parameters, and every command of the user. It knows no
/// window; questions and progress go through its port, changes are told to one listener.
///
/// A command works on copies of what it changes and hands them to Write() at its end, the one door to the workspace:
/// an error or a cancelled run leaves nothing half-done.
class CVorl_ADVDoc {
  public:
    explicit CVorl_ADVDoc(DocumentPort& port) : port_(&port) {}

    using Listener = std::function<void(Change)>;
    void SetListener(Listener listener) { listener_ = std::move(listener); }

    // The workspace as a whole.

    const Workspace& GetWorkspace() const { return workspace_; }
    const WorkspaceSettings& Settings() const { return workspace_.settings; }
    const std::filesystem::path& GetPath() const { return path_; }
    /// The file as it was opened or saved here.
    StampedFile OwnFile() const { return {path_, stamp_}; }
    bool IsModified() const { return State() != savedState_; }
    /// Differs between any two states that a command lies between.
    std::uint64_t State() const { return history_.State(); }
    /// True when another program has written the file since it was opened or saved here; false where it is gone.
    bool IsChangedOnDisk() const;
    /// True while a calculation runs: no command may start.
    bool IsRunning() const { return running_; }

    void NewWorkspace();
    /// Replaces the workspace only after complete success. Throws FileError.
    void OpenWorkspace(const std::filesystem::path& path);
    /// Opens the copy that was kept of a workspace with this file, whose path is empty for one that was never saved:
    /// what it holds is a modification of that file as it was then. Throws FileError.
    void RecoverWorkspace(const std::filesystem::path& copy, const StampedFile& file);
    /// Throws FileError; the file at path is then what it was.
    void SaveWorkspace(const std::filesystem::path& path);

    /// Takes the last command back that wrote something, or does the one again that was taken back last; Refused when
    /// there is none. What was selected since goes with it.
    Outcome Undo();
    Outcome Redo();
    /// What they would act on, in the words of the menus; null for nothing.
    const char* UndoName() const { return history_.UndoName(); }
    const char* RedoName() const { return history_.RedoName(); }
    /// What was done to the active probe since it was sampled or loaded, and to the workspace as a whole meanwhile, as
    /// far as a recipe can say it. Empty without a probe.
    ProbeCommands CommandsOfProbe() const;
    /// Gives several commands as one. work gets a copy of this document that speaks through port; what it did to the
    /// copy is written when it returns, and nothing when it throws. It opens and closes no data files.
    Outcome RunTogether(DocumentPort& port, const std::function<void(CVorl_ADVDoc& copy)>& work);

    // Selection. An index out of range (after loading) counts as no selection; the stored value stays.

    int ActiveFile() const;
    int ActiveProbe() const;
    bool HasFile() const { return ActiveFile() >= 0; }
    bool HasProbe() const { return ActiveProbe() >= 0; }
    const SAdvFile& File() const;
    const SAdvProbe& Probe() const;
    /// Index of the tab to show: the document's when valid, else the probe's, else 0; -1 without tabs.
    int ShownTab() const;
    /// Code of the stage shown in the panes: that of the shown tab, so that tab and panes agree in every workspace,
    /// or the stored one while the tab has no known stage.
    int StageCode() const;
    /// The stage shown in the panes; Pre-Processing while there is none.
    Stage CurrentStage() const;
    PhysicalValue CurrentValue() const;
    Pane ActivePane() const;
    /// Whether the right bottom pane shows its table where it has both a table and a diagram.
    bool ShowsTable() const;

    /// Selects a data file and its first probe.
    void SelectFile(int index);
    /// Selects a probe of the active file and its stored tab.
    void SelectProbe(int index);
    /// The stage tab control's command.
    void SelectStage(int tabIndex);
    void SelectPhysicalValue(PhysicalValue value);
    void SelectActivePane(Pane pane);
    /// Table or diagram in the right bottom pane.
    void ShowTable(bool on);
    /// For a caller that worked through many probes: selects the file, probe and tab that were found before. An index
    /// out of range counts as no selection.
    void RestoreSelection(const WorkspaceSettings& found);

    // Data files.

    Outcome CloseFile();
    /// Appends data files made elsewhere, in one step, and selects the last, without a probe. command names where they
    /// come from.
    void AppendFiles(std::vector<SAdvFile> files, const char* command = "Import Table");
    Outcome SimulateTimeSeries(const SimulationParameters& parameters, std::uint64_t seed);

    // Pre-processing. Each ends with the change rule: when a stage of the probe is done, the user is asked whether all
    // done stages shall be repeated.

    Outcome EnterZoomMode();
    /// Keeps the working record from tStart to tEnd, s.
    Outcome Clip(double tStart, double tEnd);
    Outcome ResetTimeSeries();
    Outcome ChangeCoordinateSystem(const RotationSettings& settings);
    Outcome EditTimeSeries(const EditingSettings& settings);
    /// What the last EditTimeSeries() found.
    const EditingResult& LastEditing() const { return lastEditing_; }
    Outcome FilterTimeSeries(const FilterSettings& settings);

    // Analysis.

    Outcome StationarityAnalysis(const StationaritySettings& settings);
    Outcome Distributions(const HistogramSettings& settings);
    Outcome SpectralAnalysis(const SpectralDialogValues& settings);
    Outcome CrossSpectralAnalysis();
    Outcome QuadrantsAnalysis(const QuadrantSettings& settings);

    // What is read off the diagrams of the spectral stage. Each asks with the values, and on OK forms them again on the
    // copy of the probe that it stores.

    /// The rate at a point of a spectrum or a structure function, into result 0.
    Outcome ExtractDissipationRate(const DissipationReading& reading);
    /// The integrals over a range, into results 1..3 (correlation functions) or 4..6 (spectra). Refused when the limits
    /// leave nothing to integrate: with a message on spectra, without one on correlation functions.
    Outcome ExtractScales(const ScalesReading& reading);

    /// Plans of the mean velocities over all files; they need no probe.
    Outcome VectorsOfMeanVelocities(const VectorSettings& vectors);

    // The measuring grid. Boundaries are kept in the workspace and in text files of their own; a file that cannot be
    // opened is tried again while the user says so. An index that is not there is refused.

    /// Replaces the disk; the storage must outlive the document.
    void SetBoundaryStorage(BoundaryStorage& storage) { boundaryStorage_ = &storage; }
    /// Index of the boundary whose file is at path, -1 for none.
    int BoundaryOfPath(const std::filesystem::path& path) const;
    /// False for a boundary that was changed and not written to its file.
    bool IsBoundaryWritten(int boundary) const;
    /// Writes an empty file and appends its boundary.
    Outcome NewBoundary(const std::filesystem::path& path);
    /// Reads the file into the boundary that has its path, whose further nodes stay, or appends a boundary. Of a faulty
    /// file the nodes in front of the fault are read, and no boundary is appended.
    Outcome OpenBoundary(const std::filesystem::path& path);
    /// Writes the file; path and name of the boundary are then those of the file.
    Outcome SaveBoundary(int boundary, const std::filesystem::path& path);
    /// Takes a boundary out of the workspace, after a question when its file does not hold it.
    Outcome CloseBoundary(int boundary);
    /// The nodes from index node on move up by one; the number of nodes is an index, too.
    Outcome InsertNode(int boundary, int node, const Position& position);
    Outcome SetNode(int boundary, int node, const PositionChange& position);
    Outcome RemoveNode(int boundary, int node);
    /// Moves the sampling volume of a probe.
    Outcome PlaceProbe(int file, int probe, const PositionChange& position);

    // Tools and attributes.

    /// The printed page of a stage. Refused when it cannot be printed on any paper.
    Outcome SetPage(Stage stage, const PageAtrType& page);
    Outcome SetMeanVelocity(const MeanVelocitySettings& chosen);
    /// The stored attributes of a diagram of the active probe, created from the defaults when there are none.
    void SetFrame(int group, int record, const FrameAttributesType& frame);
    /// The same for the plans that span all files.
    void SetPlanFrame(int record, const FrameAttributesType& frame);
    /// Changes the attributes in these slots, of the active probe or of every probe of every file. Slots of the plans
    /// need no probe.
    using FrameChange = std::function<void(const FrameSlot& slot, FrameAttributesType& frame)>;
    void ChangeFrames(const std::vector<FrameSlot>& slots, const FrameChange& change, bool allProbes);

    /// Writes an export of the active probe, or of all files and probes where the kind has such a form. Needs what the
    /// kind needs; InvalidArgument without a probe and for columns of a damaged workspace that should be of one length.
    void Export(std::ostream& stream, ExportKind kind, ExportOptions options, bool all) const;

    /// Mean velocity magnitude of the active probe's series, cm/s; nothing without a probe or before it has series.
    std::optional<double> AveragedVelocity() const;

  private:
    using ProbeOperation = std::function<Outcome(SAdvProbe& copy, Progress& progress)>;
    /// Returns why it is refused, empty when done.
    using Analysis = std::function<std::string(SAdvProbe& copy, Progress& progress)>;
    /// What a command has done, made when it is done.
    using Sentence = std::function<std::string()>;

    /// A command on the active probe.
    struct ProbeCommand {
        Calculation calculation;
        GivenCommand given;
        /// The parameters as the command stores them, whatever comes of its run.
        std::optional<WorkspaceSettings> settings = std::nullopt;
        /// The stage that the probe enters when the command is done.
        std::optional<Stage> stage = std::nullopt;
    };

    /// The one way in which anything is written into the workspace. command names what the user did; without a name
    /// something was only selected, which does not count as a modification.
    /// What the workspace holds already is no modification and nothing to take back, and neither is what only selects.
    void Write(const char* command, WorkspacePatch patch, DoneCommands done = {});
    /// The entry of the record for a command on a probe, or on the workspace as a whole.
    DoneCommand DoneOn(int file, int probe, GivenCommand given) const;
    DoneCommand DoneOnActive(GivenCommand given) const { return DoneOn(ActiveFile(), ActiveProbe(), std::move(given)); }
    /// Another workspace, with nothing to take back.
    void Replace(Workspace workspace, std::filesystem::path path, std::optional<FileStamp> stamp);
    void Select(WorkspacePatch patch) { Write(nullptr, std::move(patch)); }
    /// Runs operation on a copy of the active probe and writes the copy when it is done; tells the listener. The
    /// operation may still edit the command's settings.
    Outcome RunOnProbe(const ProbeCommand& command, const ProbeOperation& operation);
    /// RunOnProbe for a change of the working series: change, then the change rule, then the probe's moments.
    Outcome ChangeSeries(const ProbeCommand& command, const ProbeOperation& change, const Sentence& sentence);
    /// RunOnProbe for an analysis; says why it is refused.
    Outcome Analyse(const ProbeCommand& command, const Analysis& analysis, const Sentence& sentence);
    /// Tells the port how a command ended: done as the sentence says, or with nothing changed.
    Outcome Report(Outcome outcome, const Sentence& sentence) const;
    /// The question that every change of the working series ends with; OK repeats the done stages on the copy.
    void ApplyChangeRule(SAdvProbe& copy, Progress& progress);
    /// Writes what a command made of the active probe, its settings and the stage that it enters.
    void WriteDone(const ProbeCommand& command, SAdvProbe probe);
    WorkspacePatch PatchOf(SAdvProbe probe) const;
    /// The active probe with another tab selected, and the settings that say so.
    WorkspacePatch PatchOfTab(int tabIndex) const;
    /// Appends the stage's tab when the probe has none and makes the stage current.
    static void EnterStage(Stage stage, SAdvProbe& probe, WorkspaceSettings& settings);
    /// What is selected becomes what was selected before.
    static void TakeOverSelection(WorkspaceSettings& settings);
    /// Runs a change of the measuring grid; an index that is not there is refused.
    Outcome ChangeGrid(const std::string& sentence, const std::function<Outcome()>& change);
    Outcome AccessBoundaryFile(const std::function<void()>& access);
    Outcome WriteBoundaryFile(const SBndFile& boundary);
    void WriteBoundaries(const char* command, SBndSet boundaries);
    void Tell(Change change) const;

    DocumentPort* port_;
    Listener listener_;
    Workspace workspace_;
    std::filesystem::path path_;
    std::optional<FileStamp> stamp_;  // of the file at path_ when it was opened or saved
    History history_;
    std::uint64_t savedState_ = 0;  // of the history when the workspace was opened or saved
    bool running_ = false;
    std::optional<bool> repeated_;  // what the command that runs was told about repeating done stages
    EditingResult lastEditing_;
    BoundaryStorage disk_;
    BoundaryStorage* boundaryStorage_ = &disk_;
    WrittenBoundaries written_;
};

}  // namespace vorlan
