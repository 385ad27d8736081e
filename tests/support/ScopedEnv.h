#pragma once
// Sets environment variables for one test and puts the old values back, then
// makes the framework read its configuration again.
#include "FrameworkConfig.h"

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

class ScopedEnv {
public:
    ScopedEnv() = default;
    ScopedEnv(ScopedEnv const&) = delete;
    ScopedEnv& operator=(ScopedEnv const&) = delete;
    ~ScopedEnv() {
        for (auto const& [name, value] : _saved) {
            if (value) {
                setenv(name.c_str(), value->c_str(), 1);
            } else {
                unsetenv(name.c_str());
            }
        }
        QLN::FrameworkConfig::reload();
    }

    void set(std::string const& name, std::string const& value) {
        _remember(name);
        setenv(name.c_str(), value.c_str(), 1);
        QLN::FrameworkConfig::reload();
    }

    void unset(std::string const& name) {
        _remember(name);
        unsetenv(name.c_str());
        QLN::FrameworkConfig::reload();
    }

private:
    void _remember(std::string const& name) {
        if (_saved.count(name)) {
            return;
        }
        char const* old = std::getenv(name.c_str());
        _saved[name] = old ? std::optional<std::string>(old) : std::nullopt;
    }

    std::map<std::string, std::optional<std::string>> _saved;
};
