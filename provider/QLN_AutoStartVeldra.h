#pragma once
// The record that tells the autostart decorator which worker method to call,
// in which namespace and how often. The decorator owns the one instance and
// serves it as its own class; it is not part of the storage model.
#include "CmpiManagedInstance.h"
#include "Logger.h"
#include <string>

namespace QLN {

class QLN_AutoStartVeldra : public CmpiManagedInstance {
public:
    QLN_AutoStartVeldra(Logger& logger, std::string const& nameSpace);
    ~QLN_AutoStartVeldra() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;

private:
    std::string _namespace;
    Logger _logger;
    std::string _hostName;
};

} // namespace QLN
