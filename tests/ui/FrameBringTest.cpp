// Records, figures and recipes in and out of the window: the same bytes as the program without a window makes.
#include <sys/stat.h>

#include <QClipboard>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QProcess>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>

#include "FrameDriver.h"
#include "ui/DialogDriver.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/frame/ManualPages.h"
#include "ui/frame/ManualWindow.h"
#include "ui/frame/PlainFormulas.h"

using namespace vorlan;

class FrameBring : public QObject {
    Q_OBJECT

    static int batch(const QStringList& arguments) {
        return QProcess::execute(QStringLiteral(VORLAN_BATCH_PROGRAM), arguments);
    }
    static QByteArray table(int rows) {
        QByteArray text = "time,u [cm/s],v,w,snr1,snr2,snr3\n";
        for (int i = 0; i < rows; ++i) {
            text += QByteArray::number(0.04 * i) + "," + QByteArray::number(50 + i % 7) + "," +
                    QByteArray::number(i % 5) + "," + QByteArray::number(-i % 3) + ",20,21,22\n";
        }
        return text;
    }
    /// The window on an imported and saved record.
    static void bringRecord(FrameDriver& driver) {
        writeBytes(driver.path("flume.csv"), table(400));
        driver.boxes.tablePaths = {driver.path("flume.csv")};
        QVERIFY(driver.withDialog(Command::ImportTable, "Import Table"));
        driver.boxes.savePath = driver.path("flume.avp");
        driver.trigger(Command::SaveWorkspace);
    }

  private Q_SLOTS:
    void aTableComesInAsByImport() {
        FrameDriver driver;
        bringRecord(driver);
        QCOMPARE(driver.document().Probe().WorkingSamples(), 400);
        QCOMPARE(driver.document().Probe().samplingInterval, 0.04);
        QCOMPARE(batch({QStringLiteral("import"), QStringLiteral("--out"), driver.path("b.avp"),
                        QStringLiteral("--interval"), QStringLiteral("0.04"), QStringLiteral("--columns"),
                        QStringLiteral("-,u,v,w,snr1,snr2,snr3"), driver.path("flume.csv")}),
                 0);
        QVERIFY(bytesOf(driver.path("flume.avp")) == bytesOf(driver.path("b.avp")));
        driver.trigger(Command::Undo);
        QVERIFY(!driver.document().HasFile());
        driver.trigger(Command::Redo);
        // The layout of the last table is offered again, with its interval.
        writeBytes(driver.path("next.csv"), "time,u [cm/s],v,w,snr1,snr2,snr3\n0,1,2,3,4,5,6\n7,1,2,3,4,5,6\n");
        driver.boxes.tablePaths = {driver.path("next.csv")};
        // What was read is imported, whatever becomes of its file meanwhile.
        QVERIFY(driver.withDialog(Command::ImportTable, "Import Table", [&](QDialog& dialog) {
            connect(&dialog, &QDialog::accepted, this, [&] { QFile::remove(driver.path("next.csv")); });
        }));
        QCOMPARE(driver.document().Probe().samplingInterval, 0.04);
        writeBytes(driver.path("next.csv"), "time,u [cm/s],v,w,snr1,snr2,snr3\n0,1,2,3,4,5,6\n7,1,2,3,4,5,6\n");
        // Several tables are one step.
        const SAdvFilesArray& files = driver.document().GetWorkspace().dataFiles.files;
        driver.boxes.tablePaths += driver.boxes.tablePaths;
        QVERIFY(driver.withDialog(Command::ImportTable, "Import Table"));
        QCOMPARE(files.GetSize(), 4);
        driver.trigger(Command::Undo);
        QCOMPARE(files.GetSize(), 2);
        driver.trigger(Command::Redo);
        QCOMPARE(driver.document().ActiveFile(), 3);
    }

