#pragma once

#include "recipes/RenderRun.h"
#include "ui/dialogs/CParameterDialog.h"

class QButtonGroup;

namespace vorlan {

class IntegerField;

/// What of the window becomes a file, and of which kind.
struct FigureChoice {
    enum class Scope { ActiveView, AllViews, Page };
    enum class Format { Png, Svg, Pdf };

    Scope scope = Scope::ActiveView;
    Format format = Format::Png;
    PictureSize size = {};  ///< of a picture; a page has the size of its paper
    int dpi = kUsualDpi;    ///< of a PNG

    /// Four views in one PDF are the page, and the page is nothing else.
    static bool allows(Scope scope, Format format) {
        return scope == Scope::ActiveView || (scope == Scope::Page) == (format == Format::Pdf);
    }
};

/// "Save Figure".
class CFigureDlg : public CParameterDialog {
    Q_OBJECT
  public:
    explicit CFigureDlg(const FigureChoice& choice, QWidget* parent = nullptr);
    const FigureChoice& values() const { return values_; }

  protected:
    bool takeFields(FieldReader& reader) override;

  private:
    void showAllowed();

    FigureChoice values_;
    QButtonGroup* scope_;
    QButtonGroup* format_;
    IntegerField* width_;
    IntegerField* height_;
    IntegerField* dpi_;
};

}  // namespace vorlan
