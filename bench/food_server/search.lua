-- Drives a food server with wrk. The argument names a file of terms, one a line; they go out as they
-- stand, blanks included. Each thread begins at another place of the file. A second argument is how
-- long a connection rests between two searches on the average, in milliseconds.
local count = 0

function setup(thread)
  thread:set("place", count * 7919)
  count = count + 1
end

function init(arguments)
  rest = tonumber(arguments[2])
  math.randomseed(place)
  if not rest then delay = nil end
  requests = {}
  for term in io.lines(arguments[1]) do
    requests[#requests + 1] = "GET /modules/kvzoek.php?item=" .. term ..
                              " HTTP/1.1\r\nHost: localhost\r\n\r\n"
  end
end

function delay()
  return math.random(0, 2 * rest)
end

function request()
  place = place + 1
  return requests[place % #requests + 1]
end

-- One line for the program that started this.
function done(summary, latency, _)
  local errors = summary.errors
  io.write(string.format(
      "figures requests=%d microseconds=%d bytes=%d p50=%d p99=%d most=%d refused=%d broken=%d late=%d\n",
      summary.requests, summary.duration, summary.bytes, latency:percentile(50),
      latency:percentile(99), latency.max, errors.status,
      errors.connect + errors.read + errors.write, errors.timeout))
end
