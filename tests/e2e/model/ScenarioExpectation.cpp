#include "ScenarioExpectation.h"

#include "ModelClassLists.h"

#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <set>
#include <stdexcept>

namespace {

std::string text(YAML::Node const& node, char const* key) {
    return node[key] ? node[key].as<std::string>() : std::string();
}

template <typename T> T number(YAML::Node const& node, char const* key, T fallback) {
    return node[key] ? node[key].as<T>() : fallback;
}

std::vector<unsigned> ids(YAML::Node const& node) {
    std::vector<unsigned> out;
    if (node)
        for (auto const& id : node)
            out.push_back(id.as<unsigned>());
    return out;
}

std::string withoutWhitespace(std::string const& in) {
    std::string out;
    std::copy_if(in.begin(), in.end(), std::back_inserter(out),
                 [](unsigned char c) { return !std::isspace(c); });
    return out;
}

// The back end tells disks apart by serial number; only a disk without one
// is known by its box and bay.
bool sameDisk(ScenarioExpectation::Disk const& member, ScenarioExpectation::Disk const& entry) {
    if (!entry.serial.empty())
        return entry.serial == member.serial;
    return member.serial.empty() && member.enclosureBox == entry.enclosureBox &&
           member.bay == entry.bay;
}

} // namespace

ScenarioExpectation::ScenarioExpectation(std::string const& scenarioFile) {
    _load(scenarioFile);
    _count();
}

void ScenarioExpectation::_load(std::string const& scenarioFile) {
    YAML::Node root = YAML::LoadFile(scenarioFile);
    int index = 0;
    for (auto const& c : root["controllers"]) {
        Controller controller;
        controller.index = ++index;
        controller.serial = text(c, "serialNumber");
        // A battery unless the record says absent or its getter is made to fail.
        controller.battery = number(c, "cacheHasBattery", 1) == 1;
        if (c["fail"])
            for (auto const& getter : c["fail"])
                if (getter.as<std::string>() == "getCacheHasBattery")
                    controller.battery = false;
        if (c["ports"])
            for (auto const& p : c["ports"])
                controller.ports.push_back(p.as<std::string>());
        for (auto const& e : c["enclosures"]) {
            Enclosure enclosure;
            enclosure.enclosureBox = number(e, "enclosureBoxNumber", 0);
            enclosure.box = number(e, "boxNumber", 0);
            enclosure.fwVersion = text(e, "fwVersion");
            controller.enclosures.push_back(enclosure);
        }
        for (auto const& d : c["physicalDisks"]) {
            Disk disk;
            disk.id = number(d, "id", 0u);
            disk.serial = text(d, "serialNumber");
            disk.model = text(d, "model");
            disk.box = number(d, "box", 0);
            disk.enclosureBox = number(d, "enclosureBoxNumber", 0);
            disk.bay = number(d, "bay", 0);
            disk.configuration = number(d, "configuration", 1u);
            disk.mnpData = number(d, "mnpData", false);
            disk.carrierAuthStatus = number(d, "carrierAuthStatus", 0u);
            if (d["paths"])
                for (auto const& p : d["paths"])
                    disk.paths.push_back({text(p, "port")});
            controller.disks.push_back(disk);
        }
        for (auto const& v : c["logicalDisks"]) {
            Volume volume;
            volume.number = number(v, "number", 0u);
            volume.serial = text(v, "serialNumber");
            volume.type = number(v, "volumeType", 0u);
            volume.relatedLun = number(v, "relatedLUN", 0u);
            volume.dataDisks = ids(v["dataDisks"]);
            volume.spareDisks = ids(v["spareDisks"]);
            if (v["replaced"])
                for (auto const& r : v["replaced"])
                    volume.replaced[r.first.as<unsigned>()] = r.second.as<unsigned>();
            controller.volumes.push_back(volume);
        }
        _controllers.push_back(controller);
    }
    if (_controllers.empty())
        throw std::runtime_error(scenarioFile + ": no controllers");
}

void ScenarioExpectation::_add(std::string const& className, int n) {
    _counts[className] += n;
}

