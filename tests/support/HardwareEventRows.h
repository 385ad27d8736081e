#pragma once
// One row per event of the alert tables (and per silent case), each a change
// of the demo scenario: the veldra-sim command that makes it (after a setup
// command where the event is a return from a bad state), and every alert
// that the next pass sends for it: the indication (class and event id) and
// the trap it carries (number, flags and the status variable of the trap
// tables). The worker's unit test and the end-to-end test through
// veldra-cimd, veldra-listen and snmptrapd read the same rows.
#include <algorithm>
#include <cstdio>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace hardware_events {

struct Alert {
    std::string indication; // "<class> <EventID>"
    int trap = 0;           // 0: an indication without a trap
    int flags = 0;          // zrqHoTrapFlags
    std::string status;     // the status variable, or empty where it depends on more than the event
    std::string statusValue;

    bool operator<(Alert const& other) const { return indication < other.indication; }
};

struct Row {
    char const* name;
    char const* command;
    std::vector<Alert> sent;
    char const* setup = nullptr; // made, and its alerts let go, before the command
};

// Test names print the command.
inline void PrintTo(Row const& row, std::ostream* out) {
    *out << row.command;
}

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
inline Alert controllerEvent(int event, int trap = 0, int flags = 0, char const* status = "",
                             int value = 0) {
    char id[40];
    std::snprintf(id, sizeof id, "QLN_VeldraIndication VELDRA-CACHE-%04d", event);
    return {id, trap, flags, status, *status ? std::to_string(value) : ""};
}
inline Alert enclosure(int event, int trap, int flags, int status) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-ENCL-%04d", event);
    return {std::string("QLN_VeldraStorageEnclosureIndication ") + id, trap, flags,
            "zrqSsBoxFanorPowerSupplyStatus", std::to_string(status)};
}
inline Alert temperature(int event, int trap, int flags, int status) {
    char id[32];
    std::snprintf(id, sizeof id, "VELDRA-TEMP-%04d", event);
    return {std::string("QLN_VeldraStorageEnclosureTempIndication ") + id, trap, flags,
            "zrqVDEncTempTrapStatus", std::to_string(status)};
}

