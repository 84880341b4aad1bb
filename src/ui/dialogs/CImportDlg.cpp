#include "ui/dialogs/CImportDlg.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

#include "model/Index.h"
#include "ui/dialogs/FieldLayout.h"
#include "ui/dialogs/FieldReader.h"
#include "ui/dialogs/RawText.h"

namespace vorlan {

namespace {

constexpr int kRoleRow = 0;  // above the rows of the table
constexpr std::size_t kRowsBeforeFault = 5;

QString roleText(const ColumnRole& role) {
    return role.isSkipped() ? QStringLiteral("not used") : QString::fromStdString(role.name());
}

QString separatorText(char separator) {
    switch (separator) {
        case ';':
            return QStringLiteral("semicolons");
        case ',':
            return QStringLiteral("commas");
        case '\t':
            return QStringLiteral("tabs");
        default:
            return QStringLiteral("blanks");
    }
}

QComboBox* newList(const QStringList& texts, int current, const QString& tip, QWidget* parent) {
    auto* list = new QComboBox(parent);
    list->addItems(texts);
    list->setCurrentIndex(current);
    list->setToolTip(tip);
    return list;
}

}  // namespace

CImportDlg::CImportDlg(const ImportOffer& offer, QWidget* parent)
    : CParameterDialog(QStringLiteral("Import Table"), parent),
      values_(offer.import),
      roles_(offer.roles),
      text_(offer.text),
      table_(new QTableWidget(this)),
      fault_(new QLabel(this)) {
    buildPreview();
    body()->addWidget(fieldsBox());
    fault_->setWordWrap(true);
    fault_->setTextFormat(Qt::PlainText);
    QPalette alarm = fault_->palette();
    alarm.setColor(QPalette::WindowText, QColor(176, 0, 0));
    fault_->setPalette(alarm);
    fault_->hide();
    body()->addWidget(fault_);
    showSteps();
    // A table without times leaves the interval to be typed.
    const bool typed = interval_->text().isEmpty() || lists_.empty();
    finish(typed ? static_cast<QWidget*>(interval_) : lists_.front());
}

void CImportDlg::buildPreview() {
    const TablePreview preview = previewTable(text_);
    roles_.resize(preview.columns, ColumnRole::skipped());
    auto* found = new QLabel(
        QStringLiteral("%1: %2 columns with %3 between them, %4")
            .arg(values_.tables.empty() ? QString() : displayText(values_.tables.front().filename().string()))
            .arg(preview.columns)
            .arg(separatorText(preview.separator),
                 preview.names.empty() ? QStringLiteral("no names above them") : QStringLiteral("names above them")),
        this);
    found->setTextFormat(Qt::PlainText);
    body()->addWidget(found);
    table_->setColumnCount(asInt(preview.columns));
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setTabKeyNavigation(false);
    // The lists above the columns take the keys; the rows are there to be looked at.
    table_->setFocusPolicy(Qt::ClickFocus);
    table_->setMinimumSize(560, 230);
    constexpr int kBetweenLines = 6;
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kBetweenLines);
    QStringList titles;
    for (std::size_t i = 0; i < preview.columns; ++i) {
        titles << (preview.names.empty() ? QStringLiteral("column %1").arg(i + 1)
                                         : QString::fromStdString(preview.names[i]));
        lists_.push_back(newRoleList(i));
    }
    table_->setHorizontalHeaderLabels(titles);
    showRows(preview);
    table_->resizeColumnsToContents();
    body()->addWidget(table_);
}

QComboBox* CImportDlg::newRoleList(std::size_t column) {
    const std::vector<ColumnRole> roles = columnRoles();
    QStringList texts;
    for (const ColumnRole& role : roles) {
        texts << roleText(role);
    }
    const auto at = std::find(roles.begin(), roles.end(), roles_[column]) - roles.begin();
    QComboBox* list = newList(texts, asInt(at),
                              QStringLiteral("What the column holds: velocities u, v, w, scores of the beams in per "
                                             "cent and dB, angles in degrees, pressure, the time of the sample in s"),
                              table_);
    list->installEventFilter(this);
    connect(list, &QComboBox::currentIndexChanged, this, [this, column](int choice) { takeRole(column, choice); });
    return list;
}

void CImportDlg::showRows(const TablePreview& preview) {
    table_->setRowCount(asInt(preview.rows.size()) + 1);
    QStringList numbers{QString()};
    for (std::size_t row = 0; row < preview.rows.size(); ++row) {
        numbers << QString::number(preview.rows[row].line);
        for (int column = 0; column < table_->columnCount(); ++column) {
            const auto& fields = preview.rows[row].fields;
            const auto index = asSize(column);
            table_->setItem(
                asInt(row) + 1, column,
                new QTableWidgetItem(index < fields.size() ? QString::fromStdString(fields[index]) : QString()));
        }
    }
    table_->setVerticalHeaderLabels(numbers);
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        if (table_->cellWidget(kRoleRow, asInt(i)) == nullptr) {
            table_->setCellWidget(kRoleRow, asInt(i), lists_[i]);
            table_->setRowHeight(kRoleRow, lists_[i]->sizeHint().height());
        }
    }
}

