#include "ScenarioParser.h"

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>
#include <set>
#include <sstream>
#include <type_traits>

namespace {

#define VELDRA_FIELD_NAME(type, member, init) #member,

std::vector<std::string> const statisticsKeys = {"abortedCommands",
                                                 "badTargetErrors",
                                                 "eccRecoveredReadErrors",
                                                 "formatErrors",
                                                 "hardReadErrors",
                                                 "hardWriteErrors",
                                                 "hardwareErrors",
                                                 "hotPlugCount",
                                                 "mediaFailures",
                                                 "notReadyErrors",
                                                 "otherTimeOuts",
                                                 "scsiBusFaults",
                                                 "sectorsRead",
                                                 "sectorsWritten",
                                                 "seekCount",
                                                 "seekErrors",
                                                 "spinUpErrors",
                                                 "drqTimeOuts",
                                                 "retryRecoveredReadErrors",
                                                 "retryRecoveredWriteErrors",
                                                 "failedReadRecovers",
                                                 "failedWriteRecovers",
                                                 "serviceHours"};

// Where we are in the file, for messages.
struct Context {
    std::string file;
    std::string where;

    [[noreturn]] void fail(YAML::Node const& node, std::string const& field,
                           std::string const& what) const {
        std::ostringstream text;
        text << file;
        if (node.IsDefined() && node.Mark().line >= 0)
            text << ":" << node.Mark().line + 1;
        text << ": " << where;
        if (!field.empty())
            text << ": field '" << field << "'";
        text << ": " << what;
        throw ScenarioError(text.str());
    }
    Context child(std::string const& part) const {
        return Context{file, where.empty() ? part : where + "." + part};
    }
};

// Finds the first alias (*name). Aliases let a few lines stand for thousands
// of records, so a scenario is written out in full.
class AliasFinder : public YAML::EventHandler {
public:
    std::optional<YAML::Mark> alias;

