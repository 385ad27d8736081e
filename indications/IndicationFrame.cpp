#include "IndicationFrame.h"

#include "CmpiArray.h"
#include "CmpiMBService.h"
#include "CmpiName.h"
#include "CmpiStatus.h"
#include "MPMRASMIF.h"
#include "QLNUtil.h"

#include <algorithm>
#include <cstring>

namespace QLN {

namespace {

char const* const systemClassName = "QLN_ComputerSystem";
std::vector<std::uint32_t> const enterprise = {1, 3, 6, 1, 4, 1, 57913};

std::string dotted(std::vector<std::uint32_t> const& oid) {
    std::string text;
    for (std::uint32_t part : oid) {
        if (!text.empty()) {
            text += '.';
        }
        text += std::to_string(part);
    }
    return text;
}

} // namespace

TrapVariable TrapVariable::ofNumber(std::string property, std::vector<std::uint32_t> oid, int value,
                                    std::int32_t width) {
    TrapVariable variable;
    variable.property = std::move(property);
    variable.oid = std::move(oid);
    variable.number = value;
    variable.valueLength = width;
    return variable;
}

TrapVariable TrapVariable::ofText(std::string property, std::vector<std::uint32_t> oid,
                                  std::string value) {
    TrapVariable variable;
    variable.property = std::move(property);
    variable.oid = std::move(oid);
    variable.text = true;
    variable.textValue = std::move(value);
    return variable;
}

TrapVariable TrapVariable::notSent() {
    TrapVariable variable;
    variable.sent = false;
    return variable;
}

std::vector<std::uint32_t> enterpriseOid(std::vector<std::uint32_t> const& tail) {
    std::vector<std::uint32_t> oid = enterprise;
    oid.insert(oid.end(), tail.begin(), tail.end());
    return oid;
}

IndicationFrame::IndicationFrame(Logger& logger, std::string const& nameSpace,
                                 std::string const& className)
    : _logger(logger), _nameSpace(nameSpace), _className(className) {}

bool IndicationFrame::begin(IndicationDB const& db, int eventNumber, char const* sendLine) {
    if (db.getRecord(eventNumber, _record) != 0) {
        _logger.info("No DB record for EventID: %d", eventNumber);
        return false;
    }
    _logger.info(sendLine, eventNumber);
    _alert.emplace(_logger, _className, _nameSpace, _record.indicationNumber);
    return true;
}

void IndicationFrame::setAlertingElement(std::string const& pathText) {
    if (pathText.empty()) {
        return;
    }
    _alert->setAlertingManagedElement(pathText);
    // 2: CIMObjectPath, the form of the text.
    _alert->setAlertingElementFormat(2);
}

void IndicationFrame::setPresent(TextSetter setter, std::string const& text,
                                 std::string const& prefix) {
    if (!text.empty()) {
        ((*_alert).*setter)(prefix + text);
    }
}

void IndicationFrame::setFromRecord(CmpiCpp::CmpiContext const& context,
                                    std::string const& summary) {
    _alert->setDescription(_record.description);
    _alert->setEventID(_record.eventID);
    _alert->setAlertType(_record.alertType);
    _alert->setProviderName(_record.providerName);
    _alert->setRecommendedActions(_record.recommendedActions);
    _alert->setSystemCreationClassName(systemClassName);
    _alert->setSummary(summary);
    _alert->setEventCategory(_record.eventCategory);
    _alert->setProbableCause(_record.probableCause);
    _alert->setProbableCauseDescription(_record.probableCauseDescription);
    _alert->setNetworkIPAddress(context);
}

void IndicationFrame::addVariables(CmpiCpp::CmpiInstance& instance,
                                   std::vector<AlertVariable> const& variables) {
    if (variables.empty() || variables.front().value.empty()) {
        return;
    }
    auto const count = static_cast<unsigned int>(variables.size());
    CmpiCpp::CmpiArray names(count, CMPI_string);
    CmpiCpp::CmpiArray types(count, CMPI_uint16);
    CmpiCpp::CmpiArray values(count, CMPI_string);
    for (unsigned int i = 0; i < count; ++i) {
        names.setElementAt(i, variables[i].name);
        types.setElementAt(i, variables[i].type);
        values.setElementAt(i, variables[i].value);
    }
    instance.addProperty("VariableNames", names);
    instance.addProperty("VariableTypes", types);
    instance.addProperty("VariableValues", values);
}

void IndicationFrame::_append(CmpiCpp::CmpiInstance& instance, TrapVariable const& variable) {
    varbind record{};
    record.oidLength = static_cast<std::int32_t>(
        std::min<std::size_t>(variable.oid.size(), std::size(record.oid)));
    std::copy_n(variable.oid.begin(), record.oidLength, record.oid);
    if (variable.text) {
        instance.addProperty(variable.property, variable.textValue.c_str());
        record.type = varbindText;
        // A deliberate departure from the channel's contract, which copies
        // the text unbounded: a longer text would overwrite whatever follows
        // the 48-byte field, so it is cut to fit, terminator included. The
        // indication keeps the whole text.
        std::size_t length = variable.textValue.size();
        if (length >= sizeof record.value) {
            length = sizeof record.value - 1;
            _logger.warn("trap variable %s cut to %zu bytes: \"%s\"", variable.property.c_str(),
                         length, variable.textValue.c_str());
        }
        std::memcpy(record.value, variable.textValue.data(), length);
        record.valueLength = static_cast<std::int32_t>(length);
    } else {
        instance.addProperty(variable.property, variable.number);
        record.type = varbindNumber;
        record.valueLength = variable.valueLength;
        if (variable.valueLength == 2) {
            auto const narrow = static_cast<std::uint16_t>(variable.number);
            std::memcpy(record.value, &narrow, sizeof narrow);
        } else {
            std::memcpy(record.value, &variable.number, sizeof variable.number);
        }
    }
    _varbinds.push_back(record);
}

void IndicationFrame::addTrapInfo(CmpiCpp::CmpiInstance& instance, unsigned int oidCount,
                                  Trap const& trap) {
    CmpiCpp::CmpiArray oids(oidCount, CMPI_string);
    _trapNumber = trap.number;
    if (trap.number == 0) {
        oids.setElementAt(0, "-1");
        instance.addProperty("IndicationOIDs", oids);
        return;
    }
    instance.addProperty("TrapID", static_cast<int>(trap.number));
    _append(instance,
            TrapVariable::ofNumber("zrqHoTrapFlags", enterpriseOid({11, 2, 11, 1}), trap.flags));
    _append(instance,
            TrapVariable::ofText("sysName", {1, 3, 6, 1, 2, 1, 1, 5}, QLNUtil::getHostName()));
    oids.setElementAt(0, "1.3.6.1.4.1.57913.0." + std::to_string(trap.number));
    oids.setElementAt(1, "");
    oids.setElementAt(2, "");
    unsigned int element = 3;
    for (TrapVariable const& variable : trap.variables) {
        if (variable.sent) {
            _append(instance, variable);
        }
        if (element < oidCount) {
            oids.setElementAt(element, variable.sent ? dotted(variable.oid) : std::string("-1"));
        }
        ++element;
    }
    instance.addProperty("IndicationOIDs", oids);
}

void IndicationFrame::sendTrap() {
    if (_trapNumber == 0) {
        return;
    }
    MPMRASMIF processor(_logger);
    _logger.info("calling sentSnmpTrapPassThrough pass the trap %d to Tarvo",
                 static_cast<int>(_trapNumber));
    if (processor.sentSnmpTrapPassThrough(_trapNumber, _varbinds) != 0) {
        _logger.info("Failed sending snmp trap to Tarvo %d", static_cast<int>(_trapNumber));
    } else {
        _logger.info("Sent snmp trap to Tarvo %d", static_cast<int>(_trapNumber));
    }
}

void IndicationFrame::deliver(CmpiCpp::CmpiContext const& context,
                              CmpiCpp::CmpiInstance const& instance) {
    CmpiCpp::CmpiMBService service(QLNUtil::getBroker(), _logger);
    CmpiCpp::CmpiName const nameSpace(_nameSpace);
    try {
        service.deliverIndication(context, nameSpace, instance);
    } catch (CmpiCpp::CmpiStatus const& status) {
        _logger.error("indication send failure: %s", status.str().c_str());
    }
}

} // namespace QLN
