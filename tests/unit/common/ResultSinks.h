#pragma once
// In-memory result objects: what a request delivered, in order.
#include "CmpiInstanceResult.h"
#include "CmpiObjectPathResult.h"

#include <string>
#include <vector>

class InstanceSink : public CmpiCpp::CmpiInstanceResult {
public:
    void returnInstance(CmpiCpp::CmpiInstance const& instance) override {
        instances.push_back(instance);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> out;
        for (auto const& each : instances) {
            out.push_back(each.getPath().getKey("Name").getString());
        }
        return out;
    }
    std::vector<CmpiCpp::CmpiInstance> instances;
};

class PathSink : public CmpiCpp::CmpiObjectPathResult {
public:
    void returnObjectPath(CmpiCpp::CmpiObjectPath const& path) override { paths.push_back(path); }
    // The Name key of each path, or the class name for paths without one.
    std::vector<std::string> names() const {
        std::vector<std::string> out;
        for (auto const& each : paths) {
            out.push_back(each.hasKey("Name") ? each.getKey("Name").getString()
                                              : each.getClassName().str());
        }
        return out;
    }
    std::vector<CmpiCpp::CmpiObjectPath> paths;
};
