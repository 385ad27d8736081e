#include "ScenarioEditor.h"

#include "ScenarioParser.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace {
YAML::Node const constGet(YAML::Node const& node, char const* key) {
    return node[key];
}

bool allDigits(std::string const& text) {
    return !text.empty() && text.size() < 10 &&
           text.find_first_not_of("0123456789") == std::string::npos;
}

// "1:2:7" -> numbers, when the text is exactly `count` numbers joined by colons.
bool numbers(std::string const& text, size_t count, std::vector<long long>& out) {
    out.clear();
    size_t start = 0;
    for (;;) {
        size_t colon = text.find(':', start);
        std::string part =
            text.substr(start, colon == std::string::npos ? std::string::npos : colon - start);
        if (!allDigits(part))
            return false;
        out.push_back(std::stoll(part));
        if (colon == std::string::npos)
            break;
        start = colon + 1;
    }
    return out.size() == count;
}
} // namespace

ScenarioEditor::ScenarioEditor(std::string path) : _path(std::move(path)) {
    if (_path.empty())
        throw SimCommandError("no scenario file: give --scenario or set VELDRA_SCENARIO");
    std::error_code ec;
    if (!std::filesystem::is_regular_file(_path, ec))
        throw SimCommandError(_path + ": not a regular file");
    // The lock lives beside the file, since every save replaces the file itself.
    std::string const lockPath = std::filesystem::weakly_canonical(_path, ec).string() + ".lock";
    _lock = ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (_lock < 0 || ::flock(_lock, LOCK_EX) != 0) {
        int saved = errno;
        if (_lock >= 0)
            ::close(_lock);
        throw SimCommandError("cannot lock " + lockPath + ": " + std::strerror(saved));
    }
    std::ifstream in(_path, std::ios::binary);
    if (!in) {
        ::close(_lock);
        throw SimCommandError(_path + ": cannot open the scenario file");
    }
    std::ostringstream text;
    text << in.rdbuf();
    try {
        ScenarioParser::parseText(text.str(), _path);
        _root = YAML::Load(text.str());
    } catch (ScenarioError const& e) {
        ::close(_lock);
        throw SimCommandError(std::string("the scenario is not valid: ") + e.what());
    }
}

ScenarioEditor::~ScenarioEditor() {
    ::close(_lock);
}

long long ScenarioEditor::toInteger(YAML::Node const& node, long long fallback) {
    if (!node.IsDefined() || !ScenarioEditor::isScalar(node))
        return fallback;
    char* end = nullptr;
    long long value = std::strtoll(node.Scalar().c_str(), &end, 0);
    return *end == '\0' ? value : fallback;
}

int ScenarioEditor::controllerCount() const {
    return static_cast<int>(constGet(_root, "controllers").size());
}

YAML::Node ScenarioEditor::controller(int number) {
    if (number < 1 || number > controllerCount())
        throw SimCommandError("there is no controller " + std::to_string(number) +
                              " (the scenario has " + std::to_string(controllerCount()) + ")");
    YAML::Node controllers = _root["controllers"];
    return controllers[number - 1];
}

YAML::Node ScenarioEditor::_view(int number, char const* key) {
    YAML::Node const c = controller(number);
    YAML::Node const found = c[key];
    return ScenarioEditor::isSequence(found) ? found : YAML::Node(YAML::NodeType::Sequence);
}

YAML::Node ScenarioEditor::list(int number, char const* key) {
    YAML::Node c = controller(number);
    YAML::Node const& view = c;
    if (!view[key].IsDefined() || view[key].IsNull())
        c[key] = YAML::Node(YAML::NodeType::Sequence);
    return c[key];
}

void ScenarioEditor::removeAt(int number, char const* key, size_t index) {
    YAML::Node old = list(number, key);
    YAML::Node kept(YAML::NodeType::Sequence);
    for (size_t i = 0; i < old.size(); ++i)
        if (i != index)
            kept.push_back(old[i]);
    controller(number)[key] = kept;
}

unsigned ScenarioEditor::nextDiskId(int number) {
    long long next = 0;
    for (char const* key : {"physicalDisks", "pulled"})
        for (auto const& d : _view(number, key))
            next = std::max(next, toInteger(constGet(d, "id"), 0) + 1);
    return static_cast<unsigned>(next);
}

