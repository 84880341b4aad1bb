// What every parameter dialog has in common.
#include <QDialogButtonBox>
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
#include "ui/dialogs/CFigureDlg.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CImportDlg.h"
#include "ui/dialogs/CMeanVelDlg.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/CQuadrDlg.h"
#include "ui/dialogs/CRecipeDlg.h"
#include "ui/dialogs/CSimulateDlg.h"
#include "ui/dialogs/CSpAnalDlg.h"
#include "ui/dialogs/CStatDlg.h"
#include "ui/dialogs/CVectorsDlg.h"
#include "ui/dialogs/SAddDlg.h"

using namespace vorlan;

Q_DECLARE_METATYPE(MakeDialog)

class DialogsHabits : public QObject {
    Q_OBJECT

    template <class... Values>
    static QString joined(Values... values) {
        return QStringList{QString::number(static_cast<double>(values))...}.join(u' ');
    }

    /// The settings that are told field by field.
    template <class Dialog>
    static QString fieldsOf(const Dialog& dialog) {
        using Settings = std::remove_cvref_t<decltype(dialog.values())>;
        QStringList values;
        Settings::Fields(dialog.values(), [&](const SettingField&, const auto& value) { values << joined(value); });
        return values.join(u' ');
    }

    struct Row {
        const char* name;
        MakeDialog make;
        ValuesOf values;
    };

    /// A dialog and the text of the values that it hands back.
    template <class Dialog, class... Arguments>
    static Row row(const char* name, const std::function<QString(const Dialog&)>& values, Arguments... arguments) {
        return {name, [=] { return std::make_unique<Dialog>(arguments...); },
                [=](const CParameterDialog& dialog) { return values(static_cast<const Dialog&>(dialog)); }};
    }

    static std::vector<Row> dialogs() {
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
        const std::function editing = [](const CEditTSDlg& d) {
            const EditingSettings& v = d.values();
            QString text;
            for (const ScoreTest& test : {v.correlation, v.signalToNoise}) {
                text +=
                    joined(test.on, test.statistic, test.averageThreshold, test.minimumThreshold) + QLatin1String(", ");
            }
            return text +
                   joined(v.spikeFilter, v.accelerationThreshold, v.velocityTest, v.velocityThreshold, v.treatment);
        };
        const std::function velocity = [](const CMeanVelDlg& d) { return joined(d.values().mode, d.values().value); };
        const std::function spectral = [](const CSpAnalDlg& d) {
            return fieldsOf(d) + u' ' + joined(d.values().percentFlag);
        };
        const std::function coordinates = [](const CCoordSysDlg& d) {
            const RotationSettings& v = d.values();
            return joined(v.heading, v.pitch, v.roll, v.position[0], v.position[1], v.position[2]);
        };
        const std::function exports = [](const CExportDlg& d) {
            return joined(d.values().header, d.values().time, d.values().separator);
        };
        const std::function simulation = [](const CSimulateDlg& d) {
            const SimulationParameters& v = d.values();
            QString text = QString::fromStdString(v.fileName) + u' ' +
                           joined(v.samplingInterval, v.length, v.correlation, v.signalToNoise, v.compass, v.heading,
                                  v.pitch, v.roll, v.whiteNoise, v.harmonicCount);
            for (const auto& c : v.components) {
                text += QLatin1String(", ") + joined(c.meanVelocity, c.noiseMean, c.noiseVariance);
                for (const Harmonic& h : c.harmonics) {
                    text += QLatin1String(": ") + joined(h.amplitude, h.period, h.phase);
                }
            }
            return text;
        };
        const std::function plot = [](const CPlotOptDlg& d) {
            const FrameAttributesType& v = d.values();
            return joined(v.xMin, v.xMax, v.yMin, v.yMax, v.xMinMode, v.xMaxMode, v.yMinMode, v.yMaxMode, v.scaleType,
                          v.frameStyle, v.xStep, v.yStep, v.xStepMode, v.yStepMode, v.tickSize, v.markSize,
                          v.ticksPerMark, v.tickOrientation, v.xDigits, v.yDigits, v.gridMode, v.gridLineStyle,
                          v.legendPosition) +
                   QString::fromStdString("|" + v.plotTitle + "|" + v.xTitle + "|" + v.yTitle + "|" + v.legendTitle);
        };
        const std::function figure = [](const CFigureDlg& d) {
            return joined(d.values().scope, d.values().format, d.values().size.width, d.values().size.height,
                          d.values().dpi);
        };
        ImportOffer offer;
        offer.import.tables = {"a.csv", "b.csv"};
        offer.text = "time,u,v,w\n0,1,2,3\n0.5,4,5,6\n";
        offer.roles = guessRoles(previewTable(offer.text));
        const std::function import = [](const CImportDlg& d) {
            const TableImport& v = d.values();
            return QString::fromStdString(v.table.columns.value_or("none") + " " + v.name.value_or("none") + " ") +
                   joined(v.table.timeColumn.value_or(99), v.table.velocityUnit, v.table.missing,
                          v.settings.samplingInterval, v.settings.resolution, v.asProbes);
        };
        const RecipeSummary recipe{
            QStringLiteral("day.toml"), {QStringLiteral("1. clip")}, QStringLiteral("all files, probes 1")};
        return {
            row("coordinates", coordinates, rotation, QStringLiteral("Probe")),
            row("editing", editing, EditingSettings{}),
            row("editing by minima", editing, minima),
            row("export", exports),
            row<CExportScopeDlg>("scope", [](const CExportScopeDlg& d) { return joined(d.allProbes()); }),
            row("figure", figure, FigureChoice{}),
            row("filter", std::function(fieldsOf<CFilterDlg>), FilterSettings{}),
            row("bell filter", std::function(fieldsOf<CFilterDlg>), bell),
            row("Gaussian filter", std::function(fieldsOf<CFilterDlg>), gaussian),
            row("histogram", std::function(fieldsOf<CHistDlg>), HistogramSettings{}),
            row("import", import, offer),
            row("mean velocity", velocity, MeanVelocitySettings{}, std::optional(12.5)),
            row("user's mean velocity", velocity, MeanVelocitySettings{MeanVelocityMode::User, 10.0},
                std::optional<double>()),
            row("plot options", plot, logarithmic, std::span<const ScaleType>(kScales)),
            row("quadrants", std::function(fieldsOf<CQuadrDlg>), QuadrantSettings{}),
            row<CRecipeDlg>(
                "recipe", [](const CRecipeDlg& d) { return joined(d.values()); }, recipe),
            row("simulate", simulation, harmonics),
            row("spectral", spectral, SpectralSettings{}),
            row("spectral by lags", spectral, lags),
            row("stationarity", std::function(fieldsOf<CStatDlg>), StationaritySettings{}),
            row("vectors", std::function(fieldsOf<CVectorsDlg>), VectorSettings{}),
            row<SAddDlg>("node", [](const SAddDlg& d) { return joined(d.values()[0], d.values()[1], d.values()[2]); }),
        };
    }

    static void everyDialog() {
        QTest::addColumn<MakeDialog>("make");
        for (const Row& row : dialogs()) {
            QTest::newRow(row.name) << row.make;
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
        for (const Row& row : dialogs()) {
            all += QLatin1String("[") + QLatin1String(row.name) + QLatin1String("]\n") +
                   dialogText(row.make, row.values) + u'\n';
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

    void fieldsAreExplainedAndVisitedInReadingOrder_data() { everyDialog(); }
    void fieldsAreExplainedAndVisitedInReadingOrder() {
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
        QCOMPARE(unexplained(*dialog), QStringList());
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
#include "DialogsHabitsTest.moc"
