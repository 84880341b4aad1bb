#include <QSlider>

#include "ui/DialogDriver.h"
#include "ui/dialogs/CSpAnalDlg.h"

using namespace vorlan;

class DialogsSpectral : public QObject {
    Q_OBJECT

    static QLineEdit* lagsField(const CSpAnalDlg& dialog) { return dialog.findChild<QLineEdit*>(); }
    static QSlider* slider(const CSpAnalDlg& dialog) { return dialog.findChild<QSlider*>(); }

  private Q_SLOTS:
    void opensWithTheSettingsAndReturnsThem() {
        CSpAnalDlg dialog({});
        DialogDriver driver(dialog);
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Spectral Analysis | Parameters"));
        QVERIFY(driver.button("&Tukey")->isChecked());
        QVERIFY(driver.button("&Hz")->isChecked());
        QVERIFY(driver.button("&Percent of Time Series Length")->isChecked());
        QVERIFY(driver.shows("10%"));
        QVERIFY(slider(dialog)->isEnabled());
        QVERIFY(!lagsField(dialog)->isEnabled());
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values().percentFlag);
        QCOMPARE(dialog.values().percent, 10);
        QCOMPARE(dialog.values().lags, 100);

        driver.click("P&arzen");
        driver.click("Ra&d/s");
        slider(dialog)->setValue(33);
        QVERIFY(driver.shows("33%"));
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().windowButton, 3);
        QCOMPARE(dialog.values().unitButton, 0);
        QCOMPARE(dialog.values().percent, 33);
    }

    void lagsModeReopenedUntouchedIsStillReadAsPercent() {
        SpectralSettings settings;
        settings.truncationMode = 1;
        settings.lags = 40;
        settings.percentFlag = false;
        CSpAnalDlg dialog(settings);
        DialogDriver driver(dialog);
        QVERIFY(lagsField(dialog)->isEnabled());
        QVERIFY(slider(dialog)->isEnabled());
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().truncationMode, 1);
        QVERIFY(dialog.values().percentFlag);

        // A click on the mode that is chosen already corrects it.
        driver.click("&Number of Lags");
        QVERIFY(!slider(dialog)->isEnabled());
        QVERIFY(driver.accepted());
        QVERIFY(!dialog.values().percentFlag);
        driver.click("&Percent of Time Series Length");
        QVERIFY(slider(dialog)->isEnabled());
        QVERIFY(!lagsField(dialog)->isEnabled());
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values().percentFlag);
    }

    void upDownStepsFromTheShownNumber() {
        SpectralSettings settings;
        settings.truncationMode = 1;
        CSpAnalDlg dialog(settings);
        DialogDriver driver(dialog);
        driver.moveUpDown(2);
        QCOMPARE(lagsField(dialog)->text(), QStringLiteral("102"));
        lagsField(dialog)->setText(QStringLiteral("9999"));
        driver.moveUpDown(3);
        QCOMPARE(lagsField(dialog)->text(), QStringLiteral("10000"));
        QTest::keyClick(lagsField(dialog), Qt::Key_Down);
        QCOMPARE(lagsField(dialog)->text(), QStringLiteral("9999"));
    }

    void refusesTruncationPointsOfTheChosenMode() {
        SpectralSettings settings;
        settings.lags = 2;
        settings.percent = 0;
        CSpAnalDlg dialog(settings);
        DialogDriver driver(dialog);
        REFUSED(driver, "The truncation point should be grater than 0!");
        QVERIFY(isStopBox(driver.boxes[0]));
        QCOMPARE(dialog.focusWidget(), slider(dialog));
        driver.click("&Number of Lags");
        REFUSED(driver, "The truncation point should be grater than 2!");
        QVERIFY(isStopBox(driver.boxes[0]));
        QCOMPARE(dialog.focusWidget(), lagsField(dialog));
        lagsField(dialog)->setText(QStringLiteral("3.5"));
        REFUSED(driver, "Please enter an integer.");
        QVERIFY(isNumberBox(driver.boxes[0]));
        lagsField(dialog)->setText(QStringLiteral("3"));
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().lags, 3);
    }

    void aDisabledFieldNeverRefuses() {
        CSpAnalDlg dialog({});
        DialogDriver driver(dialog);
        driver.click("&Number of Lags");
        lagsField(dialog)->setText(QStringLiteral("many"));
        driver.click("&Percent of Time Series Length");
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values().lags, 100);
    }
};

QTEST_MAIN(DialogsSpectral)
#include "dialogsSpectral.moc"
