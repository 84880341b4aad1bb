// What every parameter dialog has in common.
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTimer>

#include "Approved.h"
#include "ui/DialogText.h"
#include "ui/dialogs/CCoordSysDlg.h"
#include "ui/dialogs/CEditTSDlg.h"
#include "ui/dialogs/CExportDlg.h"
#include "ui/dialogs/CExportScopeDlg.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CMeanVelDlg.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/CQuadrDlg.h"
#include "ui/dialogs/CSimulateDlg.h"
#include "ui/dialogs/CSpAnalDlg.h"
#include "ui/dialogs/CStatDlg.h"

using namespace vorlan;

Q_DECLARE_METATYPE(MakeDialog)

class DialogsHabits : public QObject {
    Q_OBJECT

    static std::vector<std::pair<const char*, MakeDialog>> dialogs() {
        static constexpr std::array<ScaleType, 4> kScales{ScaleType::Linear, ScaleType::Logarithmic,
                                                          ScaleType::LogXLinearY, ScaleType::LinearXLogY};
        RotationSettings rotation;
        rotation.position = {1234567.0 * 0.001, 0.1, 0.0};
        EditingSettings minima;
        minima.correlation.statistic = minima.signalToNoise.statistic = ScoreStatistic::Minimum;
        FilterSettings bell{FilterShape::Bell, FilterType::BandCut, 10.0, 2.75};
        FilterSettings gaussian{FilterShape::Gaussian, FilterType::LowPass, 10.0, 10.0};
        SpectralSettings lags;
        lags.truncationMode = 1;
        lags.percent = 0;
        SimulationParameters harmonics;
        harmonics.harmonicCount = 2;
        for (auto& component : harmonics.components) {
            component.harmonics.resize(2);
        }
        FrameAttributesType logarithmic;
        logarithmic.scaleType = static_cast<std::int32_t>(ScaleType::LogXLinearY);
        logarithmic.xMinMode = logarithmic.xMaxMode = 1;
        return {
            {"coordinates", [=] { return std::make_unique<CCoordSysDlg>(rotation, QStringLiteral("Probe")); }},
            {"editing", [] { return std::make_unique<CEditTSDlg>(EditingSettings{}); }},
            {"editing by minima", [=] { return std::make_unique<CEditTSDlg>(minima); }},
            {"export", [] { return std::make_unique<CExportDlg>(); }},
            {"scope", [] { return std::make_unique<CExportScopeDlg>(); }},
            {"filter", [] { return std::make_unique<CFilterDlg>(FilterSettings{}); }},
            {"bell filter", [=] { return std::make_unique<CFilterDlg>(bell); }},
            {"Gaussian filter", [=] { return std::make_unique<CFilterDlg>(gaussian); }},
            {"histogram", [] { return std::make_unique<CHistDlg>(HistogramSettings{}); }},
            {"mean velocity", [] { return std::make_unique<CMeanVelDlg>(MeanVelocitySettings{}, 12.5); }},
            {"user's mean velocity",
             [] {
                 return std::make_unique<CMeanVelDlg>(MeanVelocitySettings{1, 10.0}, std::nullopt);
             }},
            {"plot options", [=] { return std::make_unique<CPlotOptDlg>(logarithmic, kScales); }},
            {"quadrants", [] { return std::make_unique<CQuadrDlg>(QuadrantSettings{}); }},
            {"simulate", [=] { return std::make_unique<CSimulateDlg>(harmonics); }},
            {"spectral", [] { return std::make_unique<CSpAnalDlg>(SpectralSettings{}); }},
            {"spectral by lags", [=] { return std::make_unique<CSpAnalDlg>(lags); }},
            {"stationarity", [] { return std::make_unique<CStatDlg>(StationaritySettings{}); }},
        };
    }

    static void everyDialog() {
        QTest::addColumn<MakeDialog>("make");
        for (const auto& [name, make] : dialogs()) {
            QTest::newRow(name) << make;
        }
    }

