#pragma once
#include "TypedAssociation.h"
#include "VeldraController.h"

namespace QLN {

class QLN_VDPrimordialPool;
class QLN_VDStoragePool;

class QLN_VDPrimordialPoolStoragePool
    : public TypedAssociation<QLN_VDPrimordialPoolStoragePool, QLN_VDPrimordialPool,
                              QLN_VDStoragePool> {
public:
    static constexpr Shape shape{"QLN_VDPrimordialPoolStoragePool", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};

    // A template only so that it is compiled where the ends are complete.
    template <int = 0>
    QLN_VDPrimordialPoolStoragePool(Logger& logger, std::string const& nameSpace,
                                    QLN_VDPrimordialPool* first, QLN_VDStoragePool* second,
                                    VeldraController* controller)
        : TypedAssociation(logger, nameSpace, first, second), _controller(controller) {}

protected:
    void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const override;

private:
    VeldraController* _controller;
};

} // namespace QLN
