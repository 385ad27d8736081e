// veldra-sim: shows and changes the simulated hardware of a scenario file.
//   veldra-sim [--scenario FILE] COMMAND [ARGS]
// The file defaults to VELDRA_SCENARIO. Every change is written atomically;
// a command that cannot be carried out exits non-zero and leaves the file as
// it was.
#include "FrameworkConfig.h"
#include "ScenarioEditor.h"
#include "ScenarioGenerator.h"
#include "ScenarioParser.h"
#include "ScenarioPrinter.h"
#include "SimCommands.h"

#include <CLI/CLI.hpp>

#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <iostream>
#include <sys/stat.h>
#include <unistd.h>

int main(int argc, char** argv) {
    CLI::App app{"Shows and changes the simulated Veldra hardware described by a scenario file."};
    app.require_subcommand(1);
    std::string scenario;
    app.add_option("--scenario", scenario, "scenario file (default: $VELDRA_SCENARIO)");

    // What the chosen command does with the opened scenario; null for commands
    // that do not edit one.
    std::function<void(SimCommands&)> edit;
    std::function<void()> plain;

    std::string disk, target, field, value, status, serial, model = "NR4000 SAS", label, spare;
    unsigned reason = 1, tolerance = 3;
    int controller = 0, box = 0, bay = 0, bays = 12, controllers = 0, perController = 0;
    bool ssd = false;
    std::vector<std::string> ports, disks, spares;
    std::string output;

    app.add_subcommand("show", "print controllers, enclosures, disks, volumes and locator requests")
        ->callback([&] { plain = [&] { ScenarioPrinter::print(scenario, std::cout); }; });

    auto diskCommand = [&](char const* name, char const* help,
                           std::function<void(SimCommands&)> action) {
        auto* sub = app.add_subcommand(name, help);
        sub->add_option("disk", disk, "serial number or controller:box:bay")->required();
        sub->callback([&, action] { edit = action; });
        return sub;
    };
    diskCommand("fail-disk", "a disk fails; its volumes degrade or fail", [&](SimCommands& s) {
        s.failDisk(disk, reason);
    })->add_option("--reason", reason, "last failure reason number (default 1, media errors)");
    diskCommand("degrade-disk", "a disk reports that it is predicted to fail",
                [&](SimCommands& s) { s.degradeDisk(disk); });
    diskCommand("restore-disk", "a disk works again", [&](SimCommands& s) { s.restoreDisk(disk); });
    diskCommand("pull-disk", "a disk is pulled out (it is kept for insert-disk)",
                [&](SimCommands& s) { s.pullDisk(disk); });

    auto* insert = app.add_subcommand(
        "insert-disk", "put a pulled disk back, or insert a new one with --controller --box --bay");
    insert->add_option("disk", disk, "a pulled disk: serial number or controller:box:bay");
    insert->add_option("--controller", controller, "controller number of a new disk");
    insert->add_option("--box", box, "enclosure box number of a new disk");
    insert->add_option("--bay", bay, "bay of a new disk");
    insert->add_option("--serial", serial,
                       "serial number of a new disk (none: a disk without serial)");
    insert->add_option("--model", model, "model of a new disk");
    insert->add_flag("--ssd", ssd, "the new disk is an SSD with gas gauge");
    insert->callback([&] {
        edit = [&](SimCommands& s) {
            if (!disk.empty()) {
                if (controller || box || bay)
                    throw SimCommandError("give either a pulled disk or --controller/--box/--bay");
                s.insertPulledDisk(disk);
            } else {
                if (!controller || !bay)
                    throw SimCommandError("a new disk needs --controller, --box and --bay");
                s.insertNewDisk({controller, box, bay, serial, model, ssd});
            }
        };
    });

    auto* addEnclosure = app.add_subcommand("add-enclosure", "attach an enclosure");
    addEnclosure->add_option("--controller", controller, "controller number")->required();
    addEnclosure->add_option("--box", box, "enclosure box number")->required();
    addEnclosure->add_option("--serial", serial, "serial number");
    addEnclosure->add_option("--bays", bays, "number of drive bays (default 12)");
    addEnclosure->add_option("--port", ports, "controller port(s) it hangs on (default 1E)");
    addEnclosure->callback([&] {
        edit = [&](SimCommands& s) { s.addEnclosure(controller, box, serial, bays, ports); };
    });

    auto* removeEnclosure =
        app.add_subcommand("remove-enclosure", "detach an enclosure with its disks");
    removeEnclosure->add_option("enclosure", target, "controller:box")->required();
    removeEnclosure->callback([&] { edit = [&](SimCommands& s) { s.removeEnclosure(target); }; });

    for (auto const& [name, kind, words] :
         {std::tuple{"set-fan", "fan", "ok, degraded, failed, unknown"},
          std::tuple{"set-power-supply", "power-supply", "ok, degraded, failed, unknown"},
          std::tuple{"set-temperature", "temperature", "ok, warning, critical, unknown"}}) {
        auto* sub =
            app.add_subcommand(name, std::string("set the ") + kind + " status of an enclosure");
        sub->add_option("enclosure", target, "controller:box")->required();
        sub->add_option("status", status, std::string(words) + " or a number")->required();
        std::string k = kind;
        sub->callback(
            [&, k] { edit = [&, k](SimCommands& s) { s.setEnclosureStatus(target, k, status); }; });
    }

    auto controllerCommand = [&](char const* name, char const* help,
                                 std::function<void(SimCommands&)> action) {
        auto* sub = app.add_subcommand(name, help);
        sub->add_option("controller", controller, "controller number, from 1")->required();
        sub->callback([&, action] { edit = action; });
    };
    controllerCommand("fail-controller", "the controller fails",
                      [&](SimCommands& s) { s.failController(controller); });
    controllerCommand("fail-cache", "the controller's cache fails",
                      [&](SimCommands& s) { s.failCache(controller); });
    controllerCommand("fail-battery", "the cache battery fails",
                      [&](SimCommands& s) { s.failBattery(controller); });
    controllerCommand("restore-controller", "controller, cache and battery work again",
                      [&](SimCommands& s) { s.restoreController(controller); });

    auto* activate =
        app.add_subcommand("activate-spare", "a spare starts standing in for a failed member");
    activate->add_option("volume", target, "volume serial or controller:serial")->required();
    activate->add_option("--spare", spare, "the spare to use (default: the first free one)");
    activate->callback([&] { edit = [&](SimCommands& s) { s.activateSpare(target, spare); }; });

    auto* create = app.add_subcommand("create-volume", "configure a volume on unassigned disks");
    create->add_option("--controller", controller, "controller number")->required();
    create->add_option("--serial", serial, "serial number of the volume")->required();
    create->add_option("--disks", disks, "data disks")->required()->delimiter(',');
    create->add_option("--spares", spares, "spare disks")->delimiter(',');
    create->add_option("--tolerance", tolerance, "fault tolerance number (default 3)");
    create->add_option("--label", label, "drive label");
    create->callback([&] {
        edit = [&](SimCommands& s) {
            s.createVolume({controller, serial, disks, spares, tolerance, label});
        };
    });

    auto* remove =
        app.add_subcommand("delete-volume", "remove a volume; its disks become unassigned");
    remove->add_option("volume", target, "volume serial or controller:serial")->required();
    remove->callback([&] { edit = [&](SimCommands& s) { s.deleteVolume(target); }; });

    auto* set = app.add_subcommand(
        "set", "set any field of a record (the value is YAML: 3, 0x8005, text, [a, b])");
    set->add_option("target", target,
                    "controller:N, enclosure:C:BOX, disk:SERIAL, disk:C:BOX:BAY, volume:SERIAL")
        ->required();
    set->add_option("field", field, "field name, dotted for nested records (pciInfo.bus)")
        ->required();
    set->add_option("value", value, "new value")->required();
    set->callback([&] { edit = [&](SimCommands& s) { s.setField(target, field, value); }; });

    auto* generate = app.add_subcommand("generate", "write a large regular scenario");
    generate->add_option("--controllers", controllers, "number of controllers")
        ->required()
        ->check(CLI::Range(1, 64));
    generate->add_option("--disks-per-controller", perController, "disks behind each controller")
        ->required()
        ->check(CLI::Range(0, 4096));
    generate->add_option("--output", output, "file to write")->required();
    generate->callback([&] {
        plain = [&] {
            std::string text = ScenarioGenerator::generate(controllers, perController);
            try {
                ScenarioParser::parseText(text, output);
            } catch (ScenarioError const& e) {
                throw SimCommandError(std::string("generated scenario is invalid: ") + e.what());
            }
            ScenarioEditor::writeAtomically(output, text);
        };
    });

    try {
        app.parse(argc, argv);
    } catch (CLI::ParseError const& e) {
        return app.exit(e);
    }

    try {
        bool generating = app.got_subcommand("generate");
        if (scenario.empty() && !generating)
            scenario = QLN::FrameworkConfig::getString("VELDRA_SCENARIO", "");
        if (plain) {
            if (scenario.empty() && !generating)
                throw SimCommandError("no scenario file: give --scenario or set VELDRA_SCENARIO");
            plain();
            return 0;
        }
        ScenarioEditor editor(scenario);
        SimCommands commands(editor);
        edit(commands);
        editor.save();
        return 0;
    } catch (SimCommandError const& e) {
        std::cerr << "veldra-sim: " << e.what() << "\n";
        return 1;
    } catch (std::exception const& e) {
        std::cerr << "veldra-sim: " << e.what() << "\n";
        return 1;
    }
}
