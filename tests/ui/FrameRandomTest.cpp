// A user who does anything at all. VORLAN_RANDOM="seed events" makes another run, and a longer one.
#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QSplitter>
#include <QTabBar>
#include <QTest>
#include <random>

#include "FrameDriver.h"
#include "Stored.h"

using namespace vorlan;

namespace {

class Dice {
  public:
    explicit Dice(unsigned seed) : random_(seed) {}

    int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
    bool once(int in) { return below(in) == 0; }
    template <class List>
    auto of(const List& list) {
        return *(std::begin(list) + below(static_cast<int>(std::size(list))));
    }

  private:
    std::mt19937 random_;
};

const std::array<const char*, 11> kTexts = {"", "0", "1", "2", "7", "3.5", "-1", "0.25", "abc", "12", "1e2"};

constexpr std::array<const char*, 3> kTables = {"a.csv", "b.txt", "torn.csv"};

/// Answers every box with dice; paths are those of a folder of its own.
class RandomBoxes : public ScriptedBoxes {
  public:
    RandomBoxes(Dice& dice, const QTemporaryDir& folder) : dice_(dice), folder_(folder) {}

    bool reading = false;  ///< a workspace, and it was not refused yet

    bool confirm(QWidget*, const QString&) override { return !dice_.once(3); }
    void refuse(QWidget*, const QString&) override { reading = false; }
    bool retry(QWidget*, const QString&) override { return false; }
    SaveAnswer askToSave(QWidget*, const QString&) override { return static_cast<SaveAnswer>(dice_.below(3)); }
    QString chooseWorkspaceToOpen(QWidget*, const QString&) override { return path({"a.avp", "b.avp", "torn.avp"}); }
    QString chooseWorkspaceToSave(QWidget*, const QString&) override { return path({"a.avp", "b.avp"}); }
    QString chooseExport(QWidget*, const QString&) override { return path({"a.dat", "a.avp", "no/where.dat"}); }
    QString chooseNewBoundary(QWidget*, const QString&) override { return path({"a.bnd", "b.bnd"}); }
    QString chooseBoundaryToOpen(QWidget*, const QString&) override { return path({"a.bnd", "torn.bnd", "c.bnd"}); }
    QString chooseBoundaryToSave(QWidget*, const QString&) override { return path({"a.bnd", "b.bnd"}); }
    QStringList chooseTables(QWidget*, const QString&) override {
        QStringList paths;
        for (int i = dice_.below(4); i > 0; --i) {
            paths.append(folder_.filePath(QString::fromUtf8(dice_.of(kTables))));
        }
        return paths;
    }
    QString chooseRecipeToSave(QWidget*, const QString&) override { return path({"a.toml", "a.avp", "no/where.toml"}); }
    QString chooseRecipeToOpen(QWidget*, const QString&) override { return path({"a.toml", "a.toml", "torn.avp"}); }
    QString chooseFigure(QWidget*, const QString&) override {
        return path({"a.png", "a.svg", "a.pdf", "a.avp", "no/where.png"});
    }
    bool choosePrinter(QWidget*, QPrinter&, PrintChoice&) override { return false; }
    bool choosePaper(QWidget*, QPrinter&) override { return false; }
    void showPreview(QDialog&) override {}

  private:
    QString path(std::initializer_list<const char*> names) {
        return dice_.once(5) ? QString() : folder_.filePath(QString::fromUtf8(dice_.of(names)));
    }

    Dice& dice_;
    const QTemporaryDir& folder_;
};

/// A window that anything happens to.
class RandomUser {
  public:
    explicit RandomUser(unsigned seed) : dice_(seed), boxes_(dice_, driver_.folder) {
        driver_.frame->setBoxes(boxes_);
        driver_.simulate(8.0);
        driver_.document().SaveWorkspace(driver_.path("b.avp").toStdString());
        driver_.simulate(12.0);
        driver_.document().SaveWorkspace(driver_.path("a.avp").toStdString());
        writeFile("torn.avp", "1.59\n1 2\n");
        writeFile("torn.bnd", "1.59\n1 2\n");
        QByteArray commas = "time,u,v,w\n";
        QByteArray blanks = "u\n";
        for (int i = 0; i < 60; ++i) {
            const QByteArray value = QByteArray::number(i * i % 17);
            commas += QByteArray::number(i * 0.25) + ',' + value + ",-" + value + ",0." + value + '\n';
            blanks += value + '\n';
        }
        writeFile("a.csv", commas);
        writeFile("b.txt", blanks);
        writeFile("torn.csv", commas + "1,\"");
        // A workspace that was opened has other bytes to come back to.
        const WorkspaceFiles& files = driver_.frame->files();
        QObject::connect(&files, &WorkspaceFiles::waiting, [this](const QString& text) {
            boxes_.reading = text.startsWith(QLatin1String("Reading")) || (text.isEmpty() && boxes_.reading);
        });
        QObject::connect(&files, &WorkspaceFiles::recentListChanged, [this] {
            if (std::exchange(boxes_.reading, false)) {
                loaded_ = stored();
            }
        });
        driver_.frame->files().openPath(driver_.path("a.avp"));
    }

