#include "QtCase.h"

#include "Times.h"
#include "quillmere/IUserCtrl.h"

namespace quillmere::bench {

void withQtWindow(Stage& stage, const std::function<void(frmPersonWh& window)>& work) {
    stage.clerk.work = [&](ui::Form& form) {
        settle();
        work(dynamic_cast<frmPersonWh&>(form));
    };
    IUserCtrl host;
    host.setConnection(stage.from.connection);
    host.setOperationType(4);
    host.setZZtype(1);
    // Beyond the first, who have the basic sets alone.
    host.setPersonID(stage.from.ask("select A00 from A01 where A0199=60").front());
    (void)host.ShowPersonWh();
}

void measure(benchmark::State& state, const std::function<void()>& work, int parts) {
    std::vector<double> times;
    for ([[maybe_unused]] auto _ : state) {
        times.push_back(microsecondsOf(work) / parts);
        state.SetIterationTime(times.back() / 1e6);
    }
    state.counters["ours"] = medianOf(times);
}

} // namespace quillmere::bench