    void aFaultIsShownInTheTable() {
        FrameDriver driver;
        writeBytes(driver.path("bad.csv"), table(200).replace("\n7.96,", "\n7.96,x"));
        driver.boxes.tablePaths = {driver.path("bad.csv")};
        QString shown;
        QVERIFY(driver.withDialog(
            Command::ImportTable, "Import Table",
            [&](QDialog& dialog) {
                dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
                const auto* rows = dialog.findChild<QTableWidget*>();
                shown = rows->verticalHeaderItem(rows->currentRow())->text() + QLatin1Char(' ') +
                        rows->currentItem()->text();
            },
            QDialogButtonBox::Cancel));
        QCOMPARE(shown, QStringLiteral("201 x53"));
        QVERIFY(!driver.document().HasFile());
        writeBytes(driver.path("bad.csv"), QByteArray("\0\1\2", 3));
        driver.trigger(Command::ImportTable);
        QCOMPARE(driver.boxes.refusals, QStringList{QStringLiteral("bad.csv is no text table.")});
    }

    void figuresAreThoseOfRender() {
        FrameDriver driver;
        bringRecord(driver);
        const auto save = [&](int scope, int format, const char* name) {
            driver.boxes.figurePath = driver.path(name);
            return driver.withDialog(Command::SaveFigure, "Save Figure", [&](QDialog& dialog) {
                const auto buttons = dialog.findChildren<QRadioButton*>();
                buttons[scope]->click();
                buttons[3 + format]->click();
                labelledField(dialog, "&Width:")->setText(QStringLiteral("640"));
                labelledField(dialog, "&Height:")->setText(QStringLiteral("480"));
                labelledField(dialog, "Dots per &inch:")->setText(QStringLiteral("144"));
            });
        };
        const auto rendered = [&](const QString& name, const QStringList& more) {
            QStringList arguments{QStringLiteral("render"), QStringLiteral("--stage"), QStringLiteral("pre-processing"),
                                  QStringLiteral("--out"), driver.path("r.") + name.section(QLatin1Char('.'), 1)};
            arguments << more << driver.path("flume.avp");
            return batch(arguments) == 0 ? bytesOf(arguments[4]) : QByteArray("failed");
        };
        const QStringList size{QStringLiteral("--size"), QStringLiteral("640x480")};
        QVERIFY(save(0, 0, "pane.png"));
        QVERIFY(bytesOf(driver.path("pane.png")) ==
                rendered(QStringLiteral("a.png"),
                         size + QStringList{QStringLiteral("--dpi"), QStringLiteral("144"), QStringLiteral("--pane"),
                                            QStringLiteral("left-top")}));
        QVERIFY(save(1, 1, "four.svg"));
        QVERIFY(bytesOf(driver.path("four.svg")) == rendered(QStringLiteral("a.svg"), size));
        QVERIFY(save(2, 2, "page.pdf"));
        QVERIFY(bytesOf(driver.path("page.pdf")) == rendered(QStringLiteral("a.pdf"), {}));
        QVERIFY(save(0, 0, "flume.avp"));  // gets its suffix: no workspace is overwritten
        QVERIFY(QFile::exists(driver.path("flume.avp.png")));
        driver.boxes.figurePath = driver.path("no/such/folder.png");
        QVERIFY(driver.withDialog(Command::SaveFigure, "Save Figure"));
        QCOMPARE(driver.boxes.refusals.size(), 1);
        driver.boxes.figurePath = driver.boxes.recipePath = driver.path("pipe.png");
        QCOMPARE(::mkfifo(qPrintable(driver.boxes.figurePath), 0600), 0);
        QVERIFY(driver.withDialog(Command::SaveFigure, "Save Figure"));
        driver.document().EnterZoomMode();
        driver.trigger(Command::SaveRecipe);
        QCOMPARE(driver.boxes.refusals.size(), 3);
        QVERIFY(driver.boxes.refusals[2].endsWith(QLatin1String("is a pipe, not a file.")));

        driver.document().SelectActivePane(Pane::RightBottom);
        driver.trigger(Command::BitmapCopy);
        const QMimeData* copied = QApplication::clipboard()->mimeData();
        QVERIFY(copied->hasImage());
        QVERIFY(copied->data(QStringLiteral("image/svg+xml")).contains("<svg"));
        QVERIFY(copied->text().contains(QLatin1String("\t52.9")));
    }

