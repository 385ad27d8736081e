#pragma once
// One record of the indication database: the fixed texts and codes of one
// event of one indication class. The fields after the identity are what an
// operator reads in the alert; the ones marked "kept" are carried for other
// consumers of the database and are not put on the indication.
#include <cstdint>
#include <string>

namespace QLN {

struct IndDBRec {
    std::string eventName;     // kept: a short name for the event
    int perceivedSeverity = 0; // kept: CIM PerceivedSeverity of the event
    std::string providerName;
    std::string eventID;
    int indicationNumber = 0; // the event's number across all classes
    std::string description;
    std::string summary;
    int eventCategory = 0;
    int trending = 0;           // kept: CIM Trending
    std::string otherAlertType; // kept: CIM OtherAlertType
    std::uint16_t alertType = 0;
    std::string owningEntity; // kept: CIM OwningEntity
    std::string messageID;    // kept: CIM MessageID
    std::uint16_t probableCause = 0;
    std::string probableCauseDescription;
    std::string recommendedActions;
};

} // namespace QLN
