#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include "io/TempFolder.h"
#include "ui/DialogText.h"
#include "ui/FrameDriver.h"
#include "ui/dialogs/CVectorsDlg.h"
#include "ui/dialogs/NumberFields.h"

using namespace vorlan;

class DialogsGrid : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    // What a user does by keys alone: a boundary with two nodes, a probe that is placed, the editor left while typing.
    void editorWorksByKeys() {
        FrameDriver driver;
        driver.simulate();
        driver.boxes.boundaryPath = driver.path("bed.bnd");
        inEditor(driver, [&](QDialog& editor) {
            const auto* list = editor.findChild<QComboBox*>();
            auto* node = editor.findChild<QSpinBox*>();
            QVERIFY(!list->isEnabled() && !node->isEnabled() && !button(editor, "Close")->isEnabled());
            press(editor, "New");
            QCOMPARE(status(editor), QStringLiteral("Total nodes number is 0"));
            QCOMPARE(editor.findChild<QLabel*>(QStringLiteral("report"))->text(), QStringLiteral("bed.bnd written"));
            QCOMPARE(unexplained(editor), QStringList());
            for (const char* x : {"2", "0.5"}) {
                QTimer::singleShot(0, &editor, [x] {
                    QWidget* dialog = QApplication::activeModalWidget();
                    QCOMPARE(dialog->windowTitle(), QStringLiteral("Grid and Boundaries Editor | Add Node"));
                    QTest::keyClicks(dialog->focusWidget(), QString::fromUtf8(x));
                    QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
                });
                press(editor, "Add");
            }
            QCOMPARE(status(editor), QStringLiteral("Current boundary node 1"));
            QCOMPARE(list->currentText(), QStringLiteral("bed.bnd *"));
            QTest::keyClick(node, Qt::Key_Down);
            QCOMPARE(status(editor), QStringLiteral("Current boundary node 0"));
            QCOMPARE(positions(editor)[0]->text(), QStringLiteral("0.5"));
            type(positions(editor)[2], "0.29");
            press(editor, "Save");
            QCOMPARE(driver.boxes.proposals.last(), driver.path("bed.bnd"));
            QCOMPARE(list->currentText(), QStringLiteral("bed.bnd"));
            auto* plane = editor.findChildren<QRadioButton*>()[2];
            // The boxes in between took the activation with them.
            QApplication::setActiveWindow(&editor);
            plane->setFocus();
            QTest::keyClick(plane, Qt::Key_Left);
            QVERIFY(editor.findChildren<QRadioButton*>()[1]->isChecked());
            type(positions(editor)[3], "1.5x");
            QTimer::singleShot(0, &editor, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
            QTest::keyClick(&editor, Qt::Key_Escape);
            QVERIFY2(editor.isVisible(), "what is no number keeps the editor open");
            type(positions(editor)[3], "1.5");
        });
        QCOMPARE(QString::fromStdString(test::slurp(driver.path("bed.bnd").toStdString())),
                 QStringLiteral("0.500000 0.000000 0.290000\n2.000000 0.000000 0.000000\n"));
        QCOMPARE(driver.document().Probe().samplingVolumeX, 1.5 / 0.001);
    }

    void editorAsksBeforeItDropsWhatIsNotWritten() {
        FrameDriver driver;
        test::spill(driver.path("a.bnd").toStdString(), "1 2 3\n4 5 6\n");
        test::spill(driver.path("bad.bnd").toStdString(), "1 2\n");
        inEditor(driver, [&](QDialog& editor) {
            driver.boxes.boundaryPath = driver.path("bad.bnd");
            press(editor, "Open");
            QCOMPARE(driver.boxes.refusals.last(),
                     QStringLiteral("Format of the file %1 is invalid !").arg(driver.path("bad.bnd")));
            driver.boxes.boundaryPath.clear();
            press(editor, "New");
            driver.boxes.boundaryPath = driver.path("none/a.bnd");
            press(editor, "New");
            QCOMPARE(driver.boxes.retryQuestions.size(), 1);
            QVERIFY(driver.document().GetWorkspace().boundaries.IsEmpty());
            driver.boxes.boundaryPath = driver.path("a.bnd");
            press(editor, "Open");
            press(editor, "Remove");
            driver.boxes.confirmAnswer = false;
            press(editor, "Close");
            QCOMPARE(driver.boxes.questions.size(), 1);
            QCOMPARE(driver.document().GetWorkspace().boundaries.GetSize(), 1);
            driver.boxes.confirmAnswer = true;
            press(editor, "Close");
            QVERIFY(driver.document().GetWorkspace().boundaries.IsEmpty());
            QCOMPARE(status(editor), QString());
        });
    }

  private:
    static QPushButton* button(QDialog& editor, const char* text) { return withText<QPushButton>(editor, text); }
    static void press(QDialog& editor, const char* text) {
        button(editor, text)->setFocus();
        QTest::keyClick(button(editor, text), Qt::Key_Space);
    }
    static QString status(QDialog& editor) { return editor.findChild<QLabel*>(QStringLiteral("status"))->text(); }
    // X, Y, Z of the node, then of the probe.
    static QList<NumberField*> positions(QDialog& editor) {
        QList<NumberField*> fields;
        for (auto* edit : editor.findChildren<QLineEdit*>()) {
            if (auto* field = dynamic_cast<NumberField*>(edit)) {
                fields.append(field);
            }
        }
        return fields;
    }
    static void type(NumberField* field, const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
    static void inEditor(FrameDriver& driver, const std::function<void(QDialog&)>& work) {
        QVERIFY(driver.inDialog(Command::GridEditor, "Vorlan | Grid and Boundary Editor", [&](QDialog& editor) {
            work(editor);
            editor.close();
            QVERIFY(!editor.isVisible());
        }));
    }
};

QTEST_MAIN(DialogsGrid)
#include "DialogsGridTest.moc"
