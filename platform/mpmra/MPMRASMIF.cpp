#include "MPMRASMIF.h"

#include "FrameworkConfig.h"

#include <net-snmp/net-snmp-config.h>
#include <net-snmp/net-snmp-includes.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <mutex>
#include <optional>
#include <string>

namespace {

// The processor's device node. Nothing opens it here: this library sends the
// traps itself, and names the node only to say so.
char const* const tarvoDevice = "/dev/mwtarvo-d0ccb";

oid const sysUpTimeOid[] = {1, 3, 6, 1, 2, 1, 1, 3, 0};
oid const snmpTrapOid[] = {1, 3, 6, 1, 6, 3, 1, 1, 4, 1, 0};
oid const enterpriseTraps[] = {1, 3, 6, 1, 4, 1, 57913, 0};

auto const loaded = std::chrono::steady_clock::now();

// sysUpTime of the sender: hundredths of a second since this library loaded.
long upTime() {
    auto const elapsed = std::chrono::steady_clock::now() - loaded;
    return static_cast<long>(
        std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count() / 10);
}

std::string trim(std::string const& text) {
    auto const first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return "";
    }
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// "host", "host:port", "[v6]" or "[v6]:port" to net-snmp's peer name;
// nullopt for what is none of these.
std::optional<std::string> peerName(std::string const& entry) {
    std::string host = entry;
    std::string port = "162";
    std::string transport = "udp:";
    if (!entry.empty() && entry.front() == '[') {
        auto const close = entry.find(']');
        if (close == std::string::npos) {
            return std::nullopt;
        }
        host = entry.substr(0, close + 1);
        transport = "udp6:";
        if (close + 1 < entry.size()) {
            if (entry[close + 1] != ':') {
                return std::nullopt;
            }
            port = entry.substr(close + 2);
        }
    } else if (auto const colon = entry.find(':'); colon != std::string::npos) {
        host = entry.substr(0, colon);
        port = entry.substr(colon + 1);
    }
    if (host.empty() || host == "[]" || port.empty() || port.size() > 5 ||
        port.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    long const number = std::stol(port);
    if (number < 1 || number > 65535) {
        return std::nullopt;
    }
    return transport + host + ":" + port;
}

// Adds one variable to the notification; false with `why` set when the
// record cannot be what it claims to be.
bool addVariable(netsnmp_pdu* pdu, varbind const& variable, std::string& why) {
    if (variable.oidLength < 1 || variable.oidLength > 24) {
        why = "OID length " + std::to_string(variable.oidLength) + " is outside 1 to 24";
        return false;
    }
    oid name[24];
    for (int i = 0; i < variable.oidLength; ++i) {
        name[i] = variable.oid[i];
    }
    auto const length = static_cast<size_t>(variable.oidLength);
    if (variable.type == varbindNumber) {
        long value = 0;
        if (variable.valueLength == 4) {
            std::int32_t number = 0;
            std::memcpy(&number, variable.value, sizeof number);
            value = number;
        } else if (variable.valueLength == 2) {
            std::uint16_t number = 0;
            std::memcpy(&number, variable.value, sizeof number);
            value = number;
        } else {
            why = "a number of " + std::to_string(variable.valueLength) + " bytes";
            return false;
        }
        snmp_pdu_add_variable(pdu, name, length, ASN_INTEGER, &value, sizeof value);
        return true;
    }
    if (variable.type == varbindText) {
        // Never read past the field, whatever the length claims.
        size_t const stored = ::strnlen(variable.value, sizeof variable.value);
        size_t const claimed =
            variable.valueLength < 0 ? 0 : static_cast<size_t>(variable.valueLength);
        size_t const used = claimed < stored ? claimed : stored;
        snmp_pdu_add_variable(pdu, name, length, ASN_OCTET_STR, variable.value, used);
        return true;
    }
    why = "unknown type " + std::to_string(variable.type);
    return false;
}

} // namespace

MPMRASMIF::MPMRASMIF(Logger& logger) : _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("MPMRASMIF");
}

