#pragma once

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QSettings>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "ui/frame/CMainFrame.h"

/// Answers the window's boxes from fields and keeps what was asked.
class ScriptedBoxes : public vorlan::UserBoxes {
  public:
    bool confirm(QWidget*, const QString& text) override {
        questions.append(text);
        return confirmAnswer;
    }
    void refuse(QWidget*, const QString& text) override { refusals.append(text); }
    SaveAnswer askToSave(QWidget*, const QString& name) override {
        saveQuestions.append(name);
        return saveAnswer;
    }
    QString chooseWorkspaceToOpen(QWidget*, const QString&) override { return openPath; }
    QString chooseWorkspaceToSave(QWidget*, const QString& proposed) override { return proposing(proposed, savePath); }
    QString chooseExport(QWidget*, const QString& proposed) override { return proposing(proposed, exportPath); }

    RecoverAnswer askToRecover(QWidget*, const QString& text) override {
        questions.append(text);
        return recoverAnswer;
    }
    QStringList chooseTables(QWidget*, const QString&) override { return tablePaths; }
    QString chooseRecipeToSave(QWidget*, const QString& proposed) override { return proposing(proposed, recipePath); }
    QString chooseRecipeToOpen(QWidget*, const QString&) override { return recipePath; }
    QString chooseFigure(QWidget*, const QString& proposed) override { return proposing(proposed, figurePath); }
    bool retry(QWidget*, const QString& text) override {
        retryQuestions.append(text);
        return false;
    }
    QString chooseNewBoundary(QWidget*, const QString& proposed) override { return proposing(proposed, boundaryPath); }
    QString chooseBoundaryToOpen(QWidget*, const QString&) override { return boundaryPath; }
    QString chooseBoundaryToSave(QWidget*, const QString& proposed) override {
        return proposing(proposed, boundaryPath);
    }
    bool choosePrinter(QWidget*, QPrinter& printer, vorlan::PrintChoice& choice) override {
        printChoice = choice;
        return printerChosen && printerChosen(printer, choice);
    }
    bool choosePaper(QWidget*, QPrinter& printer) override { return paperChosen && paperChosen(printer); }
    void showPreview(QDialog& preview) override {
        if (previewShown) {
            previewShown(preview);
        }
    }

    bool confirmAnswer = true;
    SaveAnswer saveAnswer = SaveAnswer::Discard;
    QString openPath;
    QString savePath;
    QString exportPath;
    QString boundaryPath;
    RecoverAnswer recoverAnswer = RecoverAnswer::Later;
    QStringList tablePaths;
    QString recipePath;
    QString figurePath;
    vorlan::PrintChoice printChoice;
    std::function<bool(QPrinter&, vorlan::PrintChoice&)> printerChosen;
    std::function<bool(QPrinter&)> paperChosen;
    std::function<void(QDialog&)> previewShown;
    QStringList questions;
    QStringList refusals;
    QStringList retryQuestions;
    QStringList saveQuestions;
    QStringList proposals;

  private:
    QString proposing(const QString& proposed, const QString& answer) {
        proposals.append(proposed);
        return answer;
    }
};

inline QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// A window on an empty workspace with a settings store of its own.
class FrameDriver {
  public:
    FrameDriver() {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path());
        frame = std::make_unique<vorlan::CMainFrame>();
        frame->setBoxes(boxes);
        frame->commands().setSeedSource([] { return 7; });
        frame->show();
        QApplication::setActiveWindow(frame.get());
    }

    vorlan::CVorl_ADVDoc& document() { return frame->document(); }
    void trigger(vorlan::Command command) { frame->actions().of(command)->trigger(); }
    bool enabled(vorlan::Command command) { return frame->actions().of(command)->isEnabled(); }
    QString path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    QString status() { return frame->statusPane().text(); }
    const vorlan::PaneContent& content(vorlan::Pane pane) { return frame->panes().view(pane).content(); }

    /// Triggers a command and works the dialog that it opens; fails when it opens none of that title.
    bool inDialog(vorlan::Command command, const char* title, const std::function<void(QDialog&)>& work) {
        bool met = false;
        QTimer::singleShot(0, frame.get(), [&] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                met = dialog->windowTitle() == QString::fromUtf8(title);
                work(*dialog);
                if (dialog->isVisible()) {
                    dialog->done(0);
                }
            }
        });
        trigger(command);
        return met;
    }
    /// The same, ended by a button.
    bool withDialog(vorlan::Command command, const char* title, const std::function<void(QDialog&)>& work = {},
                    QDialogButtonBox::StandardButton end = QDialogButtonBox::Ok) {
        return inDialog(command, title, [&](QDialog& dialog) {
            if (work) {
                work(dialog);
            }
            dialog.findChild<QDialogButtonBox*>()->button(end)->click();
        });
    }
    /// A simulated record of two components' noise, its probe selected.
    void simulate(double length = 40.0) {
        vorlan::SimulationParameters parameters;
        parameters.length = length;
        parameters.whiteNoise = true;
        document().SimulateTimeSeries(parameters, 7);
        document().SelectProbe(0);
    }

    QTemporaryDir folder;
    ScriptedBoxes boxes;
    std::unique_ptr<vorlan::CMainFrame> frame;
};
