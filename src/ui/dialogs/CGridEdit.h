#pragma once

#include <QDialog>
#include <array>
#include <functional>

#include "app/GridEditor.h"
#include "ui/dialogs/DialogMessage.h"

class QButtonGroup;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;
class QSpinBox;
class QVBoxLayout;

namespace vorlan {

class GridPreviewWidget;
class NameSelector;
class NumberField;

/// How the editor asks for files: the chosen path, empty when the user cancels. proposed is a file, or a folder to
/// open from.
struct BoundaryPickers {
    using Picker = std::function<QString(QWidget* parent, const QString& proposed)>;
    Picker newFile;
    Picker fileToOpen;
    Picker fileToSave;
    /// Told of every file that was read or written.
    std::function<void(const QString& path)> used;
};

/// "Vorlan | Grid and Boundary Editor": shows a GridEditor and passes on what the user does. Every change is made at
/// once; what was typed is taken when its field is left, whatever way leads out of the field or the editor.
class CGridEdit : public QDialog {
    Q_OBJECT
  public:
    CGridEdit(CVorl_ADVDoc& document, BoundaryPickers pickers, QWidget* parent = nullptr);
    ~CGridEdit() override;

    /// Replaces the message box of the refusals.
    void setMessageFunction(MessageFunction show) { show_ = std::move(show); }
    /// How the last change ended.
    void showReport(const QString& text);
    void reject() override;

  private:
    struct PositionFields {
        std::array<NumberField*, 3> fields{};
        void show(const Position& position, bool enabled);
    };

    QWidget* boundaryBox();
    QWidget* probeBox();
    QWidget* previewBox();
    PositionFields addPosition(QGridLayout* grid, int row, const std::array<QString, 3>& texts, const QString& toolTip);
    QPushButton* addButton(const QString& text, const QString& toolTip, void (CGridEdit::*action)());
    /// Takes what was typed; false when it is no number, which was said then.
    bool takeTyped();
    bool takeTyped(const PositionFields& position, Outcome (GridEditor::*store)(const PositionChange&));
    /// Shows the state of the editor.
    void refresh();
    void refreshLists();
    void refreshPlot();

    /// Asks for a file and runs action on it.
    void withFile(const BoundaryPickers::Picker& pick, const QString& proposed,
                  Outcome (GridEditor::*action)(const std::filesystem::path&));
    void newBoundary();
    void openBoundary();
    void saveBoundary();
    void closeBoundary();
    void addNode();
    void removeNode();
    void refreshTaken();
    void changeFrame();

    CVorl_ADVDoc& document_;
    GridEditor editor_;
    BoundaryPickers pickers_;
    MessageFunction show_ = showDialogMessage;
    bool taking_ = false;

    NameSelector* boundaries_ = nullptr;
    QSpinBox* node_ = nullptr;
    PositionFields nodePosition_;
    QPushButton* save_ = nullptr;
    QPushButton* close_ = nullptr;
    QPushButton* add_ = nullptr;
    QPushButton* remove_ = nullptr;
    QComboBox* files_ = nullptr;
    QComboBox* probes_ = nullptr;
    PositionFields probePosition_;
    QButtonGroup* plane_ = nullptr;
    GridPreviewWidget* preview_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* report_ = nullptr;
    QLabel* readOut_ = nullptr;
};

}  // namespace vorlan
