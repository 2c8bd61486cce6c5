#pragma once

#include "entry/ZOLIQRDCfgInterfaces.h"
#include "session/ExitCode.h"
#include "values/ZOLGYRError.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace trellis {

// What every command may be told on the command line.
struct HostOptions {
    std::string database;              // file of the database; empty: that of the user
    std::vector<std::string> settings; // KEY=VALUE
    bool json = false;
    std::string display;    // of the windows; empty: that of the environment
    std::string fontSize;   // in points; empty: as the settings say
    std::string fontFamily; // empty: as the settings say
};

// HostSession: what a job stands on: settings, one open database, the loaded module. Each is made ready when a job
// asks for it; a failure is shown on the standard error, once, and ends the job with EnvironmentFailed.
class HostSession {
public:
    explicit HostSession(HostOptions options) : _options(std::move(options)) {}
    ~HostSession();
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;

    const HostOptions& Options() const { return _options; }
    // Reads all files, the environment and the options. 60601 for an option that is not KEY=VALUE; 60605 (folder) when
    // the texts of the program are not there.
    bool LoadSettings();
    // The database that jobs work on: that of the site, else the one of the command line, else the user's own. A
    // command line that names another than the site is warned (60602) and gets the site's.
    std::string DatabaseFile();
    bool OpenDatabase();
    // Loads the module at the first call; null when that fails.
    ZOLIQRDCfgInterfaces* Module();

private:
    HostOptions _options;
    std::unique_ptr<ZOLIQRDCfgInterfaces> _module;
};

} // namespace trellis
