#include "QLN_Chassis.h"

#include "CmpiBroker.h"
#include "QLNUtil.h"

#include <fstream>
#include <sstream>
#include <utility>

using CmpiCpp::CmpiBroker;
using CmpiCpp::CmpiInstance;
using CmpiCpp::CmpiObjectPath;

namespace {
char const* const className = "QLN_Chassis";

std::string trimmed(std::string text) {
    auto const first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
        return {};
    }
    auto const last = text.find_last_not_of(" \t\r\n");
    return text.substr(first, last - first + 1);
}
} // namespace

namespace QLN {

QLN_Chassis::QLN_Chassis(Logger& logger, std::string const& nameSpace, std::string dmiDirectory)
    : _namespace(nameSpace), _logger(logger), _dmiDirectory(std::move(dmiDirectory)) {
    _logger.appendLogSource(":");
    _logger.appendLogSource(className);
    _logger.info("cxtor()");
}

QLN_Chassis::~QLN_Chassis() {
    _logger.info("dxtor()");
}

CmpiObjectPath QLN_Chassis::getPath() const {
    CmpiObjectPath path = QLNUtil::getChassisPath();
    path.setNameSpace(_namespace);
    return path;
}

std::string QLN_Chassis::_dmi(char const* field) const {
    std::ifstream in(_dmiDirectory + "/" + field);
    if (!in) {
        return {};
    }
    std::stringstream text;
    text << in.rdbuf();
    return trimmed(text.str());
}

CmpiInstance QLN_Chassis::getInstance() const {
    CmpiBroker const broker(QLNUtil::getBroker());
    CmpiInstance instance = CmpiCpp::makeCmpiInstance(broker, getPath());
    instance.addProperty("ElementName", QLNUtil::getHostName());
    instance.addProperty("Caption", "Host chassis");
    instance.addProperty("PackageType", static_cast<unsigned short>(3)); // Chassis/Frame
    // Read at each request like every other property: a field that turns
    // readable later (permissions) shows up without a restart.
    struct Field {
        char const* file;
        char const* property;
    };
    for (Field const field : {Field{"sys_vendor", "Manufacturer"}, Field{"product_name", "Model"},
                              Field{"chassis_serial", "SerialNumber"}}) {
        std::string const value = _dmi(field.file);
        if (!value.empty()) {
            instance.addProperty(field.property, value);
        }
    }
    return instance;
}

CmpiCpp::CmpiName QLN_Chassis::getClassName() const {
    return className;
}

} // namespace QLN