    void aRecipeIsWrittenAndRun() {
        FrameDriver driver;
        QVERIFY(!driver.enabled(Command::SaveRecipe));
        bringRecord(driver);
        driver.document().OpenWorkspace(driver.path("flume.avp").toStdString());
        const WorkspaceSettings opened = driver.document().Settings();
        QVERIFY(!driver.enabled(Command::SaveRecipe));
        driver.document().EnterZoomMode();
        driver.document().Clip(1.0, 13.0);
        driver.document().Distributions({});
        driver.boxes.recipePath = driver.path("day.toml");
        driver.trigger(Command::SaveRecipe);
        QCOMPARE(driver.status(), QStringLiteral("day.toml written"));
        QCOMPARE(batch({QStringLiteral("run"), QStringLiteral("--recipe"), driver.path("day.toml"),
                        QStringLiteral("--out"), driver.path("b.avp"), driver.path("flume.avp")}),
                 0);
        driver.document().RestoreSelection(opened);
        driver.document().SaveWorkspace(driver.path("done.avp").toStdString());
        QVERIFY(bytesOf(driver.path("done.avp")) == bytesOf(driver.path("b.avp")));

        driver.document().OpenWorkspace(driver.path("flume.avp").toStdString());
        QVERIFY(driver.withDialog(Command::RunRecipe, "Run Recipe"));
        QCOMPARE(driver.status(), QStringLiteral("day.toml: 3 steps done"));
        driver.document().SaveWorkspace(driver.path("run.avp").toStdString());
        QVERIFY(bytesOf(driver.path("run.avp")) == bytesOf(driver.path("b.avp")));
        QCOMPARE(driver.document().UndoName(), "Run Recipe");
        // What a recipe did is part of the next one.
        driver.trigger(Command::SaveRecipe);
        driver.trigger(Command::Undo);
        QCOMPARE(driver.document().UndoName(), nullptr);
        QVERIFY(bytesOf(driver.path("day.toml")).contains("do = \"distributions\""));

        // A step that is refused leaves everything as it was.
        writeBytes(driver.path("day.toml"), "[[step]]\ndo = \"zoom\"\n[[step]]\ndo = \"cross-spectral\"\n");
        QVERIFY(driver.withDialog(Command::RunRecipe, "Run Recipe"));
        QCOMPARE(driver.boxes.refusals.size(), 1);
        QVERIFY(driver.boxes.refusals[0].contains(QLatin1String("step 2 (cross-spectral): ")));
        QCOMPARE(driver.document().UndoName(), nullptr);
        writeBytes(driver.path("day.toml"), "[[step]]\ndo = \"zeal\"\n");
        driver.trigger(Command::RunRecipe);
        QVERIFY(driver.boxes.refusals.last().contains(QLatin1String("unknown step \"zeal\"")));
    }

    void theManualOpensAtThePageOfWhatIsShown() {
        FrameDriver driver;
        driver.simulate();
        driver.trigger(Command::Manual);
        auto* manual = driver.frame->findChild<ManualWindow*>();
        QVERIFY(manual != nullptr);
        QCOMPARE(manual->page(), QStringLiteral("pre-processing.md"));
        QVERIFY(manual->browser().toPlainText().contains(QLatin1String("Zoom and clipping")));
        QString page;
        QVERIFY(driver.withDialog(
            Command::DigitalFiltration, "Digital Filtration | Parameters",
            [&](QDialog& dialog) {
                QTest::keyClick(dialog.focusWidget(), Qt::Key_F1);
                auto* own = dialog.findChild<ManualWindow*>();
                page = own == nullptr ? QString() : own->page();
                QVERIFY(own->browser().textCursor().block().text() == QLatin1String("Digital Filtration"));
                own->close();
            },
            QDialogButtonBox::Cancel));
        QCOMPARE(page, QStringLiteral("pre-processing.md"));
        for (int stage = 0; stage < kStageCount; ++stage) {
            QVERIFY(QFile::exists(ManualWindow::folder() + QLatin1Char('/') + manualPageOf(static_cast<Stage>(stage))));
        }
    }

