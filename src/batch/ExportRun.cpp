#include "batch/ExportRun.h"

#include <sstream>

#include "batch/BatchError.h"
#include "export/WriteExport.h"
#include "model/Errors.h"

namespace vorlan {

const std::vector<std::string>& exportNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const ExportKindInfo& info : exportKinds()) {
            list.emplace_back(info.name);
        }
        return list;
    }();
    return names;
}

const std::vector<std::string>& separatorNames() {
    static const std::vector<std::string> names = {"space", "tab", "comma"};
    return names;
}

std::string faultOf(const ExportRequest& request) {
    const ExportKindInfo& info = exportKindInfo(request.kind);
    if (request.all && info.dialog != ExportDialog::Scope) {
        return std::string("the export \"") + info.name + "\" is of one probe: it does not know \"all\"";
    }
    return {};
}

Command commandOf(ExportKind kind) {
    // The commands stand in the order of the kinds.
    constexpr int kFirst = static_cast<int>(Command::ExportVelocities);
    static_assert(static_cast<int>(Command::ExportPatterns) - kFirst == static_cast<int>(ExportKind::Patterns));
    static_assert(static_cast<int>(Command::ExportSpectral) - kFirst == static_cast<int>(ExportKind::Spectral));
    return static_cast<Command>(kFirst + static_cast<int>(kind));
}

std::string exportedText(const CVorl_ADVDoc& document, const ExportRequest& request) {
    const std::string reason = commandState(document, commandOf(request.kind)).reason;
    if (!reason.empty()) {
        throw refusal(reason);
    }
    ExportJob job{document.GetWorkspace().dataFiles, document.ActiveFile(), document.ActiveProbe(), request.options,
                  request.all};
    job.options.holeIncrement = document.Settings().holeIncrement;
    std::ostringstream stream;
    try {
        writeExport(stream, request.kind, job);
    } catch (const InvalidArgument& error) {
        // Columns that should be of one length are not: the caller knows of which workspace.
        throw refusal(error.what());
    }
    return std::move(stream).str();
}

}  // namespace vorlan
