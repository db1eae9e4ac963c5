#include "register/SampleMaker.h"

#include "sample/OutputFile.h"

#include <QMetaObject>

#include <algorithm>
#include <array>
#include <exception>
#include <string_view>

namespace quillmere::host {

namespace {

/// Told by what its statements begin with.
struct Part {
    std::string_view beginning;
    const char* name;
};

constexpr std::array parts{
    Part{"create table", "正在建立表"},
    Part{"insert into s_", "正在写入目录"},
    Part{"insert into DM_", "正在写入代码表"},
    Part{"insert into A", "正在写入人员"},
    Part{"insert into B", "正在写入单位"},
    Part{"insert into P", "正在写入项目"},
    Part{"create index", "正在建立索引"},
    Part{"create unique index", "正在建立索引"},
    Part{"commit", "正在保存文件"},
};

/// Of the kind that may pass through taking back what was begun.
struct CalledOff : std::exception {};

} // namespace

SampleMaker::~SampleMaker() { cancel(); }

void SampleMaker::start(const QString& path, int persons, int units) {
    cancel();
    cancelled_ = false;
    receiver_ = std::make_unique<QObject>();
    thread_ = std::thread([this, path, persons, units] { make(path, persons, units); });
}

void SampleMaker::cancel() {
    cancelled_ = true;
    if (thread_.joinable()) thread_.join();
    receiver_.reset();
}

void SampleMaker::make(const QString& path, int persons, int units) {
    sample::Options options;
    options.persons = persons;
    options.units = units;
    const Part* current = nullptr;
    const auto listen = [&](std::string_view statement) {
        if (cancelled_) throw CalledOff{};
        const auto* part = std::ranges::find_if(
            parts, [&](const Part& each) { return statement.starts_with(each.beginning); });
        if (part == parts.end() || part == current) return;
        current = part;
        post([this, name = QString::fromUtf8(part->name)] { listener_.working(name); });
    };
    try {
        sample::buildFile(path.toStdString(), options, true, listen);
        post([this, path] { listener_.made(path); });
    } catch (const CalledOff&) {
        // Whoever called it off expects no news.
        return;
    } catch (const std::exception& failure) {
        post([this, description = QString::fromUtf8(failure.what())] { listener_.failed(description); });
    }
}

void SampleMaker::post(std::function<void()> news) {
    QMetaObject::invokeMethod(receiver_.get(), std::move(news), Qt::QueuedConnection);
}

} // namespace quillmere::host
