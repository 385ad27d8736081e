#pragma once
#include "TypedAssociation.h"

namespace QLN {

class QLN_VDISASPort;
class QLN_VDPortController;

class QLN_VDPortControllerISASPort
    : public TypedAssociation<QLN_VDPortControllerISASPort, QLN_VDPortController, QLN_VDISASPort> {
public:
    using TypedAssociation::TypedAssociation;
    static constexpr Shape shape{"QLN_VDPortControllerISASPort", "Antecedent", "Dependent",
                                 WrittenFirst::SecondEnd};
};

} // namespace QLN
