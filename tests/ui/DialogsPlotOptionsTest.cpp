#include <QListWidget>

#include "plot/QtText.h"
#include "ui/DialogDriver.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/FontConversion.h"

using namespace vorlan;

class DialogsPlotOptions : public QObject {
    Q_OBJECT

    static constexpr std::array<ScaleType, 1> kLinear{ScaleType::Linear};
    static QListWidget* fonts(const CPlotOptDlg& dialog) { return dialog.findChildren<QListWidget*>()[1]; }
    // Value fields of limits and steps stand right of their boxes, in the order X Y of minimum, maximum and step.
    static QLineEdit* value(const DialogDriver& driver, const char* axis, int row) {
        QWidget* box = driver.button(axis, row);
        return qobject_cast<QLineEdit*>(box->nextInFocusChain());
    }

    static FrameAttributesType strangeFrame() {
        FrameAttributesType frame;
        frame.scaleType = 9;
        frame.frameStyle = 4;
        frame.xMinMode = 2;
        frame.xMin = 1.0 / 3.0;
        frame.tickSize = -3;
        frame.tickOrientation = 5;
        frame.xDigits = 12;
        frame.gridMode = 6;
        frame.gridLineStyle = 1;
        frame.legendPosition = -1;
        frame.labelOffset = 77;
        frame.xTitle = "Temp\xE9rature";
        frame.labelFont.bytes()[23] = std::byte{0xA1};
        return frame;
    }

  private Q_SLOTS:
    void keepsEveryWordThatIsNotChanged() {
        const FrameAttributesType frame = strangeFrame();
        CPlotOptDlg dialog(frame, kLinear);
        DialogDriver driver(dialog);
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values() == frame);
    }

    void automaticValuesStartFromWhatIsDrawn() {
        FrameAttributesType frame;
        frame.xMin = 3.0;
        frame.yMinMode = 1;
        frame.yMin = -7.0;
        DrawnAxes drawn;
        drawn.xMin = -40.0;
        drawn.xMax = 0.0;
        drawn.xStep = 5.0;
        drawn.yMin = -8.0;
        CPlotOptDlg untouched(frame, kLinear, drawn);
        QVERIFY(DialogDriver(untouched).accepted());
        QVERIFY2(untouched.values() == frame, "what is only shown is not stored");

        CPlotOptDlg dialog(frame, kLinear, drawn);
        DialogDriver driver(dialog);
        QCOMPARE(value(driver, "     X", 0)->text(), QStringLiteral("-40"));
        QCOMPARE(value(driver, "     Y", 0)->text(), QStringLiteral("-7"));
        driver.click("     X", 1);
        driver.click("     X", 2);
        QVERIFY2(driver.accepted(), "the drawn ends are not equal, whatever is stored");
        QCOMPARE(dialog.values().xMaxMode, 1);
        QCOMPARE(dialog.values().xMax, 0.0);
        QCOMPARE(dialog.values().xStep, 5.0);
        QCOMPARE(dialog.values().xMin, 3.0);
    }

    void refusesEqualLimitsOnly() {
        FrameAttributesType frame;
        frame.xMinMode = frame.xMaxMode = frame.yMinMode = frame.yMaxMode = 1;
        frame.xMin = frame.xMax = 5.0;
        frame.yMin = frame.yMax = -5.0;
        CPlotOptDlg dialog(frame, kLinear);
        DialogDriver driver(dialog);
        REFUSED(driver, "X axis limits are equal ! Change Xmin or Xmax to be Xmin<Xmax.");
        QCOMPARE(dialog.focusWidget(), value(driver, "     X", 0));
        value(driver, "     X", 0)->setText(QStringLiteral("6"));
        REFUSED(driver, "Y axis limits are equal ! Change Ymin or Ymax to be Ymin<Ymax.");
        value(driver, "     Y", 1)->setText(QStringLiteral("-6"));
        QVERIFY2(driver.accepted(), "an axis may run backward");
    }

    void showsAPickedFontAtOnce() {
        CPlotOptDlg dialog({}, kLinear);
        DialogDriver driver(dialog);
        const FontDescription big("ARIAL", -20, 700, true);
        dialog.setFontPicker([&](QWidget*, const FontDescription&) { return std::optional(big); });
        fonts(dialog)->setCurrentRow(1);
        driver.click("&Font...");
        QCOMPARE(driver.field("&X-Axis")->font().pixelSize(), 20);
        QVERIFY(driver.field("&Y-Axis")->font().italic());
        QCOMPARE(driver.field("&Plot")->font().pixelSize(), FontDescription().pixelSize());
        fonts(dialog)->setCurrentRow(2);
        driver.click("&Font...");
        dialog.setFontPicker([](QWidget*, const FontDescription&) { return std::optional<FontDescription>(); });
        fonts(dialog)->setCurrentRow(3);
        driver.click("&Font...");
        QCOMPARE(driver.field("&Title")->font().pixelSize(), FontDescription().pixelSize());
        QVERIFY(!(dialog.values().axisTitleFont == big));
        QVERIFY(driver.accepted());
        QVERIFY(dialog.values().axisTitleFont == big);
        QVERIFY(dialog.values().labelFont == big);
        QVERIFY(dialog.values().plotTitleFont == FontDescription());
        QVERIFY(dialog.values().legendFont == FontDescription());
    }

    void fontsAreEncodedAgainOnlyWhereTheyChanged() {
        FontDescription stored("ARIAL", 14, 650);
        stored.bytes()[23] = std::byte{0xA1};  // character set
        CFontDlg untouched(stored);
        QVERIFY(untouched.values() == stored);

        const QFont opened = qtFont(stored, 1.0);
        QCOMPARE(opened.pixelSize(), 12);
        QCOMPARE(static_cast<int>(opened.weight()), 650);
        QFont bold = opened;
        bold.setBold(true);
        bold.setUnderline(true);
        FontDescription expected = stored;
        expected.setWeight(700);
        expected.setUnderline(true);
        QVERIFY(pickedFont(stored, opened, bold) == expected);

        QFont other = opened;
        other.setFamily(QStringLiteral("DejaVu Sans"));
        other.setPixelSize(30);
        const FontDescription changed = pickedFont(stored, opened, other);
        QCOMPARE(changed.face(), std::string("DejaVu Sans"));
        QCOMPARE(changed.height(), -30);
        QCOMPARE(changed.weight(), 650);
        QVERIFY(changed.bytes()[23] == std::byte{0xA1});
    }
};

QTEST_MAIN(DialogsPlotOptions)
#include "DialogsPlotOptionsTest.moc"
