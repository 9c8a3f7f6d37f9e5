#include "tools/standin/StartLog.h"

#include "tools/driver/Words.h"

#include <filesystem>
#include <fstream>

namespace {

// The rest of the next line if it begins with `key`: a record that is being written has no end yet.
bool Take(std::istream& log, const std::string& key, std::wstring& value) {
    std::string line;
    if (!std::getline(log, line, '\r') || !line.starts_with(key) || log.get() != '\n') return false;
    value = FromUtf8(line.substr(key.size()));
    return true;
}

} // namespace

std::vector<Start> StartsOf(const std::wstring& program) {
    std::ifstream log(std::filesystem::path(program + L".log"), std::ios::binary);
    std::vector<Start> starts;
    std::wstring show, end;
    for (Start start; Take(log, "command=", start.commandLine) && Take(log, "show=", show) &&
                      Take(log, "folder=", start.folder) && Take(log, "", end);) {
        start.show = std::stoi(show);
        starts.push_back(start);
    }
    return starts;
}
