#pragma once

#include <string>

namespace vorlan::test {

/// The text of tests/approved/<name>.txt, and how another one differs from it: empty when it does not, else what diff
/// prints. ./approve makes what the tests say now the approved texts.
std::string approvedText(const std::string& name);
std::string changeOfApproved(const std::string& name, std::string text);

}  // namespace vorlan::test
