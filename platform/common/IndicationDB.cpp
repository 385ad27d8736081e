#include "IndicationDB.h"

#include "FrameworkConfig.h"

#include <yaml-cpp/yaml.h>

#include <dlfcn.h>
#include <sys/stat.h>

#include <exception>
#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <stdexcept>

namespace QLN {

namespace {

char const* const fileName = "/indications/indications.yaml";

bool isFile(std::string const& path) {
    struct stat st {};
    return ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

std::string libraryDirectory() {
    Dl_info info{};
    if (::dladdr(reinterpret_cast<void*>(&isFile), &info) == 0 || info.dli_fname == nullptr) {
        return ".";
    }
    std::string path = info.dli_fname;
    auto const slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash);
}

// A record problem names the place, so that whoever edits the file finds it.
struct RecordError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string at(YAML::Node const& node) {
    // yaml-cpp counts lines from 0; people count from 1.
    return "line " + std::to_string(node.Mark().line + 1);
}

template <typename Number> Number number(YAML::Node const& node, char const* key) {
    if (!node.IsScalar()) {
        throw RecordError(std::string(key) + " must be a number (" + at(node) + ")");
    }
    long long value = 0;
    try {
        value = node.as<long long>();
    } catch (YAML::Exception const&) {
        throw RecordError(std::string(key) + " must be a number, not \"" + node.Scalar() + "\" (" +
                          at(node) + ")");
    }
    if (value < static_cast<long long>(std::numeric_limits<Number>::min()) ||
        value > static_cast<long long>(std::numeric_limits<Number>::max())) {
        throw RecordError(std::string(key) + " is out of range (" + at(node) + ")");
    }
    return static_cast<Number>(value);
}

std::string text(YAML::Node const& node, char const* key) {
    if (!node.IsScalar()) {
        throw RecordError(std::string(key) + " must be a text (" + at(node) + ")");
    }
    return node.Scalar();
}

struct Field {
    char const* key;
    bool required;
    std::function<void(IndDBRec&, YAML::Node const&)> read;
};

std::vector<Field> const& fields() {
    static std::vector<Field> const all = {
        {"eventName", false,
         [](IndDBRec& r, YAML::Node const& n) { r.eventName = text(n, "eventName"); }},
        {"perceivedSeverity", false,
         [](IndDBRec& r, YAML::Node const& n) {
             r.perceivedSeverity = number<int>(n, "perceivedSeverity");
         }},
        {"providerName", true,
         [](IndDBRec& r, YAML::Node const& n) { r.providerName = text(n, "providerName"); }},
        {"eventID", true, [](IndDBRec& r, YAML::Node const& n) { r.eventID = text(n, "eventID"); }},
        {"indicationNumber", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.indicationNumber = number<int>(n, "indicationNumber");
         }},
        {"description", true,
         [](IndDBRec& r, YAML::Node const& n) { r.description = text(n, "description"); }},
        {"summary", true, [](IndDBRec& r, YAML::Node const& n) { r.summary = text(n, "summary"); }},
        {"eventCategory", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.eventCategory = number<int>(n, "eventCategory");
         }},
        {"trending", false,
         [](IndDBRec& r, YAML::Node const& n) { r.trending = number<int>(n, "trending"); }},
        {"otherAlertType", false,
         [](IndDBRec& r, YAML::Node const& n) { r.otherAlertType = text(n, "otherAlertType"); }},
        {"alertType", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.alertType = number<std::uint16_t>(n, "alertType");
         }},
        {"owningEntity", false,
         [](IndDBRec& r, YAML::Node const& n) { r.owningEntity = text(n, "owningEntity"); }},
        {"messageID", false,
         [](IndDBRec& r, YAML::Node const& n) { r.messageID = text(n, "messageID"); }},
        {"probableCause", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.probableCause = number<std::uint16_t>(n, "probableCause");
         }},
        {"probableCauseDescription", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.probableCauseDescription = text(n, "probableCauseDescription");
         }},
        {"recommendedActions", true,
         [](IndDBRec& r, YAML::Node const& n) {
             r.recommendedActions = text(n, "recommendedActions");
         }},
    };
    return all;
}

