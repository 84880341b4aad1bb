#include "ui/dialogs/CGridEdit.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFile>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSpinBox>

#include "model/Index.h"
#include "model/ProbeInformation.h"
#include "model/Text.h"
#include "model/VectorPlan.h"
#include "stages/GridPreview.h"
#include "ui/dialogs/CPlotOptDlg.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/GridPreviewWidget.h"
#include "ui/dialogs/NameSelector.h"
#include "ui/dialogs/NumberFields.h"
#include "ui/dialogs/SAddDlg.h"

namespace vorlan {

namespace {

constexpr int kRoomBelow = 110;  // status, button and margins
constexpr QSize kWindowFrame(16, 48);

std::filesystem::path toPath(const QString& path) {
    return QFile::encodeName(path).toStdString();
}

QString toText(const std::string& path) {
    return QFile::decodeName(QByteArray::fromStdString(path));
}

void fill(QComboBox* list, const QStringList& texts, int current) {
    const QSignalBlocker quiet(list);
    list->clear();
    list->addItems(texts);
    list->setCurrentIndex(current);
    list->setEnabled(!texts.isEmpty());
}

NameSelector* newList(QWidget* parent, const QString& toolTip) {
    constexpr int kCharacters = 22;
    auto* list = new NameSelector(toolTip, parent);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(kCharacters);
    return list;
}

}  // namespace

CGridEdit::CGridEdit(CVorl_ADVDoc& document, BoundaryPickers pickers, QWidget* parent)
    : QDialog(parent), document_(document), editor_(document), pickers_(std::move(pickers)) {
    setWindowTitle(QStringLiteral("Vorlan | Grid and Boundary Editor"));
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("status"));
    status_->setTextFormat(Qt::PlainText);
    report_ = new QLabel(this);
    report_->setObjectName(QStringLiteral("report"));
    report_->setTextFormat(Qt::PlainText);
    report_->setAlignment(Qt::AlignRight);
    readOut_ = new QLabel(this);
    readOut_->setTextFormat(Qt::PlainText);
    preview_ = new GridPreviewWidget(this);
    connect(preview_, &GridPreviewWidget::readOut, readOut_, &QLabel::setText);

    auto* controls = new QWidget(this);
    auto* groups = new QVBoxLayout(controls);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->addWidget(boundaryBox());
    groups->addWidget(probeBox());
    groups->addWidget(previewBox());
    groups->addStretch();
    // On a small screen the groups scroll, and the way out stays in sight.
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(controls);
    scroll->setMinimumWidth(controls->sizeHint().width() + scroll->verticalScrollBar()->sizeHint().width());
    auto* left = new QVBoxLayout;
    left->addWidget(scroll, 1);
    left->addWidget(addButton(QStringLiteral("&Exit Editor"), QStringLiteral("Leave the editor; every change is kept"),
                              &CGridEdit::reject));
    auto* picture = new QVBoxLayout;
    picture->addWidget(preview_, 1);
    picture->addWidget(readOut_);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addLayout(picture, 1);
    auto* rows = new QVBoxLayout(this);
    rows->addLayout(columns, 1);
    auto* told = new QHBoxLayout;
    told->addWidget(status_);
    told->addWidget(report_, 1);
    rows->addLayout(told);

    refresh();
    resize(QSize(left->sizeHint().width() + preview_->sizeHint().width(), controls->sizeHint().height() + kRoomBelow)
               .boundedTo(screen()->availableSize() - kWindowFrame));
    boundaries_->setFocus();
}

void CGridEdit::showReport(const QString& text) {
    report_->setText(text);
}

CGridEdit::~CGridEdit() {
    // A field that loses the focus while the window goes away still tells that its editing is finished.
    for (const PositionFields& position : {nodePosition_, probePosition_}) {
        for (NumberField* field : position.fields) {
            field->disconnect(this);
        }
    }
}

