#include "RegistrationFile.h"

#include <yaml-cpp/yaml.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "CimError.h"
#include "CimName.h"

namespace Cimom {

namespace {

[[noreturn]] void fail(std::string const& where, std::string const& why) {
    throw CimError(CMPI_RC_ERR_FAILED, "registration " + where + ": " + why);
}

std::vector<std::string> stringList(YAML::Node const& node, std::string const& where,
                                    std::string const& field) {
    if (!node || !node.IsSequence() || node.size() == 0) {
        fail(where, "'" + field + "' must be a non-empty list");
    }
    std::vector<std::string> out;
    for (YAML::Node const& item : node) {
        if (!item.IsScalar() || item.Scalar().empty()) {
            fail(where, "'" + field + "' holds an entry that is not a name");
        }
        out.push_back(item.Scalar());
    }
    return out;
}

std::string scalar(YAML::Node const& node, std::string const& where, std::string const& field) {
    if (!node || !node.IsScalar() || node.Scalar().empty()) {
        fail(where, "'" + field + "' must be a non-empty text");
    }
    return node.Scalar();
}

ProviderRegistration::Kind kindFrom(std::string const& text, std::string const& where) {
    using Kind = ProviderRegistration::Kind;
    for (Kind k : {Kind::Instance, Kind::Association, Kind::Method, Kind::Indication}) {
        if (CimName::equal(text, RegistrationFile::kindName(k))) {
            return k;
        }
    }
    fail(where, "unknown kind '" + text + "' (instance, association, method, indication)");
}

} // namespace

char const* RegistrationFile::kindName(ProviderRegistration::Kind kind) {
    switch (kind) {
    case ProviderRegistration::Kind::Instance:
        return "instance";
    case ProviderRegistration::Kind::Association:
        return "association";
    case ProviderRegistration::Kind::Method:
        return "method";
    case ProviderRegistration::Kind::Indication:
        return "indication";
    }
    return "?";
}

RegistrationFile::Contents RegistrationFile::load(std::string const& path) {
    std::ifstream in(path);
    if (!in) {
        fail("file " + path, "cannot be read");
    }
    std::stringstream text;
    text << in.rdbuf();
    std::filesystem::path const base = std::filesystem::absolute(path).parent_path();
    return parse(text.str(), path, base.string());
}

RegistrationFile::Contents RegistrationFile::parse(std::string const& yamlText,
                                                   std::string const& sourceName,
                                                   std::string const& baseDir) {
    YAML::Node root;
    try {
        root = YAML::Load(yamlText);
    } catch (YAML::Exception const& e) {
        fail("file " + sourceName, std::string("is not valid YAML: ") + e.what());
    }
    if (!root.IsMap()) {
        fail("file " + sourceName, "must be a mapping with a 'providers' list");
    }
    Contents contents;
    for (auto const& entry : root) {
        std::string const key = entry.first.Scalar();
        if (key != "providers" && key != "libraryPath") {
            fail("file " + sourceName, "unknown field '" + key + "'");
        }
    }
    if (root["libraryPath"]) {
        for (std::string const& dir :
             stringList(root["libraryPath"], "file " + sourceName, "libraryPath")) {
            std::filesystem::path p(dir);
            contents.libraryDirs.push_back(
                p.is_absolute() ? p.string() : (std::filesystem::path(baseDir) / p).string());
        }
    }
    YAML::Node const providers = root["providers"];
    if (!providers || !providers.IsSequence() || providers.size() == 0) {
        fail("file " + sourceName, "'providers' must be a non-empty list");
    }
    std::set<std::string> names;
    for (std::size_t i = 0; i < providers.size(); ++i) {
        YAML::Node const p = providers[i];
        std::string const where = sourceName + " providers[" + std::to_string(i) + "]";
        if (!p.IsMap()) {
            fail(where, "must be a mapping");
        }
        for (auto const& field : p) {
            std::string const key = field.first.Scalar();
            if (key != "name" && key != "library" && key != "namespaces" && key != "classes" &&
                key != "kinds") {
                fail(where, "unknown field '" + key + "'");
            }
        }
        ProviderRegistration reg;
        reg.name = scalar(p["name"], where, "name");
        reg.library = scalar(p["library"], where, "library");
        reg.namespaces = stringList(p["namespaces"], where, "namespaces");
        reg.classes = stringList(p["classes"], where, "classes");
        for (std::string const& k : stringList(p["kinds"], where, "kinds")) {
            auto const kind = kindFrom(k, where);
            if (!reg.has(kind)) {
                reg.kinds.push_back(kind);
            }
        }
        if (!names.insert(CimName::lower(reg.name)).second) {
            fail(where, "provider name '" + reg.name + "' is registered twice");
        }
        contents.providers.push_back(std::move(reg));
    }
    return contents;
}

} // namespace Cimom
