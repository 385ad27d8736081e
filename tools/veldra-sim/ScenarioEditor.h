#pragma once
// The scenario file as an editable YAML tree, with look-ups by the names a
// user types (disk serial or controller:box:bay, controller:box, volume
// serial) and an atomic save that refuses to write an invalid scenario.
#include "SimCommandError.h"

#include <yaml-cpp/yaml.h>

#include <string>

class ScenarioEditor {
public:
    // Reads the file; it must be a valid scenario. Holds the scenario's
    // lock ("<file>.lock") until destroyed, so that two editors never lose
    // each other's change.
    explicit ScenarioEditor(std::string path);
    ~ScenarioEditor();
    ScenarioEditor(ScenarioEditor const&) = delete;
    ScenarioEditor& operator=(ScenarioEditor const&) = delete;

    struct Place {
        int controller = 0; // 1-based
        std::string list;   // "physicalDisks", "pulled", "enclosures", "logicalDisks"
        size_t index = 0;
        YAML::Node node;
    };

    std::string const& path() const { return _path; }
    int controllerCount() const;
    YAML::Node controller(int number); // 1-based
    // A disk by serial number or by "controller:box:bay". `lists` names where
    // to look ("physicalDisks", "pulled" or both).
    Place findDisk(std::string const& name,
                   std::initializer_list<char const*> lists = {"physicalDisks"});
    Place findEnclosure(std::string const& name); // "controller:box"
    Place findVolume(std::string const& name);    // serial or "controller:serial"

    // The list `key` of a controller, created empty when missing.
    YAML::Node list(int controller, char const* key);
    // Drops element `index` of the list `key` of a controller.
    void removeAt(int controller, char const* key, size_t index);
    // The next free disk id on a controller (disks and pulled ones).
    unsigned nextDiskId(int controller);

    // Validates the edited tree as a scenario and replaces the file with it
    // (temporary file, fsync, rename). Throws without touching the file.
    void save();

    // Replaces `path` with `text`: temporary file beside it, fsync, rename.
    // A symbolic link stays a link: the file it points at is replaced.
    static void writeAtomically(std::string const& path, std::string const& text);

    static long long toInteger(YAML::Node const& node, long long fallback);
    // Type tests that are false for a missing key (yaml-cpp throws there).
    static bool isSequence(YAML::Node const& node) { return node.IsDefined() && node.IsSequence(); }
    static bool isMap(YAML::Node const& node) { return node.IsDefined() && node.IsMap(); }
    static bool isScalar(YAML::Node const& node) { return node.IsDefined() && node.IsScalar(); }

private:
    // The list without creating it; an empty detached list when missing.
    YAML::Node _view(int controller, char const* key);

    std::string _path;
    int _lock = -1;
    YAML::Node _root;
};
