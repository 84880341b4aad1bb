#include <QTest>

#include "FrameDriver.h"

using namespace vorlan;

namespace {

// Where a fraction of the plot area's width lies in the pane, in the middle of its height.
QPoint inPlot(CVorl_ADVView& view, double fraction) {
    const CScreenUtils& g = view.geometry().value();
    return {g.originX + static_cast<int>(fraction * g.width), g.originY - g.height / 2};
}

QImage onScreen(const CVorl_ADVView& view) {
    const QRect place(view.mapTo(view.window(), QPoint(0, 0)), view.size());
    return view.screen()
        ->grabWindow(view.window()->winId(), place.x(), place.y(), place.width(), place.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

}  // namespace

class FrameMouse : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void clickingAPaneMakesItTheActiveView() {
        FrameDriver driver;
        driver.simulate();
        CVorl_ADVView& view = driver.frame->panes().view(Pane::RightTop);
        QTest::mouseClick(&view, Qt::LeftButton);
        QCOMPARE(driver.document().ActivePane(), Pane::RightTop);
        QVERIFY(view.isActive());
        QVERIFY(!driver.frame->panes().view(Pane::LeftTop).isActive());
        QCOMPARE(driver.frame->findChild<QComboBox*>(QStringLiteral("Active view"))->currentText(),
                 QStringLiteral("Right top"));
        QTest::keyClick(driver.frame.get(), Qt::Key_F6);
        QCOMPARE(driver.document().ActivePane(), Pane::RightBottom);
    }

    void theStatusBarReadsTheValueUnderTheCursor() {
        FrameDriver driver;
        driver.simulate();
        CVorl_ADVView& view = driver.frame->panes().view(Pane::LeftTop);
        view.grab();
        const QPoint middle = inPlot(view, 0.5);
        QTest::mouseMove(&view, middle);
        const double time = view.geometry()->xValue(middle.x());
        QVERIFY2(driver.status().startsWith(QStringLiteral("Time: %1 s   Velocity: ").arg(time, 0, 'f', 2)),
                 qPrintable(driver.status()));
        QVERIFY(driver.status().endsWith(QLatin1String(" cm/s")));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&view, &leave);
        QCOMPARE(driver.status(), QStringLiteral("Ready"));
    }

    void draggingClipsOnlyInZoomMode() {
        FrameDriver driver;
        driver.simulate();
        CVorl_ADVView& view = driver.frame->panes().view(Pane::LeftTop);
        const auto drag = [&](double from, double to) {
            view.grab();
            QTest::mousePress(&view, Qt::LeftButton, {}, inPlot(view, from));
            QTest::mouseMove(&view, inPlot(view, (from + to) / 2));
            const QString during = driver.status();
            QCoreApplication::processEvents();  // the rubber band is on the screen
            QTest::mouseRelease(&view, Qt::LeftButton, {}, inPlot(view, to));
            return during;
        };
        drag(0.2, 0.6);
        QCOMPARE(driver.document().Probe().WorkingSamples(), 1000);

        driver.trigger(Command::ZoomAndClipping);
        QVERIFY(driver.frame->actions().of(Command::ZoomAndClipping)->isChecked());
        view.grab();
        const CScreenUtils before = view.geometry().value();
        const int expected = static_cast<int>(before.xValue(inPlot(view, 0.6).x()) / 0.04) -
                             static_cast<int>(before.xValue(inPlot(view, 0.3).x()) / 0.04);
        const QString during = drag(0.6, 0.3);
        QVERIFY2(during.startsWith(QLatin1String("Time interval from: ")), qPrintable(during));
        QCOMPARE(driver.document().Probe().WorkingSamples(), expected);
        QCOMPARE(driver.document().Probe().frameAttributes[0].GetAt(0).plotTitle,
                 std::string("Sampled Velocities (Zoom)"));
        QTRY_COMPARE(onScreen(view), view.grab().toImage().convertToFormat(QImage::Format_RGB32));

        // A click is no clip; choosing zoom mode again keeps it.
        drag(0.5, 0.5);
        QCOMPARE(driver.document().Probe().WorkingSamples(), expected);
        driver.trigger(Command::ZoomAndClipping);
        QVERIFY(driver.frame->actions().of(Command::ZoomAndClipping)->isChecked());
        driver.trigger(Command::ResetTimeSeries);
        QVERIFY(!driver.frame->actions().of(Command::ZoomAndClipping)->isChecked());
        QCOMPARE(driver.document().Probe().WorkingSamples(), 1000);
    }

    void aDragEndsAtTheEdgeAndEscapeForgetsIt() {
        FrameDriver driver;
        driver.simulate();
        driver.trigger(Command::ZoomAndClipping);
        CVorl_ADVView& view = driver.frame->panes().view(Pane::LeftTop);
        view.grab();
        const CScreenUtils g = view.geometry().value();
        QTest::mousePress(&view, Qt::LeftButton, {}, inPlot(view, 0.5));
        QTest::mouseMove(&view, QPoint(g.originX + g.width + 500, g.originY));
        const QString end = QStringLiteral("to: %1 s").arg(g.xValue(g.originX + g.width), 0, 'f', 2);
        QVERIFY2(driver.status().endsWith(end), qPrintable(driver.status()));

        QTest::keyClick(&view, Qt::Key_Escape);
        QVERIFY2(driver.status().startsWith(QLatin1String("Drag over the time")), qPrintable(driver.status()));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, inPlot(view, 0.9));
        QCOMPARE(driver.document().Probe().WorkingSamples(), 1000);

        QTest::mousePress(&view, Qt::LeftButton, {}, inPlot(view, 0.5));
        QTest::mouseMove(&view, inPlot(view, 0.7));
        QTest::keyClick(&view, Qt::Key_Escape);
        QVERIFY2(driver.status().startsWith(QLatin1String("Time: ")), qPrintable(driver.status()));
        QTest::mouseRelease(&view, Qt::LeftButton, {}, inPlot(view, 0.7));
    }
};

QTEST_MAIN(FrameMouse)
#include "FrameMouseTest.moc"
