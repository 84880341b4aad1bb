#include <QMouseEvent>
#include <QPainter>
#include <QTest>
#include <cmath>

#include "FrameDriver.h"

using namespace vorlan;

// Runs on a screen with one device pixel per logical pixel and on one with two.

namespace {

/// A window that shows the spectra of a simulated record.
class SpectralDriver : public FrameDriver {
  public:
    SpectralDriver() {
        frame->resize(1200, 800);  // whatever the screen
        simulate();
        SpectralDialogValues settings;
        settings.truncationMode = 1;
        settings.lags = 200;
        settings.percentFlag = false;
        document().SpectralAnalysis(settings);
        grabAll();
    }

    CVorl_ADVView& view(Pane pane) { return frame->panes().view(pane); }
    QImage pixels(Pane pane) { return view(pane).grab().toImage(); }
    void grabAll() {
        for (CVorl_ADVView* each : frame->panes().views()) {
            each->grab();
        }
    }

    CVorl_ADVView& begin(Command command, Pane pane) {
        document().SelectActivePane(pane);
        trigger(command);
        return view(pane);
    }

    double result(std::size_t index) { return document().Probe().resultBlock[index]; }
};

/// Without the cursor itself, which does not leave a small screen.
void moveMouse(QWidget& widget, QPoint to, Qt::MouseButtons held = {}) {
    QMouseEvent event(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, held, {});
    QApplication::sendEvent(&widget, &event);
}

}  // namespace

