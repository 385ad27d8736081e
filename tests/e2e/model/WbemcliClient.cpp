#include "WbemcliClient.h"

#include "CimdProcess.h"

#include <sstream>
#include <stdexcept>

WbemcliClient::WbemcliClient(int port, std::string nameSpace)
    : _url("http://127.0.0.1:" + std::to_string(port) + "/" + nameSpace) {}

std::vector<std::string> WbemcliClient::run(std::string const& op, std::string const& path,
                                            std::string const& options,
                                            std::string const& trailer) const {
    // Keys carry double quotes; single quotes keep the shell out of them.
    std::string target = path.empty() ? _url : _url + ":" + path;
    std::string command = "wbemcli " + op + " " + options + " '" + target + "' " + trailer;
    CommandResult result = runCommand(command);
    if (result.exitCode != 0)
        throw std::runtime_error(command + " exited " + std::to_string(result.exitCode) + ":\n" +
                                 result.out);
    std::vector<std::string> lines;
    std::istringstream in(result.out);
    for (std::string line; std::getline(in, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}

std::string WbemcliClient::localPath(std::string const& line) {
    // "host[:port]/root/mwq:Class.keys props": the class follows the first
    // ':' behind the namespace; a blank ends the path unless it is quoted.
    size_t colon = line.find(':', line.find('/'));
    size_t start = colon == std::string::npos ? 0 : colon + 1;
    bool quoted = false;
    size_t end = start;
    for (; end < line.size(); ++end) {
        char c = line[end];
        if (c == '"' && line[end - 1] != '\\')
            quoted = !quoted;
        if (c == ' ' && !quoted)
            break;
    }
    return line.substr(start, end - start);
}

std::string WbemcliClient::className(std::string const& line) {
    std::string path = localPath(line);
    return path.substr(0, path.find('.'));
}

std::map<std::string, int> WbemcliClient::histogram(std::vector<std::string> const& lines) {
    std::map<std::string, int> out;
    for (std::string const& line : lines)
        ++out[className(line)];
    return out;
}
