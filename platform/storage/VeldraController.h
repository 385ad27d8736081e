#pragma once
// One controller, as a long-lived handle owned by the storage-access root.
//
// Besides the current state of the hardware (the pure virtual operations,
// supplied by a back end) it keeps what the caller stored: the "last"
// snapshots and the consumed counters. A live counter moves whenever the
// state it guards changes; caller and library compare live and consumed by
// inequality only.
#include "VeldraControllerData.h"
#include "VeldraEnclosure.h"
#include "VeldraLogicalDisk.h"
#include "VeldraPhysicalDisk.h"

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class VeldraController {
public:
    VeldraController();
    VeldraController(VeldraController const&) = delete;
    VeldraController& operator=(VeldraController const&) = delete;
    virtual ~VeldraController();

    // Current state.
    virtual VeldraControllerData getVDData() = 0;
    virtual std::vector<VeldraEnclosure> getAllEnclosures() = 0;
    virtual std::vector<VeldraPhysicalDisk> getAllPhysicalDisks() = 0;
    virtual std::vector<VeldraLogicalDisk> getAllLogicalDisks() = 0;
    virtual bool getSupportsLumenCarrierAuthentication() = 0;
    // Light the locators; negative on failure.
    virtual int identifyAllPhysicalDisks(u32 duration) = 0;
    virtual int identifyPhysicalDisks(std::vector<VeldraPhysicalDisk> disks, u32 duration) = 0;

    // Live counters.
    virtual u32 getDiskVectorCount() = 0;
    virtual u32 getControllerDataCount() = 0;
    virtual u32 getPossibleSignificantDiskVectorChangeCount() = 0;

    // What the caller stored.
    void getLastVDData(VeldraControllerData& out);
    void setLastVDData(VeldraControllerData const& data);
    std::vector<VeldraEnclosure> getLastAllEnclosures();
    void setLastAllEnclosures(std::vector<VeldraEnclosure>& enclosures);
    std::vector<VeldraPhysicalDisk> getLastAllPhysicalDisks();
    void setLastAllPhysicalDisks(std::vector<VeldraPhysicalDisk>& disks);
    void getLastLogicalDisks(std::vector<VeldraLogicalDisk>& out);
    void setLastLogicalDisks(std::vector<VeldraLogicalDisk> disks);

    // The stored snapshots without a copy, for readers that only look: the
    // caller holds the version it took, whatever is stored meanwhile.
    std::shared_ptr<VeldraControllerData const> shareLastVDData();
    std::shared_ptr<std::vector<VeldraEnclosure> const> shareLastAllEnclosures();
    std::shared_ptr<std::vector<VeldraPhysicalDisk> const> shareLastAllPhysicalDisks();
    std::shared_ptr<std::vector<VeldraLogicalDisk> const> shareLastLogicalDisks();
    // The stored disk that findPhysicalDiskInVector would pick from the
    // stored snapshot, through an index made when the snapshot was stored.
    // The stored logical disk with this serial number, without copying the rest.
    std::optional<VeldraLogicalDisk> findLastLogicalDisk(std::string const& serial);
    std::optional<VeldraPhysicalDisk> findLastPhysicalDisk(std::string const& serial,
                                                           int enclosureBoxNumber, int bay);

    u32 getConsumedDiskVectorCount() const { return _consumedDiskVector; }
    void setConsumedDiskVectorCount(u32 value) { _consumedDiskVector = value; }
    u32 getConsumedControllerDataCount() const { return _consumedControllerData; }
    void setConsumedControllerDataCount(u32 value) { _consumedControllerData = value; }
    u32 getConsumedPossibleSignificantDiskVectorChangeCount() const { return _consumedSignificant; }
    void setConsumedPossibleSignificantDiskVectorChangeCount(u32 value) {
        _consumedSignificant = value;
    }

private:
    // The worker writes snapshots under the provider's lock, but the view
    // classes read outside it; this lock guards the swap of each version.
    // A stored version is never changed, only replaced.
    std::mutex _snapshotMutex;
    std::shared_ptr<VeldraControllerData const> _lastData;
    std::shared_ptr<std::vector<VeldraEnclosure> const> _lastEnclosures;
    std::shared_ptr<std::vector<VeldraPhysicalDisk> const> _lastPhysicalDisks;
    // Serial number to the first position that has it, for _lastPhysicalDisks.
    std::shared_ptr<std::unordered_map<std::string, std::size_t> const> _lastDiskBySerial;
    std::shared_ptr<std::vector<VeldraLogicalDisk> const> _lastLogicalDisks;
    std::atomic<u32> _consumedDiskVector{0};
    std::atomic<u32> _consumedControllerData{0};
    std::atomic<u32> _consumedSignificant{0};
};
