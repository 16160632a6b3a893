// Counters for /metrics, in Prometheus' text format: requests by route and
// status, a latency histogram per route, and the audio cache's hits. Counting
// takes no lock: every counter is an atomic in a table sized at start.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace vela::service {

class Metrics {
 public:
  // One row per route name; requests that match no route count under "none".
  explicit Metrics(std::vector<std::string> routeNames);

  void countRequest(std::size_t route, int status, double seconds);
  void countCache(bool hit);
  std::size_t routeCount() const { return names_.size(); }
  std::size_t unmatchedRoute() const { return names_.size() - 1; }

  // The whole exposition; the gauges are read by the caller.
  std::string render(std::size_t cacheBytes, std::size_t cacheEntries, std::int64_t openConnections) const;

  // Upper bounds of the latency buckets, in seconds (+Inf is implicit).
  static constexpr std::array<double, 12> kBuckets = {0.0001, 0.00025, 0.0005, 0.001, 0.0025, 0.005,
                                                      0.01,   0.025,   0.05,   0.1,   0.5,    2.5};
  // The statuses counted one by one; any other counts under its class ("5xx").
  static constexpr std::array<int, 13> kStatuses = {200, 304, 400, 404, 405, 408, 413,
                                                    414, 422, 431, 500, 501, 503};

 private:
  struct Row {
    std::array<std::atomic<std::uint64_t>, kStatuses.size() + 5> byStatus{};  // + 1xx..5xx
    std::array<std::atomic<std::uint64_t>, kBuckets.size() + 1> buckets{};
    std::atomic<std::uint64_t> count{0};
    std::atomic<std::uint64_t> microseconds{0};
  };
  std::vector<std::string> names_;
  std::unique_ptr<Row[]> rows_;
  std::atomic<std::uint64_t> cacheHits_{0};
  std::atomic<std::uint64_t> cacheMisses_{0};
};

}  // namespace vela::service
