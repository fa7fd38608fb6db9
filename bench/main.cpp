// bench/main.cpp: measures each row and its streaming limit interleaved, so that a ratio means the same on any machine.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>

#include "bench/bench.h"
#include "kvrcore.h"

namespace bench {
namespace {

std::vector<void (*)()>& families() {
    static std::vector<void (*)()> all;
    return all;
}

const Geometry kGeometries[] = {
    {{16, 16}, 0, "16x16"},       {{16, 16}, 48, "16x16+48"},     {{64, 64}, 0, "64x64"},
    {{61, 67}, 13, "61x67+13"},   {{1024, 1024}, 0, "1024x1024"}, {{4096, 4096}, 0, "4096x4096"},
};

double seconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The shortest of several timings of one way to do the row's work, in seconds per call.
class Contender {
    std::function<void(int)> run_;
    int times_ = 1;
    std::vector<double> timings_;

public:
    explicit Contender(std::function<void(int)> run) : run_(std::move(run)) {
        constexpr double longEnough = 30e-6;
        for (;;) {
            const double start = seconds();
            run_(times_);
            const double took = seconds() - start;
            if (took >= longEnough || times_ >= 1 << 20) break;
            times_ = took < longEnough / 16 ? times_ * 8 : times_ * 2;
        }
    }
    // The caches may hold another contender's data: a first call brings in this one's.
    void measure() {
        run_(1);
        const double start = seconds();
        run_(times_);
        timings_.push_back((seconds() - start) / times_);
    }
    double best() const { return *std::min_element(timings_.begin(), timings_.end()); }
    // How far the typical timing lies above the best.
    double spread() const {
        std::vector<double> t = timings_;
        std::nth_element(t.begin(), t.begin() + long(t.size()) / 2, t.end());
        return t[t.size() / 2] / best() - 1;
    }
};

struct Goal {
    double peer, limitTimes;
};
std::map<std::string, Goal> goals;  // by "function/variant/size"

void readGoals(const char* path) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        std::istringstream in(line);
        std::string row;
        Goal goal;
        if (line.empty() || line[0] == '#' || !(in >> row >> goal.peer >> goal.limitTimes)) continue;
        goals[row] = goal;
    }
}

struct Result {
    double call, limit, spread, bare;
};

Result measure(const Job& job) {
    constexpr ptrdiff_t secondLevelCache = 1 << 20;
    const Traffic& t = job.traffic;
    Contender call(job.run);
    std::vector<Contender> limits, bare;
    if (job.bare) bare.emplace_back(job.bare);
    auto contend = [&](Mover mover) {
        if (mover) limits.emplace_back([mover, &t](int times) { mover(t, times); });
    };
    const Movers loops = plainLoops(t);
    contend(loops.ordinary);
    if (t.written > secondLevelCache) contend(loops.nonTemporal);
    if (t.src != t.dst) contend(libraryCall(t));  // which skips a copy onto itself

    const double start = seconds();
    constexpr double budget = 0.15;
    for (int round = 0; round < 7 || (round < 60 && seconds() - start < budget); ++round) {
        call.measure();
        for (auto& limit : limits) limit.measure();
        for (auto& loop : bare) loop.measure();
    }
    double limit = INFINITY;
    for (const auto& l : limits) limit = std::min(limit, l.best());
    return {call.best(), limit, call.spread(), bare.empty() ? NAN : bare[0].best()};
}

void runRow(benchmark::State& state, const std::string& name, const Geometry& g, const std::function<Job(const Geometry&)>& prepare) {
    const Job job = prepare(g);
    Result r{};
    for (auto _ : state) {
        r = measure(job);
        state.SetIterationTime(r.call);
    }
    for (void* p : job.images) kvrFree(p);
    const double pixels = job.pixels > 0 ? job.pixels : double(g.size.width) * g.size.height, ratio = r.call / r.limit;
    state.counters["ns/px"] = r.call * 1e9 / pixels;
    state.counters["GB/s"] = double(job.traffic.read + job.traffic.written) / r.call * 1e-9;
    state.counters["limit ns/px"] = r.limit * 1e9 / pixels;
    state.counters["x limit"] = ratio;
    state.counters["spread %"] = 100 * r.spread;
    if (job.bare) state.counters["x bare loop"] = r.call / r.bare;
    if (const auto goal = goals.find(name); goal != goals.end()) {
        state.counters["goal"] = goal->second.limitTimes;
        state.counters["peer"] = goal->second.peer;
        state.SetLabel(ratio <= goal->second.limitTimes ? "met" : "MISSED");
    }
}

// One line per row, in the order of what a reader asks.
class Table : public benchmark::BenchmarkReporter {
    int met_ = 0, missed_ = 0;

public:
    bool ReportContext(const Context&) override {
        std::printf("%-44s %10s %8s %12s %8s %6s %6s %9s\n", "function/size", "ns/px", "GB/s", "limit ns/px", "x limit", "goal",
                    "peer", "spread");
        return true;
    }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            auto counter = [&](const char* name) {
                const auto c = run.counters.find(name);
                return c == run.counters.end() ? NAN : c->second.value;
            };
            std::string name = run.run_name.function_name;
            std::printf("%-44s %10.5f %8.2f %12.5f %8.2f ", name.c_str(), counter("ns/px"), counter("GB/s"),
                        counter("limit ns/px"), counter("x limit"));
            if (std::isnan(counter("goal"))) std::printf("%6s %6s", "", "");
            else std::printf("%6.2f %6.2f", counter("goal"), counter("peer"));
            const double spread = counter("spread %");
            std::printf(" %6.0f %%%s %s", spread, spread > 10 ? "!" : " ", run.report_label.c_str());
            if (!std::isnan(counter("x bare loop"))) std::printf("  %.2f x bare loop over rows", counter("x bare loop"));
            std::printf("\n");
            met_ += run.report_label == "met";
            missed_ += run.report_label == "MISSED";
        }
        std::fflush(stdout);
    }
    void Finalize() override { std::printf("goals: %d met, %d missed\n", met_, missed_); }
};

}  // namespace

Rows::Rows(void (*addRows)()) { families().push_back(addRows); }

uint8_t* newImage(Job& job, ptrdiff_t bytes) {
    // On a page of its own, as the system's allocator places large images.
    constexpr ptrdiff_t page = 4096;
    auto* base = static_cast<uint8_t*>(kvrMalloc(size_t(bytes + page)));
    job.images.push_back(base);
    auto* p = base + (-reinterpret_cast<intptr_t>(base) & (page - 1));
    uint64_t noise = 88172645463325252u;
    for (ptrdiff_t i = 0; i < bytes; ++i) {
        noise ^= noise << 13, noise ^= noise >> 7, noise ^= noise << 17;
        p[i] = uint8_t(noise >> 32);
    }
    return p;
}

void add(const std::string& function, const std::string& variant, std::function<Job(const Geometry&)> prepare) {
    for (const Geometry& g : kGeometries) {
        const std::string name = function + (variant.empty() ? "" : "/" + variant) + "/" + g.text;
        benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) { runRow(state, name, g, prepare); })
            ->UseManualTime()
            ->Iterations(1);
    }
}

}  // namespace bench

int main(int argc, char** argv) {
    Dl_info library;
    dladdr(reinterpret_cast<void*>(&kvriGetLibVersion), &library);
    std::printf("library: %s\n", library.dli_fname);
    benchmark::AddCustomContext("library", library.dli_fname);
    bench::readGoals(KVRI_GOALS);
    for (auto* addRows : bench::families()) addRows();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    bench::Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
}
