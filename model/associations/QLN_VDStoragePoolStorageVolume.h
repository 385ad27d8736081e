#pragma once
#include "TypedAssociation.h"
#include "VeldraController.h"

namespace QLN {

class QLN_VDStoragePool;
class QLN_VDStorageVolume;

class QLN_VDStoragePoolStorageVolume
    : public TypedAssociation<QLN_VDStoragePoolStorageVolume, QLN_VDStoragePool,
                              QLN_VDStorageVolume> {
public:
    static constexpr Shape shape{"QLN_VDStoragePoolStorageVolume", "Antecedent", "Dependent",
                                 WrittenFirst::FirstEnd};

    // A template only so that it is compiled where the ends are complete.
    template <int = 0>
    QLN_VDStoragePoolStorageVolume(Logger& logger, std::string const& nameSpace,
                                   QLN_VDStoragePool* first, QLN_VDStorageVolume* second,
                                   VeldraController* controller)
        : TypedAssociation(logger, nameSpace, first, second), _controller(controller) {}

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    VeldraController* _controller;
};

} // namespace QLN
