#pragma once
// The framework configuration: one YAML file of flat "KEY: value" pairs, read
// from $VELDRA_CONFIG or else /etc/veldra/framework.conf. An environment
// variable of the same name overrides a single key. A missing file means the
// defaults; a malformed file is an error (std::runtime_error naming the file
// and line) at the first read.
//
// Keys in use:
//   VELDRA_LOG              "stderr" (default), "syslog" or a file path
//   VELDRA_LOG_LEVEL        "info" (default), "warn", "error"
//   VELDRA_PERFMON          performance monitoring switch (default false)
//   VELDRA_HEARTBEAT        heartbeat indication switch (default false)
//   VELDRA_STORAGE_BACKEND  storage back end, "sim" (default, the only one)
//   VELDRA_SCENARIO         scenario file of the simulated back end
//   VELDRA_WORKER_INTERVAL_MS, VELDRA_WORKER_STAGGER_MS
//                           shorten the autostart schedule for tests and demos
//   VELDRA_TRAP_DESTINATIONS  comma-separated host[:port] list for SNMP traps
//                           (port 162 by default; none configured: no traps)
//   VELDRA_TRAP_COMMUNITY   SNMPv2c community of the traps (default "public")
//   VELDRA_INDICATION_DB    the indication database file (default: the shipped one)
//   VELDRA_HOSTNAME         reported host name instead of the system's (tests, demos)
#include <optional>
#include <string>

namespace QLN {

class FrameworkConfig {
public:
    // The value of a key: environment first, then the file; nullopt if neither has it.
    static std::optional<std::string> get(std::string const& key);
    static std::string getString(std::string const& key, std::string const& fallback);
    // "1", "true", "yes", "on" (any case) are true; "0", "false", "no", "off" false;
    // anything else throws std::runtime_error naming the key.
    static bool getBool(std::string const& key, bool fallback);
    // A whole decimal number; anything else throws std::runtime_error naming the key.
    static long getInt(std::string const& key, long fallback);
    // Forget what was read, so the next get reads the file again (tests, reload).
    static void reload();
    // The path of the file in use ($VELDRA_CONFIG or the default).
    static std::string path();
    // Counts reloads, so that caches built from the configuration (the log
    // destination) can tell that they are stale.
    static unsigned long generation();
};

} // namespace QLN
