#pragma once
// A two-ended association over two managed instances, with role names given.
#include "CmpiManagedInstanceAssociation.h"

#include <string>

class TestAssociation : public QLN::CmpiManagedInstanceAssociation {
public:
    TestAssociation(std::string className, std::string firstRole, QLN::CmpiManagedInstance* first,
                    std::string secondRole, QLN::CmpiManagedInstance* second)
        : _className(std::move(className)), _firstRole(std::move(firstRole)),
          _secondRole(std::move(secondRole)), _first(first), _second(second) {}
    // An end served elsewhere, known by its path only.
    TestAssociation(std::string className, std::string firstRole, CmpiCpp::CmpiObjectPath firstPath,
                    std::string secondRole, QLN::CmpiManagedInstance* second)
        : _className(std::move(className)), _firstRole(std::move(firstRole)),
          _secondRole(std::move(secondRole)), _firstPath(std::move(firstPath)), _second(second) {}

    CmpiCpp::CmpiObjectPath getPath() const override {
        CmpiCpp::CmpiObjectPath path("root/mwq", _className);
        path.addKey(_firstRole, _firstEnd());
        path.addKey(_secondRole, _second->getPath());
        return path;
    }
    CmpiCpp::CmpiInstance getInstance() const override {
        CmpiCpp::CmpiInstance instance(getPath());
        instance.addProperty(_firstRole, _firstEnd());
        instance.addProperty(_secondRole, _second->getPath());
        instance.addProperty("IsCurrent", static_cast<unsigned short>(1));
        return instance;
    }
    CmpiCpp::CmpiName getClassName() const override { return _className; }
    CmpiCpp::CmpiObjectPath otherEnd(CmpiCpp::CmpiObjectPath const& end) const override {
        if (end == _firstEnd()) {
            return _second->getPath();
        }
        if (end == _second->getPath()) {
            return _firstEnd();
        }
        return CmpiCpp::CmpiObjectPath();
    }

private:
    CmpiCpp::CmpiObjectPath _firstEnd() const { return _first ? _first->getPath() : _firstPath; }

    std::string _className;
    std::string _firstRole;
    std::string _secondRole;
    QLN::CmpiManagedInstance* _first = nullptr;
    CmpiCpp::CmpiObjectPath _firstPath;
    QLN::CmpiManagedInstance* _second;
};
