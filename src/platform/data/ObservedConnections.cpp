#include "platform/data/ObservedConnections.h"

#include "platform/Error.h"

#include <utility>

namespace quillmere::data {

RecordingConnection::RecordingConnection(std::shared_ptr<Connection> target, Listener listener)
    : target_(std::move(target)), listener_(std::move(listener)) {}

void RecordingConnection::record(std::string_view sql) {
    if (keep_) statements_.emplace_back(sql);
    if (listener_) listener_(sql);
}

RowSet RecordingConnection::query(std::string_view sql) {
    record(sql);
    return target_->query(sql);
}

void RecordingConnection::execute(std::string_view sql) {
    record(sql);
    target_->execute(sql);
}

FailingConnection::FailingConnection(std::shared_ptr<Connection> target) : target_(std::move(target)) {}

void FailingConnection::failAfter(int count, std::string description) {
    failOff();
    countdown_ = count;
    description_ = std::move(description);
}

void FailingConnection::failOn(std::string part, std::string description) {
    failOff();
    part_ = std::move(part);
    description_ = std::move(description);
}

void FailingConnection::failOff() {
    countdown_ = 0;
    part_.reset();
}

void FailingConnection::check(std::string_view sql) {
    const bool due = countdown_ > 0 && --countdown_ == 0;
    const bool chosen = part_ && sql.find(*part_) != std::string_view::npos;
    if (!due && !chosen) return;
    failOff();
    throw Error(Failure::StatementFailed, description_, "Quillmere");
}

RowSet FailingConnection::query(std::string_view sql) {
    check(sql);
    return target_->query(sql);
}

void FailingConnection::execute(std::string_view sql) {
    check(sql);
    target_->execute(sql);
}

} // namespace quillmere::data
