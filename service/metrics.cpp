#include "service/metrics.h"

#include <cstdio>

namespace vela::service {
namespace {

// The slot of a status: its own, or its class after the listed ones.
std::size_t statusSlot(int status) {
  for (std::size_t i = 0; i < Metrics::kStatuses.size(); ++i)
    if (Metrics::kStatuses[i] == status) return i;
  const int cls = status / 100;
  return Metrics::kStatuses.size() + static_cast<std::size_t>(cls >= 1 && cls <= 5 ? cls - 1 : 4);
}

std::string statusLabel(std::size_t slot) {
  if (slot < Metrics::kStatuses.size()) return std::to_string(Metrics::kStatuses[slot]);
  return std::to_string(slot - Metrics::kStatuses.size() + 1) + "xx";
}

std::string seconds(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

}  // namespace

Metrics::Metrics(std::vector<std::string> routeNames) : names_(std::move(routeNames)) {
  names_.push_back("none");
  rows_ = std::make_unique<Row[]>(names_.size());
}

void Metrics::countRequest(std::size_t route, int status, double elapsed) {
  Row& row = rows_[route < names_.size() ? route : unmatchedRoute()];
  row.byStatus[statusSlot(status)].fetch_add(1, std::memory_order_relaxed);
  std::size_t bucket = 0;
  while (bucket < kBuckets.size() && elapsed > kBuckets[bucket]) ++bucket;
  row.buckets[bucket].fetch_add(1, std::memory_order_relaxed);
  row.count.fetch_add(1, std::memory_order_relaxed);
  row.microseconds.fetch_add(static_cast<std::uint64_t>(elapsed * 1e6), std::memory_order_relaxed);
}

void Metrics::countCache(bool hit) {
  (hit ? cacheHits_ : cacheMisses_).fetch_add(1, std::memory_order_relaxed);
}

std::string Metrics::render(std::size_t cacheBytes, std::size_t cacheEntries,
                            std::int64_t openConnections) const {
  std::string out;
  out += "# HELP vela_http_requests_total Requests answered, by route and status.\n";
  out += "# TYPE vela_http_requests_total counter\n";
  for (std::size_t r = 0; r < names_.size(); ++r)
    for (std::size_t s = 0; s < rows_[r].byStatus.size(); ++s)
      if (const auto n = rows_[r].byStatus[s].load(std::memory_order_relaxed); n != 0)
        out += "vela_http_requests_total{route=\"" + names_[r] + "\",status=\"" + statusLabel(s) + "\"} " +
               std::to_string(n) + "\n";

  out += "# HELP vela_http_request_duration_seconds Time from a request read to its answer ready.\n";
  out += "# TYPE vela_http_request_duration_seconds histogram\n";
  for (std::size_t r = 0; r < names_.size(); ++r) {
    const Row& row = rows_[r];
    const std::string label = "route=\"" + names_[r] + "\"";
    std::uint64_t cumulative = 0;
    for (std::size_t b = 0; b <= kBuckets.size(); ++b) {
      cumulative += row.buckets[b].load(std::memory_order_relaxed);
      const std::string le = b < kBuckets.size() ? seconds(kBuckets[b]) : "+Inf";
      out += "vela_http_request_duration_seconds_bucket{" + label + ",le=\"" + le + "\"} " +
             std::to_string(cumulative) + "\n";
    }
    out += "vela_http_request_duration_seconds_sum{" + label + "} " +
           seconds(static_cast<double>(row.microseconds.load(std::memory_order_relaxed)) / 1e6) + "\n";
    out += "vela_http_request_duration_seconds_count{" + label + "} " +
           std::to_string(row.count.load(std::memory_order_relaxed)) + "\n";
  }

  out += "# HELP vela_audio_cache_requests_total Rendered-audio cache look-ups, by result.\n";
  out += "# TYPE vela_audio_cache_requests_total counter\n";
  out += "vela_audio_cache_requests_total{result=\"hit\"} " + std::to_string(cacheHits_.load()) + "\n";
  out += "vela_audio_cache_requests_total{result=\"miss\"} " + std::to_string(cacheMisses_.load()) + "\n";
  out += "# HELP vela_audio_cache_bytes Bytes of rendered audio held.\n# TYPE vela_audio_cache_bytes gauge\n";
  out += "vela_audio_cache_bytes " + std::to_string(cacheBytes) + "\n";
  out += "# HELP vela_audio_cache_entries Answers held.\n# TYPE vela_audio_cache_entries gauge\n";
  out += "vela_audio_cache_entries " + std::to_string(cacheEntries) + "\n";
  out += "# HELP vela_http_connections_open Connections open now.\n# TYPE vela_http_connections_open gauge\n";
  out += "vela_http_connections_open " + std::to_string(openConnections) + "\n";
  return out;
}

}  // namespace vela::service
