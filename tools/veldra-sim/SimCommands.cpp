#include "SimCommands.h"

#include "VeldraTypes.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

std::string hex(unsigned value) {
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", value);
    return text;
}

long long integer(YAML::Node const& node, char const* key, long long fallback) {
    YAML::Node const view = node;
    return ScenarioEditor::toInteger(view[key], fallback);
}

std::vector<unsigned> ids(YAML::Node const& node, char const* key) {
    std::vector<unsigned> out;
    YAML::Node const view = node;
    if (ScenarioEditor::isSequence(view[key]))
        for (auto const& item : view[key])
            out.push_back(static_cast<unsigned>(ScenarioEditor::toInteger(item, -1)));
    return out;
}

bool contains(std::vector<unsigned> const& list, unsigned id) {
    return std::find(list.begin(), list.end(), id) != list.end();
}

YAML::Node idSequence(std::vector<unsigned> const& list) {
    YAML::Node seq(YAML::NodeType::Sequence);
    seq.SetStyle(YAML::EmitterStyle::Flow);
    for (unsigned id : list)
        seq.push_back(id);
    return seq;
}

// A disk counts as working in a volume unless it failed.
bool working(long long status) {
    return status != PD_STATUS_FAILED && status != PD_STATUS_FAILED_ALL_PATHS;
}

// How many failed members a volume of this tolerance survives.
int survivable(long long tolerance) {
    switch (tolerance) {
    case LD_TOLERANCE_NONE:
        return 0;
    case LD_TOLERANCE_DUAL_PARITY:
    case LD_TOLERANCE_TRIPLE_MIRROR:
    case LD_TOLERANCE_STRIPED_DUAL_PARITY:
    case LD_TOLERANCE_STRIPED_TRIPLE_MIRROR:
    case LD_TOLERANCE_TRIPLE_MIRROR_SPANNED:
    case LD_TOLERANCE_DUAL_PARITY_SPANNED:
        return 2;
    default:
        return 1;
    }
}

unsigned parseStatus(std::string const& text, std::map<std::string, unsigned> const& words,
                     std::string const& kind) {
    auto found = words.find(text);
    if (found != words.end())
        return found->second;
    char* end = nullptr;
    unsigned long value = std::strtoul(text.c_str(), &end, 0);
    if (!text.empty() && *end == '\0' && text[0] != '-' && value <= 0xFFFFFFFFul)
        return static_cast<unsigned>(value);
    std::string known;
    for (auto const& [word, number] : words)
        known += (known.empty() ? "" : ", ") + word;
    throw SimCommandError("'" + text + "' is no " + kind + " status (use " + known +
                          " or a number)");
}

} // namespace

unsigned SimCommands::_diskId(ScenarioEditor::Place const& disk) {
    return static_cast<unsigned>(integer(disk.node, "id", 0));
}

