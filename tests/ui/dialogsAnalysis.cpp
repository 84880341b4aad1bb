#include <QSlider>

#include "ui/DialogDriver.h"
#include "ui/dialogs/CExportDlg.h"
#include "ui/dialogs/CExportScopeDlg.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CQuadrDlg.h"
#include "ui/dialogs/CStatDlg.h"

using namespace vorlan;

class DialogsAnalysis : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void stationarityNeedsTwoBands() {
        CStatDlg dialog({});
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Stationarity Analysis | Parameters"));
        QVERIFY(driver.button("&fixed")->isChecked());
        QCOMPARE(driver.text("&Number of Bands"), QStringLiteral("10"));
        driver.type("&Number of Bands", "1");
        REFUSED(driver, "Band number should be larger than 1!");
        QVERIFY(isStopBox(driver.boxes[0]));
        QCOMPARE(dialog.values().bands, 10);
        driver.type("&Number of Bands", "2");
        driver.click("&cumulative");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().bands, 2);
        QCOMPARE(dialog.values().mode, BandMode::Cumulative);
    }

    void gradesUpDownOpensAtTenWithoutWriting() {
        CHistDlg dialog({});
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Univariate Distributions | Histogram Parameters"));
        QCOMPARE(dialog.findChild<CUpDown*>()->position(), 10);
        QCOMPARE(driver.text("&Grades Number:"), QStringLiteral("20"));
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().grades, 20);
        driver.moveUpDown(1);
        QCOMPARE(driver.text("&Grades Number:"), QStringLiteral("11"));
        driver.moveUpDown(-20);
        QCOMPARE(driver.text("&Grades Number:"), QStringLiteral("0"));
        REFUSED(driver, "Number of grades should be larger than 1!");
        QVERIFY(isStopBox(driver.boxes[0]));
        driver.moveUpDown(1);
        REFUSED(driver, "Number of grades should be larger than 1!");
        driver.moveUpDown(1);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().grades, 2);
        // At the end of its range the pair does not move, and so it writes nothing.
        driver.moveUpDown(-2);
        driver.type("&Grades Number:", "150");
        driver.moveUpDown(-1);
        QCOMPARE(driver.text("&Grades Number:"), QStringLiteral("150"));
    }

    void barWidthIsShownAsItMoves() {
        CHistDlg dialog({});
        DialogDriver driver(dialog);
        QVERIFY(driver.shows("90%"));
        QVERIFY(driver.button("&Approximate by Normal Distribution")->isChecked());
        driver.field<QSlider>("&Bar Width:")->setValue(0);
        QVERIFY(driver.shows("0%"));
        QCOMPARE(dialog.values().barWidth, 90);
        driver.click("&Approximate by Normal Distribution");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().barWidth, 0);
        QVERIFY(!dialog.values().normalApproximation);
    }

    void quadrantsRefuseInTheirOrder() {
        CQuadrDlg dialog({});
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Conditional Quadrants Analysis and Averaging"));
        QVERIFY(driver.shows("1,3 - interactions") && driver.shows("2 - ejection, 4 - sweep"));
        struct Step {
            const char* label;
            const char* bad;
            const char* refusal;
            const char* good;
        };
        const Step steps[] = {{"&Ejection:", "-0.1", "The ejection threshold should be grater than 0!", "0"},
                              {"Hole Size &Maximum Value:", "1.9", "The maximum size should be grater than 2!", "2"},
                              {"Maximum Time &Lag:", "1.9", "The maximum lag should be grater than 2!", "2"},
                              {"&Sweep:", "-0.1", "The sweep threshold should be grater than 0!", "0"},
                              {"&Hole Size Increment:", "0", "The size increment should be grater than 0!", "-0.2"}};
        for (const Step& step : steps) {
            driver.type(step.label, step.bad);
        }
        for (const Step& step : steps) {
            REFUSED(driver, step.refusal);
            QVERIFY(isStopBox(driver.boxes[0]));
            QCOMPARE(dialog.focusWidget(), driver.field(step.label));
            driver.type(step.label, step.good);
        }
        driver.click("&v'w' (transverse-vertical)");
        QVERIFY(driver.accepted());
        QVERIFY((dialog.values() == QuadrantSettings{-0.2, 2.0, 0.0, 0.0, 2.0, 2}));
    }

    void exportOptionsOpenOff() {
        CExportDlg dialog;
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Export | as an ASCII file"));
        QVERIFY(driver.accepted());
        QVERIFY(!dialog.values().header && !dialog.values().time);
        QCOMPARE(dialog.values().separator, Separator::Space);
        driver.click("&Header field");
        driver.click("&Time values [sec]");
        driver.click("&Comma");
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values().header && dialog.values().time);
        QCOMPARE(dialog.values().separator, Separator::Comma);
    }

    void exportScopeOpensOnTheCurrentProbe() {
        CExportScopeDlg dialog;
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Export Data"));
        QVERIFY(driver.button("for &current probe only")->isChecked());
        driver.click("for &all files and probes");
        QVERIFY(!dialog.allProbes());
        QVERIFY(driver.accepted());
        QVERIFY(dialog.allProbes());
    }
};

QTEST_MAIN(DialogsAnalysis)
#include "dialogsAnalysis.moc"
