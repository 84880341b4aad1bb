#include <QComboBox>
#include <QLocale>

#include "ui/DialogDriver.h"
#include "ui/dialogs/CSimulateDlg.h"

using namespace vorlan;

class DialogsSimulate : public QObject {
    Q_OBJECT

    static void choose(const DialogDriver& driver, int component) {
        driver.field<QComboBox>("Componen&t:")->setCurrentIndex(component);
    }

  private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void opensWithTheDefaults() {
        CSimulateDlg dialog({});
        const DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Simulate Time Series | Parameters"));
        QCOMPARE(driver.text("&File Name:"), QStringLiteral("test"));
        QCOMPARE(driver.text("&Sampling Interval:"), QStringLiteral("0.04"));
        QCOMPARE(driver.text("Time Series &Length:"), QStringLiteral("100"));
        QCOMPARE(driver.text("&Correlation Value:"), QStringLiteral("90"));
        QCOMPARE(driver.text("Signal to Noise &Ratio:"), QStringLiteral("25"));
        QCOMPARE(driver.text("&Mean Velocities:"), QStringLiteral("50"));
        QCOMPARE(driver.text("&Harmonics Number:"), QStringLiteral("1"));
        QVERIFY(driver.shows("Harmonic # 1"));
        QVERIFY(!driver.live("H&eading:") && !driver.live("P&itch:") && !driver.live("&Roll:"));
        QVERIFY(!driver.live("Mea&n:") && !driver.live("&Variance:"));
        driver.click("C&ompass and Tilt:");
        driver.click("&White Noise:");
        QVERIFY(driver.live("H&eading:") && driver.live("P&itch:") && driver.live("&Roll:"));
        QVERIFY(driver.live("Mea&n:") && driver.live("&Variance:"));
    }

    void refusesValuesOutsideTheirRanges_data() {
        QTest::addColumn<QByteArray>("label");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("refusal");
        const auto row = [](const char* label, const char* text, const char* refusal) {
            QTest::newRow(label) << QByteArray(label) << QByteArray(text) << QByteArray(refusal);
        };
        row("&Sampling Interval:", "0.039", "Please enter a number between 0.04 and 100.");
        row("Time Series &Length:", "1000.5", "Please enter a number between 0.08 and 1000.");
        row("&Correlation Value:", "-1", "Please enter a number between 0 and 100.");
        row("Signal to Noise &Ratio:", "51", "Please enter a number between 0 and 50.");
        row("H&eading:", "361", "Please enter a number between 0 and 360.");
        row("P&itch:", "-30.1", "Please enter a number between -30 and 30.");
        row("&Roll:", "31", "Please enter a number between -30 and 30.");
        row("&Mean Velocities:", "201", "Please enter a number between -200 and 200.");
        row("Mea&n:", "-200.5", "Please enter a number between -200 and 200.");
        row("&Variance:", "1,5", "Please enter a number.");
        row("&Harmonics Number:", "26", "Please enter an integer between 1 and 25.");
        row("&Amplitude:", "", "Please enter a number.");
        row("Perio&d:", "0", "Please enter a number between 1e-07 and 1e+07.");
        row("&Phase:", "-1", "Please enter a number between 0 and 360.");
    }
    void refusesValuesOutsideTheirRanges() {
        QFETCH(QByteArray, label);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, refusal);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        SimulationParameters parameters;
        parameters.compass = true;
        parameters.whiteNoise = true;
        CSimulateDlg dialog(parameters);
        DialogDriver driver(dialog);
        driver.type(label, text);
        REFUSED(driver, refusal);
        QVERIFY(isNumberBox(driver.boxes[0]));
        QCOMPARE(dialog.focusWidget(), driver.field(label));
    }

    void acceptsRangeEndsAndAnyVariance() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.click("&White Noise:");
        driver.type("&File Name:", "wave 1");
        driver.type("&Sampling Interval:", "100");
        driver.type("Time Series &Length:", "0.08");
        driver.type("&Variance:", "-4");
        driver.type("Perio&d:", "1e-7");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().fileName, std::string("wave 1"));
        QCOMPARE(dialog.values().samplingInterval, 100.0);
        QCOMPARE(dialog.values().length, 0.08);
        QCOMPARE(dialog.values().components[0].noiseVariance, -4.0);
        QCOMPARE(dialog.values().components[0].harmonics[0].period, 1e-7);
        QVERIFY(dialog.values().whiteNoise);
    }

    void switchingComponentsRoundsToTwoDecimals() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.type("&Mean Velocities:", "12.3456");
        driver.type("Perio&d:", "0.004");
        choose(driver, 1);
        QCOMPARE(driver.text("&Mean Velocities:"), QStringLiteral("5.00"));
        QCOMPARE(driver.text("Perio&d:"), QStringLiteral("1.00"));
        driver.type("&Mean Velocities:", "-7");
        choose(driver, 0);
        QCOMPARE(driver.text("&Mean Velocities:"), QStringLiteral("12.35"));
        // The small period is lost as soon as it has been shown again, and now its range is checked.
        QCOMPARE(driver.text("Perio&d:"), QStringLiteral("0.00"));
        REFUSED(driver, "Please enter a number between 1e-07 and 1e+07.");
        choose(driver, 2);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().components[0].meanVelocity, 12.35);
        QCOMPARE(dialog.values().components[0].harmonics[0].period, 0.0);
        QCOMPARE(dialog.values().components[1].meanVelocity, -7.0);
    }

    void harmonicsFollowTheirNumber() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.moveUpDown(1);
        QVERIFY(driver.shows("Harmonic # 1"));
        driver.type("&Harmonics Number:", "3");
        driver.type("&Amplitude:", "1.005");
        driver.moveUpDown(1);
        QVERIFY(driver.shows("Harmonic # 2"));
        QCOMPARE(driver.text("&Amplitude:"), QStringLiteral("0.00"));
        driver.type("&Amplitude:", "2");
        driver.moveUpDown(5);
        QVERIFY(driver.shows("Harmonic # 3"));
        driver.type("&Amplitude:", "333");
        REFUSED(driver, "Please enter a number between -200 and 200.");
        // Out of sight it is not checked.
        driver.moveUpDown(-1);
        QCOMPARE(driver.text("&Amplitude:"), QStringLiteral("2.00"));
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

    void refusesToLeaveAComponentWithTextThatIsNoNumber() {
        CSimulateDlg dialog({});
        DialogDriver driver(dialog);
        driver.type("&Phase:", "ninety");
        choose(driver, 2);
        QCOMPARE(driver.boxes.size(), std::size_t{1});
        QCOMPARE(driver.boxes[0].text, QStringLiteral("Please enter a number."));
        QCOMPARE(driver.field<QComboBox>("Componen&t:")->currentIndex(), 0);
        QCOMPARE(driver.text("&Phase:"), QStringLiteral("ninety"));
        driver.type("&Phase:", "90");
        choose(driver, 2);
        QCOMPARE(driver.text("&Mean Velocities:"), QStringLiteral("0.00"));
    }
};

QTEST_MAIN(DialogsSimulate)
#include "dialogsSimulate.moc"
