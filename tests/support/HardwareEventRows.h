#pragma once
// One row per kind of hardware change on the demo scenario: the veldra-sim
// command that makes it, and every alert that the next pass sends for it:
// the indication (class and event id) and the trap it carries (number, flags
// and the status variable the trap tables give). The worker's unit test and
// the end-to-end test through veldra-cimd, veldra-listen and snmptrapd read
// the same rows.
#include <algorithm>
#include <cstdio>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace hardware_events {

struct Alert {
    std::string indication;     // "<class> <EventID>"
    int trap = 0;               // 0: an indication without a trap
    int flags = 0;              // zrqHoTrapFlags
    std::string status;         // the status variable, or empty where it depends on more than the event
    std::string statusValue;

    bool operator<(Alert const& other) const { return indication < other.indication; }
};

struct Row {
    char const* name;
    char const* command;
    std::vector<Alert> sent;
};

// Test names print the command.
inline void PrintTo(Row const& row, std::ostream* out) { *out << row.command; }

inline Alert disk(int event, int trap, int flags, int status) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-DISK-%04d", event);
    return {std::string("QLN_VeldraDiskDriveIndication ") + id, trap, flags,
            trap == 0 ? "" : "zrqDaPhyDrvStatus", trap == 0 ? "" : std::to_string(status)};
}
// The volume status of events 2 and 3 depends on the volume's detail status.
inline Alert volume(int event, int flags, int status = 0) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-VOL-%04d", event);
    return {std::string("QLN_VeldraStorageVolumeIndication ") + id, 3034, flags,
            status == 0 ? "" : "zrqDaLogDrvStatus", status == 0 ? "" : std::to_string(status)};
}
inline Alert enclosure(int event, int trap, int flags, int status) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-ENCL-%04d", event);
    return {std::string("QLN_VeldraStorageEnclosureIndication ") + id, trap, flags, "zrqSsBoxFanorPowerSupplyStatus",
            std::to_string(status)};
}
inline Alert temperature(int event, int trap, int flags, int status) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-TEMP-%04d", event);
    return {std::string("QLN_VeldraStorageEnclosureTempIndication ") + id, trap, flags, "zrqVDEncTempTrapStatus",
            std::to_string(status)};
}

// The demo starts with a failed disk, the spare rebuilding in its place, a
// disk predicted to fail, a worn SSD, a degraded fan and a rebuilding volume:
// the first pass tells each once.
inline std::vector<Alert> const& firstPassOfDemo() {
    static std::vector<Alert> const alerts = [] {
        std::vector<Alert> all = {disk(2, 3046, 16, 3),  disk(3, 0, 0, 0),           disk(4, 3046, 12, 4),
                                  disk(11, 3049, 16, 4), enclosure(5, 8029, 12, 5), volume(3, 12)};
        std::sort(all.begin(), all.end());
        return all;
    }();
    return alerts;
}

inline std::vector<Row> const& rows() {
    static std::vector<Row> const all = [] {
        std::vector<Row> table = {
            {"FailDisk", "fail-disk NR8K1001", {disk(2, 3046, 16, 3), volume(3, 12)}},
            {"DegradeDisk", "degrade-disk NR8M3001", {disk(4, 3046, 12, 4)}},
            {"RestoreDisk", "restore-disk NR8K1002", {disk(1, 3046, 8, 2), volume(1, 8, 2)}},
            {"PullDisk", "pull-disk NR8M3002", {volume(3, 12)}},
            {"FailController",
             "fail-controller 2",
             {{"QLN_VeldraCntlrIndication VELDRA-CTRL-0002", 3015, 16, "zrqDaCtrlrBoardStatus", "3"}}},
            {"FailCache", "fail-cache 1", {{"QLN_VeldraIndication VELDRA-CACHE-0012", 3038, 16, "zqqDaAccelStatus", "9"}}},
            {"FailBattery", "fail-battery 2", {{"QLN_VeldraIndication VELDRA-CACHE-0008", 3040, 16, "", ""}}},
            {"FanFailed", "set-fan 1:2 failed", {enclosure(6, 8029, 16, 3)}},
            {"FanOk", "set-fan 1:2 ok", {enclosure(4, 8029, 8, 2)}},
            {"PowerSupplyDegraded", "set-power-supply 1:1 degraded", {enclosure(2, 8031, 8, 2)}},
            {"PowerSupplyFailed", "set-power-supply 1:1 failed", {enclosure(3, 8031, 12, 3)}},
            {"TemperatureWarning", "set-temperature 2:1 warning", {temperature(8, 8010, 12, 3)}},
            {"TemperatureCritical", "set-temperature 2:1 critical", {temperature(9, 8009, 16, 4)}},
            {"VolumeFailed", "set volume:600508B1001C7E110000000000000001 status 3", {volume(2, 16)}},
            {"SsdWear", "set disk:KS2T2008 ssdWearStatus 2", {disk(11, 3049, 16, 4)}},
            // Devices that come or go are told by the graph, not by an alert.
            {"DeleteVolume", "delete-volume 600508B1001C4D2A0000000000000005", {}},
            {"AddEnclosure", "add-enclosure --controller 2 --box 7 --serial VNEWBOX7", {}},
        };
        for (Row& row : table) std::sort(row.sent.begin(), row.sent.end());
        return table;
    }();
    return all;
}

// One line per alert, sorted, for comparisons that read well when they fail.
inline std::vector<std::string> described(std::vector<Alert> const& alerts) {
    std::vector<std::string> lines;
    for (Alert const& alert : alerts) {
        std::string line = alert.indication;
        if (alert.trap != 0) line += " trap " + std::to_string(alert.trap) + " flags " + std::to_string(alert.flags);
        if (!alert.status.empty()) line += " " + alert.status + "=" + alert.statusValue;
        lines.push_back(line);
    }
    std::sort(lines.begin(), lines.end());
    return lines;
}

// An alert as received, read through `property(name)` (an optional text),
// with the status variable that the expected alert of the same indication
// names.
template <typename Lookup>
Alert observed(std::string const& className, std::vector<Alert> const& expected, Lookup property) {
    Alert alert;
    alert.indication = className + " " + property("EventID").value_or("?");
    if (auto trap = property("TrapID")) alert.trap = std::stoi(*trap);
    if (auto flags = property("zrqHoTrapFlags")) alert.flags = std::stoi(*flags);
    for (Alert const& want : expected) {
        if (want.indication == alert.indication && !want.status.empty()) {
            alert.status = want.status;
            alert.statusValue = property(want.status).value_or("absent");
        }
    }
    return alert;
}

} // namespace hardware_events