    /// What was done last, for whoever finds what it led to.
    QString lastDeeds() const { return deeds_.join(QStringLiteral(", ")); }

    void doSomething() {
        meetModals();
        switch (dice_.below(14)) {
            case 0:
            case 1:
                return giveCommand();
            case 2:
            case 3:
                return pressKey(focus());
            case 4:
            case 5:
            case 6:
                return useMouse(*dice_.of(driver_.frame->panes().views()));
            case 7:
                return turnWheel(*dice_.of(driver_.frame->panes().views()));
            case 8:
                return useSelector();
            case 9:
                return did(QStringLiteral("resize"),
                           [&] { driver_.frame->resize(300 + dice_.below(1300), 200 + dice_.below(900)); });
            case 10:
                return drop();
            case 11:
                return did(QStringLiteral("undo"), [&] { driver_.trigger(Command::Undo); });
            case 12:
                return did(QStringLiteral("redo"), [&] { driver_.trigger(Command::Redo); });
            default:
                return useBorder();
        }
    }

    /// The window agrees with its document, and everything can be taken back and done again.
    void check() {
        CVorl_ADVDoc& document = driver_.document();
        QCOMPARE(driver_.frame->isWindowModified(), document.IsModified());
        QVERIFY(!document.IsRunning());
        auto* tabs = driver_.frame->findChild<QTabBar*>(QStringLiteral("StageTabs"));
        QCOMPARE(tabs->count(), document.HasProbe() ? document.Probe().tabItems.GetSize() : 0);
        const std::string done = stored();
        int steps = 0;
        while (document.Undo() == Outcome::Done) {
            ++steps;
        }
        QVERIFY2(steps == 0 || stored() == loaded_, qPrintable(lastDeeds()));
        for (; steps > 0; --steps) {
            QCOMPARE(document.Redo(), Outcome::Done);
        }
        QVERIFY2(stored() == done, qPrintable(lastDeeds()));
        while (document.Redo() == Outcome::Done) {
        }
    }

  private:
    void did(const QString& deed, const std::function<void()>& work) {
        deeds_.append(deed);
        while (deeds_.size() > kRememberedDeeds) {
            deeds_.removeFirst();
        }
        driver_.frame->statusPane().setText({});
        ++depth_;
        work();
        // What is done in a dialog has the loop of the dialog: another one here could go ever deeper.
        if (--depth_ == 0) {
            QCoreApplication::processEvents();
        }
        if (driver_.status() == QLatin1String("Empty workspace")) {
            loaded_ = test::archived(Workspace());
        }
    }

    void writeFile(const char* name, const QByteArray& text) { writeBytes(driver_.path(name), text); }
    std::string stored() { return test::archived(driver_.document().GetWorkspace()); }

    QWidget* focus() {
        QWidget* widget = QApplication::focusWidget();
        return widget != nullptr ? widget : driver_.frame.get();
    }

    void giveCommand() {
        const auto command = static_cast<Command>(dice_.below(kCommandCount));
        if (command != Command::Exit && command != Command::About && command != Command::RecentWorkspace) {
            did(driver_.frame->actions().of(command)->text(), [&] { driver_.trigger(command); });
        }
    }

    void pressKey(QWidget* widget) {
        static constexpr std::array keys = {
            Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up, Qt::Key_Down,   Qt::Key_Home, Qt::Key_End,    Qt::Key_Tab,
            Qt::Key_F6,    Qt::Key_E,      Qt::Key_Z,  Qt::Key_Return, Qt::Key_C,    Qt::Key_Escape, Qt::Key_F,
            Qt::Key_Space, Qt::Key_PageUp, Qt::Key_1,  Qt::Key_Period, Qt::Key_Alt,  Qt::Key_Backtab};
        static constexpr std::array<int, 6> modifiers = {
            0, 0, 0, Qt::ControlModifier, Qt::ShiftModifier, Qt::ControlModifier | Qt::ShiftModifier};
        const Qt::Key key = dice_.of(keys);
        const Qt::KeyboardModifiers held(dice_.of(modifiers));
        did(QKeySequence(static_cast<int>(key) | static_cast<int>(held)).toString(),
            [&] { QTest::keyClick(widget, key, held); });
    }

    QPoint anywhere(const QWidget& widget) {
        return {dice_.below(widget.width() + 40) - 20, dice_.below(widget.height() + 40) - 20};
    }

    void useMouse(QWidget& widget) {
        const Qt::MouseButton button = dice_.once(6) ? Qt::RightButton : Qt::LeftButton;
        did(QStringLiteral("mouse"), [&] {
            if (dice_.once(5)) {
                QTest::mouseDClick(&widget, button, {}, anywhere(widget));
            }
            widget.repaint();
            QTest::mousePress(&widget, button, {}, anywhere(widget));
            for (int i = dice_.below(4); i > 0; --i) {
                QMouseEvent move(QEvent::MouseMove, anywhere(widget), widget.mapToGlobal(anywhere(widget)),
                                 Qt::NoButton, button, Qt::NoModifier);
                QApplication::sendEvent(&widget, &move);
                if (dice_.once(4)) {
                    QTest::keyClick(&widget, dice_.once(2) ? Qt::Key_Left : Qt::Key_Escape);
                }
            }
            QTest::mouseRelease(&widget, button, {}, anywhere(widget));
        });
    }

