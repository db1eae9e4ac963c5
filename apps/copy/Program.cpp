#include "copy/Program.h"

#include "address/RegisterAddress.h"
#include "copy/Arguments.h"
#include "copy/Progress.h"
#include "copy/Report.h"
#include "copy/Source.h"
#include "copy/Targets.h"

#include "platform/Error.h"

#include <filesystem>
#include <ostream>
#include <system_error>

namespace quillmere::copy {

namespace {

namespace fs = std::filesystem;

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

/// The database of a server is told apart when it has been reached.
bool isSameFile(const RegisterAddress& source, const RegisterAddress& target) {
    if (source.onServer || target.onServer) return false;
    std::error_code missing;
    return fs::equivalent(pathOf(source.way), pathOf(target.way), missing);
}

Status copy(const Arguments& arguments, const Streams& streams) {
    const auto complain = [&](const std::string& name, const std::string& reason) {
        streams.complaints << "quillmere-copy：" << shownAddress(name) << "：" << reason << '\n';
        return Status::Failed;
    };
    const RegisterAddress from = readAddress(arguments.source);
    const RegisterAddress to = readAddress(arguments.target);
    if (isSameFile(from, to)) return complain(arguments.target, "原登记库和目标是同一个文件");
    Source source;
    try {
        source = openSource(from);
    } catch (const Error& failure) {
        return complain(arguments.source, failure.description());
    }
    try {
        Summary summary;
        {
            Progress progress(streams.terminal);
            summary = copyTo(to, *source.store, progress);
        }
        writeSummary(streams.out, summary);
        return Status::Copied;
    } catch (const Error& failure) {
        return complain(arguments.target, "没有复制。" + failure.description());
    }
}

} // namespace

Status runProgram(const std::vector<std::string>& words, const Streams& streams) {
    const Arguments arguments = parseArguments(words);
    if (!arguments.complaint.empty()) {
        streams.complaints << "quillmere-copy：" << arguments.complaint << "\n\n" << helpText();
        return Status::Misused;
    }
    if (arguments.help) {
        streams.out << helpText();
        return Status::Copied;
    }
    return copy(arguments, streams);
}

} // namespace quillmere::copy
