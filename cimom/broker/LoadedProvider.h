#pragma once

#include <string>

#include "ProviderRegistration.h"
#include "cmpift.h"

namespace Cimom {

class Broker;

// One provider library opened with dlopen, reached only through its
// _Generic_Create_<Kind>MI entry points and the tables they return.
class LoadedProvider {
public:
    // Opens the library and creates one MI per registered kind. On any
    // failure nothing stays loaded and CimError(CMPI_RC_ERR_FAILED) tells
    // which provider, library and entry point failed and how.
    LoadedProvider(ProviderRegistration const& registration, std::string const& libraryFile,
                   Broker& broker);
    ~LoadedProvider();
    LoadedProvider(LoadedProvider const&) = delete;
    LoadedProvider& operator=(LoadedProvider const&) = delete;

    ProviderRegistration const& registration() const { return _registration; }
    std::string const& libraryFile() const { return _libraryFile; }
    CMPIInstanceMI* instanceMI() const { return _instance; }
    CMPIAssociationMI* associationMI() const { return _association; }
    CMPIMethodMI* methodMI() const { return _method; }
    CMPIIndicationMI* indicationMI() const { return _indication; }

    // Every MI's cleanup (terminating), then dlclose; safe to call twice.
    void shutdown();

private:
    void* _entry(char const* symbol);
    void _create(ProviderRegistration::Kind kind);

    ProviderRegistration _registration;
    std::string _libraryFile;
    Broker& _broker;
    void* _handle = nullptr;
    CMPIInstanceMI* _instance = nullptr;
    CMPIAssociationMI* _association = nullptr;
    CMPIMethodMI* _method = nullptr;
    CMPIIndicationMI* _indication = nullptr;
};

} // namespace Cimom
