// Page setup, preview and printing from the window.
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTest>

#include "ui/FrameDriver.h"

using namespace vorlan;

class FramePrinting : public QObject {
    Q_OBJECT

    /// Two probes with spectra, the second with histograms too.
    static void analyse(FrameDriver& driver) {
        SimulationParameters parameters;
        parameters.whiteNoise = true;
        for (const bool histograms : {false, true}) {
            driver.document().SimulateTimeSeries(parameters, 3);
            driver.document().SelectProbe(0);
            driver.document().SpectralAnalysis({});
            if (histograms) {
                driver.document().Distributions({});
            }
        }
    }
    static void printInto(FrameDriver& driver, const QString& path, PrintScope scope, int from = 0, int to = 0) {
        driver.boxes.printerChosen = [=](QPrinter& printer, PrintChoice& choice) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(path);
            if (from > 0) {
                printer.setPrintRange(QPrinter::PageRange);
                printer.setFromTo(from, to);
            }
            choice.scope = scope;
            return true;
        };
        driver.trigger(Command::Print);
    }

  private Q_SLOTS:
    void pageSetupBelongsToTheStageAndTheWorkspace() {
        FrameDriver driver;
        QVERIFY(!driver.enabled(Command::PageSetup) && !driver.enabled(Command::Print));
        analyse(driver);
        driver.document().SaveWorkspace(driver.path("a.avp").toStdString());
        QVERIFY(driver.withDialog(Command::PageSetup, "Page Setup | for printing"));
        QVERIFY(!driver.document().IsModified());
        const auto type = [](QDialog& dialog) {
            dialog.findChildren<QLineEdit*>().first()->setText(QStringLiteral("Moments"));
        };
        QVERIFY(driver.withDialog(Command::PageSetup, "Page Setup | for printing", type, QDialogButtonBox::Cancel));
        QVERIFY(!driver.document().IsModified());
        QVERIFY(driver.withDialog(Command::PageSetup, "Page Setup | for printing", type));
        QVERIFY(driver.document().IsModified() && driver.frame->isWindowModified());
        QCOMPARE(driver.document().GetWorkspace().pages.GetAt(2).header, std::string("Moments"));
        QCOMPARE(driver.document().GetWorkspace().pages.GetAt(3).header, std::string());
    }

    void printsWhatIsChosenIntoAFile() {
        FrameDriver driver;
        analyse(driver);
        const QString path = driver.path("x.pdf");
        const auto pages = [&] { return bytesOf(path).count("/Type /Page\n"); };
        printInto(driver, path, PrintScope::Stage);
        QCOMPARE(driver.boxes.printChoice.texts(),
                 QStringList({QStringLiteral("This &stage (1 page)"),
                              QStringLiteral("All &done stages of this probe (3 pages)"),
                              QStringLiteral("All pro&bes (5 pages)")}));
        QCOMPARE(pages(), 1);
        QCOMPARE(driver.status(), QStringLiteral("x.pdf written"));
        const QByteArray stage = bytesOf(path);
        printInto(driver, path, PrintScope::Stage);
        QCOMPARE(bytesOf(path), stage);
        printInto(driver, path, PrintScope::Probe);
        QCOMPARE(pages(), 3);
        printInto(driver, path, PrintScope::AllProbes);
        QCOMPARE(pages(), 5);
        printInto(driver, path, PrintScope::AllProbes, 2, 3);
        QCOMPARE(pages(), 2);
        printInto(driver, path, PrintScope::Stage, 2, 2);
        QCOMPARE(driver.boxes.refusals, QStringList(QStringLiteral("There is no page in the range that was chosen.")));
    }

    void refusesAPageWithoutRoomAndTheNameOfAWorkspace() {
        FrameDriver driver;
        analyse(driver);
        driver.document().SaveWorkspace(driver.path("a.avp").toStdString());
        const QByteArray before = bytesOf(driver.path("a.avp"));
        printInto(driver, driver.path("a.avp"), PrintScope::Stage);
        QCOMPARE(bytesOf(driver.path("a.avp")), before);
        PageAtrType narrow;
        narrow.leftMargin = 30.0;
        QCOMPARE(driver.document().SetPage(Stage::Histograms, narrow), Outcome::Done);
        printInto(driver, driver.path("x.pdf"), PrintScope::Stage);
        driver.trigger(Command::PrintPreview);
        QCOMPARE(driver.boxes.refusals.size(), 3);
        QVERIFY(driver.boxes.refusals.last().startsWith(QStringLiteral("Histograms: The margins leave no room")));
        QVERIFY(!QFile::exists(driver.path("x.pdf")));
    }

    void previewShowsThePagesOfTheChoice() {
        FrameDriver driver;
        analyse(driver);
        QList<int> counts;
        driver.boxes.previewShown = [&](QDialog& preview) {
            preview.show();
            auto* pages = preview.findChild<QPrintPreviewWidget*>();
            for (auto* list : preview.findChildren<QComboBox*>()) {
                if (list->toolTip() != QStringLiteral("What is printed")) {
                    continue;
                }
                for (int i = 0; i < list->count(); ++i) {
                    list->setCurrentIndex(i);
                    Q_EMIT list->activated(i);
                    counts += pages->pageCount();
                }
            }
            pages->setLandscapeOrientation();
            pages->updatePreview();
        };
        driver.trigger(Command::PrintPreview);
        QCOMPARE(counts, QList<int>({1, 3, 5}));
        // The orientation stays for the next page.
        printInto(driver, driver.path("x.pdf"), PrintScope::Stage);
        const QByteArray bytes = bytesOf(driver.path("x.pdf"));
        const QList<QByteArray> box = bytes.mid(bytes.indexOf("/MediaBox [")).split(' ').mid(3, 2);
        QVERIFY(box[0].toDouble() > box[1].chopped(2).toDouble());
    }
};

QTEST_MAIN(FramePrinting)
#include "FramePrintingTest.moc"
