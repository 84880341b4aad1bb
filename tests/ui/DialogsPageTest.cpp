// The page setup and its sketch.
#include <QRadioButton>

#include "ui/DialogText.h"
#include "ui/dialogs/CPageDlg.h"
#include "ui/dialogs/PageSketch.h"

using namespace vorlan;

class DialogsPage : public QObject {
    Q_OBJECT

    static constexpr PaperSize kA4{21.0, 29.7};

    static std::pair<QLineEdit*, QLineEdit*> sizesOf(const DialogDriver& driver, const char* pane) {
        QWidget* box = driver.button(pane);
        QWidget* height = box->nextInFocusChain();
        return {qobject_cast<QLineEdit*>(height), qobject_cast<QLineEdit*>(height->nextInFocusChain())};
    }
    static int redPixels(QWidget& sketch) {
        const QImage image = sketch.grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() > colour.blue() + 40 ? 1 : 0;
            }
        }
        return count;
    }

  private Q_SLOTS:
    void handsBackACopyOfWhatWasTyped() {
        PageAtrType page;
        page.header = "K\xF6ln";
        page.leftMargin = 0.1 + 0.2;
        page.printRightTop = 7;
        CPageDlg dialog(page, kA4);
        DialogDriver driver(dialog);
        QCOMPARE(unexplained(dialog), QStringList());
        QVERIFY(driver.accepted());
        QCOMPARE(dialog.values(), page);
        driver.type("Page &Header:", "Sp\u00e9ctra");
        driver.type("Page Foot&er:", "");
        driver.type("&Right:", "1.25");
        driver.type("I&nner margins (between plots) [cm] :", "0");
        driver.type("Font &size scale:", "4.5");
        driver.click("left-b&ottom:");
        const auto [height, width] = sizesOf(driver, "r&ight-bottom:");
        height->setText(QStringLiteral("4"));
        width->setText(QStringLiteral("12.5"));
        for (auto* button : dialog.findChildren<QRadioButton*>()) {
            if (button->accessibleName().startsWith(QStringLiteral("Two by two"))) {
                button->click();
            }
        }
        QVERIFY(driver.accepted());
        PageAtrType expected = page;
        expected.header = "Sp\u00e9ctra";
        expected.footer.clear();
        expected.rightMargin = 1.25;
        expected.innerMargin = 0.0;
        expected.fontScale = 4.5;
        expected.printLeftBottom = 0;
        expected.rightBottom = {4.0, 12.5};
        expected.layout = 0;
        QCOMPARE(dialog.values(), expected);
    }

    void sizesFollowTheirBoxAtOnce() {
        PageAtrType page;
        page.printLeftTop = 0;
        CPageDlg dialog(page, kA4);
        DialogDriver driver(dialog);
        const auto [height, width] = sizesOf(driver, "le&ft-top:");
        QVERIFY(!height->isEnabled() && !width->isEnabled());
        height->setText(QStringLiteral("tall"));
        QVERIFY(driver.accepted());
        driver.click("le&ft-top:");
        QVERIFY(height->isEnabled() && width->isEnabled());
        REFUSED(driver, "Please enter a number.");
        height->setText(QStringLiteral("0"));
        REFUSED(driver, "The height of the left-top pane must be above 0 and at most 1000 cm.");
        QCOMPARE(dialog.focusWidget(), height);
        driver.click("le&ft-top:");
        QVERIFY(!height->isEnabled() && driver.accepted());
    }

    void refusesAPageThatNoPaperTakes() {
        CPageDlg dialog(PageAtrType{}, kA4);
        DialogDriver driver(dialog);
        driver.type("&Top:", "-1");
        REFUSED(driver, "The top margin must lie between 0 and 1000 cm.");
        QCOMPARE(dialog.focusWidget(), driver.field("&Top:"));
        driver.type("&Top:", "2");
        for (const char* pane : {"le&ft-top:", "left-b&ottom:", "right-to&p:", "r&ight-bottom:"}) {
            driver.click(pane);
        }
        REFUSED(driver, "No pane is ticked: there is nothing to print.");
        QCOMPARE(dialog.values(), PageAtrType{});
    }

    void sketchTurnsRedWherePanesDoNotFit() {
        CPageDlg dialog(PageAtrType{}, kA4);
        DialogDriver driver(dialog);
        auto& sketch = const_cast<PageSketch&>(dialog.sketch());
        QVERIFY(driver.shows("The panes fit between the margins."));
        QCOMPARE(redPixels(sketch), 0);
        sizesOf(driver, "r&ight-bottom:").first->setText(QStringLiteral("10"));
        QVERIFY(driver.shows("The panes do not fit: all are reduced to 88 %."));
        const int one = redPixels(sketch);
        QVERIFY(one > 100);
        sizesOf(driver, "le&ft-top:").second->setText(QStringLiteral("20"));
        QVERIFY(redPixels(sketch) > one);
        driver.type("&Left:", "30");
        QVERIFY(sketch.text().startsWith(QStringLiteral("The margins leave no room for the panes")));
        driver.type("&Left:", "x");
        QVERIFY(driver.shows("A field does not hold a number."));
        driver.type("&Left:", "2.5");
        dialog.setPaperPicker([](QWidget*) { return PaperSize{29.7, 42.0}; });
        driver.click("P&aper...");
        QVERIFY(driver.shows("The panes fit between the margins."));
        QCOMPARE(redPixels(sketch), 0);
    }
};

QTEST_MAIN(DialogsPage)
#include "DialogsPageTest.moc"
