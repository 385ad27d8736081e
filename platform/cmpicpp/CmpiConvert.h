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
#include <functional>
#include <string>
#include <vector>

namespace CmpiCpp {

class CmpiConvert {
public:
    // The objects that conversions made, for a caller that gives them back
    // itself. A provider thread attached for good keeps every object it makes
    // until it detaches, so it releases them once the broker has copied what
    // it needed (object managers copy what a setter or a delivery is given).
    class Made {
    public:
        Made() = default;
        Made(Made const&) = delete;
        Made& operator=(Made const&) = delete;
        ~Made() { releaseAll(); }

        template <typename T> T* keep(T* object) {
            _releases.push_back([object] {
                if (object->ft && object->ft->release)
                    object->ft->release(object);
            });
            return object;
        }
        std::size_t count() const { return _releases.size(); }
        // Newest first, so containers go after what was set into them.
        void releaseAll() noexcept;

    private:
        std::vector<std::function<void()>> _releases;
    };

    static CMPIString* newString(CmpiBroker const& broker, std::string const& text,
                                 Made* made = nullptr);
    static CMPIObjectPath* toCMPI(CmpiBroker const& broker, CmpiObjectPath const& path,
                                  Made* made = nullptr);
    static CMPIInstance* toCMPI(CmpiBroker const& broker, CmpiInstance const& instance,
                                Made* made = nullptr);
    static CMPIArray* toCMPI(CmpiBroker const& broker, CmpiArray const& array,
                             Made* made = nullptr);
    static CMPIDateTime* toCMPI(CmpiBroker const& broker, CmpiDateTime const& dateTime,
                                Made* made = nullptr);
    static CMPIArgs* toCMPI(CmpiBroker const& broker, CmpiArgs const& args);
    // A value that stands on its own: strings become broker strings.
    static CMPIData toCMPI(CmpiBroker const& broker, CmpiData const& data, Made* made = nullptr);
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
    static CMPIData _transient(CmpiBroker const& broker, CmpiData const& data,
                               Made* made = nullptr);
    static CMPIBrokerEncFT const* _enc(CmpiBroker const& broker);
};

} // namespace CmpiCpp