    void OnDocumentStart(YAML::Mark const&) override {}
    void OnDocumentEnd() override {}
    void OnNull(YAML::Mark const&, YAML::anchor_t) override {}
    void OnAlias(YAML::Mark const& mark, YAML::anchor_t) override {
        if (!alias)
            alias = mark;
    }
    void OnScalar(YAML::Mark const&, std::string const&, YAML::anchor_t,
                  std::string const&) override {}
    void OnSequenceStart(YAML::Mark const&, std::string const&, YAML::anchor_t,
                         YAML::EmitterStyle::value) override {}
    void OnSequenceEnd() override {}
    void OnMapStart(YAML::Mark const&, std::string const&, YAML::anchor_t,
                    YAML::EmitterStyle::value) override {}
    void OnMapEnd() override {}
};

std::string scalarText(YAML::Node const& node) {
    return node.IsScalar() ? node.Scalar() : std::string("(not a value)");
}

template <class T>
void convert(YAML::Node const& node, T& out, Context const& ctx, std::string const& field);

template <class T>
requires std::is_integral_v<T> &&
    (!std::is_same_v<T, bool>)void convertInteger(YAML::Node const& node, T& out,
                                                  Context const& ctx, std::string const& field) {
    if (!node.IsScalar())
        ctx.fail(node, field, "expected an integer");
    std::string const& text = node.Scalar();
    char* end = nullptr;
    errno = 0;
    bool ok = !text.empty();
    if constexpr (std::is_signed_v<T>) {
        long long v = ok ? std::strtoll(text.c_str(), &end, 0) : 0;
        ok = ok && errno == 0 && *end == '\0' && v >= std::numeric_limits<T>::min() &&
             v <= std::numeric_limits<T>::max();
        if (ok)
            out = static_cast<T>(v);
    } else {
        ok = ok && text[0] != '-';
        unsigned long long v = ok ? std::strtoull(text.c_str(), &end, 0) : 0;
        ok = ok && errno == 0 && *end == '\0' && v <= std::numeric_limits<T>::max();
        if (ok)
            out = static_cast<T>(v);
    }
    if (!ok)
        ctx.fail(node, field,
                 "expected an integer from " + std::to_string(+std::numeric_limits<T>::min()) +
                     " to " + std::to_string(+std::numeric_limits<T>::max()) + ", got '" + text +
                     "'");
}

template <class T>
void convert(YAML::Node const& node, T& out, Context const& ctx, std::string const& field) {
    if constexpr (std::is_same_v<T, std::string>) {
        if (node.IsNull())
            out.clear();
        else if (node.IsScalar())
            out = node.Scalar();
        else
            ctx.fail(node, field, "expected a text");
    } else if constexpr (std::is_same_v<T, bool>) {
        bool value = false;
        if (!node.IsScalar() || !YAML::convert<bool>::decode(node, value))
            ctx.fail(node, field, "expected true or false, got '" + scalarText(node) + "'");
        out = value;
    } else if constexpr (std::is_floating_point_v<T>) {
        T value{};
        if (!node.IsScalar() || !YAML::convert<T>::decode(node, value))
            ctx.fail(node, field, "expected a number, got '" + scalarText(node) + "'");
        out = value;
    } else if constexpr (std::is_integral_v<T>) {
        convertInteger(node, out, ctx, field);
    } else {
        // a vector of one of the above
        if (!node.IsSequence())
            ctx.fail(node, field, "expected a list");
        out.clear();
        for (auto const& item : node) {
            typename T::value_type value{};
            convert(item, value, ctx, field);
            out.push_back(value);
        }
    }
}

void checkKeys(YAML::Node const& map, std::set<std::string> const& allowed, Context const& ctx) {
    if (!map.IsMap())
        ctx.fail(map, "", "expected a mapping of fields");
    for (auto const& entry : map) {
        std::string key = entry.first.as<std::string>();
        if (!allowed.count(key))
            ctx.fail(entry.first, key, "unknown field");
    }
}

template <class T> void read(YAML::Node const& map, char const* key, T& out, Context const& ctx) {
    YAML::Node node = map[key];
    if (node.IsDefined())
        convert(node, out, ctx, key);
}

// A list of operations, each one that `failable` names: "fail" (returns
// non-zero) or, for controllers, "throw".
std::set<std::string> readFail(YAML::Node const& map, std::vector<std::string> const& failable,
                               Context const& ctx, char const* key = "fail") {
    std::set<std::string> out;
    YAML::Node node = map[key];
    if (!node.IsDefined())
        return out;
    std::vector<std::string> names;
    convert(node, names, ctx, key);
    std::set<std::string> known(failable.begin(), failable.end());
    for (auto const& name : names) {
        if (!known.count(name)) {
            std::string list;
            for (auto const& k : failable)
                list += (list.empty() ? "" : ", ") + k;
            ctx.fail(node, key,
                     "'" + name + "' is no operation that can fail here (known: " + list + ")");
        }
        out.insert(name);
    }
    return out;
}

std::vector<VeldraPhysicalPath> readPaths(YAML::Node const& map, Context const& ctx) {
    std::vector<VeldraPhysicalPath> paths;
    YAML::Node node = map["paths"];
    if (!node.IsDefined())
        return paths;
    if (!node.IsSequence())
        ctx.fail(node, "paths", "expected a list of routes");
    int i = 0;
    for (auto const& item : node) {
        Context here = ctx.child("paths[" + std::to_string(i++) + "]");
        checkKeys(item, {"port", "box", "status"}, here);
        std::string port;
        int box = 0, status = 1;
        read(item, "port", port, here);
        read(item, "box", box, here);
        read(item, "status", status, here);
        if (port.empty())
            here.fail(item, "port", "a route needs a port");
        paths.emplace_back(port, box, status);
    }
    return paths;
}

std::set<std::string> keySet(std::vector<std::string> const& keys) {
    return {keys.begin(), keys.end()};
}

std::shared_ptr<VeldraEnclosureInfo const> readEnclosure(YAML::Node const& map,
                                                         Context const& ctx) {
    checkKeys(map, keySet(ScenarioParser::enclosureKeys()), ctx);
    auto info = std::make_shared<VeldraEnclosureInfo>();
#define VELDRA_READ_FIELD(type, member, init) read(map, #member, info->member, ctx);
    VELDRA_ENCLOSURE_FIELDS(VELDRA_READ_FIELD)
    if (map["overallStatus"].IsDefined()) {
        info->overallStatusSet = true;
        read(map, "overallStatus", info->overallStatus, ctx);
    }
    info->paths = readPaths(map, ctx);
    return info;
}

std::shared_ptr<VeldraPhysicalDiskInfo const> readPhysicalDisk(YAML::Node const& map,
                                                               Context const& ctx) {
    checkKeys(map, keySet(ScenarioParser::physicalDiskKeys()), ctx);
    auto info = std::make_shared<VeldraPhysicalDiskInfo>();
    VELDRA_PHYSICAL_DISK_FIELDS(VELDRA_READ_FIELD)
    info->paths = readPaths(map, ctx);
    info->fail = readFail(map, ScenarioParser::physicalDiskFailable(), ctx);
    YAML::Node stats = map["statistics"];
    if (stats.IsDefined()) {
        Context here = ctx.child("statistics");
        checkKeys(stats, keySet(statisticsKeys), here);
        u64* counters = &info->statistics.abortedCommands;
        for (size_t i = 0; i < statisticsKeys.size(); ++i)
            read(stats, statisticsKeys[i].c_str(), counters[i], here);
    }
    return info;
}

std::shared_ptr<VeldraLogicalDiskInfo const> readLogicalDisk(YAML::Node const& map,
                                                             Context const& ctx) {
    checkKeys(map, keySet(ScenarioParser::logicalDiskKeys()), ctx);
    auto info = std::make_shared<VeldraLogicalDiskInfo>();
    VELDRA_LOGICAL_DISK_FIELDS(VELDRA_READ_FIELD)
    if (map["spareAvailable"].IsDefined()) {
        info->spareAvailableSet = true;
        read(map, "spareAvailable", info->spareAvailable, ctx);
    }
    info->fail = readFail(map, ScenarioParser::logicalDiskFailable(), ctx);
    YAML::Node replaced = map["replaced"];
    if (replaced.IsDefined()) {
        if (!replaced.IsMap())
            ctx.fail(replaced, "replaced", "expected a mapping of spare id to replaced disk id");
        for (auto const& entry : replaced) {
            u32 spare = 0, failed = 0;
            convert(entry.first, spare, ctx, "replaced");
            convert(entry.second, failed, ctx, "replaced");
            info->replaced[spare] = failed;
        }
    }
    if (info->serialNumber.empty())
        ctx.fail(map, "serialNumber", "a logical disk needs a serial number");
    return info;
}

VeldraControllerScenario readController(YAML::Node const& map, Context const& ctx) {
    checkKeys(map, keySet(ScenarioParser::controllerKeys()), ctx);
    auto info = std::make_shared<VeldraControllerInfo>();
    VELDRA_CONTROLLER_FIELDS(VELDRA_READ_FIELD)
#undef VELDRA_READ_FIELD
    if (YAML::Node pci = map["pciInfo"]; pci.IsDefined()) {
        Context here = ctx.child("pciInfo");
        checkKeys(pci, {"domain", "bus", "device", "function"}, here);
        read(pci, "domain", info->pciInfo.domain, here);
        read(pci, "bus", info->pciInfo.bus, here);
        read(pci, "device", info->pciInfo.device, here);
        read(pci, "function", info->pciInfo.function, here);
    }
    if (YAML::Node loc = map["physloc"]; loc.IsDefined()) {
        std::vector<uint8_t> bytes;
        convert(loc, bytes, ctx, "physloc");
        if (bytes.size() > 8)
            ctx.fail(loc, "physloc", "a location has at most 8 bytes");
        std::copy(bytes.begin(), bytes.end(), info->physloc.begin());
    }
    if (YAML::Node addr = map["address"]; addr.IsDefined()) {
        Context here = ctx.child("address");
        checkKeys(addr, {"host", "channel", "target", "lun"}, here);
        read(addr, "host", info->address.host, here);
        read(addr, "channel", info->address.channel, here);
        read(addr, "target", info->address.target, here);
        read(addr, "lun", info->address.lun, here);
    }
    info->fail = readFail(map, ScenarioParser::controllerFailable(), ctx, "fail");
    info->raise = readFail(map, ScenarioParser::controllerFailable(), ctx, "throw");

    VeldraControllerScenario controller;
    controller.data = info;
    auto list = [&](char const* key, auto reader, auto& out) {
        YAML::Node node = map[key];
        if (!node.IsDefined() || node.IsNull())
            return;
        if (!node.IsSequence())
            ctx.fail(node, key, "expected a list");
        int i = 0;
        for (auto const& item : node)
            out.push_back(
                reader(item, ctx.child(std::string(key) + "[" + std::to_string(i++) + "]")));
    };
    list("enclosures", readEnclosure, controller.enclosures);
    list("physicalDisks", readPhysicalDisk, controller.physicalDisks);
    list("logicalDisks", readLogicalDisk, controller.logicalDisks);
    // Pulled disks are kept by the tool for a later insert; they must still be
    // well formed, but the hardware does not see them.
    std::vector<std::shared_ptr<VeldraPhysicalDiskInfo const>> pulled;
    list("pulled", readPhysicalDisk, pulled);

    // Identities must be unique, and members must exist.
    auto fail = [&](char const* key, int i, std::string const& field, std::string const& what) {
        Context here = ctx.child(std::string(key) + "[" + std::to_string(i) + "]");
        here.fail(map[key][i], field, what);
    };
    std::set<u32> ids;
    std::set<std::string> serials;
    std::set<std::pair<int, int>> places;
    for (size_t i = 0; i < controller.physicalDisks.size(); ++i) {
        auto const& d = *controller.physicalDisks[i];
        if (!ids.insert(d.id).second)
            fail("physicalDisks", i, "id", "id " + std::to_string(d.id) + " is used twice");
        if (!d.serialNumber.empty() && !serials.insert(d.serialNumber).second)
            fail("physicalDisks", i, "serialNumber",
                 "serial number '" + d.serialNumber + "' is used twice");
        if (d.serialNumber.empty() && !places.insert({d.enclosureBoxNumber, d.bay}).second)
            fail("physicalDisks", i, "bay",
                 "two disks without serial number share enclosure " +
                     std::to_string(d.enclosureBoxNumber) + " bay " + std::to_string(d.bay));
    }
    // A volume may name a member that was pulled: it keeps its slot.
    std::set<u32> memberIds = ids;
    for (size_t i = 0; i < pulled.size(); ++i)
        if (!memberIds.insert(pulled[i]->id).second)
            fail("pulled", i, "id", "id " + std::to_string(pulled[i]->id) + " is used twice");
    std::set<std::string> enclosureSerials;
    std::set<u32> boxes;
    for (size_t i = 0; i < controller.enclosures.size(); ++i) {
        auto const& e = *controller.enclosures[i];
        if (!boxes.insert(e.enclosureBoxNumber).second)
            fail("enclosures", i, "enclosureBoxNumber",
                 "enclosure box number " + std::to_string(e.enclosureBoxNumber) + " is used twice");
        if (!e.serialNumber.empty() && !enclosureSerials.insert(e.serialNumber).second)
            fail("enclosures", i, "serialNumber",
                 "serial number '" + e.serialNumber + "' is used twice");
    }
    std::set<std::string> volumeSerials;
    std::set<u32> numbers;
    for (size_t i = 0; i < controller.logicalDisks.size(); ++i) {
        auto const& l = *controller.logicalDisks[i];
        if (!volumeSerials.insert(l.serialNumber).second)
            fail("logicalDisks", i, "serialNumber",
                 "serial number '" + l.serialNumber + "' is used twice");
        if (!numbers.insert(l.number).second)
            fail("logicalDisks", i, "number",
                 "volume number " + std::to_string(l.number) + " is used twice");
        for (u32 id : l.dataDisks)
            if (!memberIds.count(id))
                fail("logicalDisks", i, "dataDisks",
                     "no physical disk has id " + std::to_string(id));
        for (u32 id : l.spareDisks)
            if (!memberIds.count(id))
                fail("logicalDisks", i, "spareDisks",
                     "no physical disk has id " + std::to_string(id));
        for (auto const& [spare, failed] : l.replaced)
            if (!memberIds.count(spare) || !memberIds.count(failed))
                fail("logicalDisks", i, "replaced",
                     "no physical disk has id " +
                         std::to_string(memberIds.count(spare) ? failed : spare));
    }
    return controller;
}

VeldraScenario readScenario(YAML::Node const& root, Context const& ctx) {
    checkKeys(root, {"name", "description", "controllers"}, ctx);
    YAML::Node list = root["controllers"];
    if (!list.IsDefined())
        ctx.fail(root, "controllers", "missing; a scenario lists its controllers");
    if (!list.IsSequence())
        ctx.fail(list, "controllers", "expected a list");
    VeldraScenario scenario;
    int i = 0;
    std::set<std::string> serials;
    for (auto const& item : list) {
        Context here = ctx.child("controllers[" + std::to_string(i++) + "]");
        scenario.controllers.push_back(readController(item, here));
        // The serial number names the array system: two alike would make one of them vanish.
        std::string const& serial = scenario.controllers.back().data->serialNumber;
        if (!serial.empty() && !serials.insert(serial).second)
            here.fail(item, "serialNumber", "serial number '" + serial + "' is used twice");
    }
    return scenario;
}

} // namespace

