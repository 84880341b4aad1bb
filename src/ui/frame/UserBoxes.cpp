#include "ui/frame/UserBoxes.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "model/Index.h"

namespace vorlan {

namespace {

const QString kCaption = QStringLiteral("Vorlan");
const QString kWorkspaceFilter = QStringLiteral("Vorlan Files (*.avp)");
const QString kTableFilter = QStringLiteral("Text Tables (*.csv *.txt *.dat *.tsv);;All Files (*.*)");
const QString kRecipeFilter = QStringLiteral("Recipes (*.toml);;All Files (*.*)");
const QString kBoundaryFilter = QStringLiteral("Boundary Files (*.bnd);;All Files (*.*)");

QMessageBox::StandardButton show(QWidget* parent, QMessageBox::Icon icon, const QString& text,
                                 QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, kCaption, text, buttons, parent);
    // Paths and numbers in the text are no markup.
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

QString chooseToSave(QWidget* parent, const QString& title, const QString& proposed, const QString& filters,
                     const QString& suffix, QFileDialog::Options options) {
    QFileDialog dialog(parent, title, QFileInfo(proposed).path(), filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.setOptions(options);
    dialog.selectFile(QFileInfo(proposed).fileName());
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return dialog.selectedFiles().value(0);
}

}  // namespace

bool UserBoxes::confirm(QWidget* parent, const QString& text) {
    return show(parent, QMessageBox::Question, text, QMessageBox::Ok | QMessageBox::Cancel) == QMessageBox::Ok;
}

void UserBoxes::refuse(QWidget* parent, const QString& text) {
    show(parent, QMessageBox::Critical, text, QMessageBox::Ok);
}

bool UserBoxes::retry(QWidget* parent, const QString& text) {
    return show(parent, QMessageBox::Warning, text, QMessageBox::Retry | QMessageBox::Cancel) == QMessageBox::Retry;
}

UserBoxes::SaveAnswer UserBoxes::askToSave(QWidget* parent, const QString& name) {
    switch (show(parent, QMessageBox::Warning, QStringLiteral("Save changes to %1?").arg(name),
                 QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
        case QMessageBox::Yes:
            return SaveAnswer::Save;
        case QMessageBox::No:
            return SaveAnswer::Discard;
        default:
            return SaveAnswer::Cancel;
    }
}

UserBoxes::RecoverAnswer UserBoxes::askToRecover(QWidget* parent, const QString& text) {
    QMessageBox box(QMessageBox::Question, kCaption, text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* recover = box.addButton(QStringLiteral("&Recover"), QMessageBox::AcceptRole);
    const QAbstractButton* discard = box.addButton(QStringLiteral("&Discard"), QMessageBox::DestructiveRole);
    QAbstractButton* later = box.addButton(QStringLiteral("&Later"), QMessageBox::RejectRole);
    box.setEscapeButton(later);
    box.exec();
    return box.clickedButton() == recover   ? RecoverAnswer::Recover
           : box.clickedButton() == discard ? RecoverAnswer::Discard
                                            : RecoverAnswer::Later;
}

QStringList UserBoxes::chooseTables(QWidget* parent, const QString& folder) {
    return QFileDialog::getOpenFileNames(parent, QStringLiteral("Import Table"), folder, kTableFilter);
}

QString UserBoxes::chooseRecipeToSave(QWidget* parent, const QString& proposed) {
    return chooseToSave(parent, QStringLiteral("Save Recipe"), proposed, kRecipeFilter, QStringLiteral("toml"), {});
}

QString UserBoxes::chooseRecipeToOpen(QWidget* parent, const QString& folder) {
    return QFileDialog::getOpenFileName(parent, QStringLiteral("Run Recipe"), folder, kRecipeFilter);
}

QString UserBoxes::chooseFigure(QWidget* parent, const QString& proposed) {
    const QString suffix = QFileInfo(proposed).suffix();
    return chooseToSave(parent, QStringLiteral("Save Figure"), proposed,
                        QStringLiteral("%1 Files (*.%2)").arg(suffix.toUpper(), suffix), suffix, {});
}

QString UserBoxes::chooseWorkspaceToOpen(QWidget* parent, const QString& folder) {
    return QFileDialog::getOpenFileName(parent, QStringLiteral("Open"), folder, kWorkspaceFilter);
}

QString UserBoxes::chooseWorkspaceToSave(QWidget* parent, const QString& proposed) {
    return chooseToSave(parent, QStringLiteral("Save As"), proposed, kWorkspaceFilter, QStringLiteral("avp"), {});
}

QString UserBoxes::chooseExport(QWidget* parent, const QString& proposed) {
    return chooseToSave(parent, QStringLiteral("Export Data"), proposed,
                        QStringLiteral("Export Files (*.dat);;All Files (*.*)"), QStringLiteral("dat"),
                        QFileDialog::DontConfirmOverwrite);
}

QString UserBoxes::chooseNewBoundary(QWidget* parent, const QString& proposed) {
    return chooseToSave(parent, QStringLiteral("New Boundary File"), proposed, kBoundaryFilter, QStringLiteral("bnd"),
                        {});
}

QString UserBoxes::chooseBoundaryToOpen(QWidget* parent, const QString& folder) {
    return QFileDialog::getOpenFileName(parent, QStringLiteral("Open"), folder, kBoundaryFilter);
}

QString UserBoxes::chooseBoundaryToSave(QWidget* parent, const QString& proposed) {
    return chooseToSave(parent, QStringLiteral("Save"), proposed, kBoundaryFilter, QStringLiteral("bnd"), {});
}

bool UserBoxes::choosePrinter(QWidget* parent, QPrinter& printer, PrintChoice& choice) {
    QPrintDialog dialog(&printer, parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies | QAbstractPrintDialog::PrintShowPageSize);
    dialog.setMinMax(1, std::max(1, *std::max_element(choice.pages.begin(), choice.pages.end())));
    auto* box = new QGroupBox(QStringLiteral("What"), &dialog);
    auto* column = new QVBoxLayout(box);
    std::vector<QRadioButton*> buttons;
    for (const QString& text : choice.texts()) {
        buttons.push_back(new QRadioButton(text, box));
        column->addWidget(buttons.back());
    }
    buttons[asSize(choice.scope)]->setChecked(true);
    // Above the printer; a platform with another dialog shows it among the options.
    if (auto* layout = qobject_cast<QBoxLayout*>(dialog.layout())) {
        layout->insertWidget(0, box);
    } else {
        box->setWindowTitle(box->title());
        dialog.setOptionTabs({box});
    }
    // The platform proposes the home folder.
    auto* file = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
    if (file != nullptr && !choice.folder.isEmpty()) {
        file->setText(QDir(choice.folder).filePath(QFileInfo(file->text()).fileName()));
    }
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    const auto checked = std::find_if(buttons.begin(), buttons.end(), [](auto* button) { return button->isChecked(); });
    choice.scope = static_cast<PrintScope>(checked - buttons.begin());
    return true;
}

bool UserBoxes::choosePaper(QWidget* parent, QPrinter& printer) {
    return QPageSetupDialog(&printer, parent).exec() == QDialog::Accepted;
}

void UserBoxes::showPreview(QDialog& preview) {
    preview.exec();
}

}  // namespace vorlan
