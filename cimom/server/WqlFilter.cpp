#include "WqlFilter.h"

#include "CimName.h"

#include <regex>
#include <stdexcept>

namespace Cimom {

WqlFilter WqlFilter::parse(std::string const& query) {
    // Small enough to match whole; a grammar library would be more code than the language.
    static std::regex const form(
        R"(^\s*SELECT\s+\*\s+FROM\s+([A-Za-z_][A-Za-z0-9_]*)\s*(?:WHERE\s+([A-Za-z_][A-Za-z0-9_]*)\s*(=|<>)\s*('(?:[^']|'')*'|"[^"]*"|[-+]?[0-9]+|TRUE|FALSE)\s*)?;?\s*$)",
        std::regex::icase);
    std::smatch m;
    if (!std::regex_match(query, m, form))
        throw std::invalid_argument(
            "query not understood (expected SELECT * FROM <class> [WHERE <property> = <value>]): " +
            query);
    WqlFilter filter;
    filter._className = m[1];
    if (m[2].matched) {
        Condition c;
        c.property = m[2];
        c.equal = m[3] == "=";
        std::string value = m[4];
        if (value.size() >= 2 && (value.front() == '\'' || value.front() == '"')) {
            char quote = value.front();
            value = value.substr(1, value.size() - 2);
            if (quote == '\'') {
                for (size_t at = value.find("''"); at != std::string::npos;
                     at = value.find("''", at + 1))
                    value.erase(at, 1);
            }
        }
        c.value = value;
        filter._where = c;
    }
    return filter;
}

bool WqlFilter::matches(CimInstance const& indication) const {
    if (!_where)
        return true;
    CimValue const* value = indication.property(_where->property);
    // A property the indication lacks, or a null one, satisfies neither = nor <>.
    if (!value || value->isNull())
        return false;
    std::string text = value->toText();
    bool same =
        value->type() == CMPI_boolean ? CimName::equal(text, _where->value) : text == _where->value;
    if (!same && value->type() != CMPI_string && value->type() != CMPI_boolean) {
        // Numbers compare by value: "+3" and "03" are 3.
        try {
            same = std::stoll(text) == std::stoll(_where->value);
        } catch (std::exception const&) {
        }
    }
    return same == _where->equal;
}

} // namespace Cimom