VeldraScenario ScenarioParser::parseText(std::string const& text, std::string const& name) {
    Context ctx{name, "scenario"};
    YAML::Node root;
    try {
        root = YAML::Load(text);
    } catch (YAML::ParserException const& e) {
        throw ScenarioError(name + ":" + std::to_string(e.mark.line + 1) +
                            ": not valid YAML: " + e.msg);
    }
    if (!root.IsDefined() || root.IsNull())
        throw ScenarioError(name + ": the file is empty");
    // Only a text with a '*' can hold an alias; the others skip the second pass.
    if (text.find('*') != std::string::npos) {
        std::istringstream in(text);
        YAML::Parser parser(in);
        AliasFinder finder;
        parser.HandleNextDocument(finder);
        if (finder.alias)
            throw ScenarioError(name + ":" + std::to_string(finder.alias->line + 1) +
                                ": aliases (*name) are not accepted; write each record out");
    }
    try {
        return readScenario(root, ctx);
    } catch (YAML::Exception const& e) {
        // Conversions above are checked; this is a structure yaml-cpp refused.
        throw ScenarioError(name + ":" + std::to_string(e.mark.line + 1) + ": " + e.msg);
    }
}

VeldraScenario ScenarioParser::parseFile(std::string const& path) {
    // Opening a FIFO or a device would wait or read for ever.
    std::error_code ec;
    if (std::filesystem::exists(path, ec) && !std::filesystem::is_regular_file(path, ec))
        throw ScenarioError(path + ": not a regular file");
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw ScenarioError(path + ": cannot open the scenario file");
    std::ostringstream text;
    text << in.rdbuf();
    return parseText(text.str(), path);
}

