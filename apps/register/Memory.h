#pragma once

#include "register/RegisterQuery.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <string>
#include <vector>

class QSettings;

namespace quillmere::host {

/// A record that was opened lately.
struct RecentRecord {
    Kind kind = Kind::Persons;
    std::string id;
    QString name;
    /// Tells records of the same name apart: a person's employer.
    QString remark;
};

/// What the host keeps from one time to the next, in the settings of the person who works with it: place
/// and size of the window, widths of the columns, and for each register the records opened lately.
class Memory {
public:
    static constexpr int mostRecent = 10;

    /// Remembers nothing beyond its own life.
    Memory();
    /// For the register in that file.
    explicit Memory(const QString& registerPath);

    [[nodiscard]] QByteArray geometry() const;
    void setGeometry(const QByteArray& geometry);

    /// One width for each column, empty when none are kept.
    [[nodiscard]] QList<int> columnWidths(Kind kind) const;
    void setColumnWidths(Kind kind, const QList<int>& widths);

    /// The one opened last comes first.
    [[nodiscard]] const std::vector<RecentRecord>& recent() const { return recent_; }
    void addRecent(const RecentRecord& record);
    void removeRecent(Kind kind, const std::string& id);

    /// The register opened last, by whatever path it was given; empty when there is none.
    [[nodiscard]] static QString lastRegister();
    static void setLastRegister(const QString& path);

private:
    void readRecent();
    void writeRecent();

    std::shared_ptr<QSettings> settings_;
    QString group_;
    std::vector<RecentRecord> recent_;
};

} // namespace quillmere::host
