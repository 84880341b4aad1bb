#include "ui/frame/RecipeFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <iostream>

#include "app/CommandReports.h"
#include "io/AtomicFile.h"
#include "io/WorkspaceFile.h"
#include "model/Text.h"
#include "plot/ToolkitPictures.h"
#include "recipes/RecipeOfProbe.h"
#include "recipes/RecipeRun.h"
#include "recipes/RunError.h"
#include "ui/dialogs/CRecipeDlg.h"
#include "ui/frame/Waiting.h"

namespace vorlan {

namespace {

/// Questions are the recipe's, progress and Esc are the window's; refusals are kept until the run has ended.
class WindowRecipePort : public RecipePort {
  public:
    explicit WindowRecipePort(DocumentPort& window) : RecipePort(true), window_(window) {}

    const QStringList& refusals() const { return refusals_; }
    bool stopped() const override { return stopped_; }
    void refuse(const std::string& text) override {
        refusals_ << QString::fromStdString(utf8Text(context() + ": " + text));
        RecipePort::refuse(text);
    }
    void beginRun(Calculation calculation) override { window_.beginRun(calculation); }
    void endRun() override {}
    void status(const std::string& text) override { window_.status(text); }
    void position(int percent) override { window_.position(percent); }
    void pump() override {
        try {
            window_.pump();
        } catch (const Cancelled&) {
            stopped_ = true;
            throw;
        }
    }

  private:
    void say(const std::string&) override {}

    DocumentPort& window_;
    QStringList refusals_;
    bool stopped_ = false;
};

QString listOfNumbers(const std::optional<std::vector<int>>& numbers, const QString& what) {
    QStringList texts;
    for (const int number : numbers.value_or(std::vector<int>{})) {
        texts << QString::number(number);
    }
    return numbers ? QStringLiteral("%1 %2").arg(what, texts.join(QStringLiteral(", ")))
                   : QStringLiteral("all %1").arg(what);
}

RecipeSummary summaryOf(const Recipe& recipe, const QString& name, bool hasProbe) {
    RecipeSummary summary;
    summary.name = name;
    summary.hasProbe = hasProbe;
    for (const RecipeStep& step : recipe.steps) {
        summary.steps
            << QStringLiteral("%1. %2").arg(summary.steps.size() + 1).arg(QString::fromStdString(step.kind->name));
    }
    summary.selected = listOfNumbers(recipe.files, QStringLiteral("files")) + QStringLiteral(", ") +
                       listOfNumbers(recipe.probes, QStringLiteral("probes"));
    return summary;
}

std::string bytesOf(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

}  // namespace

void RecipeFiles::save() {
    const QString proposed = QFileInfo(files_.documentName()).completeBaseName() + QStringLiteral(".toml");
    const QString path = boxes_->chooseRecipeToSave(&window_, QDir(files_.folder()).filePath(proposed));
    if (path.isEmpty() || isRefusedPipe(path, *boxes_, &window_)) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    const std::string refusal = refusalToReplace(bytesOf(path));
    if (!refusal.empty()) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(refusal)) + QLatin1Char('.'));
    }
    files_.setFolderOf(path);
    try {
        const Waiting waiting(files_, "Writing %1 ...", path);
        writeFileAtomically(bytesOf(path), recipeOfProbe(document_, bytesOf(files_.documentName())));
    } catch (const FileError& error) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())));
    }
    report_(QStringLiteral("%1 written").arg(QFileInfo(path).fileName()));
}

void RecipeFiles::choose() {
    const QString path = boxes_->chooseRecipeToOpen(&window_, files_.folder());
    path.isEmpty() ? report_(QString::fromLatin1(kCancelledReport)) : run(path);
}

void RecipeFiles::run(const QString& path) {
    files_.setFolderOf(path);
    const QString name = QFileInfo(path).fileName();
    Recipe recipe;
    try {
        const Waiting waiting(files_, "Reading %1 ...", path);
        recipe = loadRecipe(bytesOf(path));
    } catch (const RunError& error) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())).trimmed());
    }
    CRecipeDlg dialog(summaryOf(recipe, name, document_.HasProbe()), &window_);
    if (dialog.exec() != QDialog::Accepted) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    if (dialog.values()) {
        recipe.files = {document_.ActiveFile() + 1};
        recipe.probes = {document_.ActiveProbe() + 1};
    }
    const std::string folder = bytesOf(QFileInfo(path).absolutePath());
    placeFiles(recipe, folder);
    apply(std::move(recipe), name, folder);
}

void RecipeFiles::apply(Recipe recipe, const QString& name, const std::string& folder) {
    OutputFolders folders;
    folders.add(folder);
    WindowRecipePort port(*port_);
    QString ended = QStringLiteral("%1: %2 steps done").arg(name).arg(recipe.steps.size());
    QStringList refusals;
    try {
        document_.RunTogether(port, [&](CVorl_ADVDoc& copy) {
            RecipeRun run(copy, port, bytesOf(files_.documentName()), toolkitPictures, folders);
            run.apply(recipe, document_.GetPath());
            port.status("Writing the files of " + name.toStdString() + " ...");
            run.outputs().commit(std::cout);
        });
        refusals = port.refusals();
    } catch (const RunError& error) {
        if (error.status() == ExitStatus::Interrupted) {
            ended = QStringLiteral("Cancelled: the workspace is as it was");
        } else {
            ended = QStringLiteral("%1 was not run: the workspace is as it was").arg(name);
            refusals = port.refusals();
            refusals << QString::fromStdString(utf8Text(error.what()));
        }
    }
    refusals.removeAll(QString());
    if (!refusals.isEmpty()) {
        boxes_->refuse(&window_, refusals.join(QLatin1Char('\n')));
    }
    report_(ended);
}

}  // namespace vorlan
