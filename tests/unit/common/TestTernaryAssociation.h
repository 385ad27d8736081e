#pragma once
// A three-ended association: Initiator, Target, LogicalUnit.
#include "CmpiManagedInstanceMultiAssociation.h"

#include <array>

class TestTernaryAssociation : public QLN::CmpiManagedInstanceMultiAssociation {
public:
    TestTernaryAssociation(QLN::CmpiManagedInstance* initiator, QLN::CmpiManagedInstance* target,
                           QLN::CmpiManagedInstance* unit)
        : _ends{initiator, target, unit} {}

    CmpiCpp::CmpiObjectPath getPath() const override {
        CmpiCpp::CmpiObjectPath path("root/mwq", "QLN_TestPath");
        for (std::size_t i = 0; i < 3; ++i) {
            path.addKey(roles[i], _ends[i]->getPath());
        }
        return path;
    }
    CmpiCpp::CmpiInstance getInstance() const override {
        CmpiCpp::CmpiInstance instance(getPath());
        instance.addProperty("State", static_cast<unsigned int>(2));
        return instance;
    }
    CmpiCpp::CmpiName getClassName() const override { return "QLN_TestPath"; }
    std::vector<CmpiCpp::CmpiObjectPath>
    otherEnd(CmpiCpp::CmpiObjectPath const& end,
             CmpiCpp::CmpiName const& resultRole) const override {
        std::vector<CmpiCpp::CmpiObjectPath> others;
        bool known = false;
        for (auto const* each : _ends) {
            known = known || each->getPath() == end;
        }
        if (!known) {
            return others;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            if (!(_ends[i]->getPath() == end) && (resultRole.empty() || resultRole == roles[i])) {
                others.push_back(_ends[i]->getPath());
            }
        }
        return others;
    }

    static constexpr std::array<char const*, 3> roles{"Initiator", "Target", "LogicalUnit"};

private:
    std::array<QLN::CmpiManagedInstance*, 3> _ends;
};
