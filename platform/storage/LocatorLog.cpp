#include "LocatorLog.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>

std::string LocatorLog::sidecarPath(std::string const& scenarioPath) {
    return scenarioPath + ".locate";
}

bool LocatorLog::append(std::string const& scenarioPath, std::string const& line) {
    std::string text = line + "\n";
    std::string const path = sidecarPath(scenarioPath);
    // A client calling Identify in a loop must not fill the disk: past the
    // cap the log moves to "<name>.1" (replacing the one before) and starts anew.
    struct stat st {};
    if (::stat(path.c_str(), &st) == 0 && static_cast<std::size_t>(st.st_size) >= maxBytes)
        ::rename(path.c_str(), (path + ".1").c_str());
    int fd = ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    ssize_t written = ::write(fd, text.data(), text.size());
    bool ok = written == static_cast<ssize_t>(text.size());
    return ::close(fd) == 0 && ok;
}

std::vector<std::string> LocatorLog::read(std::string const& scenarioPath) {
    std::vector<std::string> lines;
    std::ifstream in(sidecarPath(scenarioPath));
    for (std::string line; std::getline(in, line);)
        if (!line.empty())
            lines.push_back(line);
    return lines;
}
