#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

#include "ui/frame/PrintChoice.h"

class QDialog;
class QPrinter;

namespace vorlan {

/// The boxes that the window asks its user with. Tests put answers in their place.
class UserBoxes {
  public:
    enum class SaveAnswer { Save, Discard, Cancel };
    enum class RecoverAnswer { Recover, Discard, Later };

    virtual ~UserBoxes() = default;
    /// Question icon, OK and Cancel.
    virtual bool confirm(QWidget* parent, const QString& text);
    /// Stop icon, OK.
    virtual void refuse(QWidget* parent, const QString& text);
    /// Warning icon, Retry and Cancel; true for Retry.
    virtual bool retry(QWidget* parent, const QString& text);
    /// "Save changes to %1?" with Yes, No and Cancel.
    virtual SaveAnswer askToSave(QWidget* parent, const QString& name);
    /// "Recover", "Discard" and "Later".
    virtual RecoverAnswer askToRecover(QWidget* parent, const QString& text);
    virtual QStringList chooseTables(QWidget* parent, const QString& folder);
    virtual QString chooseRecipeToSave(QWidget* parent, const QString& proposed);
    virtual QString chooseRecipeToOpen(QWidget* parent, const QString& folder);
    virtual QString chooseFigure(QWidget* parent, const QString& proposed);
    /// Chosen path, empty when cancelled.
    virtual QString chooseWorkspaceToOpen(QWidget* parent, const QString& folder);
    virtual QString chooseWorkspaceToSave(QWidget* parent, const QString& proposed);
    /// No prompt before an existing file is overwritten.
    virtual QString chooseExport(QWidget* parent, const QString& proposed);
    virtual QString chooseNewBoundary(QWidget* parent, const QString& proposed);
    virtual QString chooseBoundaryToOpen(QWidget* parent, const QString& folder);
    virtual QString chooseBoundaryToSave(QWidget* parent, const QString& proposed);
    /// Printer, range, copies and what is printed; false when cancelled.
    virtual bool choosePrinter(QWidget* parent, QPrinter& printer, PrintChoice& choice);
    /// Size and orientation of the paper; false when cancelled.
    virtual bool choosePaper(QWidget* parent, QPrinter& printer);
    virtual void showPreview(QDialog& preview);
};

}  // namespace vorlan