std::vector<YAML::Node> SimCommands::_volumesWithData(int controller, unsigned id) {
    std::vector<YAML::Node> out;
    YAML::Node volumes = _editor.list(controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        if (contains(ids(volumes[i], "dataDisks"), id))
            out.push_back(volumes[i]);
    return out;
}

// A volume's status follows its members: failed members that no working
// active spare covers degrade it (or fail it beyond its tolerance); a spare
// still rebuilding makes it rebuild.
void SimCommands::_recomputeVolume(int controller, YAML::Node volume) {
    std::map<unsigned, YAML::Node> present;
    YAML::Node disks = _editor.list(controller, "physicalDisks");
    for (size_t i = 0; i < disks.size(); ++i)
        present.emplace(static_cast<unsigned>(integer(disks[i], "id", 0)), disks[i]);
    std::map<unsigned, unsigned> standsIn; // replaced disk -> spare
    YAML::Node const view = volume;
    if (ScenarioEditor::isMap(view["replaced"]))
        for (auto const& entry : view["replaced"])
            standsIn[static_cast<unsigned>(ScenarioEditor::toInteger(entry.second, -1))] =
                static_cast<unsigned>(ScenarioEditor::toInteger(entry.first, -1));
    int uncovered = 0;
    bool rebuilding = false;
    for (unsigned id : ids(volume, "dataDisks")) {
        auto disk = present.find(id);
        if (disk != present.end() && working(integer(disk->second, "status", PD_STATUS_OK)))
            continue;
        auto spare = standsIn.find(id);
        auto spareDisk = spare == standsIn.end() ? present.end() : present.find(spare->second);
        if (spareDisk != present.end() &&
            working(integer(spareDisk->second, "status", PD_STATUS_OK))) {
            rebuilding |=
                integer(spareDisk->second, "status", PD_STATUS_OK) == PD_STATUS_REBUILDING;
            continue;
        }
        ++uncovered;
    }
    unsigned status = LD_STATUS_OK;
    if (uncovered > survivable(integer(volume, "tolerance", LD_TOLERANCE_NONE)))
        status = LD_STATUS_FAILED;
    else if (uncovered > 0)
        status = LD_STATUS_DEGRADED;
    else if (rebuilding)
        status = LD_STATUS_REBUILDING;
    volume["status"] =
        status == LD_STATUS_OK || status == LD_STATUS_FAILED ? std::to_string(status) : hex(status);
}

void SimCommands::failDisk(std::string const& name, unsigned reason) {
    auto disk = _editor.findDisk(name);
    disk.node["status"] = std::to_string(PD_STATUS_FAILED);
    disk.node["lastFailureReason"] = reason;
    for (auto& volume : _volumesWithData(disk.controller, _diskId(disk)))
        _recomputeVolume(disk.controller, volume);
    // A failed stand-in leaves the member it covered uncovered again.
    YAML::Node volumes = _editor.list(disk.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        if (contains(ids(volumes[i], "spareDisks"), _diskId(disk)))
            _recomputeVolume(disk.controller, volumes[i]);
}

void SimCommands::degradeDisk(std::string const& name) {
    auto disk = _editor.findDisk(name);
    disk.node["status"] = std::to_string(PD_STATUS_PREDICTIVE_FAILURE);
}

void SimCommands::restoreDisk(std::string const& name) {
    auto disk = _editor.findDisk(name);
    disk.node["status"] = std::to_string(PD_STATUS_OK);
    disk.node["lastFailureReason"] = 0;
    YAML::Node volumes = _editor.list(disk.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        _recomputeVolume(disk.controller, volumes[i]);
}

void SimCommands::pullDisk(std::string const& name) {
    auto disk = _editor.findDisk(name);
    YAML::Node copy = YAML::Clone(disk.node);
    _editor.removeAt(disk.controller, "physicalDisks", disk.index);
    _editor.list(disk.controller, "pulled").push_back(copy);
    YAML::Node volumes = _editor.list(disk.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        _recomputeVolume(disk.controller, volumes[i]);
}

void SimCommands::insertPulledDisk(std::string const& name) {
    auto disk = _editor.findDisk(name, {"pulled"});
    YAML::Node copy = YAML::Clone(disk.node);
    _editor.removeAt(disk.controller, "pulled", disk.index);
    _editor.list(disk.controller, "physicalDisks").push_back(copy);
    YAML::Node volumes = _editor.list(disk.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        _recomputeVolume(disk.controller, volumes[i]);
}

void SimCommands::insertNewDisk(NewDisk const& d) {
    YAML::Node disks = _editor.list(d.controller, "physicalDisks");
    for (size_t i = 0; i < disks.size(); ++i)
        if (integer(disks[i], "enclosureBoxNumber", 0) == d.box &&
            integer(disks[i], "bay", 0) == d.bay)
            throw SimCommandError("bay " + std::to_string(d.bay) + " of box " +
                                  std::to_string(d.box) + " on controller " +
                                  std::to_string(d.controller) + " is taken");
    YAML::Node paths(YAML::NodeType::Sequence);
    std::string port;
    YAML::Node enclosures = _editor.list(d.controller, "enclosures");
    if (enclosures.size() > 0) {
        auto enclosure =
            _editor.findEnclosure(std::to_string(d.controller) + ":" + std::to_string(d.box));
        YAML::Node const view = enclosure.node;
        if (ScenarioEditor::isSequence(view["paths"]))
            paths = YAML::Clone(view["paths"]);
        if (paths.size() > 0)
            port = paths[0]["port"].as<std::string>();
    }
    YAML::Node disk;
    disk["id"] = _editor.nextDiskId(d.controller);
    if (!d.serial.empty())
        disk["serialNumber"] = d.serial;
    disk["model"] = d.model;
    disk["box"] = d.box;
    disk["bay"] = d.bay;
    disk["enclosureBoxNumber"] = d.box;
    if (!port.empty())
        disk["port"] = port;
    if (paths.size() > 0)
        disk["paths"] = paths;
    disk["configuration"] = static_cast<unsigned>(PD_CONFIG_UNASSIGNED);
    disk["totalBlocks"] = d.ssd ? "1875385008" : "3907029168";
    disk["rotationalSpeed"] = d.ssd ? 0 : 7200;
    if (d.ssd)
        disk["gasGauge"] = true;
    disks.push_back(disk);
}

void SimCommands::addEnclosure(int controller, int box, std::string const& serial, int bays,
                               std::vector<std::string> ports) {
    if (ports.empty())
        ports = {"1E"};
    YAML::Node enclosure;
    enclosure["enclosureBoxNumber"] = box;
    enclosure["boxNumber"] = box;
    if (!serial.empty())
        enclosure["serialNumber"] = serial;
    enclosure["model"] = "Veldra D12 JBOD";
    enclosure["driveBays"] = bays;
    YAML::Node paths(YAML::NodeType::Sequence);
    for (auto const& port : ports) {
        YAML::Node path;
        path.SetStyle(YAML::EmitterStyle::Flow);
        path["port"] = port;
        path["box"] = box;
        paths.push_back(path);
    }
    enclosure["paths"] = paths;
    _editor.list(controller, "enclosures").push_back(enclosure);
}

void SimCommands::removeEnclosure(std::string const& name) {
    auto enclosure = _editor.findEnclosure(name);
    long long box = integer(enclosure.node, "enclosureBoxNumber", 0);
    // Its disks go with it, kept as pulled so that they can come back.
    for (;;) {
        YAML::Node disks = _editor.list(enclosure.controller, "physicalDisks");
        size_t i = 0;
        while (i < disks.size() && integer(disks[i], "enclosureBoxNumber", 0) != box)
            ++i;
        if (i == disks.size())
            break;
        YAML::Node copy = YAML::Clone(disks[i]);
        _editor.removeAt(enclosure.controller, "physicalDisks", i);
        _editor.list(enclosure.controller, "pulled").push_back(copy);
    }
    _editor.removeAt(enclosure.controller, "enclosures", enclosure.index);
    YAML::Node volumes = _editor.list(enclosure.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i)
        _recomputeVolume(enclosure.controller, volumes[i]);
}

void SimCommands::setEnclosureStatus(std::string const& name, std::string const& kind,
                                     std::string const& status) {
    static std::map<std::string, std::map<std::string, unsigned>> const words = {
        {"fan",
         {{"ok", ENCLOSURE_FAN_OK},
          {"degraded", ENCLOSURE_FAN_DEGRADED},
          {"failed", ENCLOSURE_FAN_FAILED},
          {"unknown", ENCLOSURE_FAN_UNKNOWN}}},
        {"power-supply",
         {{"ok", ENCLOSURE_PS_OK},
          {"degraded", ENCLOSURE_PS_DEGRADED},
          {"failed", ENCLOSURE_PS_FAILED},
          {"unknown", ENCLOSURE_PS_UNKNOWN}}},
        {"temperature",
         {{"ok", ENCLOSURE_TEMP_OK},
          {"warning", ENCLOSURE_TEMP_WARNING},
          {"critical", ENCLOSURE_TEMP_CRITICAL},
          {"unknown", ENCLOSURE_TEMP_UNKNOWN}}},
    };
    static std::map<std::string, char const*> const fields = {{"fan", "fanStatus"},
                                                              {"power-supply", "powerSupplyStatus"},
                                                              {"temperature", "tempSensorStatus"}};
    unsigned value = parseStatus(status, words.at(kind), kind);
    auto enclosure = _editor.findEnclosure(name);
    enclosure.node[fields.at(kind)] = hex(value);
    // The overall status follows the subsystems from now on.
    enclosure.node.remove("overallStatus");
}

void SimCommands::failController(int controller) {
    YAML::Node c = _editor.controller(controller);
    c["operationalStatus"] = static_cast<unsigned>(CONTROLLER_OP_STATUS_FAILED);
    c["controllerStatus"] = static_cast<unsigned>(CONTROLLER_STATUS_FAILED);
}

void SimCommands::failCache(int controller) {
    YAML::Node c = _editor.controller(controller);
    c["cacheStatus"] = static_cast<unsigned>(CACHE_STATUS_FAILED);
    c["cacheOperationalStatus"] = static_cast<unsigned>(CACHE_OP_STATUS_FAILED);
}

void SimCommands::failBattery(int controller) {
    _editor.controller(controller)["batteryStatus"] = static_cast<unsigned>(BATTERY_FAILED);
}

void SimCommands::restoreController(int controller) {
    YAML::Node c = _editor.controller(controller);
    c["operationalStatus"] = static_cast<unsigned>(CONTROLLER_OP_STATUS_OK);
    c["controllerStatus"] = static_cast<unsigned>(CONTROLLER_STATUS_OK);
    c["cacheStatus"] = static_cast<unsigned>(CACHE_STATUS_OK);
    c["cacheOperationalStatus"] = static_cast<unsigned>(CACHE_OP_STATUS_OK);
    c["batteryStatus"] = static_cast<unsigned>(BATTERY_OK);
}

void SimCommands::activateSpare(std::string const& name, std::string const& spareName) {
    auto volume = _editor.findVolume(name);
    std::map<unsigned, YAML::Node> present;
    YAML::Node disks = _editor.list(volume.controller, "physicalDisks");
    for (size_t i = 0; i < disks.size(); ++i)
        present.emplace(static_cast<unsigned>(integer(disks[i], "id", 0)), disks[i]);
    std::map<unsigned, unsigned> replaced;
    YAML::Node const view = volume.node;
    if (ScenarioEditor::isMap(view["replaced"]))
        for (auto const& entry : view["replaced"])
            replaced[static_cast<unsigned>(ScenarioEditor::toInteger(entry.first, -1))] =
                static_cast<unsigned>(ScenarioEditor::toInteger(entry.second, -1));
    auto covered = [&](unsigned id) {
        return std::any_of(replaced.begin(), replaced.end(),
                           [&](auto const& e) { return e.second == id; });
    };
    long long failed = -1;
    for (unsigned id : ids(volume.node, "dataDisks")) {
        auto d = present.find(id);
        if ((d == present.end() || !working(integer(d->second, "status", PD_STATUS_OK))) &&
            !covered(id)) {
            failed = id;
            break;
        }
    }
    if (failed < 0)
        throw SimCommandError("volume " + name + " has no failed member without a stand-in");
    long long spare = -1;
    if (!spareName.empty()) {
        auto chosen = _editor.findDisk(spareName);
        if (chosen.controller != volume.controller ||
            !contains(ids(volume.node, "spareDisks"), _diskId(chosen)))
            throw SimCommandError("disk " + spareName + " is no spare of volume " + name);
        spare = _diskId(chosen);
    } else {
        for (unsigned id : ids(volume.node, "spareDisks")) {
            auto d = present.find(id);
            if (d != present.end() && !replaced.count(id) &&
                working(integer(d->second, "status", PD_STATUS_OK))) {
                spare = id;
                break;
            }
        }
    }
    if (spare < 0 || replaced.count(static_cast<unsigned>(spare)) ||
        !present.count(static_cast<unsigned>(spare)))
        throw SimCommandError("volume " + name + " has no free working spare");
    YAML::Node spareDisk = present[static_cast<unsigned>(spare)];
    spareDisk["activeSpare"] = true;
    spareDisk["status"] = hex(PD_STATUS_REBUILDING);
    volume.node["replaced"][static_cast<unsigned>(spare)] = static_cast<unsigned>(failed);
    volume.node["replaced"].SetStyle(YAML::EmitterStyle::Flow);
    _recomputeVolume(volume.controller, volume.node);
}

void SimCommands::createVolume(NewVolume const& v) {
    if (v.serial.empty())
        throw SimCommandError("a volume needs a serial number (--serial)");
    if (v.disks.empty())
        throw SimCommandError("a volume needs at least one data disk (--disks)");
    YAML::Node volumes = _editor.list(v.controller, "logicalDisks");
    std::vector<unsigned> taken;
    long long number = 0;
    for (size_t i = 0; i < volumes.size(); ++i) {
        for (unsigned id : ids(volumes[i], "dataDisks"))
            taken.push_back(id);
        number = std::max(number, integer(volumes[i], "number", 0) + 1);
    }
    auto resolve = [&](std::string const& name, bool spare) {
        auto disk = _editor.findDisk(name);
        if (disk.controller != v.controller)
            throw SimCommandError("disk " + name + " is not on controller " +
                                  std::to_string(v.controller));
        long long config = integer(disk.node, "configuration", PD_CONFIG_UNASSIGNED);
        bool free = config == PD_CONFIG_UNASSIGNED || (spare && config == PD_CONFIG_SPARE);
        if (!free || contains(taken, _diskId(disk)))
            throw SimCommandError("disk " + name + " already belongs to a volume");
        return disk;
    };
    std::vector<unsigned> data, spares;
    unsigned long long smallest = ~0ull;
    for (auto const& name : v.disks) {
        auto disk = resolve(name, false);
        if (contains(data, _diskId(disk)))
            throw SimCommandError("disk " + name + " is named twice");
        data.push_back(_diskId(disk));
        smallest = std::min<unsigned long long>(smallest, integer(disk.node, "totalBlocks", 0));
        disk.node["configuration"] = static_cast<unsigned>(PD_CONFIG_DATA);
    }
    for (auto const& name : v.spares) {
        auto disk = resolve(name, true);
        if (contains(data, _diskId(disk)))
            throw SimCommandError("disk " + name + " cannot be data and spare");
        spares.push_back(_diskId(disk));
        disk.node["configuration"] = static_cast<unsigned>(PD_CONFIG_SPARE);
    }
    unsigned long long n = data.size();
    unsigned long long usable =
        v.tolerance == LD_TOLERANCE_NONE ? n
        : v.tolerance == LD_TOLERANCE_MIRROR || v.tolerance == LD_TOLERANCE_STRIPED_MIRROR
            ? std::max(1ull, n / 2)
            : std::max(1ull, n - static_cast<unsigned long long>(survivable(v.tolerance)));
    YAML::Node volume;
    volume["number"] = number;
    volume["serialNumber"] = v.serial;
    if (!v.label.empty())
        volume["driveLabel"] = v.label;
    volume["tolerance"] = v.tolerance;
    volume["totalBlocks"] = std::to_string(smallest * usable);
    volume["dataDisks"] = idSequence(data);
    if (!spares.empty())
        volume["spareDisks"] = idSequence(spares);
    volumes.push_back(volume);
    _recomputeVolume(v.controller, volumes[volumes.size() - 1]);
}

void SimCommands::deleteVolume(std::string const& name) {
    auto volume = _editor.findVolume(name);
    std::vector<unsigned> data = ids(volume.node, "dataDisks"),
                          spares = ids(volume.node, "spareDisks");
    _editor.removeAt(volume.controller, "logicalDisks", volume.index);
    std::vector<unsigned> stillData, stillSpare;
    YAML::Node volumes = _editor.list(volume.controller, "logicalDisks");
    for (size_t i = 0; i < volumes.size(); ++i) {
        for (unsigned id : ids(volumes[i], "dataDisks"))
            stillData.push_back(id);
        for (unsigned id : ids(volumes[i], "spareDisks"))
            stillSpare.push_back(id);
    }
    YAML::Node disks = _editor.list(volume.controller, "physicalDisks");
    for (size_t i = 0; i < disks.size(); ++i) {
        unsigned id = static_cast<unsigned>(integer(disks[i], "id", 0));
        bool member = contains(data, id) || contains(spares, id);
        if (!member || contains(stillData, id) || contains(stillSpare, id))
            continue;
        disks[i]["configuration"] = static_cast<unsigned>(PD_CONFIG_UNASSIGNED);
        disks[i]["activeSpare"] = false;
    }
}

void SimCommands::setField(std::string const& target, std::string const& field,
                           std::string const& value) {
    size_t colon = target.find(':');
    std::string kind = target.substr(0, colon),
                name = colon == std::string::npos ? "" : target.substr(colon + 1);
    if (name.empty() ||
        (kind != "controller" && kind != "enclosure" && kind != "disk" && kind != "volume"))
        throw SimCommandError(
            "'" + target +
            "' is no target: use controller:N, enclosure:C:BOX, disk:SERIAL, disk:C:BOX:BAY or "
            "volume:SERIAL");
    YAML::Node node;
    if (kind == "controller") {
        char* end = nullptr;
        long number = std::strtol(name.c_str(), &end, 10);
        if (*end != '\0')
            throw SimCommandError("'" + name + "' is no controller number");
        node = _editor.controller(static_cast<int>(number));
    } else if (kind == "enclosure") {
        node = _editor.findEnclosure(name).node;
    } else if (kind == "disk") {
        node = _editor.findDisk(name).node;
    } else {
        node = _editor.findVolume(name).node;
    }
    if (field.empty())
        throw SimCommandError("no field named");
    YAML::Node parsed;
    try {
        parsed = YAML::Load(value);
    } catch (YAML::Exception const& e) {
        throw SimCommandError("'" + value + "' is no value: " + e.msg);
    }
    // A dotted field reaches into a nested record: pciInfo.bus, statistics.seekErrors.
    std::vector<std::string> parts;
    for (size_t start = 0;;) {
        size_t dot = field.find('.', start);
        parts.push_back(field.substr(start, dot - start));
        if (dot == std::string::npos)
            break;
        start = dot + 1;
    }
    YAML::Node at = node;
    for (size_t i = 0; i + 1 < parts.size(); ++i) {
        YAML::Node next = at[parts[i]];
        if (!ScenarioEditor::isMap(next))
            at[parts[i]] = YAML::Node(YAML::NodeType::Map);
        at.reset(at[parts[i]]);
    }
    at[parts.back()] = parsed;
}
