#include "register/RegisterSearch.h"

#include "platform/data/Connection.h"
#include "register/NameInitials.h"
#include "register/RegisterSource.h"

#include <QStringList>

#include <algorithm>
#include <string>

namespace quillmere::host {

namespace {

/// Records looked through in one statement: some tens of milliseconds at most, so that a newer search
/// never waits long.
constexpr RecordKey sliceSize = 20000;
constexpr int everyPermille = 1000;

/// Behind every character that a name may go on with.
const QString lastCharacter = QString::fromUcs4(U"\U0010FFFF", 1);

QString literal(QString text) { return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\''; }

/// A literal that finds the text anywhere, its wildcards taken as they are.
QString pattern(QString text) {
    for (const char* special : {"!", "%", "_"}) {
        const auto character = QLatin1String(special);
        text.replace(character, u'!' + QString(character));
    }
    return literal(u'%' + text + u'%') + QStringLiteral(" escape '!'");
}

/// The parts of the statements for one query.
class Statements {
public:
    explicit Statements(const Query& query)
        : query_(query)
        , source_(sourceOf(query.kind))
        , table_(QLatin1String(source_.table))
        , name_(QLatin1String(source_.name)) {}

    [[nodiscard]] std::string span() const {
        return QStringLiteral("select coalesce(min(rowid),1), coalesce(max(rowid),0) from %1")
            .arg(table_)
            .toStdString();
    }

    [[nodiscard]] std::string beginning() const {
        return (QStringLiteral("select rowid from ") + table_ + QStringLiteral(" where ") + nameBegins() +
                filters() + QStringLiteral(" order by ") + name_)
            .toStdString();
    }

    /// Every record whose project is at the stage, by way of the project: the index of stages leads to them,
    /// and no record of another stage is read.
    [[nodiscard]] std::string ofStage() const {
        return (QStringLiteral("select distinct %1.rowid from P01 cross join %1 where %1.A00=P01.A00")
                    .arg(table_) +
                QStringLiteral(" and P01.P0123=") + literal(query_.stage) + ofType() +
                QStringLiteral(" order by %1.rowid desc").arg(table_))
            .toStdString();
    }

    /// The records from `first` to `last` that hold the text elsewhere. With `initials` every other record
    /// comes too; name and whether the text was found are then told of each.
    [[nodiscard]] std::string slice(RecordKey first, RecordKey last, bool initials) const {
        QString columns = QStringLiteral("rowid");
        QString condition = QStringLiteral("rowid between %1 and %2").arg(first).arg(last);
        if (!query_.wanted().isEmpty()) {
            condition += QStringLiteral(" and not coalesce(") + nameBegins() + QStringLiteral(",false)");
            if (initials)
                columns += QStringLiteral(", %1, coalesce(%2,false)").arg(name_, holdsText());
            else
                condition += QStringLiteral(" and ") + holdsText();
        }
        return (QStringLiteral("select ") + columns + QStringLiteral(" from ") + table_ +
                QStringLiteral(" where ") + condition + filters() + QStringLiteral(" order by rowid desc"))
            .toStdString();
    }

private:
    /// The index of names serves this one.
    [[nodiscard]] QString nameBegins() const {
        const QString text = query_.wanted();
        return QStringLiteral("(") + name_ + QStringLiteral(">=") + literal(text) + QStringLiteral(" and ") +
               name_ + u'<' + literal(text + lastCharacter) + u')';
    }

    [[nodiscard]] QString holdsText() const {
        QStringList alternatives;
        for (const char* column : source_.searched)
            alternatives << QLatin1String(column) + QStringLiteral(" like ") + pattern(query_.wanted());
        return u'(' + alternatives.join(QStringLiteral(" or ")) + u')';
    }

    [[nodiscard]] QString ofType() const {
        if (query_.kind != Kind::Persons || query_.type == 0) return {};
        return QStringLiteral(" and A0136 in ('0%1','%1')").arg(query_.type);
    }

    [[nodiscard]] QString filters() const {
        QString text = ofType();
        if (!query_.stage.isEmpty()) {
            text += QStringLiteral(" and exists (select 1 from P01 where P01.A00=%1.A00 and P01.P0123=")
                        .arg(table_) +
                    literal(query_.stage) + u')';
        }
        return text;
    }

    const Query& query_;
    const Source& source_;
    QString table_;
    QString name_;
};

RecordKey keyAt(const data::RowSet& rows, std::size_t row, std::size_t column) {
    return std::get<std::int64_t>(rows.at(row, column).raw());
}

std::vector<RecordKey> keysOf(const data::RowSet& rows) {
    std::vector<RecordKey> keys;
    keys.reserve(rows.rowCount());
    for (std::size_t i = 0; i < rows.rowCount(); ++i)
        keys.push_back(keyAt(rows, i, 0));
    return keys;
}

std::vector<RecordKey> keysByInitials(const data::RowSet& rows, const QString& letters) {
    std::vector<RecordKey> keys;
    for (std::size_t i = 0; i < rows.rowCount(); ++i) {
        const bool found = rows.at(i, std::size_t{2}).toBoolean();
        if (found || matchesInitials(QString::fromStdString(rows.at(i, 1).toTextOrEmpty()), letters))
            keys.push_back(keyAt(rows, i, 0));
    }
    return keys;
}

} // namespace

bool search(data::Connection& connection, const Query& query, const HearStep& hear) {
    const Statements statements(query);
    const QString text = query.wanted();
    if (text.isEmpty() && !query.stage.isEmpty())
        return hear({keysOf(connection.query(statements.ofStage())), everyPermille});
    if (!text.isEmpty() && !hear({keysOf(connection.query(statements.beginning())), 0})) return false;

    const data::RowSet span = connection.query(statements.span());
    const RecordKey oldest = keyAt(span, 0, 0);
    const RecordKey newest = keyAt(span, 0, 1);
    const bool initials = areInitials(text);
    for (RecordKey last = newest; last >= oldest; last -= sliceSize) {
        const RecordKey first = std::max(oldest, last - sliceSize + 1);
        const data::RowSet rows = connection.query(statements.slice(first, last, initials));
        const RecordKey permille = (newest - first + 1) * everyPermille / (newest - oldest + 1);
        if (!hear({initials ? keysByInitials(rows, text) : keysOf(rows), static_cast<int>(permille)}))
            return false;
    }
    return true;
}

} // namespace quillmere::host
