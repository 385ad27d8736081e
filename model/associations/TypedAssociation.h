#pragma once
// An association whose two ends have their exact classes in its type, so
// that wiring the wrong instances fails to compile. `Derived` gives its CIM
// shape as `static constexpr Shape shape`. The constructor is a member of a
// class template, so it is compiled where an association is made, where the
// end classes are complete; the declarations here need only their names. An
// end of type CmpiCpp::CmpiObjectPath is served by another provider and is
// passed by its path.
#include "VeldraAssociation.h"

#include <type_traits>

namespace QLN {

template <typename Derived, typename First, typename Second>
class TypedAssociation : public VeldraAssociation {
    template <typename End>
    using EndArgument = std::conditional_t<std::is_same_v<End, CmpiCpp::CmpiObjectPath>,
                                           CmpiCpp::CmpiObjectPath const&, End*>;

public:
    TypedAssociation(Logger& logger, std::string const& nameSpace, EndArgument<First> first,
                     EndArgument<Second> second)
        : VeldraAssociation(Derived::shape, logger, nameSpace, _end(first), _end(second)) {}

private:
    static CmpiCpp::CmpiObjectPath const& _end(CmpiCpp::CmpiObjectPath const& path) { return path; }
    template <typename End> static CmpiManagedInstance* _end(End* instance) { return instance; }
};

} // namespace QLN