// The record's own values win over the file's defaults.
IndDBRec readRecord(YAML::Node const& node, YAML::Node const& defaults) {
    if (!node.IsMap()) {
        throw RecordError("a record must be a map of fields (" + at(node) + ")");
    }
    std::set<std::string> known;
    for (Field const& field : fields()) {
        known.insert(field.key);
    }
    for (auto const& entry : node) {
        std::string const key = entry.first.Scalar();
        if (known.count(key) == 0) {
            throw RecordError("unknown field " + key + " (" + at(entry.first) + ")");
        }
    }
    IndDBRec record;
    for (Field const& field : fields()) {
        // A missing key gives an invalid node, which yaml-cpp refuses to rebind.
        std::optional<YAML::Node> value;
        if (node[field.key]) {
            value = node[field.key];
        } else if (defaults && defaults.IsMap() && defaults[field.key]) {
            value = defaults[field.key];
        }
        if (value) {
            field.read(record, *value);
        } else if (field.required) {
            throw RecordError(std::string("field ") + field.key + " is missing");
        }
    }
    return record;
}

} // namespace

std::string IndicationDB::path() {
    try {
        if (auto configured = FrameworkConfig::get("VELDRA_INDICATION_DB");
            configured && !configured->empty()) {
            return *configured;
        }
    } catch (std::exception const&) {
        // A broken configuration is reported where it is loaded; the default stands.
    }
    std::string const installed = libraryDirectory() + "/../share/veldra" + fileName;
    if (isFile(installed)) {
        return installed;
    }
    return std::string(VELDRA_COMMON_DATA_DIR) + fileName;
}

IndicationDB::IndicationDB(Logger& logger, std::string const& className) : _logger(logger) {
    _logger.appendLogSource(":");
    _logger.appendLogSource("IndicationDB");
    std::string const file = path();
    YAML::Node root;
    try {
        root = YAML::LoadFile(file);
    } catch (YAML::BadFile const&) {
        _logger.error("indication database %s cannot be read: no records for %s", file.c_str(),
                      className.c_str());
        return;
    } catch (YAML::ParserException const& e) {
        _logger.error("indication database %s line %d: %s: no records for %s", file.c_str(),
                      e.mark.line + 1, e.msg.c_str(), className.c_str());
        return;
    } catch (YAML::Exception const& e) {
        _logger.error("indication database %s: %s: no records for %s", file.c_str(), e.what(),
                      className.c_str());
        return;
    }
    if (!root.IsMap() || !root["classes"] || !root["classes"].IsMap()) {
        _logger.error(
            "indication database %s: expected a map \"classes\" of classes: no records for %s",
            file.c_str(), className.c_str());
        return;
    }
    YAML::Node const defaults = root["defaults"];
    YAML::Node const events = root["classes"][className];
    if (!events) {
        _logger.error("indication database %s has no class %s", file.c_str(), className.c_str());
        return;
    }
    if (!events.IsMap()) {
        _logger.error(
            "indication database %s, class %s (%s): expected event numbers with their records",
            file.c_str(), className.c_str(), at(events).c_str());
        return;
    }
    for (auto const& entry : events) {
        try {
            int const eventNumber = number<int>(entry.first, "event number");
            _records[eventNumber] = readRecord(entry.second, defaults);
        } catch (std::exception const& e) {
            _logger.error("indication database %s, class %s, event %s: %s: record left out",
                          file.c_str(), className.c_str(), entry.first.Scalar().c_str(), e.what());
        }
    }
}

int IndicationDB::getRecord(int eventNumber, IndDBRec& record) const {
    auto const found = _records.find(eventNumber);
    if (found == _records.end()) {
        return -1;
    }
    record = found->second;
    return 0;
}

} // namespace QLN
