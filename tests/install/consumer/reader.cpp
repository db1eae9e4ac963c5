// Reads a register through a connection of its own that counts: reader REGISTER

#include <quillmere/Connection.h>
#include <quillmere/Error.h>
#include <quillmere/IUserCtrl.h>
#include <quillmere/Sqlite.h>
#include <quillmere/Version.h>

#include <iostream>
#include <memory>
#include <string>

namespace {

namespace data = quillmere::data;

class CountingConnection final : public data::Connection {
public:
    explicit CountingConnection(std::shared_ptr<data::Connection> target) : target_(std::move(target)) {}

    data::RowSet query(std::string_view sql) override {
        ++count_;
        return target_->query(sql);
    }
    void execute(std::string_view sql) override {
        ++count_;
        target_->execute(sql);
    }
    [[nodiscard]] bool isOpen() const override { return target_->isOpen(); }
    void close() override { target_->close(); }

    [[nodiscard]] int count() const { return count_; }

private:
    std::shared_ptr<data::Connection> target_;
    int count_ = 0;
};

int numberOfFailure(const std::string& path) {
    try {
        (void)quillmere::openSqlite(path);
    } catch (const quillmere::Error& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    const auto connection = std::make_shared<CountingConnection>(quillmere::openSqlite(argv[1]));
    const data::RowSet people = connection->query("select count(*) as n from A01");
    data::RowSet own({"n"});
    own.addRow({data::Value(people.at(0, "N").toLong())});

    quillmere::IUserCtrl entry;
    entry.setConnection(connection);
    entry.setPersonID("p");

    std::cout << "compiled against " << QUILLMERE_VERSION << ", runs " << quillmere::version() << '\n'
              << "persons " << own.at(0, 0).toText() << " in " << connection->count() << " statement\n"
              << "missing file " << numberOfFailure("no such register.db") << '\n'
              << "entry " << entry.personID() << (entry.Connection() == connection ? " counted" : " lost")
              << '\n';
    return 0;
}