MPMRASMIF::~MPMRASMIF() = default;

int MPMRASMIF::sentSnmpTrapPassThrough(unsigned int const& trapId,
                                       std::vector<varbind> const& variables) {
    std::string destinations;
    std::string community;
    try {
        destinations = QLN::FrameworkConfig::getString("VELDRA_TRAP_DESTINATIONS", "");
        community = QLN::FrameworkConfig::getString("VELDRA_TRAP_COMMUNITY", "public");
    } catch (std::exception const& e) {
        _logger.error("trap %u not sent: %s", trapId, e.what());
        return -1;
    }
    if (trim(destinations).empty()) {
        _logger.warn(
            "trap %u not sent: no VELDRA_TRAP_DESTINATIONS configured, and no %s on this host",
            trapId, tarvoDevice);
        return -1;
    }

    // The first session initialises the library's tables; that must not race.
    static std::once_flag initialised;
    std::call_once(initialised, [] {
        netsnmp_session probe;
        snmp_sess_init(&probe);
    });

    int failures = 0;
    std::string rest = destinations;
    while (!rest.empty()) {
        auto const comma = rest.find(',');
        std::string const entry = trim(rest.substr(0, comma));
        rest = comma == std::string::npos ? "" : rest.substr(comma + 1);
        if (entry.empty()) {
            continue;
        }
        std::optional<std::string> const peer = peerName(entry);
        if (!peer) {
            _logger.error("trap %u not sent to \"%s\": expected host[:port]", trapId,
                          entry.c_str());
            ++failures;
            continue;
        }

        netsnmp_pdu* pdu = snmp_pdu_create(SNMP_MSG_TRAP2);
        long const ticks = upTime();
        snmp_pdu_add_variable(pdu, sysUpTimeOid, OID_LENGTH(sysUpTimeOid), ASN_TIMETICKS, &ticks,
                              sizeof ticks);
        oid trapOid[OID_LENGTH(enterpriseTraps) + 1];
        std::memcpy(trapOid, enterpriseTraps, sizeof enterpriseTraps);
        trapOid[OID_LENGTH(enterpriseTraps)] = trapId;
        snmp_pdu_add_variable(pdu, snmpTrapOid, OID_LENGTH(snmpTrapOid), ASN_OBJECT_ID, trapOid,
                              sizeof trapOid);
        for (std::size_t i = 0; i < variables.size(); ++i) {
            std::string why;
            if (!addVariable(pdu, variables[i], why)) {
                _logger.error("trap %u not sent: variable %zu is malformed: %s", trapId, i,
                              why.c_str());
                snmp_free_pdu(pdu);
                return -1;
            }
        }

        netsnmp_session settings;
        snmp_sess_init(&settings);
        settings.version = SNMP_VERSION_2c;
        settings.peername = const_cast<char*>(peer->c_str());
        settings.community = reinterpret_cast<u_char*>(const_cast<char*>(community.c_str()));
        settings.community_len = community.size();
        void* session = snmp_sess_open(&settings);
        if (session == nullptr) {
            char* text = nullptr;
            snmp_error(&settings, nullptr, nullptr, &text);
            _logger.error("trap %u not sent to %s: %s", trapId, entry.c_str(),
                          text ? text : "cannot open");
            std::free(text);
            snmp_free_pdu(pdu);
            ++failures;
            continue;
        }
        if (snmp_sess_send(session, pdu) == 0) {
            char* text = nullptr;
            snmp_sess_error(session, nullptr, nullptr, &text);
            _logger.error("trap %u not sent to %s: %s", trapId, entry.c_str(),
                          text ? text : "send failed");
            std::free(text);
            snmp_free_pdu(pdu);
            ++failures;
        }
        snmp_sess_close(session);
    }
    return failures == 0 ? 0 : -1;
}
