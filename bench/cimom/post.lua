-- wrk script: POSTs one CIM-XML request (file in BODY_FILE) with the CIM
-- headers from CIM_METHOD, and counts answers carrying a CIM ERROR.
local f = assert(io.open(os.getenv("BODY_FILE"), "rb"))
wrk.method = "POST"
wrk.path = "/cimom"
wrk.body = f:read("*a")
f:close()
wrk.headers["Content-Type"] = 'application/xml; charset="utf-8"'
wrk.headers["CIMProtocolVersion"] = "1.0"
wrk.headers["CIMOperation"] = "MethodCall"
wrk.headers["CIMMethod"] = os.getenv("CIM_METHOD")
wrk.headers["CIMObject"] = "root%2Fmwq"

local threads = {}

function setup(thread)
   table.insert(threads, thread)
end

function init(args)
   cimErrors = 0
end

function response(status, headers, body)
   if status ~= 200 or string.find(body, "<ERROR ", 1, true) then
      cimErrors = cimErrors + 1
   end
end

function done(summary, latency, requests)
   local total = 0
   for _, t in ipairs(threads) do
      total = total + t:get("cimErrors")
   end
   io.write(string.format("requests: %d  failed (HTTP or CIM error): %d  socket errors: %d\n",
      summary.requests, total,
      summary.errors.connect + summary.errors.read + summary.errors.write + summary.errors.timeout))
   io.write(string.format("latency p50 %.2f ms  p99 %.2f ms  max %.2f ms\n",
      latency:percentile(50) / 1000, latency:percentile(99) / 1000, latency.max / 1000))
end