std::vector<std::string> const& ScenarioParser::controllerFailable() {
    static std::vector<std::string> const names = {"getControllerSerialNumber",
                                                   "getModel",
                                                   "getManufacturer",
                                                   "getFWVersion",
                                                   "getCacheSerialNumber",
                                                   "getDriverName",
                                                   "getDriverVersion",
                                                   "getVDPorts",
                                                   "getPCISlotNumber",
                                                   "getControllerTemperature",
                                                   "getCacheModuleTemperature",
                                                   "getSuperCapTemperature",
                                                   "getCacheSizeInBytes",
                                                   "getCacheSizeTotal",
                                                   "getSplitReadSize",
                                                   "getSplitWriteSize",
                                                   "getCacheParityReadErrors",
                                                   "getCacheParityWriteErrors",
                                                   "getExtendedCacheSizeTotal",
                                                   "getCacheReadPercent",
                                                   "getCacheWritePercent",
                                                   "getNumberOfSASPorts",
                                                   "getNumberOfSASInternalPorts",
                                                   "getNumberOfSASExternalPorts",
                                                   "getNumberOfSCSIBuses",
                                                   "getPCIInfo",
                                                   "getPhysloc",
                                                   "getControllerStatus",
                                                   "getControllerOperationalStatus",
                                                   "getControllerType",
                                                   "getBatteryStatus",
                                                   "getCacheStatus",
                                                   "getCacheState",
                                                   "getCacheBoardPresent",
                                                   "getCacheHasBattery",
                                                   "getCacheBackupPowerSource",
                                                   "getCacheOperationalStatus",
                                                   "getReadCacheStatus",
                                                   "getRebuildPriority",
                                                   "getExpandPriority",
                                                   "getDPGSupportedType",
                                                   "getEncryptionStatus",
                                                   "getEncryptionSelfTestStatus",
                                                   "getEncryptionCSPNvramStatus",
                                                   "getEncryptFWLockStatus",
                                                   "getEncryptCntlrPwdSetStatus",
                                                   "getEncryptCryptoOfficerPwdSetStatus",
                                                   "getEncryptedCntlrPwdAvailStatus",
                                                   "getEncryptLDCreationPolicy",
                                                   "getUnencryptLDCreationPolicy",
                                                   "identifyAllPhysicalDisks",
                                                   "identifyPhysicalDisks"};
    return names;
}

