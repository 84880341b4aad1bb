#pragma once

#include <optional>
#include <span>

#include "model/FrameAttributes.h"
#include "model/SettingField.h"
#include "plot/CScreenUtils.h"
#include "ui/dialogs/CColorDlg.h"
#include "ui/dialogs/CFontDlg.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace vorlan {

class IntegerField;
class NumberField;

/// Ends and mark steps of the axes as they are drawn; empty where nothing is drawn or an axis has no such thing.
struct DrawnAxes {
    std::optional<double> xMin;
    std::optional<double> xMax;
    std::optional<double> xStep;
    std::optional<double> yMin;
    std::optional<double> yMax;
    std::optional<double> yStep;
};

/// Those of a diagram as it was painted.
DrawnAxes drawnAxesOf(const std::optional<CScreenUtils>& geometry);

/// "Plot Frame Options". Stored words that the dialog cannot show stay as they are until their control is changed. A
/// value that is left to the diagram shows what is drawn, so that a user who takes it over starts from there.
class CPlotOptDlg : public CParameterDialog {
    Q_OBJECT
  public:
    /// The scale types that the diagram allows are offered in the order linear, logarithmic, logarithmic Y,
    /// logarithmic X, whatever their order in the argument.
    CPlotOptDlg(const FrameAttributesType& frame, std::span<const ScaleType> allowedScales, const DrawnAxes& drawn = {},
                QWidget* parent = nullptr);
    const FrameAttributesType& values() const { return values_; }
    /// True when the dialog was left by the button that gives scale, fonts, frame, ticks and legend to all diagrams of
    /// the stage.
    bool forAllDiagrams() const { return forAllDiagrams_; }
    /// False for a diagram that belongs to no stage: there is nothing to give its attributes to.
    void setOfStage(bool ofStage);

    static constexpr Range kCounts{0, 32767};  ///< of ticks and their lengths
    static constexpr Range kDigits{0, 9};      ///< of the labels

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
        /// What was only shown is not stored.
        void keepStored(double& into, double stored) const;
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
    AutomaticValue addAutomatic(QGridLayout* grid, int row, int column, const QString& axis, double value, int mode,
                                const std::optional<double>& drawn, const char* meaning);
    IntegerField* newCount(int value);
    QLineEdit* newTitle(const std::string& text);
    void showFonts();
    void showFontText();
    void showColour();
    void chooseFont();
    void chooseColour();
    static bool gridDrawnOn(std::int32_t gridMode, GridMode part);
    void readChoices(FrameAttributesType& read) const;

    void acceptForAll();

    FrameAttributesType values_;
    bool forAllDiagrams_ = false;
    QPushButton* giveToAll_ = nullptr;
    DrawnAxes drawn_;
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
    QLabel* fontText_ = nullptr;
    QCheckBox* gridOnTicks_ = nullptr;
    QCheckBox* gridOnMarks_ = nullptr;
    QComboBox* lineStyle_ = nullptr;
    QPushButton* colour_ = nullptr;
    QLineEdit* legendTitle_ = nullptr;
    QComboBox* legendPosition_ = nullptr;
};

}  // namespace vorlan
