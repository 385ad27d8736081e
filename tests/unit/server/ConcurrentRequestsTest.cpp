#include "CimOperationHandler.h"
#include "ClassRepository.h"
#include "ServerLog.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace Cimom;

// Request threads share the repository and the handler's table without
// locks; that holds only while both stay read-only after start-up. Run under
// the thread sanitizer, this catches any later lazy caching or shared state.
TEST(ConcurrentRequests, ManyThreadsGetTheSameAnswers) {
    ServerLog::setLevel(ServerLog::Level::Error); // the refused requests would flood the output
    ClassRepository repo;
    repo.loadText(R"(
        #pragma namespace("root/mwq")
        class Base_A : CIM_ManagedElement { [Key] string Id; uint32 Ping([IN] uint32 Times); };
        class Sub_B : Base_A { string Own; };
    )",
                  "c.mof", "root/mwq");
    repo.resolve();
    CimOperationHandler handler(repo, CimOperationHandler::Settings{32});

    auto request = [](std::string const& method, std::string const& params) {
        CimHttpExchange e;
        e.cimOperation = "MethodCall";
        e.cimMethod = method;
        e.cimObject = "root%2Fmwq";
        e.body =
            "<?xml version=\"1.0\"?><CIM CIMVERSION=\"2.0\" DTDVERSION=\"2.0\"><MESSAGE ID=\"1\" "
            "PROTOCOLVERSION=\"1.0\"><SIMPLEREQ><IMETHODCALL NAME=\"" +
            method +
            "\"><LOCALNAMESPACEPATH><NAMESPACE NAME=\"root\"/><NAMESPACE NAME=\"mwq\"/>"
            "</LOCALNAMESPACEPATH>" +
            params + "</IMETHODCALL></SIMPLEREQ></MESSAGE></CIM>";
        return e;
    };
    std::vector<CimHttpExchange> kinds{
        request("GetClass",
                "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"Sub_B\"/></IPARAMVALUE>"
                "<IPARAMVALUE NAME=\"LocalOnly\"><VALUE>FALSE</VALUE></IPARAMVALUE>"),
        request("EnumerateClassNames",
                "<IPARAMVALUE NAME=\"DeepInheritance\"><VALUE>TRUE</VALUE></IPARAMVALUE>"),
        request("EnumerateClasses", ""),
        request("GetClass",
                "<IPARAMVALUE NAME=\"ClassName\"><CLASSNAME NAME=\"None\"/></IPARAMVALUE>"),
        request("GetClass", "<broken"),
    };
    std::vector<std::string> expected;
    for (auto e : kinds) {
        handler.handle(e);
        expected.push_back(std::to_string(e.status) + e.responseBody);
    }

    std::atomic<int> mismatches{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 200; ++i) {
                size_t k = static_cast<size_t>(t + i) % kinds.size();
                CimHttpExchange e = kinds[k];
                handler.handle(e);
                if (std::to_string(e.status) + e.responseBody != expected[k])
                    ++mismatches;
            }
        });
    }
    for (auto& th : threads)
        th.join();
    EXPECT_EQ(mismatches.load(), 0);
}
