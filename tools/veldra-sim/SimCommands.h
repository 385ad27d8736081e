#pragma once
// The hardware events that veldra-sim can cause. Each works on the editable
// tree and changes what a real controller would report after such an event;
// the caller saves. Bad names or values throw SimCommandError.
#include "ScenarioEditor.h"

#include <string>
#include <vector>

class SimCommands {
public:
    explicit SimCommands(ScenarioEditor& editor) : _editor(editor) {}

    void failDisk(std::string const& disk, unsigned reason);
    void degradeDisk(std::string const& disk);
    void restoreDisk(std::string const& disk);
    void pullDisk(std::string const& disk);
    // Puts a pulled disk back in place.
    void insertPulledDisk(std::string const& disk);
    struct NewDisk {
        int controller = 0;
        int box = 0;
        int bay = 0;
        std::string serial;
        std::string model = "NR4000 SAS";
        bool ssd = false;
    };
    void insertNewDisk(NewDisk const& disk);

    void addEnclosure(int controller, int box, std::string const& serial, int bays,
                      std::vector<std::string> ports);
    void removeEnclosure(std::string const& enclosure);
    // kind: "fan", "power-supply" or "temperature"; status: a word or a number.
    void setEnclosureStatus(std::string const& enclosure, std::string const& kind,
                            std::string const& status);

    void failController(int controller);
    void failCache(int controller);
    void failBattery(int controller);
    void restoreController(int controller);

    void activateSpare(std::string const& volume, std::string const& spare);
    struct NewVolume {
        int controller = 0;
        std::string serial;
        std::vector<std::string> disks;
        std::vector<std::string> spares;
        unsigned tolerance = 3;
        std::string label;
    };
    void createVolume(NewVolume const& volume);
    void deleteVolume(std::string const& volume);

    // target: controller:N, enclosure:C:BOX, disk:NAME, volume:NAME.
    void setField(std::string const& target, std::string const& field, std::string const& value);

private:
    // Volumes of a controller that hold the disk as a data member.
    std::vector<YAML::Node> _volumesWithData(int controller, unsigned id);
    void _recomputeVolume(int controller, YAML::Node volume);
    unsigned _diskId(ScenarioEditor::Place const& disk);

    ScenarioEditor& _editor;
};
