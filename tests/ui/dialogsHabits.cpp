// What every parameter dialog has in common.
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTimer>
#include <functional>
#include <memory>

#include "ui/DialogDriver.h"
#include "ui/dialogs/CCoordSysDlg.h"
#include "ui/dialogs/CEditTSDlg.h"
#include "ui/dialogs/CExportDlg.h"
#include "ui/dialogs/CExportScopeDlg.h"
#include "ui/dialogs/CFilterDlg.h"
#include "ui/dialogs/CHistDlg.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/CQuadrDlg.h"
#include "ui/dialogs/CSimulateDlg.h"
#include "ui/dialogs/CSpAnalDlg.h"
#include "ui/dialogs/CStatDlg.h"

using namespace vorlan;

using MakeDialog = std::function<std::unique_ptr<CParameterDialog>()>;
Q_DECLARE_METATYPE(MakeDialog)

class DialogsHabits : public QObject {
    Q_OBJECT

    static void everyDialog() {
        QTest::addColumn<MakeDialog>("make");
        const auto row = [](const char* name, MakeDialog make) { QTest::newRow(name) << make; };
        row("coordinates", [] { return std::make_unique<CCoordSysDlg>(RotationSettings{}, QStringLiteral("Probe")); });
        row("editing", [] { return std::make_unique<CEditTSDlg>(EditingSettings{}); });
        row("export", [] { return std::make_unique<CExportDlg>(); });
        row("scope", [] { return std::make_unique<CExportScopeDlg>(); });
        row("filter", [] { return std::make_unique<CFilterDlg>(FilterSettings{}); });
        row("histogram", [] { return std::make_unique<CHistDlg>(HistogramSettings{}); });
        row("plot options", [] {
            static constexpr std::array<ScaleType, 1> kLinear{ScaleType::Linear};
            return std::make_unique<CPlotOptDlg>(FrameAttributesType{}, kLinear);
        });
        row("quadrants", [] { return std::make_unique<CQuadrDlg>(QuadrantSettings{}); });
        row("simulate", [] { return std::make_unique<CSimulateDlg>(SimulationParameters{}); });
        row("spectral", [] { return std::make_unique<CSpAnalDlg>(SpectralSettings{}); });
        row("stationarity", [] { return std::make_unique<CStatDlg>(StationaritySettings{}); });
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
