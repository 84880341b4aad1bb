#include "ui/DialogDriver.h"
#include "ui/dialogs/CCoordSysDlg.h"
#include "ui/dialogs/CEditTSDlg.h"
#include "ui/dialogs/CFilterDlg.h"

using namespace vorlan;

class DialogsPreProcessing : public QObject {
    Q_OBJECT

    // The threshold stands right of its radio button.
    static QLineEdit* threshold(const DialogDriver& driver, const char* statistic) {
        return qobject_cast<QLineEdit*>(driver.button(statistic)->nextInFocusChain());
    }

  private Q_SLOTS:
    void coordinateSystemReturnsAnglesWhetherTickedOrNot() {
        CCoordSysDlg dialog({}, QStringLiteral("Probe( X, Y, Z ) "));
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Coordinate System"));
        QVERIFY(driver.shows("Coordinate sytem used in file:"));
        QVERIFY(driver.shows("Probe( X, Y, Z ) "));
        QVERIFY(!driver.live("&Heading:") && !driver.live("&Pitch:") && !driver.live("R&oll:"));
        driver.click("&Rotate coordinates about  the sampling volume location");
        QVERIFY(driver.live("&Heading:") && driver.live("&Pitch:") && driver.live("R&oll:"));
        driver.type("&Heading:", "720.5");
        driver.type("&Pitch:", "-1e3");
        driver.click("&Rotate coordinates about  the sampling volume location");
        QVERIFY(!driver.live("&Heading:"));
        QCOMPARE(driver.text("&Heading:"), QStringLiteral("720.5"));
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().heading, 720.5);
        QCOMPARE(dialog.values().pitch, -1000.0);
        QCOMPARE(dialog.values().roll, 0.0);
    }

    void coordinatesOfUntouchedFieldsStayExact() {
        RotationSettings settings;
        settings.position = {1234567.0 * 0.001, 0.1 + 0.2, 0.0};
        CCoordSysDlg dialog(settings, QString());
        DialogDriver driver(dialog);
        QCOMPARE(driver.text("&X:"), QStringLiteral("1234.567"));
        driver.type("&Z:", "-0.125");
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values().position[0] == settings.position[0]);
        QVERIFY(dialog.values().position[1] == settings.position[1]);
        QCOMPARE(dialog.values().position[2], -0.125);
        driver.type("&Y:", "1,5");
        REFUSED(driver, "Please enter a number.");
        QCOMPARE(dialog.focusWidget(), driver.field("&Y:"));
    }

    void thresholdsFollowTestAndStatistic() {
        CEditTSDlg dialog({});
        const DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Editing Time Series"));
        struct Names {
            const char* test;
            const char* average;
            const char* minimum;
        };
        for (const Names& names :
             {Names{"&Correlation Score Threshold:", "&Average Correlation:", "&Minimum Correlation:"},
              Names{"&Signal to Noise Ratio Threshold:", "A&verage SNR value:", "Minimum S&NR value:"}}) {
            QLineEdit* average = threshold(driver, names.average);
            QLineEdit* minimum = threshold(driver, names.minimum);
            QVERIFY(!average->isEnabled() && !minimum->isEnabled());
            driver.click(names.minimum);
            QVERIFY(!average->isEnabled() && !minimum->isEnabled());
            driver.click(names.test);
            QVERIFY(!average->isEnabled() && minimum->isEnabled());
            driver.click(names.average);
            QVERIFY(average->isEnabled() && !minimum->isEnabled());
        }
        QVERIFY(!driver.live("Acceleration &Threshold:"));
        driver.click("Spike &Filter:");
        QVERIFY(driver.live("Acceleration &Threshold:"));
        QVERIFY(!driver.live("Clean up | Vx,y,z |  > "));
        driver.click("&Velocity Threshold:");
        QVERIFY(driver.live("Clean up | Vx,y,z |  > "));
        QVERIFY(driver.shows("Sigma Vx,y,z") && driver.shows("g"));
    }

    void editingReturnsItsFields() {
        CEditTSDlg dialog({});
        DialogDriver driver(dialog);
        QCOMPARE(threshold(driver, "&Average Correlation:")->text(), QStringLiteral("70"));
        QCOMPARE(threshold(driver, "Minimum S&NR value:")->text(), QStringLiteral("5"));
        driver.click("&Signal to Noise Ratio Threshold:");
        driver.click("Minimum S&NR value:");
        threshold(driver, "Minimum S&NR value:")->setText(QStringLiteral("7.5"));
        driver.click("&Velocity Threshold:");
        driver.type("Clean up | Vx,y,z |  > ", "four");
        driver.click("&Remove bad sample from the time series");
        REFUSED(driver, "Please enter a number.");
        driver.type("Clean up | Vx,y,z |  > ", "-4");
        QVERIFY(driver.accepted());
        const EditingSettings values = dialog.values();
        QVERIFY(!values.correlation.on);
        QVERIFY(values.signalToNoise.on);
        QCOMPARE(values.signalToNoise.threshold(), 7.5);
        QCOMPARE(values.signalToNoise.averageThreshold, 10.0);
        QVERIFY(values.velocityTest && !values.spikeFilter);
        QCOMPARE(values.velocityThreshold, -4.0);
        QCOMPARE(values.treatment, BadSampleTreatment::Remove);
    }

    void aShapeChoosesItsTypes() {
        CFilterDlg dialog({});
        const DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Digital Filtration | Parameters"));
        const auto liveTypes = [&driver] {
            QString live;
            for (const char* type : {"&Low-pass", "&High-pass", "B&and-pass", "Band-&cut"}) {
                live += driver.button(type)->isEnabled() ? QLatin1Char('x') : QLatin1Char('-');
            }
            return live;
        };
        QCOMPARE(liveTypes(), QStringLiteral("xx--"));
        QVERIFY(!driver.live("&Cutoff frequency [Hz]:"));
        driver.click("&High-pass");
        driver.click("&Gaussian-shaped");
        QCOMPARE(liveTypes(), QStringLiteral("x---"));
        QVERIFY(driver.button("&Low-pass")->isChecked());
        QVERIFY(driver.live("&Cutoff frequency [Hz]:"));
        driver.click("&Bell-shaped");
        QCOMPARE(liveTypes(), QStringLiteral("--xx"));
        QVERIFY(driver.button("B&and-pass")->isChecked());
        QVERIFY(!driver.live("&Cutoff frequency [Hz]:"));
        driver.click("&Rectangle (averaging)");
        QCOMPARE(liveTypes(), QStringLiteral("xx--"));
        QVERIFY(driver.button("&Low-pass")->isChecked());

        // At opening Low-pass and High-pass stay live whatever the shape.
        FilterSettings bell;
        bell.shape = FilterShape::Bell;
        bell.type = FilterType::BandCut;
        const CFilterDlg reopened(bell);
        QVERIFY(reopened.findChildren<QAbstractButton*>().size() > 8);
        for (QAbstractButton* button : reopened.findChildren<QAbstractButton*>()) {
            QVERIFY(button->isEnabled());
        }
        QVERIFY(!reopened.findChildren<QLineEdit*>()[0]->isEnabled());
    }

    void filterRefusesZerosOnly() {
        CFilterDlg dialog({});
        DialogDriver driver(dialog);
        const char* const width = "Digital filter half &width [sec] :";
        driver.click("&Gaussian-shaped");
        driver.type(width, "0");
        driver.type("&Cutoff frequency [Hz]:", "0.0");
        REFUSED(driver, "The filter width should be grater than 0!");
        QVERIFY(isStopBox(driver.boxes[0]));
        QCOMPARE(dialog.focusWidget(), driver.field(width));
        driver.type(width, "-1");
        REFUSED(driver, "The cutoff frequency should be grater than 0!");
        QVERIFY(isStopBox(driver.boxes[0]));
        // Also for the shapes that do not use it.
        driver.click("&Rectangle (averaging)");
        REFUSED(driver, "The cutoff frequency should be grater than 0!");
        driver.click("&Gaussian-shaped");
        driver.type("&Cutoff frequency [Hz]:", "-2");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().halfWidth, -1.0);
        QCOMPARE(dialog.values().cutoff, -2.0);
        QCOMPARE(dialog.values().shape, FilterShape::Gaussian);
        QCOMPARE(dialog.values().type, FilterType::LowPass);
    }

    void halfWidthIsSteppedInWholeSeconds() {
        FilterSettings settings;
        settings.halfWidth = 2.75;
        CFilterDlg dialog(settings);
        DialogDriver driver(dialog);
        const char* const width = "Digital filter half &width [sec] :";
        QCOMPARE(driver.text(width), QStringLiteral("2.75"));
        driver.moveUpDown(1);
        QCOMPARE(driver.text(width), QStringLiteral("3.00"));
        driver.moveUpDown(-5);
        QCOMPARE(driver.text(width), QStringLiteral("0.00"));
        driver.moveUpDown(2);
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().halfWidth, 2.0);
    }
};

QTEST_MAIN(DialogsPreProcessing)
#include "dialogsPreProcessing.moc"
