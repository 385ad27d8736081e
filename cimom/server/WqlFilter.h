#pragma once

#include "CimInstance.h"

#include <optional>
#include <string>

namespace Cimom {

// The query of an indication filter: "SELECT * FROM <class>", optionally
// "WHERE <property> = <value>" (or <>), the value a quoted text, a number,
// TRUE or FALSE. That is the part of WQL that subscribers of alerts use;
// anything else is refused with a message when the filter is created.
class WqlFilter {
public:
    // Throws std::invalid_argument naming what is wrong.
    static WqlFilter parse(std::string const& query);

    std::string const& className() const { return _className; }
    // Whether the indication's properties satisfy the WHERE clause (the class
    // is the caller's test: only the object manager knows subclasses).
    bool matches(CimInstance const& indication) const;

private:
    struct Condition {
        std::string property;
        std::string value; // as text, compared without regard to case for TRUE/FALSE
        bool equal = true;
    };
    std::string _className;
    std::optional<Condition> _where;
};

} // namespace Cimom
