#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QToolBar>

#include "Approved.h"
#include "FrameDriver.h"
#include "export/ExportKind.h"
#include "ui/DialogDriver.h"
#include "ui/frame/MenuTable.h"

using namespace vorlan;

namespace {

QChar mnemonicOf(const QString& text) {
    const int at = static_cast<int>(text.indexOf(QLatin1Char('&')));
    return at < 0 ? QChar() : text.at(at + 1).toLower();
}

void checkMnemonics(const QList<QAction*>& actions) {
    QSet<QChar> taken;
    for (const QAction* action : actions) {
        if (action->isSeparator() || !action->isVisible()) {
            continue;
        }
        const QChar mnemonic = mnemonicOf(action->text());
        QVERIFY2(!mnemonic.isNull(), qPrintable(action->text()));
        QVERIFY2(!taken.contains(mnemonic), qPrintable(action->text()));
        taken.insert(mnemonic);
    }
}

/// Who cannot give a command is told why, wherever it is pointed at.
void checkReason(const QAction& action) {
    if (!action.isEnabled()) {
        QVERIFY2(action.statusTip().contains(QLatin1String("ot now: ")), qPrintable(action.text()));
        QVERIFY2(action.toolTip().contains(QLatin1String(": ")), qPrintable(action.text()));
    }
}

/// The commands of a menu and of those in it: "+" offered at once, "-" with a record, "." neither.
QString menuText(const QAction& menu, const QAction& emptyMenu, const QString& margin) {
    checkMnemonics(menu.menu()->actions());
    QString lines = margin + menu.text() + u'\n';
    for (qsizetype i = 0; i < menu.menu()->actions().size(); ++i) {
        const QAction& action = *menu.menu()->actions()[i];
        const QAction& emptyAction = *emptyMenu.menu()->actions()[i];
        if (action.menu() != nullptr) {
            checkReason(emptyAction);
            lines += menuText(action, emptyAction, margin + QLatin1String("  "));
        } else if (!action.isSeparator() && action.isVisible()) {
            checkReason(emptyAction);
            const QStringList parts{action.text(), action.shortcut().toString(), action.statusTip(), action.toolTip()};
            lines += margin +
                     QLatin1String(emptyAction.isEnabled() ? "  + "
                                   : action.isEnabled()    ? "  - "
                                                           : "  . ") +
                     parts.join(QLatin1String(" | ")) + u'\n';
        }
    }
    return lines;
}

}  // namespace

