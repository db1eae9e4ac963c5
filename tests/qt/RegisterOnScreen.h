#pragma once

#include "qt/RealPerson.h"
#include "qt/ScratchSettings.h"

#include "adapters/sqlite/SqliteConnection.h"
#include "register/MainWindow.h"
#include "sample/OutputFile.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>

#include <gtest/gtest.h>

namespace quillmere::host {

/// The main window on a sample of a few people, and in place of the maintenance window whatever the test
/// says.
class RegisterOnScreen : public testing::Test {
protected:
    RegisterOnScreen() {
        QFile::copy(sampleFile(), path);
        connection = connect();
    }

    [[nodiscard]] std::shared_ptr<data::Connection> connect() const {
        return sqlite::open({.path = path.toStdString()});
    }

    void open(bool readOnly = false) {
        openWith([this] { return connect(); }, readOnly);
    }

    void openWith(const SearchThread::OpenConnection& openForSearch, bool readOnly = false) {
        window = std::make_unique<MainWindow>(RegisterList(connection),
                                              HostSettings{.file = QStringLiteral("r.db"),
                                                           .photoPath = QStringLiteral("/photos"),
                                                           .unitCode = QStringLiteral("0104"),
                                                           .openForSearch = openForSearch,
                                                           .readOnly = readOnly,
                                                           .memory = Memory(path)},
                                              [this](const MaintenanceRun& run) {
                                                  runs.push_back(run);
                                                  return maintenance(run);
                                              });
        window->show();
        (void)test::windowNamed("register");
    }

    template <class T>
    [[nodiscard]] T& child(const char* name) const {
        return *window->findChild<T*>(QLatin1String(name));
    }
    [[nodiscard]] QTableView& table() const { return child<QTableView>("list"); }
    [[nodiscard]] int rows() const { return table().model()->rowCount(); }
    [[nodiscard]] QString name(int row) const { return table().model()->index(row, 0).data().toString(); }
    [[nodiscard]] QString selectedName() const {
        const QModelIndexList chosen = table().selectionModel()->selectedRows();
        return chosen.size() == 1 ? chosen.front().data().toString() : QString();
    }
    [[nodiscard]] QString message() const { return child<QLabel>("message").text(); }
    [[nodiscard]] QString outcome() const { return child<QLabel>("message").property("outcome").toString(); }
    [[nodiscard]] std::string cell(const std::string& sql) const {
        return connection->query(sql).at(0, std::size_t{0}).toText();
    }
    void addPerson(const std::string& id, const std::string& named, const std::string& type = "01") const {
        connection->execute("insert into A01 (A00,A0199,A0101,A0136) values('" + id +
                            "',(select max(A0199)+1 from A01),'" + named + "','" + type + "')");
    }
    void setCollective() const { RegisterList(connection).setNewRecordType(collectiveType); }
    void chooseType(const QString& named) const {
        for (QAction* action : child<QToolButton>("newRecord").menu()->actions()) {
            if (action->text().startsWith(named)) return action->trigger();
        }
        FAIL() << named.toStdString();
    }

    [[nodiscard]] QString countText() const { return child<QLabel>("count").text(); }
    /// Waits for a search to end, and tells the names that it found.
    [[nodiscard]] QStringList found() const {
        EXPECT_TRUE(test::waitUntil([this] { return countText().startsWith(QStringLiteral("找到")); }))
            << countText().toStdString();
        QStringList names;
        for (int row = 0; row < rows(); ++row)
            names << name(row);
        return names;
    }
    void searchFor(std::string_view text) const {
        test::pressKey(Qt::Key_F, Qt::ControlModifier);
        test::typeKeys(text);
    }

    /// Made once; each test works on a copy.
    [[nodiscard]] static QString sampleFile() {
        static const QTemporaryDir folder;
        static const QString file = folder.filePath(QStringLiteral("sample.db"));
        if (!QFile::exists(file)) {
            sample::Options options;
            options.persons = 6;
            options.units = 3;
            sample::buildFile(file.toStdString(), options, false);
        }
        return file;
    }

    test::ScratchSettings settings;
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("register.db"));
    test::Screen screen;
    std::shared_ptr<data::Connection> connection;
    std::function<bool(const MaintenanceRun&)> maintenance = [](const MaintenanceRun&) { return false; };
    std::vector<MaintenanceRun> runs;
    std::unique_ptr<MainWindow> window;
};

} // namespace quillmere::host