QPushButton* CGridEdit::addButton(const QString& text, const QString& toolTip, void (CGridEdit::*action)()) {
    auto* button = new QPushButton(text, this);
    // Return belongs to the field that is being typed in.
    button->setAutoDefault(false);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

CGridEdit::PositionFields CGridEdit::addPosition(QGridLayout* grid, int row, const std::array<QString, 3>& texts,
                                                 const QString& toolTip) {
    PositionFields position;
    for (std::size_t axis = 0; axis < position.fields.size(); ++axis) {
        auto* field = new NumberField(this);
        field->setToolTip(toolTip);
        addField(grid, row + asInt(axis), 0, texts[axis], field, QStringLiteral("m"));
        connect(field, &QLineEdit::editingFinished, this, [this] {
            if (takeTyped()) {
                refresh();
            }
        });
        position.fields[axis] = field;
    }
    return position;
}

void CGridEdit::PositionFields::show(const Position& position, bool enabled) {
    for (std::size_t axis = 0; axis < fields.size(); ++axis) {
        fields[axis]->setNumber(position[axis]);
        fields[axis]->setEnabled(enabled);
    }
}

QWidget* CGridEdit::boundaryBox() {
    auto* box = new QGroupBox(this);
    auto* rows = new QVBoxLayout(box);
    auto* lists = new QGridLayout;
    boundaries_ =
        newList(this, QStringLiteral("The boundaries of the workspace; * was changed since its file was written"));
    addField(lists, 0, 0, QStringLiteral("&Boundary File:"), boundaries_);
    lists->setColumnStretch(1, 1);
    rows->addLayout(lists);
    auto* files = new QHBoxLayout;
    files->addWidget(
        addButton(QStringLiteral("New"), QStringLiteral("Make an empty boundary file"), &CGridEdit::newBoundary));
    files->addWidget(
        addButton(QStringLiteral("Open"), QStringLiteral("Read a boundary file"), &CGridEdit::openBoundary));
    save_ = addButton(QStringLiteral("Save"), QStringLiteral("Write the boundary to a file"), &CGridEdit::saveBoundary);
    close_ =
        addButton(QStringLiteral("Close"), QStringLiteral("Take the boundary out of the workspace; its file stays"),
                  &CGridEdit::closeBoundary);
    files->addWidget(save_);
    files->addWidget(close_);
    rows->addLayout(files);

    auto* grid = new QGridLayout;
    node_ = new QSpinBox(this);
    node_->setKeyboardTracking(false);
    node_->setToolTip(QStringLiteral("The current node, counted from 0"));
    addField(grid, 0, 0, QStringLiteral("Boundary Node #"), node_);
    nodePosition_ = addPosition(grid, 1, {QStringLiteral("&X:"), QStringLiteral("&Y:"), QStringLiteral("&Z:")},
                                QStringLiteral("Coordinate of the current node, m; three decimals are kept"));
    add_ = addButton(QStringLiteral("Add"), QStringLiteral("Insert a node at the current one"), &CGridEdit::addNode);
    remove_ = addButton(QStringLiteral("Remove"), QStringLiteral("Remove the current node"), &CGridEdit::removeNode);
    auto* buttons = new QVBoxLayout;
    buttons->addWidget(add_);
    buttons->addWidget(remove_);
    buttons->addStretch();
    grid->addLayout(buttons, 0, 4, 4, 1);
    grid->setColumnStretch(3, 1);
    rows->addLayout(grid);

    connect(boundaries_, &QComboBox::activated, this, [this](int index) {
        if (takeTyped() && index != editor_.boundary()) {
            editor_.chooseBoundary(index);
        }
        refresh();
    });
    connect(node_, &QSpinBox::valueChanged, this, [this](int index) {
        if (takeTyped()) {
            editor_.chooseNode(index);
        }
        refresh();
    });
    return box;
}

QWidget* CGridEdit::probeBox() {
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    files_ = newList(this, QStringLiteral("The data files of the workspace"));
    probes_ = newList(this, QStringLiteral("The probes of the data file"));
    addField(grid, 0, 0, QStringLiteral("&Data File:"), files_);
    addField(grid, 1, 0, QStringLiteral("&Probe:"), probes_);
    auto* position = new QGroupBox(QStringLiteral("Coordinates of sampling volume:"), box);
    auto* positionGrid = new QGridLayout(position);
    probePosition_ = addPosition(positionGrid, 0, {QStringLiteral("X:"), QStringLiteral("Y:"), QStringLiteral("Z:")},
                                 QStringLiteral("Coordinate of the probe's sampling volume, m"));
    positionGrid->setColumnStretch(3, 1);
    grid->addWidget(position, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    connect(files_, &QComboBox::activated, this, [this](int index) {
        if (takeTyped()) {
            editor_.chooseFile(index);
        }
        refresh();
    });
    connect(probes_, &QComboBox::activated, this, [this](int index) {
        if (takeTyped()) {
            editor_.chooseProbe(index);
        }
        refresh();
    });
    return box;
}

QWidget* CGridEdit::previewBox() {
    plane_ = radioButtons({QStringLiteral("X-Y"), QStringLiteral("X-Z"), QStringLiteral("Y-Z")}, editor_.plane(), this);
    auto* box = new QGroupBox(QStringLiteral("Preview:"), this);
    auto* row = new QHBoxLayout(box);
    for (QAbstractButton* button : plane_->buttons()) {
        button->setToolTip(QStringLiteral("Coordinate plane of the preview"));
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(
        addButton(QStringLiteral("&Refresh Plot"), QStringLiteral("Draw the preview again"), &CGridEdit::refreshTaken));
    row->addWidget(addButton(QStringLiteral("Frame"), QStringLiteral("Change limits, titles and grid of the preview"),
                             &CGridEdit::changeFrame));
    connect(plane_, &QButtonGroup::idClicked, this, [this](int code) {
        if (takeTyped()) {
            editor_.choosePlane(code);
        }
        refresh();
    });
    return box;
}

bool CGridEdit::takeTyped(const PositionFields& position, Outcome (GridEditor::*store)(const PositionChange&)) {
    for (std::size_t axis = 0; axis < position.fields.size(); ++axis) {
        NumberField* field = position.fields[axis];
        if (field->untouched() || !field->isEnabled()) {
            continue;
        }
        const std::optional<double> value = field->number();
        if (!value) {
            show_(this, {QMessageBox::Warning, QStringLiteral("Please enter a number."), QMessageBox::Ok});
            field->setFocus();
            field->selectAll();
            return false;
        }
        PositionChange change;
        change[axis] = *value;
        (editor_.*store)(change);
        field->setNumber(*value);
    }
    return true;
}

bool CGridEdit::takeTyped() {
    if (taking_) {
        return false;
    }
    // A message takes the focus from the field, which then tells once more that it is left.
    taking_ = true;
    const bool taken =
        takeTyped(nodePosition_, &GridEditor::moveNode) && takeTyped(probePosition_, &GridEditor::moveProbe);
    taking_ = false;
    return taken;
}

void CGridEdit::refresh() {
    refreshLists();
    const int nodes = editor_.nodeCount();
    {
        const QSignalBlocker quiet(node_);
        node_->setRange(0, std::max(nodes - 1, 0));
        node_->setValue(std::max(editor_.node(), 0));
        node_->setEnabled(nodes > 0);
    }
    nodePosition_.show(editor_.nodePosition(), editor_.node() >= 0);
    probePosition_.show(editor_.probePosition(), editor_.probe() >= 0);
    const bool hasBoundary = editor_.boundary() >= 0;
    save_->setEnabled(hasBoundary);
    close_->setEnabled(hasBoundary);
    add_->setEnabled(hasBoundary);
    remove_->setEnabled(nodes > 0);
    plane_->button(editor_.plane())->setChecked(true);
    for (QAbstractButton* button : plane_->buttons()) {
        // Tab leads to the chosen plane, the arrow keys from there to the others.
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
    }
    status_->setText(QString::fromStdString(editor_.status()));
    refreshPlot();
}

void CGridEdit::refreshLists() {
    QStringList boundaries;
    for (const std::string& text : editor_.boundaryTexts()) {
        boundaries.append(QString::fromStdString(text));
    }
    fill(boundaries_, boundaries, editor_.boundary());
    boundaries_->setWholeName(editor_.boundary() < 0 ? QString() : toText(editor_.boundaryPath()));
    QStringList files;
    QStringList probes;
    const SAdvFilesArray& dataFiles = document_.GetWorkspace().dataFiles.files;
    for (const SAdvFile& file : dataFiles) {
        files.append(QString::fromStdString(utf8Text(file.fileName)));
    }
    if (editor_.file() >= 0) {
        for (const SAdvProbe& probe : dataFiles.GetAt(editor_.file()).probes) {
            probes.append(QString::fromStdString(probeListText(probe)));
        }
    }
    fill(files_, files, editor_.file());
    fill(probes_, probes, editor_.probe());
}

void CGridEdit::refreshPlot() {
    preview_->setDiagram(describeGrid(document_.GetWorkspace(), editor_.plane(), editor_.frame()));
}

void CGridEdit::withFile(const BoundaryPickers::Picker& pick, const QString& proposed,
                         Outcome (GridEditor::*action)(const std::filesystem::path&)) {
    if (!takeTyped()) {
        return;
    }
    const QString path = pick(this, proposed);
    if (!path.isEmpty() && (editor_.*action)(toPath(path)) == Outcome::Done) {
        pickers_.used(path);
    }
    refresh();
}

void CGridEdit::newBoundary() {
    withFile(pickers_.newFile, QStringLiteral("untitled.bnd"), &GridEditor::newBoundary);
}

void CGridEdit::openBoundary() {
    withFile(pickers_.fileToOpen, QString(), &GridEditor::openBoundary);
}

void CGridEdit::saveBoundary() {
    withFile(pickers_.fileToSave, toText(editor_.boundaryPath()), &GridEditor::saveBoundary);
}

void CGridEdit::closeBoundary() {
    if (takeTyped()) {
        editor_.closeBoundary();
        refresh();
    }
}

void CGridEdit::addNode() {
    if (!takeTyped()) {
        return;
    }
    SAddDlg dialog(this);
    dialog.setMessageFunction(show_);
    if (dialog.exec() == QDialog::Accepted) {
        editor_.addNode(dialog.values());
    }
    refresh();
}

void CGridEdit::removeNode() {
    if (takeTyped()) {
        editor_.removeNode();
        refresh();
    }
}

void CGridEdit::refreshTaken() {
    if (takeTyped()) {
        refresh();
    }
}

void CGridEdit::changeFrame() {
    if (!takeTyped()) {
        return;
    }
    const ScaleType scales[] = {ScaleType::Linear};
    CPlotOptDlg dialog(editor_.frame(), scales, drawnAxesOf(preview_->geometry()), this);
    dialog.setOfStage(false);
    if (dialog.exec() == QDialog::Accepted) {
        editor_.setFrame(dialog.values());
    }
    refresh();
}

void CGridEdit::reject() {
    if (takeTyped()) {
        QDialog::reject();
    }
}

}  // namespace vorlan
