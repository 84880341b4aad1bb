#include "batch/ExportRun.h"

#include <sstream>

#include "batch/BatchError.h"
#include "export/SpectralExport.h"
#include "export/VelocitiesExport.h"

namespace vorlan {

namespace {

/// How one kind is written. Kinds with the choice of a scope take all as it is; the others write the selected probe.
struct ExportWriter {
    ExportKind kind;
    Command command;
    void (*write)(std::ostream& stream, const CVorl_ADVDoc& document, const ExportRequest& request);
};

template <void (*writeSeries)(std::ostream&, const ExportSource&, const ExportOptions&)>
void writeSelected(std::ostream& stream, const CVorl_ADVDoc& document, const ExportRequest& request) {
    const ExportSource source{document.File().fileName, document.ActiveProbe() + 1, document.Probe()};
    writeSeries(stream, source, request.options);
}

const std::vector<ExportWriter>& writers() {
    static const std::vector<ExportWriter> table = {
        {ExportKind::Velocities, Command::ExportVelocities, writeSelected<writeVelocities>},
        {ExportKind::Spectral, Command::ExportSpectral, writeSelected<writeSpectral>},
    };
    return table;
}

const ExportWriter& writerOf(const ExportRequest& request) {
    return writers().at(static_cast<std::size_t>(request.name));
}

}  // namespace

const std::vector<std::string>& exportNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> list;
        for (const ExportWriter& writer : writers()) {
            list.emplace_back(exportKindInfo(writer.kind).name);
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
    if (request.all && exportKindInfo(writerOf(request).kind).dialog != ExportDialog::Scope) {
        return std::string("the export \"") + exportKindInfo(writerOf(request).kind).name +
               "\" is of one probe: it does not know \"all\"";
    }
    return {};
}

Command commandOf(const ExportRequest& request) {
    return writerOf(request).command;
}

std::string exportedText(const CVorl_ADVDoc& document, const ExportRequest& request) {
    const std::string reason = disabledReason(document, commandOf(request));
    if (!reason.empty()) {
        throw refusal(reason);
    }
    std::ostringstream stream;
    writerOf(request).write(stream, document, request);
    return std::move(stream).str();
}

}  // namespace vorlan