ScenarioEditor::Place ScenarioEditor::findDisk(std::string const& name,
                                               std::initializer_list<char const*> lists) {
    std::vector<long long> m;
    std::vector<Place> found;
    bool byPlace = numbers(name, 3, m);
    for (int c = 1; c <= controllerCount(); ++c) {
        if (byPlace && c != m[0])
            continue;
        for (char const* key : lists) {
            YAML::Node disks = _view(c, key);
            for (size_t i = 0; i < disks.size(); ++i) {
                YAML::Node const d = disks[i];
                bool match = byPlace ? toInteger(constGet(d, "enclosureBoxNumber"), 0) == m[1] &&
                                           toInteger(constGet(d, "bay"), 0) == m[2]
                                     : ScenarioEditor::isScalar(constGet(d, "serialNumber")) &&
                                           d["serialNumber"].Scalar() == name;
                if (match)
                    found.push_back({c, key, i, disks[i]});
            }
        }
    }
    if (found.empty())
        throw SimCommandError("no disk '" + name + "'" +
                              (lists.size() == 1 && std::string(*lists.begin()) == "pulled"
                                   ? " among the pulled disks"
                                   : "") +
                              " (name a disk by serial number or by controller:box:bay)");
    if (found.size() > 1)
        throw SimCommandError("'" + name + "' names more than one disk; use controller:box:bay");
    return found.front();
}

ScenarioEditor::Place ScenarioEditor::findEnclosure(std::string const& name) {
    std::vector<long long> m;
    if (!numbers(name, 2, m))
        throw SimCommandError("'" + name +
                              "' is no enclosure: name it as controller:box, e.g. 1:2");
    int c = static_cast<int>(m[0]);
    YAML::Node enclosures = _view(c, "enclosures");
    for (size_t i = 0; i < enclosures.size(); ++i)
        if (toInteger(constGet(enclosures[i], "enclosureBoxNumber"), 0) == m[1])
            return {c, "enclosures", i, enclosures[i]};
    throw SimCommandError("controller " + std::to_string(c) + " has no enclosure with box number " +
                          std::to_string(m[1]));
}

ScenarioEditor::Place ScenarioEditor::findVolume(std::string const& name) {
    size_t colon = name.find(':');
    bool scoped =
        colon != std::string::npos && allDigits(name.substr(0, colon)) && colon + 1 < name.size();
    long long scope = scoped ? std::stoll(name.substr(0, colon)) : 0;
    std::string serial = scoped ? name.substr(colon + 1) : name;
    std::vector<Place> found;
    for (int c = 1; c <= controllerCount(); ++c) {
        if (scoped && c != scope)
            continue;
        YAML::Node volumes = _view(c, "logicalDisks");
        for (size_t i = 0; i < volumes.size(); ++i) {
            YAML::Node const v = volumes[i];
            if (ScenarioEditor::isScalar(constGet(v, "serialNumber")) &&
                v["serialNumber"].Scalar() == serial)
                found.push_back({c, "logicalDisks", i, volumes[i]});
        }
    }
    if (found.empty())
        throw SimCommandError("no volume '" + name + "' (name it by serial or controller:serial)");
    if (found.size() > 1)
        throw SimCommandError("'" + name + "' names more than one volume; use controller:serial");
    return found.front();
}

void ScenarioEditor::save() {
    YAML::Emitter out;
    out << _root;
    std::string text = std::string(out.c_str()) + "\n";
    try {
        ScenarioParser::parseText(text, _path);
    } catch (ScenarioError const& e) {
        throw SimCommandError(std::string("refused, the change would make the scenario invalid: ") +
                              e.what());
    }
    writeAtomically(_path, text);
}

void ScenarioEditor::writeAtomically(std::string const& path, std::string const& text) {
    std::error_code ec;
    std::string target = std::filesystem::weakly_canonical(path, ec).string();
    if (ec)
        target = path;
    std::string temp = target + ".XXXXXX";
    int fd = ::mkstemp(temp.data());
    if (fd < 0)
        throw SimCommandError("cannot write beside " + target + ": " + std::strerror(errno));
    struct stat st {};
    ::fchmod(fd, ::stat(target.c_str(), &st) == 0 ? st.st_mode & 07777 : 0644);
    bool ok = ::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
              ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (!ok || ::rename(temp.c_str(), target.c_str()) != 0) {
        int saved = errno;
        ::unlink(temp.c_str());
        throw SimCommandError("cannot replace " + target + ": " + std::strerror(saved));
    }
}
