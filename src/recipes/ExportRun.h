#pragma once

#include <string>
#include <vector>

#include "app/CVorl_ADVDoc.h"
#include "app/CommandState.h"
#include "export/ExportKind.h"
#include "export/ExportOptions.h"

namespace vorlan {

/// Names of the exports, by their kind.
const std::vector<std::string>& exportNames();
/// Names of the value separators, by their code.
const std::vector<std::string>& separatorNames();

struct ExportRequest {
    ExportKind kind = ExportKind::Velocities;
    ExportOptions options;
    bool all = false;  ///< all files and probes
};

/// Why the request cannot be meant; empty when it can.
std::string faultOf(const ExportRequest& request);

/// The file of the selected probe (or of all), as the window would write it. RunError Refused when it would not.
std::string exportedText(const CVorl_ADVDoc& document, const ExportRequest& request);

}  // namespace vorlan
