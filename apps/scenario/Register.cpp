#include "scenario/Register.h"

#include "scenario/Engine.h"
#include "scenario/Stop.h"
#include "scenario/Transcript.h"

#include "sample/SampleRegister.h"

namespace quillmere::scenario {

void Register::make(bool people) {
    auto engine = source_.openFresh();
    sample::Options options;
    options.people = people;
    options.engine = source_.dialect();
    sample::build(*engine, options);
    engine_ = std::move(engine);
    failing_ = std::make_shared<data::FailingConnection>(engine_);
    recorder_ = std::make_shared<data::RecordingConnection>(failing_, [this](std::string_view sql) {
        if (tracing_) out_.line("SQL |" + std::string(sql) + "|");
    });
    recorder_->keepStatements(false);
}

void Register::require() const {
    if (!engine_) throw Stop{"there is no database yet"};
}

data::Connection& Register::direct() const {
    require();
    return *engine_;
}

data::FailingConnection& Register::failing() const {
    require();
    return *failing_;
}

} // namespace quillmere::scenario