QWidget* CImportDlg::fieldsBox() {
    auto* box = new QWidget(this);
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    unit_ = newList({QStringLiteral("cm/s"), QStringLiteral("m/s"), QStringLiteral("mm/s")},
                    asInt(values_.table.velocityUnit),
                    QStringLiteral("Unit of the velocities in the table; they are kept in cm/s"), this);
    interval_ = new NumberField(this);
    if (values_.settings.samplingInterval > 0.0) {
        interval_->setNumber(values_.settings.samplingInterval);
    }
    interval_->setToolTip(QStringLiteral("Time between two samples, 1e-6 to 1e6 s"));
    steps_ = new QLabel(this);
    resolution_ = new NumberField(this);
    resolution_->setNumber(values_.settings.resolution);
    resolution_->setToolTip(QStringLiteral("Step in which velocities are stored, 1e-9 to 1000 cm/s"));
    missing_ = newList(
        {QStringLiteral("are an error"), QStringLiteral("are bridged and marked as bad")}, asInt(values_.table.missing),
        QStringLiteral("An empty field or NaN in place of a velocity: refused, or a sample with mark 0 on "
                       "the straight line between its neighbours"),
        this);
    name_ = new QLineEdit(values_.name ? displayText(*values_.name) : QString(), this);
    if (!values_.tables.empty()) {
        name_->setPlaceholderText(displayText(values_.tables.front().stem().string()));
    }
    name_->setToolTip(QStringLiteral("Name of the data file; the table's own when nothing is written here"));
    addField(grid, 0, 0, QStringLiteral("&Unit of the velocities:"), unit_);
    addField(grid, 1, 0, QStringLiteral("Sampling &interval [sec]:"), interval_);
    grid->addWidget(steps_, 1, 2);
    addField(grid, 2, 0, QStringLiteral("&Resolution of the velocities [cm/s]:"), resolution_);
    addField(grid, 3, 0, QStringLiteral("&Missing velocities:"), missing_);
    addField(grid, 4, 0, QStringLiteral("&Name of the data file:"), name_);
    grid->setColumnStretch(2, 1);
    if (values_.tables.size() > 1) {
        asProbes_ = new QCheckBox(
            QStringLiteral("&All %1 tables are probes of one data file").arg(values_.tables.size()), this);
        asProbes_->setChecked(values_.asProbes);
        asProbes_->setToolTip(QStringLiteral("Otherwise each becomes a data file with one probe"));
        grid->addWidget(asProbes_, 5, 0, 1, 3);
    }
    return box;
}

void CImportDlg::takeRole(std::size_t column, int choice) {
    const ColumnRole role = columnRoles()[asSize(choice)];
    roles_[column] = role;
    // A role has one column: the one that had it before is not used.
    for (std::size_t i = 0; i < roles_.size() && !role.isSkipped(); ++i) {
        if (i != column && roles_[i] == role) {
            lists_[i]->setCurrentIndex(0);
        }
    }
    showSteps();
}

void CImportDlg::showSteps() {
    const auto time = std::find(roles_.begin(), roles_.end(), ColumnRole::time());
    steps_->clear();
    if (time == roles_.end()) {
        return;
    }
    const std::optional<TimeSteps> steps = timeStepsOf(timesOf(text_, asSize(time - roles_.begin())));
    if (!steps) {
        steps_->setText(QStringLiteral("The times do not rise."));
        return;
    }
    steps_->setText(QStringLiteral("from the times: %1 s; single steps %2 to %3 s")
                        .arg(steps->mean, 0, 'g', 6)
                        .arg(steps->shortest, 0, 'g', 6)
                        .arg(steps->longest, 0, 'g', 6));
    if (interval_->text().isEmpty()) {
        interval_->setNumber(roundedInterval(*steps));
    }
}

void CImportDlg::showFault(const ImportFault& fault) {
    fault_->setText(fault.message);
    fault_->show();
    if (fault.line == 0) {
        return;
    }
    const TablePreview preview =
        previewTable(fault.text, fault.line > kRowsBeforeFault ? fault.line - kRowsBeforeFault : 1);
    showRows(preview);
    const int column = std::clamp(asInt(fault.column) - 1, 0, std::max(table_->columnCount() - 1, 0));
    for (std::size_t row = 0; row < preview.rows.size(); ++row) {
        if (preview.rows[row].line == fault.line) {
            table_->setCurrentCell(asInt(row) + 1, column);
            table_->scrollToItem(table_->currentItem(), QAbstractItemView::PositionAtCenter);
        }
    }
}

bool CImportDlg::takeFields(FieldReader& reader) {
    TableImport read = values_;
    const TableOptions columns = optionsOf(roles_);
    read.table.columns = columns.columns;
    read.table.timeColumn = columns.timeColumn;
    read.table.velocityUnit = static_cast<VelocityUnit>(unit_->currentIndex());
    read.table.missing = static_cast<TableOptions::Missing>(missing_->currentIndex());
    reader.number(interval_, read.settings.samplingInterval, import_range::kInterval.minimum,
                  import_range::kInterval.maximum);
    reader.number(resolution_, read.settings.resolution, import_range::kResolution.minimum,
                  import_range::kResolution.maximum);
    if (!reader.good()) {
        return false;
    }
    read.name = name_->text().isEmpty() ? std::nullopt : std::optional(name_->text().toStdString());
    read.asProbes = asProbes_ != nullptr && asProbes_->isChecked();
    if (const std::optional<ImportFault> fault = check_ ? check_(read) : std::nullopt) {
        showFault(*fault);
        return false;
    }
    values_ = std::move(read);
    return true;
}

bool CImportDlg::eventFilter(QObject* watched, QEvent* event) {
    const auto list = std::find(lists_.begin(), lists_.end(), watched);
    if (event->type() == QEvent::FocusIn && list != lists_.end()) {
        table_->scrollTo(table_->model()->index(kRoleRow, asInt(list - lists_.begin())));
    }
    return CParameterDialog::eventFilter(watched, event);
}

}  // namespace vorlan
