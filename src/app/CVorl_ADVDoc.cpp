#include "app/CVorl_ADVDoc.h"

#include <limits>

#include "app/CommandReports.h"
#include "app/RecomputeChain.h"
#include "io/WorkspaceFile.h"
#include "model/Text.h"

namespace vorlan {

namespace {

/// No state of a history.
constexpr std::uint64_t kNeverSaved = std::numeric_limits<std::uint64_t>::max();

/// Holds the running state of document and port; leaving the scope ends both, whatever happened.
class RunningScope {
  public:
    RunningScope(bool& running, DocumentPort& port, Calculation calculation) : running_(running), port_(port) {
        running_ = true;
        port_.beginRun(calculation);
    }
    ~RunningScope() {
        running_ = false;
        port_.endRun();
    }
    RunningScope(const RunningScope&) = delete;
    RunningScope& operator=(const RunningScope&) = delete;

  private:
    bool& running_;
    DocumentPort& port_;
};

std::string fileNameText(const std::filesystem::path& path) {
    return utf8Text(path.filename().string());
}

}  // namespace

Outcome CVorl_ADVDoc::Report(Outcome outcome, const Sentence& sentence) const {
    if (!running_) {
        port_->report(outcome == Outcome::Done        ? sentence()
                      : outcome == Outcome::Cancelled ? kCancelledReport
                      : outcome == Outcome::Unchanged ? kUnchangedReport
                                                      : kRefusedReport);
    }
    return outcome;
}

void CVorl_ADVDoc::Tell(Change change) const {
    if (listener_) {
        listener_(change);
    }
}

void CVorl_ADVDoc::NewWorkspace() {
    Replace(Workspace(), {}, std::nullopt);
    Tell(Change::Content);
    port_->report("Empty workspace");
}

void CVorl_ADVDoc::OpenWorkspace(const std::filesystem::path& path) {
    // Before it is read: what is written meanwhile is a change.
    const std::optional<FileStamp> stamp = fileStampOf(path);
    Workspace fresh = vorlan::openWorkspace(path);
    Replace(std::move(fresh), path, stamp);
    Tell(Change::Content);
    port_->report(fileNameText(path) + " opened");
}

void CVorl_ADVDoc::RecoverWorkspace(const std::filesystem::path& copy, const StampedFile& file) {
    Replace(vorlan::openWorkspace(copy), file.path, file.stamp ? file.stamp : fileStampOf(file.path));
    savedState_ = kNeverSaved;
    Tell(Change::Content);
}

void CVorl_ADVDoc::Replace(Workspace workspace, std::filesystem::path path, std::optional<FileStamp> stamp) {
    // Whatever needs memory comes first.
    WrittenBoundaries written;
    written.restart(workspace.boundaries);
    History history;
    workspace_ = std::move(workspace);
    path_ = std::move(path);
    stamp_ = stamp;
    written_ = std::move(written);
    history_ = std::move(history);
    savedState_ = history_.State();
}

void CVorl_ADVDoc::SaveWorkspace(const std::filesystem::path& path) {
    vorlan::saveWorkspace(workspace_, path);
    path_ = path;
    stamp_ = fileStampOf(path);
    savedState_ = history_.State();
    Tell(Change::View);
    port_->report(fileNameText(path) + " saved");
}

bool CVorl_ADVDoc::IsChangedOnDisk() const {
    const std::optional<FileStamp> now = fileStampOf(path_);
    return stamp_ && now && *now != *stamp_;
}

void CVorl_ADVDoc::Write(const char* command, WorkspacePatch patch, DoneCommands done) {
    if (patch.IsIn(workspace_)) {
        return;
    }
    const bool modifies = command != nullptr && !patch.OnlySelects(workspace_);
    history_.MakeRoomFor(patch);
    patch.Exchange(workspace_);
    // The patch holds what was replaced now.
    if (modifies) {
        history_.Record(command, std::move(patch), std::move(done));
    } else {
        history_.RecordSelection(std::move(patch), std::move(done));
    }
}

Outcome CVorl_ADVDoc::Undo() {
    if (running_ || UndoName() == nullptr) {
        return Outcome::Refused;
    }
    const std::string name = UndoName();
    history_.Undo(workspace_);
    Tell(Change::Content);
    port_->report("Taken back: " + name);
    return Outcome::Done;
}

Outcome CVorl_ADVDoc::Redo() {
    if (running_ || RedoName() == nullptr) {
        return Outcome::Refused;
    }
    history_.Redo(workspace_);
    Tell(Change::Content);
    port_->report(std::string("Done again: ") + UndoName());
    return Outcome::Done;
}

Outcome CVorl_ADVDoc::RunTogether(DocumentPort& port, const std::function<void(CVorl_ADVDoc& copy)>& work) {
    if (running_) {
        return Outcome::Refused;
    }
    {
        RunningScope scope(running_, *port_, Calculation::Recipe);
        CVorl_ADVDoc copy(port);
        copy.workspace_ = workspace_;
        copy.path_ = path_;
        copy.written_ = written_;
        port_->work([&] { work(copy); });
        WorkspacePatch patch = WorkspacePatch::Between(workspace_, copy.workspace_);
        written_ = copy.written_;
        if (!patch.IsEmpty()) {
            DoneCommands done;
            for (const History::Step& step : copy.history_.Done()) {
                done.insert(done.end(), step.done.begin(), step.done.end());
            }
            Write(nameOf(Calculation::Recipe), std::move(patch), std::move(done));
        }
        Tell(Change::Content);
    }
    return Outcome::Done;
}

WorkspacePatch CVorl_ADVDoc::PatchOf(SAdvProbe probe) const {
    WorkspacePatch patch;
    patch.probes.push_back({ActiveFile(), ActiveProbe(), std::move(probe)});
    return patch;
}

Outcome CVorl_ADVDoc::RunOnProbe(const ProbeCommand& command, const ProbeOperation& operation) {
    if (running_) {
        return Outcome::Refused;
    }
    const auto keepSettings = [&] {
        if (command.settings.has_value()) {
            Write(nameOf(command.calculation), {.settings = command.settings});
        }
    };
    if (!HasProbe()) {
        keepSettings();
        Tell(Change::View);
        return Outcome::Refused;
    }
    Outcome outcome = Outcome::Refused;
    std::string failure;
    repeated_.reset();
    {
        // Written and shown before the run ends: what the window does then may select another view, and showing a long
        // record is a part of the wait.
        RunningScope scope(running_, *port_, command.calculation);
        try {
            SAdvProbe copy = Probe();
            port_->work([&] { outcome = operation(copy, *port_); });
            if (outcome == Outcome::Done) {
                WriteDone(command, std::move(copy));
            }
        } catch (const Cancelled&) {
            outcome = Outcome::Cancelled;
        } catch (const InvalidArgument& error) {
            failure = error.what();
        } catch (const std::bad_alloc&) {
            failure = "Out of memory.";
        }
        if (outcome == Outcome::Done) {
            Tell(Change::Content);
        } else {
            keepSettings();
        }
    }
    if (!failure.empty()) {
        port_->refuse(failure);
        outcome = Outcome::Refused;
    }
    if (outcome != Outcome::Done) {
        Tell(Change::View);
    }
    return outcome;
}

void CVorl_ADVDoc::WriteDone(const ProbeCommand& command, SAdvProbe probe) {
    WorkspaceSettings settings = command.settings.value_or(Settings());
    if (command.stage.has_value()) {
        EnterStage(*command.stage, probe, settings);
    }
    WorkspacePatch patch = PatchOf(std::move(probe));
    patch.settings = settings;
    DoneCommand done = DoneOnActive(command.given);
    done.repeated = repeated_;
    Write(nameOf(command.calculation), std::move(patch), {std::move(done)});
}

void CVorl_ADVDoc::ApplyChangeRule(SAdvProbe& copy, Progress& progress) {
    if (!copy.IsChanged()) {
        return;
    }
    repeated_ = port_->confirm(Question::RepeatStages);
    if (!*repeated_) {
        return;
    }
    port_->beginRun(Calculation::Repeat);
    for (const std::string& reason : recomputeAll(copy, workspace_.settings, progress)) {
        port_->refuse(reason);
    }
}

void CVorl_ADVDoc::Export(std::ostream& stream, ExportKind kind, ExportOptions options, bool all) const {
    options.holeIncrement = Settings().quadrants.increment;
    writeExport(stream, kind, {workspace_.dataFiles, ActiveFile(), ActiveProbe(), options, all});
}

std::optional<double> CVorl_ADVDoc::AveragedVelocity() const {
    if (!HasProbe()) {
        return std::nullopt;
    }
    const double velocity = averagedVelocity(Probe());
    return velocity == 0.0 && Probe().seriesU.values.IsEmpty() ? std::nullopt : std::optional(velocity);
}

}  // namespace vorlan
