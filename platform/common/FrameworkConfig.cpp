#include "FrameworkConfig.h"

#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <mutex>
#include <stdexcept>

namespace QLN {

namespace {

char const* const defaultPath = "/etc/veldra/framework.conf";

// The file is read once and shared by every thread; a failed read is kept as
// its message, so that every later get reports the same error instead of
// quietly falling back to defaults.
struct FileState {
    std::mutex mutex;
    bool loaded = false;
    std::map<std::string, std::string> values;
    std::string error;
};

FileState& fileState() {
    static FileState state;
    return state;
}

std::atomic<unsigned long> reloads{0};

std::string where(std::string const& file, YAML::Mark const& mark) {
    // yaml-cpp counts lines from 0; people count from 1.
    return "framework configuration " + file + " line " + std::to_string(mark.line + 1);
}

std::map<std::string, std::string> parseFile(std::string const& file) {
    std::map<std::string, std::string> values;
    std::error_code ec;
    if (!std::filesystem::exists(file, ec)) {
        return values;
    }
    YAML::Node root;
    try {
        root = YAML::LoadFile(file);
    } catch (YAML::ParserException const& e) {
        throw std::runtime_error(where(file, e.mark) + ": " + e.msg);
    } catch (YAML::BadFile const&) {
        throw std::runtime_error("framework configuration " + file + ": cannot be read");
    }
    if (root.IsNull()) {
        return values;
    }
    if (!root.IsMap()) {
        throw std::runtime_error(where(file, root.Mark()) + ": expected KEY: value pairs");
    }
    for (auto const& entry : root) {
        if (!entry.first.IsScalar()) {
            throw std::runtime_error(where(file, entry.first.Mark()) +
                                     ": a key must be a plain name");
        }
        std::string key = entry.first.Scalar();
        if (entry.second.IsNull()) {
            values[key] = "";
        } else if (entry.second.IsScalar()) {
            values[key] = entry.second.Scalar();
        } else {
            throw std::runtime_error(where(file, entry.second.Mark()) + ": value of " + key +
                                     " must be a single value, not a list or map");
        }
    }
    return values;
}

std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

} // namespace

std::string FrameworkConfig::path() {
    char const* env = std::getenv("VELDRA_CONFIG");
    return (env && *env) ? std::string(env) : std::string(defaultPath);
}

std::optional<std::string> FrameworkConfig::get(std::string const& key) {
    if (char const* env = std::getenv(key.c_str())) {
        return std::string(env);
    }
    FileState& state = fileState();
    std::lock_guard<std::mutex> lock(state.mutex);
    if (!state.loaded) {
        try {
            state.values = parseFile(path());
            state.error.clear();
        } catch (std::runtime_error const& e) {
            state.values.clear();
            state.error = e.what();
        }
        state.loaded = true;
    }
    if (!state.error.empty()) {
        throw std::runtime_error(state.error);
    }
    auto found = state.values.find(key);
    if (found == state.values.end()) {
        return std::nullopt;
    }
    return found->second;
}

std::string FrameworkConfig::getString(std::string const& key, std::string const& fallback) {
    return get(key).value_or(fallback);
}

bool FrameworkConfig::getBool(std::string const& key, bool fallback) {
    auto value = get(key);
    if (!value) {
        return fallback;
    }
    std::string text = lower(*value);
    if (text == "1" || text == "true" || text == "yes" || text == "on") {
        return true;
    }
    if (text == "0" || text == "false" || text == "no" || text == "off") {
        return false;
    }
    throw std::runtime_error("framework configuration: " + key +
                             " must be a switch (true/false), not \"" + *value + "\"");
}

long FrameworkConfig::getInt(std::string const& key, long fallback) {
    auto value = get(key);
    if (!value) {
        return fallback;
    }
    char const* text = value->c_str();
    char* end = nullptr;
    errno = 0;
    long number = std::strtol(text, &end, 10);
    if (value->empty() || errno == ERANGE || *end != '\0' ||
        std::isspace(static_cast<unsigned char>(*text))) {
        throw std::runtime_error("framework configuration: " + key +
                                 " must be a whole number, not \"" + *value + "\"");
    }
    return number;
}

void FrameworkConfig::reload() {
    FileState& state = fileState();
    {
        std::lock_guard<std::mutex> lock(state.mutex);
        state.loaded = false;
        state.values.clear();
        state.error.clear();
    }
    reloads.fetch_add(1);
}

unsigned long FrameworkConfig::generation() {
    return reloads.load();
}

} // namespace QLN
