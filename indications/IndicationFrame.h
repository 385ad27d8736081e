#pragma once
// What the six indication classes share. One event goes out twice: as a
// trap handed to the management processor and as a CIM alert indication
// delivered through the broker, trap first. The fixed texts come from the
// indication database; a class adds the device's identity, its variables
// and its trap table, calling the steps below in their order.
#include "CmpiContext.h"
#include "CmpiInstance.h"
#include "IndDBRec.h"
#include "IndicationDB.h"
#include "Logger.h"
#include "MWAlertIndication.h"
#include "varbind.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace QLN {

// One element of the alert's three parallel arrays VariableNames,
// VariableTypes and VariableValues.
struct AlertVariable {
    std::string name;
    unsigned short type; // 1 text, 4 and 5 numbers
    std::string value;   // numbers in decimal
};

// One variable of a trap: a property of the indication of the same name, a
// varbind, and an element of IndicationOIDs.
struct TrapVariable {
    std::string property;
    std::vector<std::uint32_t> oid; // complete, device indexes included
    bool text = false;
    int number = 0;
    std::string textValue;
    std::int32_t valueLength = 4; // of a number: its width in bytes
    bool sent = true;             // false: not in this trap; its IndicationOIDs element is "-1"

    static TrapVariable ofNumber(std::string property, std::vector<std::uint32_t> oid, int value,
                                 std::int32_t width = 4);
    static TrapVariable ofText(std::string property, std::vector<std::uint32_t> oid,
                               std::string value);
    static TrapVariable notSent();
};

// The trap an event maps to. Number 0: the event goes out as an indication only.
struct Trap {
    unsigned int number = 0;
    int flags = 16;
    std::vector<TrapVariable> variables; // those after zrqHoTrapFlags and sysName
};

// OIDs of the trap variables hang under the enterprise.
std::vector<std::uint32_t> enterpriseOid(std::vector<std::uint32_t> const& tail);

class IndicationFrame {
public:
    using TextSetter = void (MWAlertIndication::*)(std::string const&);

    IndicationFrame(Logger& logger, std::string const& nameSpace, std::string const& className);

    // Reads the record and makes the alert. False, after the line
    // "No DB record for EventID: %d", when there is no record: then nothing
    // at all goes out. sendLine takes the event number.
    bool begin(IndicationDB const& db, int eventNumber, char const* sendLine);
    IndDBRec const& record() const { return _record; }
    MWAlertIndication& alert() { return *_alert; }

    // The alerting managed element, in CIM object path form; nothing when
    // the path text is empty.
    void setAlertingElement(std::string const& pathText);
    // A device identity setter, called only when `text` is not empty; the
    // prefix goes in front of it.
    void setPresent(TextSetter setter, std::string const& text, std::string const& prefix = "");
    // The record's texts and codes, the system class, the summary given and
    // the host's address.
    void setFromRecord(CmpiCpp::CmpiContext const& context, std::string const& summary);
    CmpiCpp::CmpiInstance takeInstance() const { return _alert->getInstance(); }

    // The three variable arrays, when the first variable's text is not empty.
    static void addVariables(CmpiCpp::CmpiInstance& instance,
                             std::vector<AlertVariable> const& variables);
    // TrapID, the trap variables as properties and IndicationOIDs of
    // `oidCount` elements; with trap number 0 only IndicationOIDs, with "-1"
    // in its first element. Keeps the varbinds for sendTrap.
    void addTrapInfo(CmpiCpp::CmpiInstance& instance, unsigned int oidCount, Trap const& trap);
    // Passes the trap on, when there is one; a failure is logged and goes no further.
    void sendTrap();
    bool hasTrap() const { return _trapNumber != 0; }
    // Delivers the indication; a refusal by the object manager is logged
    // and goes no further.
    void deliver(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiInstance const& instance);

private:
    void _append(CmpiCpp::CmpiInstance& instance, TrapVariable const& variable);

    Logger& _logger;
    std::string _nameSpace;
    std::string _className;
    IndDBRec _record;
    std::optional<MWAlertIndication> _alert;
    unsigned int _trapNumber = 0;
    std::vector<varbind> _varbinds;
};

} // namespace QLN