    static QList<QWidget*> tabStops(QWidget* dialog) {
        QList<QWidget*> stops;
        for (QWidget* next = dialog->nextInFocusChain(); next != dialog; next = next->nextInFocusChain()) {
            if ((next->focusPolicy() & Qt::TabFocus) != 0 && next->isVisible()) {
                stops << next;
            }
        }
        return stops;
    }

  private Q_SLOTS:
    void holdTheApprovedControls() {
        QString all;
        for (const auto& [name, make] : dialogs()) {
            all += QLatin1String("[") + QLatin1String(name) + QLatin1String("]\n") + dialogText(make) + u'\n';
        }
        const std::string change = test::changeOfApproved("dialogs", all.toStdString());
        QVERIFY2(change.empty(), change.c_str());
    }

    void returnAcceptsAndEscapeRejects_data() { everyDialog(); }
    void returnAcceptsAndEscapeRejects() {
        QFETCH(MakeDialog, make);
        const std::unique_ptr<CParameterDialog> dialog = make();
        const DialogDriver driver(*dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QCOMPARE(dialog->result(), static_cast<int>(QDialog::Accepted));
        QVERIFY(!dialog->isVisible());
        dialog->show();
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
        QCOMPARE(dialog->result(), static_cast<int>(QDialog::Rejected));
        QVERIFY(!dialog->isVisible());
    }

    void fieldsAreVisitedInReadingOrder_data() { everyDialog(); }
    void fieldsAreVisitedInReadingOrder() {
        QFETCH(MakeDialog, make);
        const std::unique_ptr<CParameterDialog> dialog = make();
        const DialogDriver driver(*dialog);
        const QList<QWidget*> stops = tabStops(dialog.get());
        QVERIFY(stops.size() >= 3);
        QVERIFY(stops.contains(dialog->focusWidget()));
        QCOMPARE(qobject_cast<QPushButton*>(stops.last())->text(), QStringLiteral("Cancel"));
        // The first field has the focus; of a group of radio buttons, the chosen one.
        if (qobject_cast<QRadioButton*>(stops.first()) == nullptr) {
            QCOMPARE(dialog->focusWidget(), stops.first());
        }
        // The next field is right of this one or below it, unless a new column starts.
        for (qsizetype i = 1; i < stops.size(); ++i) {
            const QRect here(stops[i - 1]->mapTo(dialog.get(), QPoint()), stops[i - 1]->size());
            const QRect next(stops[i]->mapTo(dialog.get(), QPoint()), stops[i]->size());
            const bool onward = next.top() > here.center().y() || next.left() >= here.right();
            QVERIFY2(onward, qPrintable(stops[i]->property("text").toString()));
        }
    }

    void nothingIsClipped_data() { everyDialog(); }
    void nothingIsClipped() {
        QFETCH(MakeDialog, make);
        const std::unique_ptr<CParameterDialog> dialog = make();
        const DialogDriver driver(*dialog);
        for (QWidget* widget : dialog->findChildren<QWidget*>()) {
            const bool hasText =
                qobject_cast<QLabel*>(widget) != nullptr ||
                (qobject_cast<QAbstractButton*>(widget) != nullptr && qobject_cast<QToolButton*>(widget) == nullptr);
            if (hasText && widget->isVisible()) {
                const QString text = widget->property("text").toString();
                QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), qPrintable(text));
                QVERIFY2(widget->height() >= widget->minimumSizeHint().height(), qPrintable(text));
                const QRect inDialog(widget->mapTo(dialog.get(), QPoint()), widget->size());
                QVERIFY2(dialog->rect().contains(inDialog), qPrintable(text));
            }
        }
    }

    void theMessageBoxIsThePlatformsWithTheProgramsName() {
        QString caption;
        QMessageBox::StandardButtons buttons;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                caption = box->windowTitle();
                buttons = box->standardButtons();
                box->reject();
            }
        });
        showDialogMessage(nullptr, {QMessageBox::Critical, QStringLiteral("Wrong")});
        QCOMPARE(caption, QStringLiteral("Vorlan"));
        QCOMPARE(buttons, QMessageBox::Ok | QMessageBox::Cancel);
    }
};

QTEST_MAIN(DialogsHabits)
#include "dialogsHabits.moc"
