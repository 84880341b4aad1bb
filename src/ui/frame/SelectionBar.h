#pragma once

#include <QComboBox>
#include <QToolBar>

#include "app/CVorl_ADVDoc.h"

namespace vorlan {

/// The toolbar of selectors: data file, probe, physical value, active view. What the user picks is told; what the
/// program sets is not.
class SelectionBar : public QToolBar {
    Q_OBJECT

  public:
    explicit SelectionBar(QWidget* parent = nullptr);

    /// Shows the document's lists and selection.
    void refresh(const CVorl_ADVDoc& document);

  Q_SIGNALS:
    void fileChosen(int index);
    void probeChosen(int index);
    void valueChosen(vorlan::PhysicalValue value);
    void paneChosen(vorlan::Pane pane);

  private:
    /// characters: the width that is wanted; shortest: the text that must fit in any case.
    QComboBox* addSelector(const QString& label, const QString& toolTip, int characters, const QString& shortest);

    QComboBox* files_;
    QComboBox* probes_;
    QComboBox* values_;
    QComboBox* panes_;
};

}  // namespace vorlan
