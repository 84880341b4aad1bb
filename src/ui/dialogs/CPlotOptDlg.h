#pragma once

#include <span>

#include "model/FrameAttributes.h"
#include "ui/dialogs/CColorDlg.h"
#include "ui/dialogs/CFontDlg.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace vorlan {

class IntegerField;
class NumberField;

/// "Plot Frame Options". Stored words that the dialog cannot show stay as they are until their control is changed.
class CPlotOptDlg : public CParameterDialog {
    Q_OBJECT
  public:
    /// The scale types that the diagram allows are offered in the order linear, logarithmic, logarithmic Y,
    /// logarithmic X, whatever their order in the argument.
    CPlotOptDlg(const FrameAttributesType& frame, std::span<const ScaleType> allowedScales, QWidget* parent = nullptr);
    const FrameAttributesType& values() const { return values_; }

    void setFontPicker(FontPicker pick) { pickFont_ = std::move(pick); }
    void setColourPicker(ColourPicker pick) { pickColour_ = std::move(pick); }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    /// A value that may be left to the diagram.
    struct AutomaticValue {
        QCheckBox* automatic = nullptr;
        NumberField* value = nullptr;

        void read(FieldReader& reader, double& into, std::int32_t& mode) const;
    };

    QWidget* typeBox(std::span<const ScaleType> allowedScales);
    QWidget* limitsBox();
    QWidget* stepBox();
    QWidget* titlesBox();
    QWidget* ticksBox();
    QWidget* digitsBox();
    QWidget* fontsBox();
    QWidget* gridBox();
    QWidget* legendBox();
    AutomaticValue addAutomatic(QGridLayout* grid, int row, int column, const QString& axis, double value, int mode);
    IntegerField* newCount(int value);
    QLineEdit* newTitle(const std::string& text);
    void showFonts();
    void showColour();
    void chooseFont();
    void chooseColour();
    static bool gridDrawnOn(std::int32_t gridMode, GridMode part);
    void readChoices(FrameAttributesType& read) const;

    FrameAttributesType values_;
    FrameAttributesType chosen_;  ///< holds the fonts and the colour that were picked
    FontPicker pickFont_ = pickFont;
    ColourPicker pickColour_ = pickColour;

    QListWidget* scale_ = nullptr;
    QButtonGroup* style_ = nullptr;
    AutomaticValue xMin_;
    AutomaticValue yMin_;
    AutomaticValue xMax_;
    AutomaticValue yMax_;
    AutomaticValue xStep_;
    AutomaticValue yStep_;
    QLineEdit* plotTitle_ = nullptr;
    QLineEdit* xTitle_ = nullptr;
    QLineEdit* yTitle_ = nullptr;
    IntegerField* tickSize_ = nullptr;
    IntegerField* markSize_ = nullptr;
    IntegerField* ticksPerMark_ = nullptr;
    QComboBox* orientation_ = nullptr;
    IntegerField* xDigits_ = nullptr;
    IntegerField* yDigits_ = nullptr;
    QListWidget* fonts_ = nullptr;
    QCheckBox* gridOnTicks_ = nullptr;
    QCheckBox* gridOnMarks_ = nullptr;
    QComboBox* lineStyle_ = nullptr;
    QPushButton* colour_ = nullptr;
    QLineEdit* legendTitle_ = nullptr;
    QComboBox* legendPosition_ = nullptr;
};

}  // namespace vorlan