    void turnWheel(QWidget& widget) {
        did(QStringLiteral("wheel"), [&] {
            const QPoint place = anywhere(widget);
            QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, dice_.once(2) ? 120 : -120}, Qt::NoButton,
                             Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&widget, &turn);
        });
    }

    void useSelector() {
        if (dice_.once(2)) {
            auto* tabs = driver_.frame->findChild<QTabBar*>(QStringLiteral("StageTabs"));
            if (tabs->count() > 0) {
                did(QStringLiteral("tab"), [&] { tabs->setCurrentIndex(dice_.below(tabs->count())); });
            }
            return;
        }
        QComboBox* list = dice_.of(driver_.frame->findChildren<QComboBox*>());
        did(list->objectName(), [&] { QTest::keyClick(list, dice_.once(2) ? Qt::Key_Down : Qt::Key_Up); });
    }

    void useBorder() {
        QSplitter* splitter = dice_.of(driver_.frame->panes().findChildren<QSplitter*>());
        did(QStringLiteral("border"), [&] {
            if (dice_.once(2)) {
                QTest::mouseDClick(splitter->handle(1), Qt::LeftButton);
            } else {
                splitter->setSizes({dice_.below(9), dice_.below(9)});
            }
        });
    }

    void drop() {
        QMimeData data;
        static constexpr std::array names = {"a.avp", "b.avp", "torn.avp", "a.csv", "torn.csv"};
        data.setUrls({QUrl::fromLocalFile(driver_.path(dice_.of(names)))});
        did(QStringLiteral("drop"), [&] {
            QDropEvent event(QPointF(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(driver_.frame.get(), &event);
        });
    }

    /// Does something in the dialog, box or menu that is open, until none is; a patient one is closed.
    void meetModals() {
        QTimer::singleShot(0, driver_.frame.get(), [this] {
            QPointer<QWidget> open = QApplication::activePopupWidget();
            if (open == nullptr) {
                open = QApplication::activeModalWidget();
            }
            if (open == nullptr) {
                modalDeeds_ = 0;
                return;
            }
            meetModals();  // in the loop that this one may open
            if (++modalDeeds_ > kMostModalDeeds) {
                open->close();
                modalDeeds_ = 0;
                return;
            }
            workModal(*open);
        });
    }

    void workModal(QWidget& open) {
        const QList<QLineEdit*> fields = open.findChildren<QLineEdit*>();
        const QList<QAbstractButton*> buttons = open.findChildren<QAbstractButton*>();
        const int what = dice_.below(8);
        if (what < 2 && !fields.isEmpty()) {
            QLineEdit* field = dice_.of(fields);
            did(QStringLiteral("type"), [&] { field->setText(QString::fromUtf8(dice_.of(kTexts))); });
        } else if (what < 5 && !buttons.isEmpty()) {
            QAbstractButton* button = dice_.of(buttons);
            did(button->text(), [&] { button->click(); });
        } else if (what == 5) {
            useMouse(open);
        } else {
            QWidget* inside = open.focusWidget();
            pressKey(inside != nullptr ? inside : &open);
        }
    }

    static constexpr int kRememberedDeeds = 30;
    static constexpr int kMostModalDeeds = 25;

    Dice dice_;
    FrameDriver driver_;
    RandomBoxes boxes_;
    std::string loaded_;
    QStringList deeds_;
    int modalDeeds_ = 0;
    int depth_ = 0;  ///< of deeds within deeds
};

}  // namespace

class FrameRandom : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void anythingMayBeDoneAndTakenBack() {
        const QStringList chosen = QString::fromLocal8Bit(qgetenv("VORLAN_RANDOM")).split(u' ', Qt::SkipEmptyParts);
        const unsigned seed = chosen.isEmpty() ? 1U : chosen[0].toUInt();
        const int events = chosen.size() < 2 ? 1500 : chosen[1].toInt();
        qInfo("seed %u, %d events", seed, events);
        RandomUser user(seed);
        for (int i = 1; i <= events && !QTest::currentTestFailed(); ++i) {
            user.doSomething();
            if (i % 100 == 0 || i == events) {
                user.check();
            }
            if (QTest::currentTestFailed()) {
                qInfo("event %d: %s", i, qPrintable(user.lastDeeds()));
            }
        }
    }
};

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsSet("VORLAN_RANDOM")) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "1000000000");  // ms: a long run is no hang
    }
    QApplication application(argc, argv);
    FrameRandom test;
    return QTest::qExec(&test, argc, argv);
}

#include "FrameRandomTest.moc"
