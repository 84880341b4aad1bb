#pragma once

#include <array>
#include <functional>
#include <optional>

#include "model/PageLayout.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace vorlan {

class NumberField;
class PageSketch;

/// Lets the user choose the paper; nothing when it stays. Replaced by tests.
using PaperPicker = std::function<std::optional<PaperSize>(QWidget* parent)>;

/// "Page Setup": the printed page of one stage, with a sketch that follows the fields. It works on a copy. The sizes of
/// a pane can be typed while the pane is ticked.
class CPageDlg : public CParameterDialog {
    Q_OBJECT
  public:
    CPageDlg(const PageAtrType& page, const PaperSize& paper, QWidget* parent = nullptr);
    const PageAtrType& values() const { return values_; }

    void setPaperPicker(PaperPicker pick) { pickPaper_ = std::move(pick); }
    const PageSketch& sketch() const { return *sketch_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    struct PaneFields {
        QCheckBox* printed = nullptr;
        NumberField* height = nullptr;
        NumberField* width = nullptr;
    };

    QWidget* marginsBox();
    QWidget* layoutBox();
    QWidget* sizesBox();
    QWidget* scalesRow();
    QWidget* sketchColumn();
    QLineEdit* newText(const std::string& text);
    NumberField* newNumber(double value, const QString& toolTip);
    /// Texts, layout and ticks as they stand.
    PageAtrType fieldsAsTheyAre() const;
    /// Gives every number with its field to read, in the order of the fields, until it returns false.
    bool readNumbers(PageAtrType& page, const std::function<bool(NumberField*, double&)>& read) const;
    void refreshSketch();
    void choosePaper();

    PageAtrType values_;
    PaperSize paper_;
    PaperPicker pickPaper_;
    QLineEdit* header_ = nullptr;
    NumberField* left_ = nullptr;
    NumberField* right_ = nullptr;
    NumberField* top_ = nullptr;
    NumberField* bottom_ = nullptr;
    QButtonGroup* layout_ = nullptr;
    std::array<PaneFields, kPaneCount> panes_;
    NumberField* inner_ = nullptr;
    NumberField* fontScale_ = nullptr;
    QLineEdit* footer_ = nullptr;
    PageSketch* sketch_ = nullptr;
    QPushButton* choosePaper_ = nullptr;
};

}  // namespace vorlan
