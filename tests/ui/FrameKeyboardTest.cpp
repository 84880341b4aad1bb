#include <QComboBox>
#include <QSplitter>
#include <QTabBar>
#include <QTest>
#include <QWindow>

#include "FrameDriver.h"

using namespace vorlan;

namespace {

// No desktop does it here once a dialog has closed.
void comeToTheFront(FrameDriver& driver) {
    driver.frame->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(driver.frame.get()));
}

// Shortcuts are told to the window as the platform tells them, not to a widget.
void press(FrameDriver& driver, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    comeToTheFront(driver);
    QTest::keyClick(driver.frame->windowHandle(), key, modifiers);
}

QComboBox* selector(FrameDriver& driver, const char* name) {
    return driver.frame->findChild<QComboBox*>(QString::fromUtf8(name));
}

}  // namespace

class FrameKeyboard : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void stagesAreSteppedThrough() {
        FrameDriver driver;
        driver.simulate();
        QVERIFY(driver.withDialog(Command::StationarityAnalysis, "Stationarity Analysis | Parameters"));
        QVERIFY(driver.withDialog(Command::SpectralAnalysis, "Spectral Analysis | Parameters"));
        QCOMPARE(driver.document().CurrentStage(), Stage::Spectral);
        press(driver, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(driver.document().CurrentStage(), Stage::PreProcessing);
        press(driver, Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(driver.document().CurrentStage(), Stage::Stationarity);
        press(driver, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(driver.document().CurrentStage(), Stage::PreProcessing);
    }

    void panesAreSteppedThroughClockwise() {
        FrameDriver driver;
        driver.simulate();
        for (const Pane pane : {Pane::RightTop, Pane::RightBottom, Pane::LeftBottom, Pane::LeftTop}) {
            press(driver, Qt::Key_F6);
            QCOMPARE(driver.document().ActivePane(), pane);
            QVERIFY(driver.frame->panes().view(pane).hasFocus());
        }
        press(driver, Qt::Key_F6, Qt::ShiftModifier);
        QCOMPARE(driver.document().ActivePane(), Pane::LeftBottom);
    }

    void aTimeIsClippedByTheKeys() {
        FrameDriver driver;
        driver.simulate();
        driver.document().SelectActivePane(Pane::RightBottom);
        driver.trigger(Command::ZoomAndClipping);
        CVorl_ADVView& view = driver.frame->panes().view(Pane::LeftTop);
        comeToTheFront(driver);
        QCOMPARE(QApplication::focusWidget(), &view);
        view.grab();
        const auto says = [&](const char* interval) {
            QCOMPARE(driver.status(), QStringLiteral("Time interval from: %1s").arg(QLatin1String(interval)));
        };
        QTest::keyClick(&view, Qt::Key_Return);
        QTest::keyClick(&view, Qt::Key_Left);
        says("0.00 s   to: 39.96 ");
        QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
        says("0.08 s   to: 39.96 ");
        QTest::keyClick(&view, Qt::Key_Escape);
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(driver.document().Probe().WorkingSamples(), 1000);
        QTest::keyClick(&view, Qt::Key_Home);
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(driver.document().Probe().WorkingSamples(), 1000);
        // Every sample is met, whatever rounding makes of its time.
        QTest::keyClick(&view, Qt::Key_Home);
        for (int i = 0; i < 37; ++i) {
            QTest::keyClick(&view, Qt::Key_Right);
        }
        QTest::keyClick(&view, Qt::Key_Return);
        QCOMPARE(driver.document().Probe().WorkingSamples(), 37);
        QCOMPARE(driver.status(), QStringLiteral("Kept 0.00 s to 1.48 s, 37 samples"));
    }

    void aRunKeepsTheFocusAndTheActiveView() {
        FrameDriver driver;
        driver.simulate();
        comeToTheFront(driver);
        QComboBox* panes = selector(driver, "Active view");
        panes->setFocus();
        QTest::keyClick(panes, Qt::Key_End);
        QCOMPARE(driver.document().ActivePane(), Pane::RightBottom);
        QVERIFY(driver.withDialog(Command::StationarityAnalysis, "Stationarity Analysis | Parameters"));
        comeToTheFront(driver);
        QVERIFY(panes->hasFocus());
        QCOMPARE(driver.document().ActivePane(), Pane::RightBottom);
    }

    void aNarrowWindowShowsEverySelector() {
        FrameDriver driver;
        driver.simulate();
        for (const QSplitter* borders : driver.frame->panes().findChildren<QSplitter*>()) {
            const_cast<QSplitter*>(borders)->setSizes({100, 900});
            QTest::mouseDClick(borders->handle(1), Qt::LeftButton);
            QVERIFY(std::abs(borders->sizes()[0] - borders->sizes()[1]) <= 1);
        }
        QCOMPARE(selector(driver, "Data files")->currentText(), QStringLiteral("test"));
        driver.frame->resize(780, 500);
        QCoreApplication::processEvents();
        QCOMPARE(driver.frame->width(), 780);
        for (const char* name : {"Data files", "Probes", "Physical values", "Active view"}) {
            const QComboBox* box = selector(driver, name);
            QVERIFY2(box->isVisible(), name);
            QVERIFY2(box->mapTo(driver.frame.get(), QPoint(box->width(), 0)).x() <= driver.frame->width(), name);
        }
    }
};

QTEST_MAIN(FrameKeyboard)
#include "FrameKeyboardTest.moc"
