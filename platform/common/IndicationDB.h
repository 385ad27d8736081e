#pragma once
// The indication database of one CIM indication class: the records of its
// events by event number. Each class numbers its own events.
//
// The records come from a YAML file (VELDRA_INDICATION_DB in the framework
// configuration; by default <prefix>/share/veldra/indications/indications.yaml
// beside the installed libraries, else the source tree's data/indications).
// Its layout is told in data/indications/README.md. A file that is missing
// or does not parse is logged as an error and yields no record; a record
// that lacks a field or has a value of the wrong kind is logged and left out,
// while the others of the file stand.
#include "IndDBRec.h"
#include "Logger.h"

#include <map>
#include <string>

namespace QLN {

class IndicationDB {
public:
    IndicationDB(Logger& logger, std::string const& className);

    // 0 when the record exists and `record` was filled; -1 otherwise, and
    // `record` is left alone.
    int getRecord(int eventNumber, IndDBRec& record) const;

    // The file this database reads.
    static std::string path();

private:
    Logger _logger;
    std::map<int, IndDBRec> _records;
};

} // namespace QLN
