#include "register/RegisterList.h"

#include "platform/data/Connection.h"

#include <QDate>

namespace quillmere::host {

namespace {

/// What is asked of the database for a kind. The columns selected are the identity, the type, then those
/// of the list in their order.
struct Source {
    const char* table;
    /// The running number; a higher one is newer.
    const char* number;
    std::vector<const char*> searched;
    const char* selected;
    const char* joined;
    std::vector<Column> columns;
};

const Source persons{
    .table = "A01",
    .number = "A0199",
    .searched = {"A0101", "A0103"},
    .selected = "R.A00, R.A0136, R.A0101, DM_XB.dmcpt, R.A0106, R.A0103, R.A0114, DM_ZZLX.dmcpt, R.A0137",
    .joined = " left join DM_XB on DM_XB.dmcod=R.A0104 left join DM_ZZLX on DM_ZZLX.dmcod=R.A0136",
    .columns = {{"姓名", 96},
                {"性别", 56},
                {"出生日期", 100},
                {"身份证号", 172},
                {"工作单位", 220},
                {"资助类型", 176},
                {"年度", 60},
                {"项目名称", 250},
                {"项目阶段", 80}},
};

const Source units{
    .table = "B01",
    .number = "B0199",
    .searched = {"B0101", "B0104", "A00"},
    .selected = "R.A00, '06', R.B0101, DM_DWLB.dmcpt, DM_DWXZ.dmcpt, R.B0104, DM_ZGBM.dmcpt, R.B0124",
    .joined = " left join DM_DWLB on DM_DWLB.dmcod=R.B0102 left join DM_DWXZ on DM_DWXZ.dmcod=R.B0103"
              " left join DM_ZGBM on DM_ZGBM.dmcod=R.B0104",
    .columns = {{"单位名称", 240},
                {"单位类别", 130},
                {"单位性质", 130},
                {"局级单位代码", 110},
                {"主管部门", 150},
                {"申报年度", 80},
                {"项目名称", 270},
                {"项目阶段", 80}},
};

/// Name and stage of the project, the last two columns of either kind.
constexpr auto project =
    ", P01.P0109, iif(P01.P0123='03','已结题',iif(P01.P0123='02','在研',iif(P01.P0123='01','申报','')))";

const Source& sourceOf(Kind kind) { return kind == Kind::Persons ? persons : units; }

/// A literal that finds the text anywhere, its quotes doubled and its wildcards taken as they are.
QString pattern(QString text) {
    for (const char* special : {"!", "%", "_"}) {
        const auto character = QLatin1String(special);
        text.replace(character, u'!' + QString(character));
    }
    return QStringLiteral("'%") + text.replace(u'\'', QStringLiteral("''")) + QStringLiteral("%' escape '!'");
}

QString condition(const Source& source, const QString& search) {
    const QString wanted = search.trimmed();
    if (wanted.isEmpty()) return {};
    QStringList alternatives;
    for (const char* column : source.searched)
        alternatives << QLatin1String(column) + QStringLiteral(" like ") + pattern(wanted);
    return QStringLiteral(" where (") + alternatives.join(u" or ") + u')';
}

QString textOf(const data::Value& value) { return QString::fromStdString(value.toTextOrEmpty()); }

/// "01" to "07", or "1" to "7"; 1 for anything else, as the component takes it.
std::int16_t typeOf(const data::Value& value) {
    const int type = textOf(value).toInt();
    return static_cast<std::int16_t>(type >= 1 && type <= 7 ? type : 1);
}

} // namespace

const std::vector<Column>& columnsOf(Kind kind) { return sourceOf(kind).columns; }

std::vector<Entry> RegisterList::page(Kind kind, const QString& search, int offset, int limit) const {
    const Source& source = sourceOf(kind);
    const QString order = QStringLiteral(" order by %1 desc").arg(QLatin1String(source.number));
    // The page is cut out before anything is joined to it, so that a late one costs no more.
    const QString rowsOfPage = QStringLiteral("select * from ") + QLatin1String(source.table) +
                               condition(source, search) + order +
                               QStringLiteral(" limit %1 offset %2").arg(limit).arg(offset);
    const QString statement = QStringLiteral("select ") + QLatin1String(source.selected) +
                              QString::fromUtf8(project) + QStringLiteral(" from (") + rowsOfPage +
                              QStringLiteral(") R left join P01 on P01.A00=R.A00") +
                              QLatin1String(source.joined) + order;
    const data::RowSet rows = connection_->query(statement.toStdString());
    std::vector<Entry> entries;
    entries.reserve(rows.rowCount());
    for (std::size_t i = 0; i < rows.rowCount(); ++i) {
        const std::vector<data::Value>& row = rows.row(i);
        Entry entry{row[0].toTextOrEmpty(), typeOf(row[1]), {}};
        for (std::size_t column = 2; column < row.size(); ++column)
            entry.cells << textOf(row[column]);
        entries.push_back(std::move(entry));
    }
    return entries;
}

int RegisterList::count(Kind kind, const QString& search) const {
    const Source& source = sourceOf(kind);
    const QString statement =
        QStringLiteral("select count(*) from ") + QLatin1String(source.table) + condition(source, search);
    return connection_->query(statement.toStdString()).at(0, 0).toLong();
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
