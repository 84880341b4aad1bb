#pragma once

#include <functional>
#include <optional>

#include "app/TableImport.h"
#include "io/TableGuess.h"
#include "ui/dialogs/CParameterDialog.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace vorlan {

class NumberField;

/// What the dialog opens with.
struct ImportOffer {
    TableImport import;
    std::vector<ColumnRole> roles;
    std::string text;  ///< of the first table
};

/// Why tables cannot be taken. With a line, the dialog shows it in the table's text.
struct ImportFault {
    QString message;
    std::size_t line = 0;
    std::size_t column = 0;
    std::string text;  ///< of the table that is at fault
};

/// "Import Table": what the columns of a table are, and how its numbers are meant.
class CImportDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CImportDlg(const ImportOffer& offer, QWidget* parent = nullptr);
    const TableImport& values() const { return values_; }
    const std::vector<ColumnRole>& roles() const { return roles_; }

    /// Tries what the user accepts; a fault keeps the dialog open and is shown.
    using Check = std::function<std::optional<ImportFault>(const TableImport& import)>;
    void setCheck(Check check) { check_ = std::move(check); }

  protected:
    bool takeFields(FieldReader& reader) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void buildPreview();
    QWidget* fieldsBox();
    QComboBox* newRoleList(std::size_t column);
    void showRows(const TablePreview& preview);
    void showSteps();
    void showFault(const ImportFault& fault);
    void takeRole(std::size_t column, int choice);

    TableImport values_;
    std::vector<ColumnRole> roles_;
    std::string text_;
    Check check_;
    QTableWidget* table_;
    std::vector<QComboBox*> lists_;
    QComboBox* unit_;
    QComboBox* missing_;
    NumberField* interval_;
    NumberField* resolution_;
    QLabel* steps_;
    QLineEdit* name_;
    QCheckBox* asProbes_ = nullptr;
    QLabel* fault_;
};

}  // namespace vorlan