// The graph builder carries its pool, cage, initiator, extent and cache
// volume lists from one controller to the next; the counts follow it.
void ScenarioExpectation::_count() {
    // Every class appears in the table, with 0 where the scenario gives none.
    auto zero = [this](auto& names) {
        for (char const* name : names)
            _counts[name] += 0;
    };
    zero(perController), zero(perControllerHost), zero(perInitiatorPort), zero(perEnclosure),
        zero(perEnclosureFirmware), zero(perDisk);
    zero(perDiskPath), zero(perDiskFirmware), zero(perCarrier), zero(perStatistics),
        zero(perVolume);
    for (char const* name :
         {"QLN_VDStorageCapabilities", "QLN_VDSCSIInitiatorTargetLogicalUnitPath",
          "QLN_VDStoragePoolStorageExtent", "QLN_VDDriveCageDiskPhysicalPackage",
          "QLN_VDStoragePoolStorageVolume", "QLN_VDStorageExtentStorageVolume",
          "QLN_VDStorageRedundancySet", "QLN_VDSpareExtentStorageRedundancySet",
          "QLN_VDSpareExtentStorageExtent", "QLN_VDStorageRedundancySetStorageExtent",
          "QLN_VDCacheVolumeStorageVolume"})
        _counts[name] += 0;

    int pools = 0;
    std::vector<int> cageBoxes;
    std::vector<Disk> spares, nonSpares;
    std::vector<Volume> cached, caches;
    std::set<std::string> viewVolumes, viewExtents;
    for (Controller const& c : _controllers) {
        for (char const* name : perController)
            _add(name);
        for (char const* name : perControllerHost)
            _add(name);
        _add("QLN_VDStorageCapabilities", 2); // the primordial pool's and the concrete pool's
        _add("DRSV_VDController");
        _add("DRSV_VDControllerFirmware");
        if (c.battery)
            _add("DRSV_VDBattery");
        // The view keys volumes by serial and extents by model and serial,
        // under the host's name: disks without a serial of one model share a key.
        for (Volume const& v : c.volumes)
            viewVolumes.insert(withoutWhitespace(v.serial));
        for (Disk const& d : c.disks)
            viewExtents.insert(withoutWhitespace(d.model) + "-" + withoutWhitespace(d.serial));
        ++pools;
        for (char const* name : perInitiatorPort)
            _add(name, static_cast<int>(c.ports.size()));

        for (Enclosure const& e : c.enclosures) {
            for (char const* name : perEnclosure)
                _add(name);
            if (!e.fwVersion.empty())
                for (char const* name : perEnclosureFirmware)
                    _add(name);
            cageBoxes.push_back(e.box);
        }

        for (Disk const& d : c.disks) {
            for (char const* name : perDisk)
                _add(name);
            for (Path const& p : d.paths) {
                for (char const* name : perDiskPath)
                    _add(name);
                _add("QLN_VDSCSIInitiatorTargetLogicalUnitPath",
                     static_cast<int>(std::count(c.ports.begin(), c.ports.end(), p.port)));
            }
            if (d.configuration == 2) {
                _add("QLN_VDStoragePoolStorageExtent", pools);
                nonSpares.push_back(d);
            } else if (d.configuration == 3) {
                spares.push_back(d);
            }
            if (!d.serial.empty()) {
                for (char const* name : perDiskFirmware)
                    _add(name);
                if (d.carrierAuthStatus == 2)
                    for (char const* name : perCarrier)
                        _add(name);
            }
            _add("QLN_VDDriveCageDiskPhysicalPackage",
                 static_cast<int>(std::count(cageBoxes.begin(), cageBoxes.end(), d.box)));
            if (d.mnpData)
                for (char const* name : perStatistics)
                    _add(name);
        }

        for (Volume const& v : c.volumes) {
            for (char const* name : perVolume)
                _add(name);
            _add("QLN_VDStoragePoolStorageVolume", pools);
            std::vector<Disk const*> m = members(c, v);
            int extents = 0;
            for (Disk const& e : nonSpares)
                for (Disk const* d : m)
                    extents += sameDisk(*d, e);
            _add("QLN_VDStorageExtentStorageVolume", extents);
            int spareLinks = 0;
            for (Disk const& s : spares)
                for (Disk const* d : m) {
                    if (!sameDisk(*d, s))
                        continue;
                    ++spareLinks;
                    auto replaced = v.replaced.find(d->id);
                    if (replaced == v.replaced.end())
                        continue;
                    for (Disk const* stoodFor : m)
                        if (stoodFor->id == replaced->second &&
                            std::any_of(nonSpares.begin(), nonSpares.end(),
                                        [&](Disk const& n) { return sameDisk(*stoodFor, n); }))
                            _add("QLN_VDSpareExtentStorageExtent");
                }
            if (spareLinks > 0) {
                _add("QLN_VDStorageRedundancySet");
                _add("QLN_VDSpareExtentStorageRedundancySet", spareLinks);
                _add("QLN_VDStorageRedundancySetStorageExtent", extents);
            }
            if (v.type == 2)
                cached.push_back(v);
            if (v.type == 3)
                caches.push_back(v);
        }
        for (Volume const& a : cached)
            for (Volume const& b : caches)
                if ((a.relatedLun & 0xffff) == b.number)
                    _add("QLN_VDCacheVolumeStorageVolume");
    }
    _add("DRSV_VDStorageVolume", static_cast<int>(viewVolumes.size()));
    _add("DRSV_VDStorageExtent", static_cast<int>(viewExtents.size()));
    _add("QLN_VDStorageSpecificCollection");
    _add("QLN_VDStorageGroupHostedCollection");
    _add("QLN_VDStorageSpecificCollectionArraySystem", static_cast<int>(_controllers.size()));
    _add("QLN_ComputerSystem");
    _add("QLN_Chassis");
    _add("QLN_AutoStartVeldra");
}

std::string ScenarioExpectation::systemName(Controller const& c) {
    return c.serial;
}

std::string ScenarioExpectation::diskDeviceId(Controller const& c, Disk const& d) {
    std::string serial = withoutWhitespace(d.serial);
    if (serial.empty())
        return std::to_string(c.index) + "-" + std::to_string(d.enclosureBox) + ":" +
               std::to_string(d.bay);
    return withoutWhitespace(d.model) + "-" + serial;
}

std::string ScenarioExpectation::enclosureTag(Controller const& c, Enclosure const& e) {
    return std::to_string(c.index) + "-" + std::to_string(e.enclosureBox);
}

std::vector<ScenarioExpectation::Disk const*> ScenarioExpectation::members(Controller const& c,
                                                                           Volume const& v) {
    std::vector<Disk const*> out;
    for (auto const* list : {&v.dataDisks, &v.spareDisks})
        for (unsigned id : *list)
            for (Disk const& d : c.disks)
                if (d.id == id)
                    out.push_back(&d);
    return out;
}