class FrameTools : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theLineIsThatOfTheFormula_data() {
        QTest::addColumn<int>("pane");
        QTest::addColumn<int>("scale");
        for (const int scale : {0, 1, 2, 3}) {
            for (const Pane pane : {Pane::LeftBottom, Pane::RightTop}) {
                QTest::addRow("scale %d, pane %d", scale, static_cast<int>(pane)) << static_cast<int>(pane) << scale;
            }
        }
    }
    void theLineIsThatOfTheFormula() {
        QFETCH(int, pane);
        QFETCH(int, scale);
        const auto where = static_cast<Pane>(pane);
        const bool spectrum = where == Pane::LeftBottom;
        SpectralDriver driver;
        FrameAttributesType frame = std::get<Diagram>(driver.content(where)).frame;
        frame.scaleType = scale;
        driver.document().SetFrame(3, pane, frame);
        driver.document().SelectActivePane(where);
        const QImage before = driver.pixels(where);
        CVorl_ADVView& view = driver.begin(Command::ExtractDissipationRate, where);
        const CScreenUtils g = view.geometry().value();

        // The first move only takes the line up; the second one moves it, once beyond the right edge.
        const QPoint anchor(g.originX + g.width / 3, g.originY - g.height / 2);
        moveMouse(view, QPoint(30, 30));
        const QPoint step(scale == 3 ? view.width() - 50 - anchor.x() : 11, -5);
        moveMouse(view, QPoint(30, 30) + step);
        const QPoint moved = anchor + step;
        const DissipationReading reading{spectrum ? DissipationSource::Spectrum : DissipationSource::Structure,
                                         g.xValue(moved.x()), g.yValue(moved.y())};
        const double rate = dissipationRate(reading, 0, *driver.document().AveragedVelocity());
        const QString text = spectrum ? QString::asprintf("Frequency = %f  Spectral dencity = %f  Dissipation rate %f",
                                                          reading.x, reading.y, rate)
                                      : QString::asprintf("Lag time = %f  Structure = %f  Dissipation rate %f",
                                                          reading.x, reading.y, rate);
        QVERIFY2(driver.status().startsWith(text), qPrintable(driver.status()));
        QVERIFY(driver.status().contains(QLatin1String("Slope Ux ")));

        // The pane stays as fine as the screen; the line has logical pixels. A line of structure functions may leave a
        // pixel of its earlier places.
        QImage expected = before;
        expected.setDevicePixelRatio(1.0);
        const int ratio = static_cast<int>(view.devicePixelRatioF());
        const QRect inside = view.rect().adjusted(2, 2, -2, -2);
        for (const QPoint& place : {anchor, moved}) {
            const double y = g.yValue(place.y());
            const auto rowOf = [&](int column, double p) {
                return g.yPixel(y * std::pow(g.xValue(column) / g.xValue(place.x()), p));
            };
            for (int column = place.x(); column < place.x() + 99; ++column) {
                const double drawn = spectrum ? -1.66666 : 0.66666666;
                const double saved = spectrum ? -1.66666 : 0.66666;
                const QPoint at(column, rowOf(column, drawn));
                if (inside.contains(at) && (place == moved || at.y() != rowOf(column, saved))) {
                    QPainter(&expected).fillRect(QRect(at * ratio, QSize(ratio, ratio)), Qt::black);
                }
            }
        }
        QImage shown = driver.pixels(where);
        shown.setDevicePixelRatio(1.0);
        QVERIFY(shown == expected);

        QTest::mouseClick(&view, Qt::RightButton);
        QCoreApplication::processEvents();
        QCOMPARE(driver.boxes.questions,
                 QStringList(QString::asprintf("Accept the dissipation rate value = %f ?", rate)));
        QCOMPARE(driver.result(0), rate);
        QVERIFY(driver.document().IsModified());
        const QLatin1String slope(!spectrum ? "from 2/3)" : scale == 3 ? "Ux -, Uy -" : "from -5/3)");
        QVERIFY2(driver.status().contains(slope), qPrintable(driver.status()));
        QVERIFY(view.tool() == nullptr);
        QVERIFY(driver.pixels(where) == before);
    }

    void everyEndLeavesThePaneAsItWas_data() {
        QTest::addColumn<int>("command");
        QTest::addColumn<int>("pane");
        QTest::newRow("line") << static_cast<int>(Command::ExtractDissipationRate) << 1;
        QTest::newRow("scales") << static_cast<int>(Command::ExtractScales) << 0;
        QTest::newRow("triangle") << static_cast<int>(Command::TriangleStructure) << 2;
    }
    void everyEndLeavesThePaneAsItWas() {
        QFETCH(int, command);
        QFETCH(int, pane);
        const auto where = static_cast<Pane>(pane);
        SpectralDriver driver;
        driver.document().SelectActivePane(where);
        CVorl_ADVView& view = driver.view(where);
        QImage before = driver.pixels(where);
        const auto begin = [&] {
            driver.trigger(static_cast<Command>(command));
            QTest::keyClick(&view, Qt::Key_Right, Qt::ControlModifier);
            QVERIFY(view.tool() != nullptr);
            QVERIFY(driver.pixels(where) != before);
            QCOMPARE(view.cursor().shape(), Qt::CrossCursor);
        };
        const auto ended = [&] {
            QCoreApplication::processEvents();
            QVERIFY(view.tool() == nullptr);
            const bool asked = !driver.boxes.questions.isEmpty();
            QCOMPARE(driver.status(),
                     asked ? QStringLiteral("Cancelled: the record is as it was") : QStringLiteral("Ready"));
            QCOMPARE(view.cursor().shape(), Qt::ArrowCursor);
            driver.document().SelectActivePane(where);
            QVERIFY(driver.pixels(where) == before);
        };
        begin();
        QTest::keyClick(&view, Qt::Key_Escape);
        ended();
        begin();
        driver.document().SelectStage(0);
        driver.document().SelectStage(1);
        ended();
        begin();
        driver.document().SelectProbe(0);
        ended();
        begin();
        driver.document().SelectActivePane(Pane::RightBottom);
        ended();
        begin();
        const QSize size = driver.frame->size();
        driver.frame->resize(size + QSize(40, 30));
        QVERIFY(view.tool() == nullptr);
        driver.frame->resize(size);
        driver.grabAll();
        QCOMPARE(driver.status(), QStringLiteral("Ready"));
        before = driver.pixels(where);
        begin();
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(50, 50), view.mapToGlobal(QPoint(50, 50)));
        QApplication::sendEvent(&view, &menu);
        driver.boxes.confirmAnswer = false;
        QTest::mouseClick(&view, Qt::RightButton);
        ended();
        QVERIFY(driver.document().Probe().resultBlock == decltype(SAdvProbe::resultBlock){});
    }

    void scalesAreDraggedOrTyped() {
        SpectralDriver driver;
        for (const Pane pane : {Pane::LeftTop, Pane::LeftBottom}) {
            const std::size_t first = pane == Pane::LeftTop ? 1 : 4;
            driver.boxes.questions.clear();
            CVorl_ADVView& view = driver.begin(Command::ExtractScales, pane);
            const CScreenUtils g = view.geometry().value();
            const QPoint from(g.originX + g.width * 2 / 3, g.originY - 20);
            const QPoint to(g.originX - 15, g.originY - 70);
            QTest::mousePress(&view, Qt::LeftButton, {}, from);
            moveMouse(view, to, Qt::LeftButton);
            QVERIFY2(driver.status().startsWith(pane == Pane::LeftTop ? QLatin1String("Lag time: left = ")
                                                                      : QLatin1String("Frequency: left = ")),
                     qPrintable(driver.status()));
            QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
            QCoreApplication::processEvents();
            SAdvProbe copy = driver.document().Probe();
            const ScalesSource source = pane == Pane::LeftTop ? ScalesSource::Correlation : ScalesSource::Spectrum;
            const auto values =
                integratedScales(source, copy, indexRange({source, g.xValue(to.x()), g.xValue(from.x())}, copy));
            QVERIFY(values[0] != 0.0);
            for (std::size_t c = 0; c < 3; ++c) {
                QCOMPARE(driver.result(first + c), values[c]);
            }
            QCOMPARE(driver.boxes.questions.size(), 1);
            QVERIFY(view.tool() == nullptr);

            // A range without an index is an error on spectra; the tool stays for the next one.
            driver.begin(Command::ExtractScales, pane);
            QTest::mouseClick(&view, Qt::LeftButton, {}, from);
            QCoreApplication::processEvents();
            QCOMPARE(driver.boxes.refusals.size(), pane == Pane::LeftTop ? 0 : 1);
            QVERIFY(view.tool() != nullptr);
            QTest::keyClick(&view, Qt::Key_Right);
            QTest::keyClick(&view, Qt::Key_Right, Qt::ShiftModifier);
            QTest::keyClick(&view, Qt::Key_Return);
            QCoreApplication::processEvents();
            const auto typed = integratedScales(
                source, copy,
                indexRange({source, g.xValue(g.originX + 1), g.xValue(g.originX + g.width / 3 + 1)}, copy));
            QCOMPARE(driver.result(first), typed[0]);
        }
        QVERIFY(driver.boxes.refusals.first().startsWith(QLatin1String("Wrong limits for integration ")));
    }

    void theTriangleStoresNothing() {
        SpectralDriver driver;
        CVorl_ADVView& view = driver.begin(Command::TriangleSpectrum, Pane::LeftBottom);
        const CScreenUtils g = view.geometry().value();
        const QPoint from(g.originX + 80, g.originY - 90);
        QTest::mousePress(&view, Qt::LeftButton, {}, from);
        moveMouse(view, from + QPoint(60, 5), Qt::LeftButton);
        QTest::mouseRelease(&view, Qt::LeftButton, {}, from + QPoint(60, 5));
        const auto& triangles = std::get<Diagram>(view.content()).triangles;
        QCOMPARE(triangles.size(), std::size_t{1});
        QCOMPARE(triangles[0].from, g.xValue(from.x()));
        QCOMPARE(triangles[0].to, g.xValue(from.x() + 60));
        QCOMPARE(triangles[0].y, g.yValue(from.y()));
        QCOMPARE(triangles[0].exponent, -5.0 / 3.0);
        QVERIFY(driver.status().startsWith(QString::asprintf("Frequency = %f  Spectral dencity = %f  Dissipation rate ",
                                                             triangles[0].from, triangles[0].y)));
        QVERIFY(driver.document().Probe().resultBlock == decltype(SAdvProbe::resultBlock){});
        QVERIFY(driver.boxes.questions.isEmpty());
    }

    void commandsBelongToTheirPanes() {
        SpectralDriver driver;
        constexpr Command commands[] = {Command::ExtractDissipationRate, Command::ExtractScales,
                                        Command::TriangleSpectrum, Command::TriangleStructure};
        constexpr bool expected[kPaneCount][4] = {
            {false, true, false, false}, {true, true, true, false}, {true, false, false, true}, {}};
        for (int pane = 0; pane < kPaneCount; ++pane) {
            driver.document().SelectActivePane(static_cast<Pane>(pane));
            for (int c = 0; c < 4; ++c) {
                QCOMPARE(driver.enabled(commands[c]), expected[pane][c]);
            }
        }
        driver.document().SelectActivePane(Pane::LeftBottom);
        driver.document().SelectStage(0);
        QVERIFY(!driver.enabled(Command::ExtractDissipationRate));
    }
};

QTEST_MAIN(FrameTools)
#include "FrameToolsTest.moc"