class FrameCommands : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void menusOfferTheApprovedCommands() {
        FrameDriver empty;
        FrameDriver driver;
        driver.simulate();
        QString all;
        checkMnemonics(driver.frame->menuBar()->actions());
        for (const QAction* menu : driver.frame->menuBar()->actions()) {
            all += menuText(*menu, *empty.frame->menuBar()->actions()[driver.frame->menuBar()->actions().indexOf(menu)],
                            QString());
        }
        const std::string change = test::changeOfApproved("menus", all.toStdString());
        QVERIFY2(change.empty(), change.c_str());
        for (int i = 0; i < kCommandCount; ++i) {
            QVERIFY2(driver.frame->actions().of(static_cast<Command>(i)) != nullptr, qPrintable(QString::number(i)));
        }
    }

    void fromAnEmptyWindowToASpectrum() {
        FrameDriver driver;
        QCOMPARE(driver.frame->windowTitle(), QStringLiteral("Untitled[*] - Vorlan"));
        QVERIFY(!driver.frame->isWindowModified());
        QVERIFY(std::holds_alternative<PaneMessage>(driver.content(Pane::RightBottom)));
        QVERIFY(driver.withDialog(
            Command::SimulateTimeSeries, "Simulate Time Series | Parameters",
            [](QDialog& dialog) { labelledField(dialog, "&File Name:")->setText(QStringLiteral("flume")); }));
        QCOMPARE(driver.document().File().fileName, std::string("flume"));
        QVERIFY(driver.frame->isWindowModified());
        QVERIFY(std::holds_alternative<std::monostate>(driver.content(Pane::LeftTop)));
        QVERIFY(driver.status().endsWith(QLatin1String("Choose a probe")));

        auto* probes = driver.frame->findChild<QComboBox*>(QStringLiteral("Probes"));
        QCOMPARE(probes->itemText(0), QStringLiteral("Probe 1"));
        QCOMPARE(probes->currentIndex(), -1);
        probes->setFocus();
        QTest::keyClick(probes, Qt::Key_Down);
        QVERIFY(driver.document().HasProbe());
        QVERIFY(std::holds_alternative<Diagram>(driver.content(Pane::LeftTop)));
        QVERIFY(std::holds_alternative<TableContent>(driver.content(Pane::RightBottom)));

        QVERIFY(driver.withDialog(Command::SpectralAnalysis, "Spectral Analysis | Parameters"));
        QCOMPARE(driver.document().Probe().spectralLags, 250U);
        auto* tabs = driver.frame->findChild<QTabBar*>(QStringLiteral("StageTabs"));
        QCOMPARE(tabs->count(), 2);
        QCOMPARE(tabs->tabText(tabs->currentIndex()), QStringLiteral("Spectral Analysis"));
        QCOMPARE(std::get<Diagram>(driver.content(Pane::LeftBottom)).frame.plotTitle, std::string("Power spectra"));
        QCOMPARE(driver.status(), QStringLiteral("Spectra: 250 lags (10 s), Tukey, Hz"));
        QVERIFY(!driver.frame->statusPane().progressBar().isVisible());

        tabs->setCurrentIndex(0);
        QCOMPARE(driver.document().CurrentStage(), Stage::PreProcessing);
        tabs->setCurrentIndex(1);
        QCOMPARE(driver.document().CurrentStage(), Stage::Spectral);
    }

    void dialogsThatAreCancelledOrAcceptedUnchangedModifyNothing() {
        FrameDriver driver;
        driver.simulate();
        driver.document().PlaceProbe(0, 0, {1234.567, 0.1, 7.0 / 3.0});
        struct Row {
            Command command;
            const char* title;
            bool always;  ///< OK runs it, whatever its fields hold
        };
        const Row rows[] = {
            {Command::CoordinateSystem, "Coordinate System", false},
            {Command::StationarityAnalysis, "Stationarity Analysis | Parameters", false},
            {Command::Histograms, "Univariate Distributions | Histogram Parameters", false},
            {Command::SpectralAnalysis, "Spectral Analysis | Parameters", false},
            {Command::QuadrantsAnalysis, "Conditional Quadrants Analysis and Averaging", false},
            {Command::MeanVelocityVectors, "Vectors of Mean Velocities | View Parameters", false},
            {Command::MeanVelocity, "Mean Velocity | Parameters", false},
            {Command::PageSetup, "Page Setup | for printing", false},
            {Command::PlotFrameOptions, "Plot Frame Options", false},
            {Command::EditingTimeSeries, "Editing Time Series", true},
            {Command::DigitalFiltration, "Digital Filtration | Parameters", true},
            {Command::SimulateTimeSeries, "Simulate Time Series | Parameters", true},
            {exportCommand(ExportKind::Velocities), "Export | as an ASCII file", true},
            {exportCommand(ExportKind::Statistics), "Export Data", true},
        };
        driver.boxes.savePath = driver.path("same.avp");
        driver.trigger(Command::SaveWorkspace);
        for (const Row& row : rows) {
            QVERIFY2(driver.withDialog(row.command, row.title, {}, QDialogButtonBox::Cancel), row.title);
            QVERIFY2(!driver.document().IsModified(), row.title);
        }
        for (const bool again : {false, true}) {
            for (const Row& row : rows) {
                driver.document().SelectStage(0);
                QVERIFY2(row.always || driver.withDialog(row.command, row.title), row.title);
                QVERIFY2(!again || !driver.document().IsModified(), row.title);
            }
            driver.trigger(Command::SaveWorkspace);
        }
    }

    void everyStageRunsFromItsDialog() {
        FrameDriver driver;
        driver.simulate(100.0);
        QVERIFY(driver.withDialog(Command::EditingTimeSeries, "Editing Time Series"));
        QVERIFY(driver.withDialog(Command::StationarityAnalysis, "Stationarity Analysis | Parameters"));
        QVERIFY(driver.withDialog(Command::Histograms, "Univariate Distributions | Histogram Parameters"));
        QVERIFY(driver.withDialog(Command::SpectralAnalysis, "Spectral Analysis | Parameters"));
        driver.trigger(Command::CrossSpectralAnalysis);
        QVERIFY(driver.withDialog(Command::QuadrantsAnalysis, "Conditional Quadrants Analysis and Averaging"));
        for (const DoneMark mark : {DoneMark::Stationarity, DoneMark::Histograms, DoneMark::Spectral,
                                    DoneMark::CrossSpectral, DoneMark::Quadrants}) {
            QVERIFY(driver.document().Probe().IsDone(mark));
        }
        auto* tabs = driver.frame->findChild<QTabBar*>(QStringLiteral("StageTabs"));
        QCOMPARE(tabs->count(), 6);
        QVERIFY(driver.boxes.refusals.isEmpty());
        for (const ExportKindInfo& info : exportKinds()) {
            QVERIFY2(driver.enabled(exportCommand(info.kind)), info.name);
        }
        // The change question comes through the window's boxes; Cancel leaves a mark on what is old then.
        tabs->setCurrentIndex(0);
        const auto marked = [tabs] {
            QString marks;
            for (int i = 0; i < tabs->count(); ++i) {
                marks += QLatin1Char(tabs->tabIcon(i).isNull() ? '-' : '!');
            }
            return marks;
        };
        QCOMPARE(marked(), QStringLiteral("------"));
        driver.boxes.confirmAnswer = false;
        driver.document().Clip(0.0, 90.0);
        QCOMPARE(driver.boxes.questions.last(),
                 QStringLiteral("The Time Series was changed. Repeat all previous calculations ?"));
        QCOMPARE(marked(), QStringLiteral("-!!!!!"));
        driver.trigger(Command::Undo);
        QCOMPARE(marked(), QStringLiteral("------"));
        driver.trigger(Command::Redo);
        QVERIFY(driver.withDialog(Command::Histograms, "Univariate Distributions | Histogram Parameters"));
        QCOMPARE(marked(), QStringLiteral("-!-!!!"));
    }

    void exportsWriteWhereTheUserWants() {
        FrameDriver driver;
        driver.simulate();
        driver.boxes.exportPath = driver.path("vel.dat");
        QVERIFY(driver.withDialog(exportCommand(ExportKind::Velocities), "Export | as an ASCII file"));
        QCOMPARE(bytesOf(driver.boxes.exportPath).count('\n'), 1000);
        QVERIFY(driver.boxes.proposals.last().endsWith(QLatin1String("vel.dat")));

        QCOMPARE(driver.status(), QStringLiteral("vel.dat written"));

        driver.boxes.savePath = driver.path("kept.avp");
        driver.trigger(Command::SaveWorkspace);
        driver.boxes.exportPath = driver.boxes.savePath;
        QVERIFY(driver.withDialog(exportCommand(ExportKind::Velocities), "Export | as an ASCII file"));
        QCOMPARE(driver.boxes.refusals.size(), 1);
        QVERIFY(driver.boxes.refusals.takeFirst().startsWith(driver.boxes.savePath + QLatin1String(" is a workspace")));
        QCOMPARE(driver.document().GetWorkspace().dataFiles.files.GetSize(), 1);
        QVERIFY(driver.frame->files().openPath(driver.boxes.savePath));

        driver.boxes.exportPath = QStringLiteral("/nonexistent/folder/vel.dat");
        QVERIFY(driver.withDialog(exportCommand(ExportKind::Velocities), "Export | as an ASCII file"));
        QCOMPARE(driver.status(), QStringLiteral("Cannot write /nonexistent/folder/vel.dat"));
        QVERIFY(driver.boxes.refusals.isEmpty());
    }

    void plotOptionsChangeTheDiagramOfTheActiveView() {
        FrameDriver driver;
        driver.simulate();
        driver.document().SelectActivePane(Pane::LeftBottom);
        QVERIFY(driver.withDialog(Command::PlotFrameOptions, "Plot Frame Options", [](QDialog& dialog) {
            labelledField(dialog, "&Plot")->setText(QStringLiteral("Quality"));
        }));
        QCOMPARE(std::get<Diagram>(driver.content(Pane::LeftBottom)).frame.plotTitle, std::string("Quality"));
        driver.document().SelectActivePane(Pane::RightBottom);
        QVERIFY2(!driver.enabled(Command::PlotFrameOptions), "the pane shows a table");
        driver.trigger(Command::ResultsTable);
        QVERIFY2(!driver.enabled(Command::PlotFrameOptions), "the pane says that there is no pressure");
        QVERIFY(driver.withDialog(Command::Histograms, "Univariate Distributions | Histogram Parameters"));
        QVERIFY(!driver.enabled(Command::PlotFrameOptions));
        driver.trigger(Command::ResultsTable);
        QVERIFY(driver.enabled(Command::PlotFrameOptions));
    }
};

QTEST_MAIN(FrameCommands)
#include "FrameCommandsTest.moc"
