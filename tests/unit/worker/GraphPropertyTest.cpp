// Seeded random runs of hardware changes over the demo, one pass after each:
// after every pass the graph must hold exactly the paths (association ends
// included) of a provider started fresh on the same scenario. A failure
// prints the seed and the commands that lead to it.
//
// No difference is accepted: where the pass's own rules would leave the
// graph apart from a fresh start (a disk put back into its volume, the last
// spare pulled or put back, a volume deleted under its disks, cages and
// pools handed on from earlier controllers), the pass was made to agree, and
// this test is what holds it there.
//
// VELDRA_PROPERTY_SEEDS=1,2,3 and VELDRA_PROPERTY_STEPS=N run more on demand.
#include "WorkerTestSupport.h"

#include <random>
#include <sstream>

using namespace worker_test;

namespace {

std::vector<unsigned int> seeds() {
    std::vector<unsigned int> chosen{7, 1234};
    if (char const* given = std::getenv("VELDRA_PROPERTY_SEEDS")) {
        chosen.clear();
        std::stringstream list(given);
        std::string one;
        while (std::getline(list, one, ',')) {
            chosen.push_back(static_cast<unsigned int>(std::stoul(one)));
        }
    }
    return chosen;
}

int steps() {
    char const* given = std::getenv("VELDRA_PROPERTY_STEPS");
    return given ? std::stoi(given) : 200;
}

// Commands are drawn from these names; veldra-sim refuses those that do not
// fit the state (inserting a disk that is in, deleting a volume twice), and
// a refused command leaves the file as it was.
std::vector<std::string> const disks{
    "NR8K1000", "NR8K1001", "NR8K1002", "NR8K1003", "NR8K1004", "NR8K1005", "NR8K1006", "NR8K1007",
    "KS2T2008", "KS2T2009", "KS2T2010", "KS2T2011", "KS2T2012", "KS2T2013", "NR8M3000", "NR8M3001",
    "NR8M3002", "NR8M3003", "NR8M3004", "NR8M3005", "NR8M3006", "KS2T3007"};
std::vector<std::string> const volumes{
    "600508B1001C4D2A0000000000000001", "600508B1001C4D2A0000000000000002",
    "600508B1001C4D2A0000000000000005", "600508B1001C7E110000000000000001"};

std::string draw(std::mt19937& random) {
    auto pick = [&](std::vector<std::string> const& from) {
        return from[std::uniform_int_distribution<std::size_t>(0, from.size() - 1)(random)];
    };
    switch (std::uniform_int_distribution<int>(0, 10)(random)) {
    case 0:
        return "pull-disk " + pick(disks);
    case 1:
        return "insert-disk " + pick(disks);
    case 2:
        return "fail-disk " + pick(disks);
    case 3:
        return "restore-disk " + pick(disks);
    case 4:
        return "activate-spare " + pick(volumes);
    case 5:
        return "delete-volume " + pick(volumes);
    case 6:
        return "create-volume --controller 1 --serial 600508B1001C4D2A00000000000000A" +
               std::to_string(random() % 4) + " --disks " + pick(disks) + "," + pick(disks) +
               " --spares " + pick(disks);
    case 7:
        return "add-enclosure --controller 2 --box " + std::to_string(5 + random() % 2) +
               " --serial VBOX" + std::to_string(random() % 2);
    case 8:
        return "remove-enclosure " + std::string(random() % 2 ? "2:5" : "1:2");
    case 9:
        return "set-fan 1:2 " + std::string(random() % 2 ? "failed" : "ok");
    default:
        return "degrade-disk " + pick(disks);
    }
}

} // namespace

TEST(GraphProperty, EveryPassEqualsAFreshStart) {
    for (unsigned int const seed : seeds()) {
        WorkingCopy copy("demo.yaml");
        auto provider = startProvider();
        std::mt19937 random(seed);
        std::string history;
        for (int step = 0; step < steps(); ++step) {
            std::string const command = draw(random);
            if (!copy.trySim(command)) {
                continue;
            }
            history += "  veldra-sim " + command + "\n";
            pass(*provider);
            auto fresh = startProvider();
            auto have = graphOf(*provider);
            auto want = graphOf(*fresh);
            if (takeViewVolumes(have) != takeViewVolumes(want) || have != want) {
                FAIL() << "seed " << seed << ", step " << step
                       << ": the graph differs from a fresh start after\n"
                       << history << "kept by the passes only:\n"
                       << difference(have, want) << "made fresh only:\n"
                       << difference(want, have);
            }
        }
    }
}
