#pragma once
// The crossing between the plain values and the object manager's CMPI
// objects, in both directions. Outgoing objects are made through the broker's
// factories and belong to the object manager; incoming ones are read through
// their function tables only. Every failure throws CmpiStatus.
#include "CmpiArgs.h"
#include "CmpiArray.h"
#include "CmpiBroker.h"
#include "CmpiData.h"
#include "CmpiDateTime.h"
#include "CmpiInstance.h"
#include "CmpiObjectPath.h"
#include "cmpift.h"
#include <string>

namespace CmpiCpp {

class CmpiConvert {
public:
    static CMPIString* newString(CmpiBroker const& broker, std::string const& text);
    static CMPIObjectPath* toCMPI(CmpiBroker const& broker, CmpiObjectPath const& path);
    static CMPIInstance* toCMPI(CmpiBroker const& broker, CmpiInstance const& instance);
    static CMPIArray* toCMPI(CmpiBroker const& broker, CmpiArray const& array);
    static CMPIDateTime* toCMPI(CmpiBroker const& broker, CmpiDateTime const& dateTime);
    static CMPIArgs* toCMPI(CmpiBroker const& broker, CmpiArgs const& args);
    // A value that stands on its own: strings become broker strings.
    static CMPIData toCMPI(CmpiBroker const& broker, CmpiData const& data);
    // Adds every argument to an existing CMPIArgs (a method's out arguments).
    static void addArgs(CmpiBroker const& broker, CMPIArgs const* out, CmpiArgs const& args);

    static std::string fromCMPI(CMPIString const* text);
    static CmpiObjectPath fromCMPI(CMPIObjectPath const* path);
    static CmpiInstance fromCMPI(CMPIInstance const* instance);
    static CmpiArray fromCMPI(CMPIArray const* array);
    static CmpiDateTime fromCMPI(CMPIDateTime const* dateTime);
    static CmpiArgs fromCMPI(CMPIArgs const* args);
    static CmpiData fromCMPI(CMPIData const& data);

    // A status to hand back; the message becomes a broker string when there
    // is a broker to make it, and is dropped otherwise.
    static CMPIStatus status(CmpiBroker const& broker, CMPIrc rc, std::string const& msg);

private:
    // The value for a setter that copies it during the call: strings pass as
    // CMPI_chars pointing into data, so no broker string is made per value.
    static CMPIData _transient(CmpiBroker const& broker, CmpiData const& data);
    static CMPIBrokerEncFT const* _enc(CmpiBroker const& broker);
};

} // namespace CmpiCpp
