#include "copy/Targets.h"

#include "address/RegisterAddress.h"
#include "copy/SqliteStore.h"
#ifdef QUILLMERE_WITH_POSTGRESQL
#include "copy/postgresql/ServerTarget.h"
#else
#include "platform/Error.h"
#endif

#include "sample/OutputFile.h"

namespace quillmere::copy {

namespace {

Summary copyToAddress(const std::string& way, Store& source, Progress& progress) {
#ifdef QUILLMERE_WITH_POSTGRESQL
    return copyToServer(way, source, progress);
#else
    (void)way, (void)source, (void)progress;
    throw Error(Failure::Unspecified, "本程序没有带 PostgreSQL 的支持", "quillmere-copy");
#endif
}

} // namespace

Summary copyToFile(const std::string& path, Store& source, Progress& progress) {
    Summary summary;
    sample::fillFile(path, false, [&](const std::shared_ptr<data::Connection>& connection) {
        SqliteStore target(*connection);
        summary = copyRegister(source, target, progress);
        // The source may be deleted next. With this on, the write behind it brings all of the file to the
        // disk.
        connection->execute("pragma synchronous=full");
        connection->execute("pragma user_version=0");
    });
    return summary;
}

Summary copyTo(const RegisterAddress& target, Store& source, Progress& progress) {
    return target.onServer ? copyToAddress(target.way, source, progress)
                           : copyToFile(target.way, source, progress);
}

} // namespace quillmere::copy
