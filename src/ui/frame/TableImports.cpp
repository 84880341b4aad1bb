#include "ui/frame/TableImports.h"

#include <QFile>
#include <QFileInfo>

#include "app/CommandReports.h"
#include "io/ReadFile.h"
#include "model/Text.h"
#include "ui/frame/Waiting.h"

namespace vorlan {

namespace {

constexpr std::size_t kLooked = 4096;  // bytes that show whether a file is text

ImportFault faultOf(const FileError& error) {
    ImportFault fault;
    fault.message = QString::fromStdString(utf8Text(error.what()));
    if (const auto* inTable = dynamic_cast<const TableError*>(&error)) {
        const std::string name = inTable->path().filename().string();
        fault.message = QString::fromStdString(utf8Text(
            name + formatted(", line %zu, column %zu: ", inTable->line(), inTable->column()) + inTable->reason()));
        fault.line = inTable->line();
        fault.column = inTable->column();
        fault.text = readFile(inTable->path()).text();
    }
    return fault;
}

}  // namespace

void TableImports::choose() {
    const QStringList paths = boxes_->chooseTables(&window_, files_.folder());
    paths.isEmpty() ? report_(QString::fromLatin1(kCancelledReport)) : import(paths);
}

void TableImports::import(const QStringList& paths) {
    std::vector<std::filesystem::path> tables;
    for (const QString& path : paths) {
        tables.emplace_back(QFile::encodeName(path).toStdString());
    }
    files_.setFolderOf(paths.front());
    std::string text;
    try {
        const Waiting waiting(files_, "Reading %1 ...", paths.front());
        text = readFile(tables.front()).text();
    } catch (const FileError& error) {
        return boxes_->refuse(&window_, QString::fromStdString(utf8Text(error.what())));
    }
    if (text.substr(0, kLooked).find('\0') != std::string::npos || previewTable(text).columns == 0) {
        return boxes_->refuse(&window_,
                              QStringLiteral("%1 is no text table.").arg(QFileInfo(paths.front()).fileName()));
    }
    std::vector<std::string> names = previewTable(text).names;
    CImportDlg dialog(offerFor(tables, std::move(text)), &window_);
    dialog.setCheck([this](const TableImport& import) { return tryToRead(import); });
    if (dialog.exec() != QDialog::Accepted) {
        return report_(QString::fromLatin1(kCancelledReport));
    }
    last_ = Layout{std::move(names), dialog.roles(), dialog.values()};
    append();
}

ImportOffer TableImports::offerFor(const std::vector<std::filesystem::path>& tables, std::string text) const {
    ImportOffer offer;
    const TablePreview preview = previewTable(text);
    const bool known = last_ && last_->roles.size() == preview.columns && last_->names == preview.names;
    if (known) {
        offer.import = last_->import;
        offer.import.name.reset();
        offer.roles = last_->roles;
    } else {
        offer.roles = guessRoles(preview);
        offer.import.table.velocityUnit = guessVelocityUnit(preview, offer.roles);
    }
    offer.import.tables = tables;
    offer.text = std::move(text);
    return offer;
}

std::optional<ImportFault> TableImports::tryToRead(const TableImport& import) {
    const Waiting waiting(files_, "Reading %1 ...", QFile::decodeName(import.tables.front().c_str()));
    try {
        read_ = importTables(import);
        return std::nullopt;
    } catch (const FileError& error) {
        return faultOf(error);
    }
}

void TableImports::append() {
    const SAdvFile& last = read_.back();
    const SAdvProbe& probe = last.probes.GetAt(0);
    const QString done = read_.size() > 1 ? QStringLiteral("%1 tables imported").arg(read_.size())
                                          : QStringLiteral("%1 imported: %2 samples, %3 s")
                                                .arg(QString::fromStdString(utf8Text(last.fileName)))
                                                .arg(probe.WorkingSamples())
                                                .arg(probe.WorkingSamples() * probe.samplingInterval, 0, 'f', 2);
    document_.AppendFiles(std::exchange(read_, {}));
    document_.SelectProbe(0);
    report_(done);
}

}  // namespace vorlan