    void formulasAreWrittenInLetters() {
        const std::pair<const char*, const char*> rows[] = {
            {R"(R_k = \frac{1}{N-k}\sum_{j=0}^{N-k-1} d_{j+k}\, d_j)", "Rₖ = 1/(N-k)Σ_(j=0)^(N-k-1) dⱼ₊ₖ  dⱼ"},
            {R"(S_i = 2\,(R_0 + 2 s_i)\,\Delta t \;\text{ in (cm/s)²/Hz})", "Sᵢ = 2 (R₀ + 2 sᵢ) Δ t   in (cm/s)²/Hz"},
            {R"(\sqrt{\bar{u}^2}, \tfrac{1}{2}, 360^\circ)", "√ū², 1/2, 360°"},
            {R"(a_{)", "a"},
        };
        for (const auto& [formula, plain] : rows) {
            QCOMPARE(plainFormula(QString::fromUtf8(formula)).normalized(QString::NormalizationForm_C),
                     QString::fromUtf8(plain).normalized(QString::NormalizationForm_C));
        }
        QCOMPARE(withPlainFormulas(QStringLiteral("For $k \\le M$ use `$HOME` and\n```\n$x_1$\n```")),
                 QStringLiteral("For k ≤ M use `$HOME` and\n```\n$x_1$\n```"));
    }

    void whatWasNotSavedIsRecovered() {
        FrameDriver driver;
        bringRecord(driver);
        const QString folder = driver.path("Brimsel/Vorlan-recovery");
        const auto copies = [&] { return QDir(folder).entryList({QStringLiteral("*.avp")}).size(); };
        QCOMPARE(copies(), 0);
        const std::filesystem::path flume = driver.path("flume.avp").toStdString();
        {
            RecoveryCopy crashed(folder.toStdString());
            Workspace workspace = driver.document().GetWorkspace();
            workspace.settings.meanVelocity.value = 12.5;
            crashed.write(workspace, {flume, fileStampOf(flume)});
        }
        writeBytes(driver.path("flume.avp"), "of a colleague");
        driver.boxes.recoverAnswer = UserBoxes::RecoverAnswer::Recover;
        QVERIFY(driver.frame->recovery().offer());
        QCOMPARE(driver.document().Settings().meanVelocity.value, 12.5);
        QVERIFY(driver.document().IsModified());
        QCOMPARE(QString::fromStdString(driver.document().GetPath().filename()), QStringLiteral("flume.avp"));
        QCOMPARE(copies(), 1);
        QVERIFY(driver.boxes.questions.last().contains(QLatin1String("flume.avp itself was changed since")));
        driver.trigger(Command::SaveWorkspace);
        QVERIFY(driver.boxes.questions.last().contains(QLatin1String("flume.avp was changed by another program")));
        QCOMPARE(copies(), 0);
        {
            RecoveryCopy crashed(folder.toStdString());
            crashed.write(Workspace(), {flume});
        }
        writeBytes(folder + QLatin1Char('/') + QDir(folder).entryList({QStringLiteral("*.avp")})[0], "torn");
        QVERIFY(!driver.frame->recovery().offer());
        QCOMPARE(driver.boxes.refusals.size(), 1);
        driver.boxes.recoverAnswer = UserBoxes::RecoverAnswer::Discard;
        QVERIFY(!driver.frame->recovery().offer());
        QCOMPARE(copies(), 0);
    }
};

QTEST_MAIN(FrameBring)
#include "FrameBringTest.moc"
