#pragma once
// The second provider of the project: it serves what the main provider's
// associations point at outside themselves, so that every end a client
// follows resolves to an instance: the host's computer system and chassis,
// and one PCI function per controller of the storage back end.
//
// The instances are made once, at load. The collection guards itself, so the
// read operations need no lock of their own.
#include "CmpiInstanceProvider.h"
#include "CmpiManagedInstanceCollection.h"
#include "InternalVeldraControllerMRA.h"
#include "Logger.h"

#include <memory>
#include <string>

namespace QLN {

class QLNVeldraHostProvider : public CmpiCpp::CmpiInstanceProvider {
public:
    QLNVeldraHostProvider(CmpiCpp::CmpiBroker const& broker, Logger& logger,
                          std::string const& dmiDirectory = "/sys/class/dmi/id");
    ~QLNVeldraHostProvider() override;

    void enumInstanceNames(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                           CmpiCpp::CmpiObjectPathResult& result) override;
    void enumInstances(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                       char const** properties, CmpiCpp::CmpiInstanceResult& result) override;
    void getInstance(CmpiCpp::CmpiContext const& context, CmpiCpp::CmpiObjectPath const& path,
                     char const** properties, CmpiCpp::CmpiInstanceResult& result) override;

    CmpiCpp::CmpiBroker getBroker() override;
    void cleanup(CmpiCpp::CmpiContext const& context, bool terminating) override;
    int getProviderKind() override;

    unsigned int instanceCount() const { return _instances.size(); }

private:
    CmpiCpp::CmpiBroker _broker;
    Logger _logger;
    CmpiManagedInstanceCollection _instances;
    std::unique_ptr<InternalVeldraControllerMRA> _storage;
};

} // namespace QLN
