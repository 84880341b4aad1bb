#include <sys/stat.h>

#include <QCloseEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QTest>
#include <QUrl>
#include <algorithm>

#include "FrameDriver.h"
#include "ui/CVorl_ADVApp.h"
#include "ui/DocumentTypeRegistration.h"

using namespace vorlan;

class FrameFiles : public QObject {
    Q_OBJECT

  private:
    static QStringList recentTexts(FrameDriver& driver) {
        QStringList texts;
        for (const QAction* action : driver.frame->menuBar()->actions().first()->menu()->actions()) {
            if (action->text().size() > 2 && action->text().at(0) == QLatin1Char('&') &&
                action->text().at(1).isDigit()) {
                texts.append(action->text());
            }
        }
        return texts;
    }

    static bool showsText(FrameDriver& driver, const char* text) {
        const QList<QLabel*> labels = driver.frame->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [text](const QLabel* label) {
            return label->isVisible() && label->text() == QString::fromUtf8(text);
        });
    }

  private Q_SLOTS:
    void whatIsSavedIsFoundAgain() {
        FrameDriver driver;
        driver.simulate();
        driver.boxes.savePath = driver.path("flume.avp");
        driver.trigger(Command::SaveWorkspace);
        QVERIFY(!driver.frame->isWindowModified());
        QCOMPARE(driver.frame->windowTitle(), QStringLiteral("flume.avp[*] - Vorlan"));
        QCOMPARE(recentTexts(driver), QStringList{QStringLiteral("&1 flume.avp")});
        driver.trigger(Command::NewWorkspace);
        QVERIFY(driver.boxes.saveQuestions.isEmpty());
        QVERIFY(!driver.document().HasFile());
        driver.boxes.openPath = driver.path("flume.avp");
        driver.trigger(Command::OpenWorkspace);
        QVERIFY(driver.document().HasProbe());
        QVERIFY(std::holds_alternative<Diagram>(driver.content(Pane::LeftTop)));
    }

    void whatAnotherWindowSavedIsNotReplacedUnasked() {
        FrameDriver first;
        first.simulate();
        first.boxes.savePath = first.path("shared.avp");
        first.trigger(Command::SaveWorkspace);
        FrameDriver second;
        QVERIFY(second.frame->files().openPath(first.boxes.savePath));
        second.simulate();
        second.trigger(Command::SaveWorkspace);
        QVERIFY(second.boxes.questions.isEmpty());

        first.simulate();
        first.boxes.confirmAnswer = false;
        first.trigger(Command::SaveWorkspace);
        QCOMPARE(first.boxes.questions.size(), 1);
        QVERIFY(first.boxes.questions.first().startsWith(QLatin1String("shared.avp was changed")));
        QVERIFY(first.document().IsModified());
        first.boxes.confirmAnswer = true;
        first.trigger(Command::SaveWorkspace);
        first.trigger(Command::SaveWorkspace);
        QCOMPARE(first.boxes.questions.size(), 2);
        QVERIFY(!first.document().IsModified());
    }

    void unsavedChangesAreAskedAbout() {
        FrameDriver driver;
        driver.simulate();
        driver.boxes.saveAnswer = UserBoxes::SaveAnswer::Cancel;
        driver.trigger(Command::NewWorkspace);
        QVERIFY(driver.document().HasFile());
        QVERIFY(!driver.frame->close());
        driver.boxes.saveAnswer = UserBoxes::SaveAnswer::Save;
        driver.boxes.savePath.clear();
        driver.trigger(Command::NewWorkspace);
        QVERIFY2(driver.document().HasFile(), "a cancelled save leaves nothing behind");
        driver.boxes.savePath = QStringLiteral("/nonexistent/folder/x.avp");
        driver.trigger(Command::NewWorkspace);
        QVERIFY2(driver.document().HasFile(), "nor does one that fails");
        QVERIFY(driver.boxes.refusals.last().contains(QLatin1String("/nonexistent/folder")));
        driver.boxes.savePath = driver.path("pipe");
        QCOMPARE(::mkfifo(qPrintable(driver.boxes.savePath), 0600), 0);
        driver.trigger(Command::NewWorkspace);
        QVERIFY2(driver.document().HasFile(), "nor one that would wait for somebody who reads");
        driver.boxes.saveAnswer = UserBoxes::SaveAnswer::Discard;
        driver.trigger(Command::NewWorkspace);
        QVERIFY(!driver.document().HasFile());
        QCOMPARE(driver.boxes.saveQuestions.size(), 6);
        QVERIFY(driver.frame->close());
    }

    void aDamagedWorkspaceLeavesTheOpenOne() {
        FrameDriver driver;
        driver.simulate();
        writeBytes(driver.path("bad.avp"), "\x05Hello");
        QStringList waits;
        QObject::connect(&driver.frame->files(), &WorkspaceFiles::waiting, driver.frame.get(),
                         [&](const QString& text) { waits.append(text); });
        QVERIFY(!driver.frame->files().openPath(driver.path("bad.avp")));
        QVERIFY2(driver.boxes.refusals.last().startsWith(QLatin1String("Invalid Workspace format.")),
                 qPrintable(driver.boxes.refusals.last()));
        QCOMPARE(waits, QStringList({QStringLiteral("Reading bad.avp ..."), QString()}));
        QVERIFY(driver.document().HasProbe());
        QVERIFY(recentTexts(driver).isEmpty());
    }

    void theRecentListHoldsFiveAndForgetsMissingOnes() {
        FrameDriver driver;
        for (int i = 0; i < 7; ++i) {
            driver.boxes.savePath = driver.path(qPrintable(QStringLiteral("w%1.avp").arg(i)));
            driver.trigger(Command::SaveWorkspaceAs);
        }
        QCOMPARE(recentTexts(driver).size(), 5);
        QCOMPARE(recentTexts(driver).first(), QStringLiteral("&1 w6.avp"));
        QFile::remove(driver.path("w4.avp"));
        driver.frame->files().openRecent(driver.path("w4.avp"));
        QCOMPARE(driver.boxes.refusals.size(), 1);
        QCOMPARE(recentTexts(driver).size(), 4);
        driver.frame->files().openRecent(driver.path("w3.avp"));
        QCOMPARE(recentTexts(driver).first(), QStringLiteral("&1 w3.avp"));
    }

    void droppingOpensTheFirstWorkspace() {
        FrameDriver driver;
        driver.boxes.savePath = driver.path("dropped.avp");
        driver.simulate();
        driver.trigger(Command::SaveWorkspace);
        driver.trigger(Command::NewWorkspace);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(driver.path("notes.txt")), QUrl::fromLocalFile(driver.path("dropped.avp"))});
        // Whatever a file manager proposes: it must not remove the file.
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(QPoint(5, 5), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        enter.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(driver.frame.get(), &enter);
        QVERIFY(enter.isAccepted());
        QCOMPARE(enter.dropAction(), Qt::CopyAction);
        QDragMoveEvent move(QPoint(9, 9), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        move.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(driver.frame.get(), &move);
        QCOMPARE(move.dropAction(), Qt::CopyAction);
        QDropEvent drop(QPointF(9, 9), offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        drop.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(driver.frame.get(), &drop);
        QVERIFY(drop.isAccepted());
        QCOMPARE(drop.dropAction(), Qt::CopyAction);
        QVERIFY(driver.document().HasProbe());
    }

    void escapeCancelsARunAndClosingWaits() {
        FrameDriver driver;
        driver.simulate(1000.0);
        const SAdvProbe before = driver.document().Probe();
        SpectralSettings settings;
        settings.percent = 50;
        bool disabled = false;
        QTimer::singleShot(0, driver.frame.get(), [&] {
            disabled = driver.document().IsRunning() && !driver.enabled(Command::SimulateTimeSeries) &&
                       !driver.frame->findChild<QComboBox*>(QStringLiteral("Probes"))->isEnabled();
            QVERIFY(driver.frame->statusPane().progressBar().isVisible());
            QVERIFY(driver.frame->statusPane().progressBar().x() >= 170);
            driver.frame->close();
            QVERIFY2(driver.frame->isVisible(), "a busy window stays");
            QVERIFY2(showsText(driver, "Closing when the calculation ends"), "and says what it waits for");
            QTest::keyClick(driver.frame.get(), Qt::Key_Escape);
        });
        QCOMPARE(driver.document().SpectralAnalysis(settings), Outcome::Cancelled);
        QVERIFY(disabled);
        QVERIFY(driver.document().Probe() == before);
        QCOMPARE(driver.status(), QStringLiteral("Cancelled: the record is as it was"));
        QVERIFY(!showsText(driver, "Closing when the calculation ends"));
        QVERIFY(driver.enabled(Command::SimulateTimeSeries));
        QTRY_VERIFY2(!driver.frame->isVisible(), "the close that was asked for follows");
        QCOMPARE(driver.boxes.saveQuestions.size(), 1);
    }

    void escapeClosesAnOpenMenuBeforeItCancels() {
        FrameDriver driver;
        driver.simulate(1000.0);
        SpectralSettings settings;
        settings.percent = 50;
        bool closed = false;
        QTimer::singleShot(0, driver.frame.get(), [&] {
            QMenu* menu = driver.frame->menuBar()->actions().first()->menu();
            menu->popup(driver.frame->mapToGlobal(QPoint(10, 30)));
            QTest::keyClick(menu, Qt::Key_Escape);
            closed = driver.document().IsRunning() && !menu->isVisible();
        });
        QCOMPARE(driver.document().SpectralAnalysis(settings), Outcome::Done);
        QVERIFY(closed);
    }

    void theToolkitTakesItsOptionsFirst() {
        const auto run = [](const QStringList& arguments, const char* platform) {
            QProcess program;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QString::fromUtf8(platform));
            program.setProcessEnvironment(environment);
            program.start(QStringLiteral(VORLAN_PROGRAM), arguments);
            program.waitForFinished();
            return std::pair(program.exitCode(), program.readAllStandardOutput() + program.readAllStandardError());
        };
        const QStringList options = QStringLiteral("-platform offscreen -style fusion --style=fusion").split(u' ');
        const auto [unknown, why] = run(options + QStringList{QStringLiteral("--nonsense")}, "none");
        QCOMPARE(unknown, 2);
        QVERIFY2(why.contains("unknown option --nonsense"), why.constData());
        const auto [two, whyTwo] = run(options + QStringList{QStringLiteral("a"), QStringLiteral("b")}, "none");
        QCOMPARE(two, 2);
        QVERIFY2(whyTwo.contains("one workspace only"), whyTwo.constData());
        const auto [help, text] = run({QStringLiteral("--help")}, "none");
        QCOMPARE(help, 0);
        QVERIFY2(text.startsWith("Usage: vorlan"), "help needs no display");
    }

    void theDocumentTypeIsRegisteredOnce() {
        QTemporaryDir home;
        QVERIFY(registerDocumentType(QStringLiteral("/opt/my programs/vorlan"), home.path()));
        QVERIFY(bytesOf(home.filePath(QStringLiteral("applications/vorlan.desktop")))
                    .contains("TryExec=/opt/my programs/vorlan\nExec=\"/opt/my programs/vorlan\" %f"));
        QVERIFY(QFile::exists(home.filePath(QStringLiteral("mime/packages/vorlan.xml"))));
        QVERIFY2(!registerDocumentType(QStringLiteral("/opt/my programs/vorlan"), home.path()), "all is there");
        QVERIFY(!registerDocumentType(QStringLiteral("/x"), QStringLiteral("/proc/nonexistent")));
    }
};

QTEST_MAIN(FrameFiles)
#include "FrameFilesTest.moc"
