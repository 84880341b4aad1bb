// One autocovariance elsewhere, where it is installed, against ours on the same sizes.

#include <cstdio>
#include <memory>
#include <sstream>
#include <stdexcept>

#include "analysis/kernels/SlidingProducts.h"
#include "table/Measure.h"
#include "table/PlainLoops.h"
#include "table/Rows.h"

namespace bench {

namespace {

constexpr std::size_t kSamples = 100'000;
constexpr std::size_t kLags = 10'000;

/// What bench/peers.py prints.
std::string askPeers(const std::string& arguments) {
    struct Closer {
        void operator()(std::FILE* pipe) const { ::pclose(pipe); }
    };
    const std::string command = "/usr/bin/python3 " VORLAN_PEERS_PROGRAM " " + arguments;
    const std::unique_ptr<std::FILE, Closer> pipe(::popen(command.c_str(), "r"));
    std::string answer;
    for (int c = 0; pipe && (c = std::fgetc(pipe.get())) != EOF;) {
        answer += static_cast<char>(c);
    }
    return answer;
}

}  // namespace

void peerRows(Table& table) {
    table.section("Peers, one autocovariance, 100,000 samples, 10,000 lags");
    const std::string ours = "peers/ours";
    measure(ours, [](benchmark::State& state) {
        const plain::Values x = plain::record(kSamples, 1);
        for (auto _ : state) {
            benchmark::DoNotOptimize(vorlan::slidingProducts(x, x, kLags, vorlan::noProgress()));
        }
    });
    std::istringstream installed(askPeers(""));
    for (std::string peer; std::getline(installed, peer);) {
        const std::string name = "peers/" + peer;
        const auto run = [=](benchmark::State& state) {
            for (auto _ : state) {
                double seconds = 0.0;
                if (!(std::istringstream(askPeers(peer)) >> seconds)) {
                    throw std::runtime_error("The peer failed");
                }
                state.SetIterationTime(seconds);
            }
        };
        measure(name, run)->UseManualTime()->Iterations(1)->Repetitions(3);
        table.ratio(peer, name, ours, "x ours");
    }
}

}  // namespace bench