std::vector<std::string> const& ScenarioParser::physicalDiskFailable() {
    static std::vector<std::string> const names = {"getEncryptionStatus"};
    return names;
}

std::vector<std::string> const& ScenarioParser::logicalDiskFailable() {
    static std::vector<std::string> const names = {"getEncryptionStatus"};
    return names;
}

std::vector<std::string> const& ScenarioParser::controllerKeys() {
    static std::vector<std::string> const keys = [] {
        std::vector<std::string> k = {VELDRA_CONTROLLER_FIELDS(VELDRA_FIELD_NAME)};
        for (char const* extra : {"pciInfo", "physloc", "address", "fail", "throw", "enclosures",
                                  "physicalDisks", "logicalDisks", "pulled"})
            k.push_back(extra);
        return k;
    }();
    return keys;
}

std::vector<std::string> const& ScenarioParser::physicalDiskKeys() {
    static std::vector<std::string> const keys = [] {
        std::vector<std::string> k = {VELDRA_PHYSICAL_DISK_FIELDS(VELDRA_FIELD_NAME)};
        for (char const* extra : {"paths", "statistics", "fail"})
            k.push_back(extra);
        return k;
    }();
    return keys;
}

std::vector<std::string> const& ScenarioParser::logicalDiskKeys() {
    static std::vector<std::string> const keys = [] {
        std::vector<std::string> k = {VELDRA_LOGICAL_DISK_FIELDS(VELDRA_FIELD_NAME)};
        for (char const* extra : {"spareAvailable", "replaced", "fail"})
            k.push_back(extra);
        return k;
    }();
    return keys;
}

std::vector<std::string> const& ScenarioParser::enclosureKeys() {
    static std::vector<std::string> const keys = [] {
        std::vector<std::string> k = {VELDRA_ENCLOSURE_FIELDS(VELDRA_FIELD_NAME)};
        for (char const* extra : {"overallStatus", "paths"})
            k.push_back(extra);
        return k;
    }();
    return keys;
}
