// What the parameter dialogs hand back.
#include <QComboBox>
#include <QSlider>

#include "ui/DialogDriver.h"
#include "ui/dialogs/CCoordSysDlg.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CSimulateDlg.h"
#include "ui/dialogs/CSpAnalDlg.h"

using namespace vorlan;

class DialogsValues : public QObject {
    Q_OBJECT

    static QLineEdit* lagsField(const CSpAnalDlg& dialog) { return dialog.findChild<QLineEdit*>(); }
    static void choose(const DialogDriver& driver, int component) {
        driver.field<QComboBox>("Componen&t:")->setCurrentIndex(component);
    }

  private Q_SLOTS:
    void ofHistogramsWhoseArrowsStartAtTen() {
        CHistDlg dialog({});
        DialogDriver driver(dialog);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().grades, 20);
        driver.moveUpDown(1);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().grades, 11);
        // What is typed is where the pair goes on, and its range is where it ends.
        for (const auto& [typed, then] : {std::pair("50", "49"), std::pair("150", "99"), std::pair("0", "0")}) {
            driver.type("&Grades Number:", typed);
            driver.moveUpDown(-1);
            QCOMPARE(driver.text("&Grades Number:"), QString::fromLatin1(then));
        }
    }

    void ofFiltersWhoseWidthIsSteppedInWholeSeconds() {
        FilterSettings settings;
        settings.halfWidth = 2.75;
        CFilterDlg dialog(settings);
        DialogDriver driver(dialog);
        driver.moveUpDown(1);
        QCOMPARE(driver.text("Digital filter half &width [sec] :"), QStringLiteral("3.00"));
        driver.moveUpDown(-5);
        driver.click("&Gaussian-shaped");
        driver.type("&Cutoff frequency [Hz]:", "0");
        REFUSED(driver, "The filter width should be grater than 0!");
        driver.moveUpDown(2);
        // Also for the shapes that do not use it.
        driver.click("&Rectangle (averaging)");
        REFUSED(driver, "The cutoff frequency should be grater than 0!");
        driver.click("&Gaussian-shaped");
        driver.type("&Cutoff frequency [Hz]:", "-2");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().halfWidth, 2.0);
        QCOMPARE(dialog.values().cutoff, -2.0);
        QCOMPARE(dialog.values().shape, FilterShape::Gaussian);
        QCOMPARE(dialog.values().type, FilterType::LowPass);
    }

    void ofSpectraWhereAClickDecidesHowTheNumberIsRead() {
        SpectralDialogValues settings;
        settings.truncationMode = 1;
        settings.lags = 40;
        settings.percentFlag = false;
        CSpAnalDlg dialog(settings);
        DialogDriver driver(dialog);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().truncationMode, 1);
        QVERIFY2(dialog.values().percentFlag, "a lags mode reopened untouched is read as a percentage");
        driver.click("&Number of Lags");
        driver.moveUpDown(2);
        QVERIFY(driver.accepted());
        QVERIFY(!dialog.values().percentFlag);
        QCOMPARE(dialog.values().lags, 42);
        lagsField(dialog)->setText(QStringLiteral("9999"));
        driver.moveUpDown(3);
        QTest::keyClick(lagsField(dialog), Qt::Key_Down);
        QCOMPARE(lagsField(dialog)->text(), QStringLiteral("9999"));
        lagsField(dialog)->setText(QStringLiteral("many"));
        driver.click("&Percent of Time Series Length");
        dialog.findChild<QSlider*>()->setValue(33);
        driver.click("P&arzen");
        driver.click("Ra&d/s");
        QVERIFY2(driver.accepted(), "a field that is off refuses nothing");
        QVERIFY(dialog.values().percentFlag);
        QCOMPARE(dialog.values().percent, 33);
        QCOMPARE(dialog.values().lags, 42);
        QCOMPARE(dialog.values().windowButton, 3);
        QCOMPARE(dialog.values().unitButton, 0);
    }

    void ofComponentsRoundedWhenAnotherOneIsChosen() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.type("&Phase:", "ninety");
        choose(driver, 2);
        QCOMPARE(driver.boxes.size(), std::size_t{1});
        QCOMPARE(driver.field<QComboBox>("Componen&t:")->currentIndex(), 0);
        driver.type("&Phase:", "90");
        driver.type("&Mean Velocities:", "12.3456");
        driver.type("Perio&d:", "0.004");
        choose(driver, 1);
        driver.type("&Mean Velocities:", "-7");
        choose(driver, 0);
        QCOMPARE(driver.text("&Mean Velocities:"), QStringLiteral("12.35"));
        // The small period is lost as soon as it has been shown again, and now its range is checked.
        REFUSED(driver, "Please enter a number between 1e-07 and 1e+07.");
        choose(driver, 2);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().components[0].meanVelocity, 12.35);
        QCOMPARE(dialog.values().components[0].harmonics[0].period, 0.0);
        QCOMPARE(dialog.values().components[1].meanVelocity, -7.0);
    }

    void ofHarmonicsThatFollowTheirNumber() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.moveUpDown(1);
        QVERIFY(driver.shows("Harmonic # 1"));
        driver.type("&Harmonics Number:", "3");
        driver.type("&Amplitude:", "1.005");
        driver.moveUpDown(1);
        driver.type("&Amplitude:", "2");
        driver.moveUpDown(5);
        QVERIFY(driver.shows("Harmonic # 3"));
        driver.type("&Amplitude:", "333");
        REFUSED(driver, "Please enter a number between -200 and 200.");
        // Out of sight it is not checked.
        driver.moveUpDown(-1);
        QVERIFY(driver.accepted());
        const auto& harmonics = dialog.values().components[0].harmonics;
        QCOMPARE(harmonics.size(), std::size_t{3});
        QCOMPARE(harmonics[0].amplitude, 1.005);
        QCOMPARE(harmonics[1].amplitude, 2.0);
        QCOMPARE(harmonics[2].amplitude, 333.0);
        QCOMPARE(dialog.values().components[2].harmonics.size(), std::size_t{3});
        driver.type("&Harmonics Number:", "1");
        QVERIFY(driver.accepted());
        QVERIFY(driver.shows("Harmonic # 1"));
        QCOMPARE(dialog.values().components[0].harmonics.size(), std::size_t{1});
    }
};

QTEST_MAIN(DialogsValues)
#include "DialogsValuesTest.moc"
