#pragma once

#include <string>

namespace Cimom {

class ObjectRegistry;

// Base of every CMPI object the broker hands to providers (instances, paths,
// strings, ...). The registry owns them; a provider only ever sees the C
// struct inside, whose hdl points back here.
class EncapsulatedObject {
public:
    explicit EncapsulatedObject(ObjectRegistry& registry) : _registry(registry) {}
    virtual ~EncapsulatedObject() = default;
    EncapsulatedObject(EncapsulatedObject const&) = delete;
    EncapsulatedObject& operator=(EncapsulatedObject const&) = delete;

    // The CMPI type name: "CMPIInstance", "CMPIObjectPath", ...
    virtual char const* cmpiTypeName() const = 0;
    // Readable text for the broker's toString service.
    virtual std::string describe() const { return cmpiTypeName(); }

    ObjectRegistry& registry() const { return _registry; }

private:
    ObjectRegistry& _registry;
};

} // namespace Cimom
