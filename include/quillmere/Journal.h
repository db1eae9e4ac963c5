#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace quillmere {

namespace data {
class Connection;
}

/// How a journal is kept. What it consists of is a part of the interface and stays as it is.
struct JournalOptions {
    /// The file, in UTF-8; several connections and programs may write the same one. It is made with rights
    /// for its owner alone. One that is there already keeps its rights.
    std::string file = {};
    /// Bytes. A file that would grow beyond it is renamed to `<file>.1`, in place of the one before, and
    /// begun anew.
    std::uint64_t limit = std::uint64_t{64} << 20U;
    /// Who works; kept with each entry as it stands here.
    std::string who = {};
    /// Tables whose rows are worth nothing; what is written to them is not kept. Without regard to case.
    std::vector<std::string> leftOut = {"S_GUID"};
    /// Hears in words, in Chinese, that something could not be kept; it may be empty. The statement runs all
    /// the same. What it throws is swallowed.
    std::function<void(const std::string& words)> complain = {};
};

/// Puts a journal around a connection: before a statement changes or deletes rows, they are read through
/// `connection` and kept in a file, so that `quillmere-journal` can list them and bring them back. Every
/// statement goes on to `connection` as it is, in the same order, and what it gives or raises comes back
/// unchanged, whatever becomes of the journal. The file is opened with the first statement that writes.
[[nodiscard]] std::shared_ptr<data::Connection> journaled(std::shared_ptr<data::Connection> connection,
                                                          JournalOptions options);

} // namespace quillmere
