#pragma once

#include <CLI/CLI.hpp>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "analysis/Simulation.h"
#include "batch/WorkspaceAccess.h"

namespace vorlan {

// Options that several subcommands have, each with its check: a wrong value is a CLI::ValidationError that names the
// option.

/// For an option that names a file or folder: an empty name is refused.
CLI::Option* needsName(CLI::Option* option);

/// "--out OUT.avp".
CLI::Option* addWorkspaceOutput(CLI::App& app, std::string& path, const std::string& help);

/// A number in a range, both ends included.
CLI::Option* addReal(CLI::App& app, const std::string& name, double& target, const Range& range,
                     const std::string& unit, const std::string& help);

/// The same for a whole number.
CLI::Option* addInteger(CLI::App& app, const std::string& name, int& target, const Range& range,
                        const std::string& help);

/// Three comma-separated numbers, each in its range.
using Ranges = std::array<Range, 3>;
CLI::Option* addTriple(CLI::App& app, const std::string& name, std::array<double, 3>& target, const Ranges& ranges,
                       const std::string& parts, const std::string& help);

/// One of the names; target takes its index.
CLI::Option* addChoice(CLI::App& app, const std::string& name, int& target, const std::vector<std::string>& choices,
                       const std::string& help);

/// Help of a choice with many names: "The stage: one, two or three", in lines that fit beside the options.
std::string choicesHelp(const std::string& what, const std::vector<std::string>& choices);

/// "--file N" and "--probe N", numbers from 1; fallback is what the help says of one that is not given.
void addPlace(CLI::App& app, ProbePlace& place, const std::string& fallback = "1");

/// "--paper" and "--landscape".
void addPaper(CLI::App& app, int& paper, bool& landscape);

/// Of a sampling volume, m.
inline constexpr Range kPosition{-1e6, 1e6};
inline constexpr Ranges kPositions{kPosition, kPosition, kPosition};

/// "0.04", as help texts and messages show numbers.
std::string shown(double value);

}  // namespace vorlan
