#include "app/CVorl_ADVDoc.h"

#include <cmath>

#include "app/RecomputeChain.h"
#include "io/WorkspaceFile.h"
#include "model/DefaultFrames.h"

namespace vorlan {

namespace {

// Where the progress bar of repeated stages stands, pixels from the left edge of the first status pane.
constexpr int kRepeatBarOffset = 170;

/// What an analysis tells, handed to the document's port.
class PortProgress : public Progress {
  public:
    explicit PortProgress(DocumentPort& port) : port_(port) {}
    void status(const std::string& text) override { port_.status(text); }
    void position(int percent) override { port_.progress(percent); }
    void breathe() override {
        if (!port_.pump()) {
            throw Cancelled();
        }
    }

  private:
    DocumentPort& port_;
};

/// Holds the running state of document and port; leaving the scope ends both, whatever happened.
class RunningScope {
  public:
    RunningScope(bool& running, DocumentPort& port, int progressOffset) : running_(running), port_(port) {
        running_ = true;
        port_.beginRun(progressOffset);
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

}  // namespace

void CVorl_ADVDoc::Tell(Change change) const {
    if (listener_) {
        listener_(change);
    }
}

void CVorl_ADVDoc::NewWorkspace() {
    workspace_ = Workspace();
    path_.clear();
    stamp_.reset();
    modified_ = false;
    Tell(Change::Content);
}

void CVorl_ADVDoc::OpenWorkspace(const std::filesystem::path& path) {
    // Before it is read: what is written meanwhile is a change.
    const std::optional<FileStamp> stamp = fileStampOf(path);
    Workspace fresh = vorlan::openWorkspace(path);
    workspace_ = std::move(fresh);
    path_ = path;
    stamp_ = stamp;
    modified_ = false;
    Tell(Change::Content);
}

void CVorl_ADVDoc::SaveWorkspace(const std::filesystem::path& path) {
    vorlan::saveWorkspace(workspace_, path);
    path_ = path;
    stamp_ = fileStampOf(path);
    modified_ = false;
    Tell(Change::View);
}

bool CVorl_ADVDoc::IsChangedOnDisk() const {
    const std::optional<FileStamp> now = fileStampOf(path_);
    return stamp_ && now && *now != *stamp_;
}

Outcome CVorl_ADVDoc::RunOnProbe(const ProbeOperation& operation, int progressOffset) {
    if (!HasProbe() || running_) {
        return Outcome::Refused;
    }
    Outcome outcome = Outcome::Done;
    std::string failure;
    {
        RunningScope scope(running_, *port_, progressOffset);
        try {
            SAdvProbe copy = Probe();
            PortProgress progress(*port_);
            outcome = operation(copy, progress);
            if (outcome == Outcome::Done) {
                ProbeForWriting() = std::move(copy);
                SetModified();
            }
        } catch (const Cancelled&) {
            outcome = Outcome::Cancelled;
        } catch (const InvalidArgument& error) {
            failure = error.what();
        } catch (const std::bad_alloc&) {
            failure = "Out of memory.";
        }
    }
    if (!failure.empty()) {
        port_->refuse(failure);
        outcome = Outcome::Refused;
    }
    return outcome;
}

void CVorl_ADVDoc::ApplyChangeRule(SAdvProbe& copy, Progress& progress) {
    if (!copy.IsChanged() || !port_->confirm(kRepeatQuestion)) {
        return;
    }
    port_->beginRun(kRepeatBarOffset);
    for (const std::string& reason : recomputeAll(copy, workspace_.settings, progress)) {
        port_->refuse(reason);
    }
}

void CVorl_ADVDoc::SetFrame(int group, int record, const FrameAttributesType& frame) {
    if (!HasProbe()) {
        throw InvalidArgument();
    }
    SFrameAtrArray& frames = ProbeForWriting().frameAttributes.at(static_cast<std::size_t>(group));
    for (int i = frames.GetSize(); i < record; ++i) {
        frames.Add(defaultFrame(group, i));
    }
    frames.SetAt(record, frame);
    SetModified();
    Tell(Change::Content);
}

void CVorl_ADVDoc::SetPlanFrame(int record, const FrameAttributesType& frame) {
    SFrameAtrArray& frames = workspace_.dataFiles.frameAttributes;
    for (int i = frames.GetSize(); i < record; ++i) {
        frames.Add(defaultPlanFrame(i));
    }
    frames.SetAt(record, frame);
    SetModified();
    Tell(Change::Content);
}

std::optional<double> CVorl_ADVDoc::AveragedVelocity() const {
    if (!HasProbe()) {
        return std::nullopt;
    }
    const double u = Probe().seriesU.moments.mean;
    const double v = Probe().seriesV.moments.mean;
    const double w = Probe().seriesW.moments.mean;
    return std::sqrt(u * u + v * v + w * w);
}

}  // namespace vorlan
