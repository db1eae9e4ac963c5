#include "Comparison.h"

#include "Times.h"

#include <vector>

namespace quillmere::bench {

namespace {

/// One side of the comparison.
class Side {
public:
    explicit Side(std::function<void(const Turn&)> run) : run_(std::move(run)) {}

    void warmUp(const Work& work, const Turn& turn) { (void)once(work, turn); }
    double measure(const Work& work, const Turn& turn) {
        times_.push_back(once(work, turn));
        return times_.back();
    }
    [[nodiscard]] double median() const { return medianOf(times_); }

private:
    double once(const Work& work, const Turn& turn) {
        const double taken = microsecondsOf([&] { run_(turn); });
        work.after();
        return taken;
    }

    std::function<void(const Turn&)> run_;
    std::vector<double> times_;
};

} // namespace

void compare(benchmark::State& state, BareEngine& engine, const Work& work) {
    Side system([](const Turn& turn) { turn.system(); });
    Side bare([&](const Turn& turn) { engine.run(turn.statements); });
    // The first run of each turn fills the caches of both.
    for (const Turn& turn : work.turns) {
        work.before();
        system.warmUp(work, turn);
        bare.warmUp(work, turn);
    }
    std::size_t round = 0;
    for ([[maybe_unused]] auto _ : state) {
        const Turn& turn = work.turns[round % work.turns.size()];
        // By the lap too, else an even number of turns would give each turn one order.
        const bool bareFirst = (round / work.turns.size() + round) % 2 == 1;
        ++round;
        work.before();
        if (bareFirst) (void)bare.measure(work, turn);
        state.SetIterationTime(system.measure(work, turn) / 1e6);
        if (!bareFirst) (void)bare.measure(work, turn);
    }
    state.counters["ours"] = system.median();
    state.counters["bare"] = bare.median();
    state.counters["ratio"] = system.median() / bare.median();
    state.counters["statements"] = static_cast<double>(work.turns.front().statements.size());
}

} // namespace quillmere::bench
