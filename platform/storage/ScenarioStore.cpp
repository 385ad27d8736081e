#include "ScenarioStore.h"

#include "ScenarioParser.h"

#include <fcntl.h>
#include <malloc.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {
template <class Info>
bool sameFacts(std::vector<std::shared_ptr<Info const>> const& a,
               std::vector<std::shared_ptr<Info const>> const& b) {
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i] != b[i] && !(*a[i] == *b[i]))
            return false;
    return true;
}

ScenarioStore::Signature signatureOf(struct stat const& st) {
    return {static_cast<unsigned long long>(st.st_dev), static_cast<unsigned long long>(st.st_ino),
            static_cast<unsigned long long>(st.st_size), static_cast<long long>(st.st_mtim.tv_sec),
            static_cast<long long>(st.st_mtim.tv_nsec)};
}
} // namespace

ScenarioStore::ScenarioStore(std::string path, Logger const& logger)
    : _path(std::move(path)), _logger(logger) {
    std::string text = _readFile(_path, _seen);
    auto scenario = std::make_shared<VeldraScenario const>(ScenarioParser::parseText(text, _path));
    _current = scenario;
    _releaseParserMemory();
    while (_counters.size() < scenario->controllers.size())
        _counters.emplace_back();
}

bool ScenarioStore::_statFile(std::string const& path, Signature& signature) {
    struct stat st {};
    if (::stat(path.c_str(), &st) != 0)
        return false;
    signature = signatureOf(st);
    return true;
}

std::string ScenarioStore::_readFile(std::string const& path, Signature& signature) {
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        throw ScenarioError(path + ": cannot open the scenario file: " + std::strerror(errno));
    struct stat st {};
    std::string text;
    bool ok = ::fstat(fd, &st) == 0;
    if (ok) {
        signature = signatureOf(st);
        char buffer[65536];
        ssize_t n;
        while ((n = ::read(fd, buffer, sizeof buffer)) > 0)
            text.append(buffer, static_cast<size_t>(n));
        ok = n == 0;
    }
    int savedErrno = errno;
    ::close(fd);
    if (!ok)
        throw ScenarioError(path + ": cannot read the scenario file: " + std::strerror(savedErrno));
    return text;
}

void ScenarioStore::refresh() {
    std::lock_guard<std::mutex> lock(_mutex);
    Signature now;
    if (!_statFile(_path, now)) {
        Signature gone;
        if (!(_seen == gone)) {
            _logger.error("scenario %s cannot be read (%s); keeping the last good state",
                          _path.c_str(), std::strerror(errno));
            _seen = gone;
        }
        return;
    }
    if (now == _seen)
        return;
    try {
        std::string text = _readFile(_path, _seen);
        auto next = std::make_shared<VeldraScenario const>(ScenarioParser::parseText(text, _path));
        if (next->controllers.size() < _current->controllers.size())
            throw ScenarioError(_path + ": the scenario has " +
                                std::to_string(next->controllers.size()) + " controllers where " +
                                std::to_string(_current->controllers.size()) +
                                " were; controllers cannot be removed while running");
        _adopt(std::move(next));
        _releaseParserMemory();
        _logger.info("scenario %s reloaded", _path.c_str());
    } catch (ScenarioError const& e) {
        // _seen already names this version of the file, so it is logged once.
        _logger.error("scenario rejected, keeping the last good state: %s", e.what());
    }
}

void ScenarioStore::_releaseParserMemory() {
    // The YAML tree of a large scenario is many times the size of what we
    // keep; hand the freed pages back, since the object manager runs for long.
    ::malloc_trim(0);
}

void ScenarioStore::_adopt(std::shared_ptr<VeldraScenario const> next) {
    auto const& before = _current->controllers;
    auto const& after = next->controllers;
    for (size_t i = 0; i < before.size(); ++i) {
        auto const& a = before[i];
        auto const& b = after[i];
        Counters& c = _counters[i];
        if (!(*a.data == *b.data))
            ++c.controllerData;
        bool disks = !sameFacts(a.physicalDisks, b.physicalDisks) ||
                     !sameFacts(a.logicalDisks, b.logicalDisks);
        if (disks || !sameFacts(a.enclosures, b.enclosures))
            ++c.diskVector;
        if (disks)
            ++c.significantDisk;
    }
    while (_counters.size() < after.size())
        _counters.emplace_back();
    _current = std::move(next);
}

std::shared_ptr<VeldraScenario const> ScenarioStore::current() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _current;
}

size_t ScenarioStore::controllerCount() const {
    std::lock_guard<std::mutex> lock(_mutex);
    return _current->controllers.size();
}

ScenarioStore::Counters& ScenarioStore::counters(size_t index) {
    std::lock_guard<std::mutex> lock(_mutex);
    return _counters.at(index);
}
