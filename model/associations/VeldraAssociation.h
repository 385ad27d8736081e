#pragma once
// The one shape of every two-ended association: two ends that it does not
// own, two role names, and the role whose reference is written first. Path
// and instance are derived from the ends each time they are asked for, so an
// association carries no data of its own. A class adds properties beyond the
// two references by overriding _addExtraProperties.
#include "CmpiManagedInstanceAssociation.h"
#include "Logger.h"

#include <memory>
#include <string>

namespace QLN {

class VeldraAssociation : public CmpiManagedInstanceAssociation {
public:
    // Which end's reference key leads in the path and the instance.
    enum class WrittenFirst { FirstEnd, SecondEnd };

    struct Shape {
        char const* className;
        char const* firstRole;
        char const* secondRole;
        WrittenFirst writtenFirst;
    };

    ~VeldraAssociation() override;

    CmpiCpp::CmpiObjectPath getPath() const override;
    CmpiCpp::CmpiInstance getInstance() const override;
    CmpiCpp::CmpiName getClassName() const override;
    CmpiCpp::CmpiObjectPath otherEnd(CmpiCpp::CmpiObjectPath const& end) const override;

    Shape const& shape() const { return _shape; }

protected:
    // Both ends served here.
    VeldraAssociation(Shape const& shape, Logger& logger, std::string const& nameSpace,
                      CmpiManagedInstance* firstEnd, CmpiManagedInstance* secondEnd);
    // The first end is served by another provider and known by its path only;
    // the association keeps its own copy of that path.
    VeldraAssociation(Shape const& shape, Logger& logger, std::string const& nameSpace,
                      CmpiCpp::CmpiObjectPath const& firstEnd, CmpiManagedInstance* secondEnd);

    // Called after both references are in the instance.
    virtual void _addExtraProperties(CmpiCpp::CmpiInstance& instance) const;

    // The firmware-and-element pairs all report the same software status:
    // current and installed, upgrade not applicable.
    static void _addFirmwarePairProperties(CmpiCpp::CmpiInstance& instance);

private:
    CmpiCpp::CmpiObjectPath _firstPath() const;
    void _announce();

    Shape _shape;
    std::string _namespace;
    Logger _logger;
    CmpiManagedInstance* _firstEnd = nullptr;
    std::unique_ptr<CmpiCpp::CmpiObjectPath> _firstEndPath;
    CmpiManagedInstance* _secondEnd;
};

} // namespace QLN
