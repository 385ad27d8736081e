#pragma once
// The rig of the indication tests: the object manager's own broker with an
// indication sink, the recording trap sender, the shipped indication
// database and a log file.
#include "Broker.h"
#include "BrokerContext.h"
#include "CimInstance.h"
#include "MemoryIndicationSink.h"
#include "ObjectRegistry.h"
#include "QLNUtil.h"
#include "RecordingTrapSender.h"
#include "ScopedEnv.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using namespace Cimom;

class IndicationTest : public ::testing::Test {
public:
    IndicationTest() : scope(broker.registry()), context(broker.newContext("root/mwq", 0)->cmpi()) {
        broker.setIndicationSink(sink);
        QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker(broker.cmpi()));
        env.set("VELDRA_LOG", dir.file("log"));
        env.set("VELDRA_LOG_LEVEL", "info");
        env.set("VELDRA_HOSTNAME", "veldra-host");
        env.unset("VELDRA_INDICATION_DB");
        trapRecorder() = TrapRecorder{};
    }
    ~IndicationTest() override { QLN::QLNUtil::setBroker(CmpiCpp::CmpiBroker()); }

    // The one indication delivered so far.
    CimInstance delivered() const {
        auto const all = sink->delivered();
        if (all.size() != 1) {
            ADD_FAILURE() << all.size() << " indications delivered, expected 1";
            return CimInstance();
        }
        EXPECT_EQ(all[0].nameSpace, "root/mwq");
        return all[0].indication;
    }
    // The one trap passed on so far.
    RecordedTrap trap() const {
        auto const& traps = trapRecorder().traps;
        if (traps.size() != 1) {
            ADD_FAILURE() << traps.size() << " traps passed on, expected 1";
            return RecordedTrap{};
        }
        return traps[0];
    }
    std::string log() const {
        std::ifstream in(dir.file("log"));
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }

    static std::string text(CimInstance const& instance, char const* property) {
        CimValue const* value = instance.property(property);
        return value == nullptr || value->isNull() ? std::string("<absent>") : value->asString();
    }
    static long long number(CimInstance const& instance, char const* property) {
        CimValue const* value = instance.property(property);
        if (value == nullptr || value->isNull()) {
            ADD_FAILURE() << property << " is absent";
            return -999999;
        }
        return value->isSigned() ? value->asSigned() : static_cast<long long>(value->asUnsigned());
    }
    // A text array with "<null>" for elements left unset.
    static std::vector<std::string> texts(CimInstance const& instance, char const* property) {
        std::vector<std::string> out;
        CimValue const* value = instance.property(property);
        if (value == nullptr || value->isNull())
            return out;
        for (CimValue const& element : value->elements()) {
            out.push_back(element.isNull() ? std::string("<null>") : element.toText());
        }
        return out;
    }

    static std::string oidOf(varbind const& v) {
        std::string out;
        for (int i = 0; i < v.oidLength; ++i)
            out += (i ? "." : "") + std::to_string(v.oid[i]);
        return out;
    }
    // The value as the receiver would read it: "text" or a decimal number.
    static std::string valueOf(varbind const& v) {
        if (v.type == varbindText) {
            EXPECT_EQ(v.value[v.valueLength], '\0') << "text without its terminator";
            return std::string(v.value, static_cast<std::size_t>(v.valueLength));
        }
        if (v.valueLength == 2) {
            std::uint16_t n = 0;
            std::memcpy(&n, v.value, sizeof n);
            return std::to_string(n);
        }
        std::int32_t n = 0;
        std::memcpy(&n, v.value, sizeof n);
        return std::to_string(n);
    }
    // "oid=value" per varbind, the shape the tests compare.
    static std::vector<std::string> varbinds(RecordedTrap const& trap) {
        std::vector<std::string> out;
        for (varbind const& v : trap.variables)
            out.push_back(oidOf(v) + "=" + valueOf(v));
        return out;
    }

    Broker broker;
    ObjectRegistry::Scope scope;
    std::shared_ptr<MemoryIndicationSink> sink = std::make_shared<MemoryIndicationSink>();
    CMPIContext const* context;
    TempDir dir;
    ScopedEnv env;
    Logger logger{"QLNVeldra"};
};
