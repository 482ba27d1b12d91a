#pragma once

#include <CLI/CLI.hpp>

#include <vector>

namespace Tamrivo
{

/// How a command prints what it has found.
enum class OutputFormat
{
    Table, ///< For people.
    Tsv,
    Json,
    Html,
};

/// Adds `--format` with some of the formats; the first is the one by default.
void AddFormatOption(CLI::App& command, OutputFormat& format,
                     const std::vector<OutputFormat>& offered);

} // namespace Tamrivo
