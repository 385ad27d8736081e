#pragma once

#include <map>
#include <string>
#include <vector>

// What a client of veldra-cimd must see for a scenario file, worked out from
// the file itself with the graph's construction rules, so that an edit of
// the scenario moves the expectations with it instead of breaking them.
class ScenarioExpectation {
public:
    struct Path {
        std::string port;
    };
    struct Disk {
        unsigned id = 0;
        std::string serial;
        std::string model;
        int box = 0;
        int enclosureBox = 0;
        int bay = 0;
        unsigned configuration = 1; // unassigned unless the file says otherwise
        bool mnpData = false;
        unsigned carrierAuthStatus = 0;
        std::vector<Path> paths;
    };
    struct Volume {
        unsigned number = 0;
        std::string serial;
        unsigned type = 0;
        unsigned relatedLun = 0;
        std::vector<unsigned> dataDisks;
        std::vector<unsigned> spareDisks;
        std::map<unsigned, unsigned> replaced; // spare id -> id of the disk it stands in for
    };
    struct Enclosure {
        int enclosureBox = 0;
        int box = 0;
        std::string fwVersion;
    };
    struct Controller {
        int index = 0; // 1-based, the order of the file
        std::string serial;
        std::vector<std::string> ports;
        std::vector<Enclosure> enclosures;
        std::vector<Disk> disks;
        std::vector<Volume> volumes;
        bool battery = true; // the cache reports a battery
    };

    // Throws std::runtime_error when the file cannot be read.
    explicit ScenarioExpectation(std::string const& scenarioFile);

    std::vector<Controller> const& controllers() const { return _controllers; }
    // Instances per CIM class in root/mwq, the host provider's classes included,
    // and of the host view's DRSV_ classes in root/cimv2.
    std::map<std::string, int> const& counts() const { return _counts; }

    // Identity texts as clients see them in keys.
    static std::string systemName(Controller const& c); // only for controllers with a serial number
    static std::string diskDeviceId(Controller const& c, Disk const& d);
    static std::string enclosureTag(Controller const& c, Enclosure const& e);
    // The disks a volume is built of, data members first, in the file's order.
    static std::vector<Disk const*> members(Controller const& c, Volume const& v);

private:
    void _load(std::string const& scenarioFile);
    void _count();
    void _add(std::string const& className, int n = 1);

    std::vector<Controller> _controllers;
    std::map<std::string, int> _counts;
};
