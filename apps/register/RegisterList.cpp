#include "register/RegisterList.h"

#include "platform/data/Connection.h"
#include "register/RegisterSource.h"

#include <QDate>

#include <unordered_map>

namespace quillmere::host {

namespace {

/// Name and stage of the project, the last two columns of either kind.
constexpr auto project =
    ", P01.P0109, iif(P01.P0123='03','已结题',iif(P01.P0123='02','在研',iif(P01.P0123='01','申报','')))";

QString textOf(const data::Value& value) { return QString::fromStdString(value.toTextOrEmpty()); }

/// "01" to "07", or "1" to "7"; 1 for anything else, as the component takes it.
std::int16_t typeOf(const data::Value& value) {
    const int type = textOf(value).toInt();
    return static_cast<std::int16_t>(type >= 1 && type <= 7 ? type : 1);
}

/// A key, then the entry of each of the rows.
std::string statementFor(Kind kind, const QString& key, const QString& rows, const QString& order) {
    const Source& source = sourceOf(kind);
    return (QStringLiteral("select ") + key + QStringLiteral(", ") + QLatin1String(source.selected) +
            QString::fromUtf8(project) + QStringLiteral(" from (") + rows +
            QStringLiteral(") R left join P01 on P01.A00=R.A00") + QLatin1String(source.joined) + order)
        .toStdString();
}

QString newestFirst(Kind kind) {
    return QStringLiteral(" order by %1 desc").arg(QLatin1String(sourceOf(kind).number));
}

QString tableOf(Kind kind) { return QLatin1String(sourceOf(kind).table); }

/// The entry out of a row behind its key.
Entry entryFrom(const std::vector<data::Value>& row) {
    constexpr std::size_t firstCell = 3;
    Entry entry{row[1].toTextOrEmpty(), typeOf(row[2]), {}};
    for (std::size_t column = firstCell; column < row.size(); ++column)
        entry.cells << textOf(row[column]);
    return entry;
}

} // namespace

std::vector<Entry> RegisterList::page(Kind kind, int offset, int limit) const {
    // The page is cut out before anything is joined to it, so that a late one costs no more.
    const QString order = newestFirst(kind);
    const QString rows = QStringLiteral("select * from ") + tableOf(kind) + order +
                         QStringLiteral(" limit %1 offset %2").arg(limit).arg(offset);
    const data::RowSet found = connection_->query(statementFor(kind, QStringLiteral("0"), rows, order));
    std::vector<Entry> result;
    result.reserve(found.rowCount());
    for (std::size_t i = 0; i < found.rowCount(); ++i)
        result.push_back(entryFrom(found.row(i)));
    return result;
}

int RegisterList::count(Kind kind) const {
    const QString statement = QStringLiteral("select count(*) from ") + tableOf(kind);
    return connection_->query(statement.toStdString()).at(0, 0).toLong();
}

std::vector<Entry> RegisterList::entries(Kind kind, std::span<const RecordKey> keys) const {
    if (keys.empty()) return {};
    QStringList numbers;
    for (const RecordKey key : keys)
        numbers << QString::number(key);
    const QString rows = QStringLiteral("select rowid as RecordKey, * from ") + tableOf(kind) +
                         QStringLiteral(" where rowid in (") + numbers.join(u',') + u')';
    const data::RowSet found =
        connection_->query(statementFor(kind, QStringLiteral("R.RecordKey"), rows, {}));
    std::unordered_map<RecordKey, std::size_t> places;
    for (std::size_t i = 0; i < found.rowCount(); ++i)
        places.emplace(std::get<std::int64_t>(found.at(i, std::size_t{0}).raw()), i);

    std::vector<Entry> result;
    for (const RecordKey key : keys) {
        if (const auto place = places.find(key); place != places.end())
            result.push_back(entryFrom(found.row(place->second)));
    }
    return result;
}

std::optional<Entry> RegisterList::find(Kind kind, std::string_view id) const {
    QString literal = QString::fromUtf8(id.data(), static_cast<qsizetype>(id.size()));
    literal.replace(u'\'', QStringLiteral("''"));
    const QString rows =
        QStringLiteral("select * from ") + tableOf(kind) + QStringLiteral(" where A00='") + literal + u'\'';
    const data::RowSet found = connection_->query(statementFor(kind, QStringLiteral("0"), rows, {}));
    if (found.empty()) return std::nullopt;
    return entryFrom(found.row(0));
}

std::vector<SponsorshipType> RegisterList::sponsorshipTypes() const {
    const data::RowSet rows = connection_->query("select dmcod, dmcpt from DM_ZZLX order by dmcod");
    std::vector<SponsorshipType> types;
    for (std::size_t i = 0; i < rows.rowCount(); ++i)
        types.push_back({typeOf(rows.at(i, 0)), textOf(rows.at(i, 1))});
    return types;
}

std::int16_t RegisterList::newRecordType() const {
    const data::RowSet rows = connection_->query("select ZZType from ZZStyle");
    return rows.empty() ? std::int16_t{1} : typeOf(rows.at(0, 0));
}

void RegisterList::setNewRecordType(std::int16_t type) const {
    const std::string number = std::to_string(type);
    if (connection_->query("select ZZType from ZZStyle").empty()) {
        const std::string year = std::to_string(QDate::currentDate().year());
        connection_->execute("insert into ZZStyle (ZZType,ZZYear) values('" + number + "','" + year + "')");
    } else {
        connection_->execute("update ZZStyle set ZZType='" + number + "'");
    }
}

} // namespace quillmere::host
