#include "adapters/journal/JournalFile.h"

#include "platform/Error.h"
#include "platform/files/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <system_error>
#include <thread>

namespace quillmere::journal {

namespace {

[[noreturn]] void raise(const std::string& path, int code) {
    throw Error(Failure::PathAccess, path + "：" + std::generic_category().message(code), "Journal");
}

constexpr mode_t ownerAlone = S_IRUSR | S_IWUSR;
constexpr mode_t allRights = S_IRWXU | S_IRWXG | S_IRWXO;

/// A new name in a folder is there after a power failure when the folder was written through.
void syncFolderOf(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const int descriptor = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    ::close(descriptor);
}

std::string readAt(const std::string& path, int file, std::uint64_t begin, std::uint64_t end) {
    std::string bytes(static_cast<std::size_t>(end - begin), '\0');
    std::size_t read = 0;
    while (read < bytes.size()) {
        const auto place = static_cast<off_t>(begin + read);
        const ssize_t count = pread(file, bytes.data() + read, bytes.size() - read, place);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) raise(path, errno);
        // Another program has cut a piece of a record off its end.
        if (count == 0) break;
        read += static_cast<std::size_t>(count);
    }
    bytes.resize(read);
    return bytes;
}

struct stat statusOf(const std::string& path, int file) {
    struct stat status {};
    if (fstat(file, &status) != 0) raise(path, errno);
    return status;
}

/// The number of the youngest entry in a file; 0 for none.
std::uint64_t youngestIn(const std::string& path, int file) {
    const auto end = static_cast<std::uint64_t>(statusOf(path, file).st_size);
    // As a rule the last record is short, and every record tells the number.
    constexpr std::uint64_t shortEnd = 4096;
    if (end > shortEnd) {
        const std::string bytes = readAt(path, file, end - shortEnd, end);
        const Records read = readRecords(bytes);
        if (!read.records.empty() && !read.tornEnd) return read.records.back().number;
    }
    const std::string bytes = readAt(path, file, 0, end);
    std::uint64_t youngest = 0;
    for (const Record& record : readRecords(bytes).records)
        youngest = std::max(youngest, record.number);
    return youngest;
}

/// Whom an administrator let into the old file is let into the new one.
void takeRights(int file, const std::string& older) {
    struct stat status {};
    if (lstat(older.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return;
    // The group first: with another one the rights would be somebody else's.
    if (fchown(file, static_cast<uid_t>(-1), status.st_gid) == 0) fchmod(file, status.st_mode & allRights);
}

} // namespace

/// Keeps other programs from writing, on the file that bears the name.
class JournalFile::Lock {
public:
    explicit Lock(JournalFile& file) : file_(file) { take(); }
    ~Lock() {
        if (file_.file_ >= 0) flock(file_.file_, LOCK_UN);
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    /// Takes the lock on the file that bears the name now.
    void take() {
        // Whoever waited may hold a file that was renamed meanwhile.
        constexpr int patience = 100;
        for (int turn = 0; turn < patience; ++turn) {
            if (file_.file_ < 0) file_.open();
            wait();
            if (file_.isCurrent()) return;
            file_.close();
        }
        raise(file_.path_, ESTALE);
    }

private:
    /// A program that holds the lock and stands still must not make clerks wait for ever.
    void wait() const {
        constexpr std::chrono::milliseconds patience{1000};
        constexpr std::chrono::microseconds pause{500};
        const auto end = std::chrono::steady_clock::now() + patience;
        while (flock(file_.file_, LOCK_EX | LOCK_NB) != 0) {
            if (errno == EINTR) continue;
            if (errno != EWOULDBLOCK || std::chrono::steady_clock::now() > end) raise(file_.path_, errno);
            std::this_thread::sleep_for(pause);
        }
    }

    JournalFile& file_;
};

std::string olderFile(const std::string& path) { return path + ".1"; }

JournalFile::JournalFile(const std::string& path, std::uint64_t limit) : path_(path), limit_(limit) {
    // A program may change its folder later.
    std::error_code ignored;
    const std::filesystem::path whole = std::filesystem::absolute(path, ignored);
    if (!path.empty() && !ignored) path_ = whole.string();
}

JournalFile::~JournalFile() { close(); }

void JournalFile::open() {
    known_ = false;
    const bool isNew = !files::exists(path_);
    constexpr int flags = O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    file_ = ::open(path_.c_str(), flags, ownerAlone);
    if (file_ < 0) raise(path_, errno);
    if (!S_ISREG(statusOf(path_, file_).st_mode)) {
        close();
        raise(path_, EINVAL);
    }
    if (!isNew) return;
    takeRights(file_, olderFile(path_));
    syncFolderOf(path_);
}

void JournalFile::close() {
    if (file_ >= 0) ::close(file_);
    file_ = -1;
}

bool JournalFile::isCurrent() const {
    struct stat named {};
    struct stat opened {};
    return stat(path_.c_str(), &named) == 0 && fstat(file_, &opened) == 0 && named.st_ino == opened.st_ino &&
           named.st_dev == opened.st_dev;
}

std::uint64_t JournalFile::size() const { return static_cast<std::uint64_t>(statusOf(path_, file_).st_size); }

std::uint64_t JournalFile::youngest() {
    const std::uint64_t end = size();
    if (known_ && knownSize_ == end) return youngest_;
    youngest_ = youngestIn(path_, file_);
    if (youngest_ == 0) {
        const std::string older = olderFile(path_);
        const int file = ::open(older.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
        if (file >= 0) {
            youngest_ = youngestIn(older, file);
            ::close(file);
        }
    }
    knownSize_ = end;
    known_ = true;
    return youngest_;
}

void JournalFile::makeRoom(Lock& lock, std::size_t size) {
    while (this->size() != 0 && this->size() + size > limit_) {
        if (std::rename(path_.c_str(), olderFile(path_).c_str()) != 0) raise(path_, errno);
        close();
        lock.take();
    }
}

void JournalFile::write(std::string_view bytes) {
    const std::uint64_t before = size();
    ssize_t count = 0;
    do {
        count = ::write(file_, bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count == static_cast<ssize_t>(bytes.size())) return;
    const int code = count < 0 ? errno : ENOSPC;
    // A piece of a record is of no use; where it cannot be taken back, readers pass over it.
    if (count > 0 && ftruncate(file_, static_cast<off_t>(before)) != 0) known_ = false;
    raise(path_, code);
}

void JournalFile::add(Record::Kind kind, std::uint64_t number, std::string_view text) {
    const std::string bytes = bytesOf(kind, number, text);
    write(bytes);
    youngest_ = number;
    knownSize_ += bytes.size();
}

std::uint64_t JournalFile::addEntry(std::string_view text, Sync sync) {
    std::uint64_t number = 0;
    {
        Lock lock(*this);
        makeRoom(lock, text.size());
        number = youngest() + 1;
        add(Record::Kind::Entry, number, text);
    }
    // Without the lock, so that nobody waits for this disk.
    if (sync == Sync::Wait && fdatasync(file_) != 0) raise(path_, errno);
    return number;
}

void JournalFile::addOutcome(std::string_view text) {
    const Lock lock(*this);
    add(Record::Kind::Outcome, youngest(), text);
}

} // namespace quillmere::journal
