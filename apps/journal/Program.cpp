#include "journal/Program.h"

#include "address/RegisterAddress.h"
#include "journal/Arguments.h"
#include "journal/Listing.h"
#include "journal/Restorer.h"
#include "platform/Error.h"

#include <quillmere/Journal.h>
#ifdef QUILLMERE_WITH_POSTGRESQL
#include <quillmere/PostgreSql.h>
#endif
#include <quillmere/Sqlite.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <ostream>

namespace quillmere::recovery {

namespace {

std::shared_ptr<data::Connection> openRegister(const RegisterAddress& address) {
    if (!address.onServer) return openSqlite(address.way);
#ifdef QUILLMERE_WITH_POSTGRESQL
    return openPostgreSql(address.way);
#else
    throw Error(Failure::Unspecified, "本程序没有带 PostgreSQL 的支持", "quillmere-journal");
#endif
}

/// One run behind its command line.
class Run {
public:
    Run(const Arguments& arguments, std::ostream& out, std::ostream& complaints)
        : arguments_(arguments), out_(out), complaints_(complaints) {}

    Status run() {
        try {
            journal_ = journal::readJournal(arguments_.file);
        } catch (const Error& failure) {
            return complain(arguments_.file, failure.description());
        }
        for (const std::string& note : journal_.notes)
            complaints_ << "quillmere-journal：" << note << '\n';
        if (!findEntries()) return Status::Failed;
        if (arguments_.command == Command::List) writeList(out_, journal_, arguments_);
        if (arguments_.command == Command::Show) writeEntry(out_, *entries_.front());
        return arguments_.command == Command::Restore ? restore() : Status::Done;
    }

private:
    Status complain(const std::string& about, const std::string& reason) {
        complaints_ << "quillmere-journal：" << about << "：" << reason << '\n';
        return Status::Failed;
    }

    bool findEntries() {
        for (const std::uint64_t number : arguments_.entries) {
            const journal::KeptEntry* kept = journal_.find(number);
            if (kept == nullptr) {
                complain(arguments_.file, "没有第 " + std::to_string(number) + " 条记录");
                return false;
            }
            entries_.push_back(kept);
        }
        // What was done last is undone first.
        std::ranges::sort(entries_, std::greater(), &journal::KeptEntry::number);
        entries_.erase(std::unique(entries_.begin(), entries_.end()), entries_.end());
        return true;
    }

    std::shared_ptr<data::Connection> connect() {
        auto connection = openRegister(readAddress(arguments_.database));
        if (arguments_.dryRun) return connection;
        JournalOptions options{.file = arguments_.file, .who = "quillmere-journal"};
        // When the file is to be begun anew is the host's to say.
        options.limit = std::numeric_limits<std::uint64_t>::max();
        options.complain = [this](const std::string& words) { complain(arguments_.file, words); };
        return journaled(std::move(connection), std::move(options));
    }

    Status restore() {
        std::shared_ptr<data::Connection> connection;
        try {
            connection = connect();
        } catch (const Error& failure) {
            return complain(shownAddress(arguments_.database), failure.description());
        }
        Restorer restorer(*connection, {arguments_.dryRun, arguments_.anyway}, out_);
        bool possible = true;
        for (const journal::KeptEntry* kept : entries_) {
            const std::string objection = restorer.objection(*kept);
            if (objection.empty()) continue;
            possible = false;
            complain("第 " + std::to_string(kept->number) + " 条不能恢复", objection);
        }
        if (!possible) return complain(shownAddress(arguments_.database), "什么也没有改动");
        for (const journal::KeptEntry* kept : entries_)
            restorer.restore(*kept);
        return tellCount(restorer.count());
    }

    Status tellCount(const RestoreCount& count) {
        out_ << (arguments_.dryRun ? "试运行，什么也没有改动：可以恢复 " : "恢复了 ") << count.restored
             << " 行，本来就在的 " << count.present << " 行，没有恢复的 " << count.refused << " 行。\n";
        return count.refused == 0 ? Status::Done : Status::Failed;
    }

    const Arguments& arguments_;
    std::ostream& out_;
    std::ostream& complaints_;
    journal::Journal journal_;
    std::vector<const journal::KeptEntry*> entries_;
};

} // namespace

Status runProgram(const std::vector<std::string>& words, std::ostream& out, std::ostream& complaints) {
    const Arguments arguments = parseArguments(words);
    if (!arguments.complaint.empty()) {
        complaints << "quillmere-journal：" << arguments.complaint << "\n\n" << helpText();
        return Status::Misused;
    }
    if (arguments.help) {
        out << helpText();
        return Status::Done;
    }
    return Run(arguments, out, complaints).run();
}

} // namespace quillmere::recovery
