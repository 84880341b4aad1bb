#include "recipes/ExportRun.h"

#include <sstream>

#include "model/Errors.h"
#include "recipes/RunError.h"

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
        return std::string("the export \"") + info.name + "\" writes one probe: it does not take \"all\"";
    }
    return {};
}

std::string exportedText(const CVorl_ADVDoc& document, const ExportRequest& request) {
    const std::string reason = commandState(document, exportCommand(request.kind)).reason;
    if (!reason.empty()) {
        throw refusal(reason);
    }
    std::ostringstream stream;
    try {
        document.Export(stream, request.kind, request.options, request.all);
    } catch (const InvalidArgument& error) {
        // Columns that should be of one length are not: the caller knows of which workspace.
        throw refusal(error.what());
    }
    return std::move(stream).str();
}

}  // namespace vorlan
