#include "values/ZOLGYRTrace.h"

#include "values/Settings.h"

#include <algorithm>
#include <fstream>
#include <iostream>

namespace {

constexpr int BlanksPerScope = 3;
int openScopes = 0;

bool LevelListed(const std::string& levels, int level) {
    std::istringstream list(levels);
    for (std::string item; std::getline(list, item, ',');)
        if (std::atoi(item.c_str()) == level)
            return true;
    return false;
}

// A trace is for finding faults, so a sink that cannot be written must not stop the work: the line is lost.
void WriteToSink(const std::string& line) {
    const std::string sink = trellis::Settings::Current().Value("TRACE.SINK").text;
    if (sink.empty())
        return;
    if (sink == "stderr") {
        std::cerr << line << std::flush;
        return;
    }
    std::ofstream(sink, std::ios::app) << line << std::flush;
}

} // namespace

std::string ZOLGYRTraceLine::Take() {
    std::string line = _stream.str();
    _stream.str("");
    return line;
}

ZOLGYRTrace::ZOLGYRTrace(const char* method, int level, int)
    : _method(method), _level(level), _indent(openScopes * BlanksPerScope) {
    ++openScopes;
}

ZOLGYRTrace::~ZOLGYRTrace() {
    --openScopes;
}

int ZOLGYRTrace::LevelIsActive(const int level) const {
    const auto& settings = trellis::Settings::Current();
    if (settings.Value("TRACE.SINK").text.empty())
        return 0;
    return LevelListed(settings.Value("TRACE.LEVELS").text, level) ? 1 : 0;
}

std::string ZOLGYRTrace::Indent(const int blanks) {
    return std::string(static_cast<std::size_t>(std::max(blanks, 0)), ' ');
}

void ZOLGYRTrace::Out() {
    WriteToSink(_line.Take());
}

void ZOLGYRTrace::OutEnd(const ZOLGYRError& error) {
    // Deliberately bitwise.
    if ((error.GetCode() & LevelIsActive(GetLevel())) == 0)
        return;
    GetLigne().GetStream() << Indent(GetIndent() + 3) << GetMethod() << " ier = " << error.GetCode() << '\n';
    Out();
}

void ZOLGYRTrace::Note(const std::string& text) {
    WriteToSink(text + '\n');
}
