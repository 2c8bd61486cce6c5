#pragma once

#include "session/ExitCode.h"
#include "session/HostSession.h"

#include <CLI/App.hpp>

#include <functional>

namespace trellis {

// What the command line asked for; set by the command that was named.
using Job = std::function<ExitCode(HostSession&)>;

// Each declares one group of commands, which set `job` when they are named.
void DeclareImportCommands(CLI::App& program, Job& job);
void DeclareExportCommands(CLI::App& program, Job& job);
void DeclareConfigureCommand(CLI::App& program, Job& job);
void DeclareCheckCommand(CLI::App& program, Job& job);
void DeclareTreeCommand(CLI::App& program, Job& job);
void DeclareScriptCommand(CLI::App& program, Job& job);
void DeclareDatabaseCommands(CLI::App& database, Job& job);
void DeclarePeopleCommands(CLI::App& database, Job& job);
void DeclareConfigCommand(CLI::App& program, Job& job);

} // namespace trellis