// The demo starts with a failed disk, the spare rebuilding in its place, a
// disk predicted to fail, a worn SSD, a degraded fan and a rebuilding volume:
// the first pass tells each once.
inline std::vector<Alert> const& firstPassOfDemo() {
    static std::vector<Alert> const alerts = [] {
        std::vector<Alert> all = {disk(2, 3046, 16, 3),      disk(3, 0, 0, 0),
                                  disk(4, 3046, 12, 4),      disk(11, 3049, 16, 4),
                                  enclosure(5, 8029, 12, 5), volume(3, 12)};
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
             {{"QLN_VeldraCntlrIndication VELDRA-CTRL-0002", 3015, 16, "zrqDaCtrlrBoardStatus",
               "3"}}},
            {"FailCache",
             "fail-cache 1",
             {{"QLN_VeldraIndication VELDRA-CACHE-0012", 3038, 16, "zqqDaAccelStatus", "9"}}},
            {"FailBattery",
             "fail-battery 2",
             {{"QLN_VeldraIndication VELDRA-CACHE-0008", 3040, 16, "", ""}}},
            {"FanFailed", "set-fan 1:2 failed", {enclosure(6, 8029, 16, 3)}},
            {"FanOk", "set-fan 1:2 ok", {enclosure(4, 8029, 8, 2)}},
            {"PowerSupplyDegraded", "set-power-supply 1:1 degraded", {enclosure(2, 8031, 8, 2)}},
            {"PowerSupplyFailed", "set-power-supply 1:1 failed", {enclosure(3, 8031, 12, 3)}},
            {"TemperatureWarning", "set-temperature 2:1 warning", {temperature(8, 8010, 12, 3)}},
            {"TemperatureCritical", "set-temperature 2:1 critical", {temperature(9, 8009, 16, 4)}},
            {"VolumeFailed",
             "set volume:600508B1001C7E110000000000000001 status 3",
             {volume(2, 16)}},
            {"SsdWear", "set disk:KS2T2008 ssdWearStatus 2", {disk(11, 3049, 16, 4)}},
            // Devices that come or go are told by the graph, not by an alert.
            {"ControllerOk",
             "restore-controller 2",
             {{"QLN_VeldraCntlrIndication VELDRA-CTRL-0001", 3015, 8, "zrqDaCtrlrBoardStatus",
               "2"}},
             "fail-controller 2"},
            {"BatteryOk",
             "set controller:2 batteryStatus 1",
             {controllerEvent(6)},
             "fail-battery 2"},
            {"BatteryCharging", "set controller:2 batteryStatus 3", {controllerEvent(7)}},
            {"CacheOk",
             "set controller:1 cacheStatus 1",
             {controllerEvent(9, 3038, 8, "zqqDaAccelStatus", 3)},
             "fail-cache 1"},
            {"CacheTemporarilyDisabled",
             "set controller:1 cacheStatus 2",
             {controllerEvent(10, 3038, 8, "zqqDaAccelStatus", 4)}},
            {"CachePermanentlyDisabled",
             "set controller:1 cacheStatus 3",
             {controllerEvent(11, 3038, 12, "zqqDaAccelStatus", 5)}},
            {"EncryptionSelfTestFailed",
             "set controller:1 encryptionSelfTestStatus 3",
             {controllerEvent(14)}},
            {"EncryptionNvramFailed",
             "set controller:1 encryptionCSPNvramStatus 3",
             {controllerEvent(16)}},
            {"EncryptionNvramOk",
             "set controller:1 encryptionCSPNvramStatus 1",
             {controllerEvent(15)},
             "set controller:1 encryptionCSPNvramStatus 3"},
            {"PowerSupplyOk",
             "set-power-supply 1:1 ok",
             {enclosure(1, 8031, 12, 3)},
             "set-power-supply 1:1 failed"},
            {"FanDegraded", "set-fan 1:2 degraded", {enclosure(5, 8029, 12, 5)}, "set-fan 1:2 ok"},
            {"TemperatureOk",
             "set-temperature 2:1 ok",
             {temperature(7, 8011, 8, 2)},
             "set-temperature 2:1 critical"},
            {"VolumeStatus800D",
             "set volume:600508B1001C7E110000000000000001 status 0x800D",
             {volume(4, 12, 15)}},
            {"VolumeStatus8001",
             "set volume:600508B1001C7E110000000000000001 status 0x8001",
             {volume(5, 12, 12)}},
            {"VolumeStatus8007",
             "set volume:600508B1001C7E110000000000000001 status 0x8007",
             {volume(6, 12, 14)}},
            {"VolumeStatus8006",
             "set volume:600508B1001C7E110000000000000001 status 0x8006",
             {volume(7, 12, 13)}},
            {"VolumeStatus800E",
             "set volume:600508B1001C7E110000000000000001 status 0x800E",
             {volume(8, 16, 20)}},
            {"VolumeStatus8011",
             "set volume:600508B1001C7E110000000000000001 status 0x8011",
             {volume(9, 12, 1)}},
            {"VolumeStatus8010",
             "set volume:600508B1001C7E110000000000000001 status 0x8010",
             {volume(10, 16, 24)}},
            {"VolumeStatus8017",
             "set volume:600508B1001C7E110000000000000001 status 0x8017",
             {volume(11, 12, 18)}},
            {"VolumeStatus8018",
             "set volume:600508B1001C7E110000000000000001 status 0x8018",
             {volume(12, 12, 19)}},
            {"VolumeStatus8012",
             "set volume:600508B1001C7E110000000000000001 status 0x8012",
             {volume(13, 12, 1)}},
            {"DiskFailedOnAllPaths", "set disk:NR8M3001 status 4", {disk(2, 3046, 16, 3)}},
            {"DiskRebuilding", "set disk:NR8M3001 status 0x8005", {disk(3, 0, 0, 0)}},
            {"DiskNotReported", "set disk:NR8M3001 status 0x8000", {disk(5, 3046, 12, 7)}},
            {"DiskStatus8004", "set disk:NR8M3001 status 0x8004", {disk(5, 3046, 12, 1)}},
            {"DiskStatus8006", "set disk:NR8M3001 status 0x8006", {disk(5, 3046, 12, 1)}},
            {"DiskStatus8001", "set disk:NR8M3001 status 0x8001", {disk(13, 3046, 12, 5)}},
            {"DiskStatus8002", "set disk:NR8M3001 status 0x8002", {disk(14, 3046, 12, 6)}},
            {"DiskBackOk",
             "set disk:NR8M3001 status 1",
             {disk(1, 3046, 8, 2)},
             "set disk:NR8M3001 status 4"},
            {"DiskFromFailedToOnePathFailed",
             "set disk:NR8M3001 status 0x8003",
             {disk(5, 3046, 8, 2)},
             "set disk:NR8M3001 status 4"},
            // A disk that loses or regains one path is not news.
            {"DiskLosesOnePath", "set disk:NR8M3001 status 0x8003", {}},
            {"DiskRegainsOnePath",
             "set disk:NR8M3001 status 1",
             {},
             "set disk:NR8M3001 status 0x8003"},
            {"SsdWear0", "set disk:KS2T2008 ssdWearStatus 0", {disk(12, 3046, 8, 2)}},
            {"SsdWear1",
             "set disk:KS2T2008 ssdWearStatus 1",
             {disk(8, 3049, 16, 4)},
             "set disk:KS2T2008 ssdWearStatus 2"},
            {"SsdWear3", "set disk:KS2T2008 ssdWearStatus 3", {disk(10, 3049, 16, 4)}},
            {"SsdWear4", "set disk:KS2T2008 ssdWearStatus 4", {disk(9, 3049, 16, 4)}},
            {"SsdWear5", "set disk:KS2T2008 ssdWearStatus 5", {disk(6, 3049, 12, 8)}},
            {"DeleteVolume", "delete-volume 600508B1001C4D2A0000000000000005", {}},
            {"AddEnclosure", "add-enclosure --controller 2 --box 7 --serial VNEWBOX7", {}},
        };
        for (Row& row : table)
            std::sort(row.sent.begin(), row.sent.end());
        return table;
    }();
    return all;
}

// One line per alert, sorted, for comparisons that read well when they fail.
inline std::vector<std::string> described(std::vector<Alert> const& alerts) {
    std::vector<std::string> lines;
    for (Alert const& alert : alerts) {
        std::string line = alert.indication;
        if (alert.trap != 0)
            line += " trap " + std::to_string(alert.trap) + " flags " + std::to_string(alert.flags);
        if (!alert.status.empty())
            line += " " + alert.status + "=" + alert.statusValue;
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
    if (auto trap = property("TrapID"))
        alert.trap = std::stoi(*trap);
    if (auto flags = property("zrqHoTrapFlags"))
        alert.flags = std::stoi(*flags);
    for (Alert const& want : expected) {
        if (want.indication == alert.indication && !want.status.empty()) {
            alert.status = want.status;
            alert.statusValue = property(want.status).value_or("absent");
        }
    }
    return alert;
}

} // namespace hardware_events
