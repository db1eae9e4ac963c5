#include "panels/frmC04Statements.h"

#include "metadata/Globals.h"
#include "platform/convert/Convert.h"
#include "platform/convert/Format.h"
#include "platform/data/Connection.h"
#include "platform/text/Text.h"

namespace quillmere {

namespace {

std::string stored(const std::string& text, StoredForm form) {
    switch (form) {
    case StoredForm::Trimmed:
        return text::trim(text);
    case StoredForm::Month:
        return convert::format(text, "yyyy-MM");
    case StoredForm::AsItStands:
        break;
    }
    return text;
}

} // namespace

std::string insertStatement(const RowFrameRow& frame, const std::string& key, const RowTexts& texts,
                            std::int16_t sequence) {
    std::string sql = std::string(frame.insertHead) + key;
    for (const RowColumnRow& column : frame.columns)
        sql += "','" + stored(texts(column.input), column.inserted);
    return sql + "'," + std::to_string(sequence) + ")";
}

std::string updateStatement(const RowFrameRow& frame, const std::string& key, const RowTexts& texts,
                            const std::string& sequence) {
    std::string assignments;
    for (const RowColumnRow& column : frame.columns) {
        if (!assignments.empty()) assignments += ",";
        assignments += std::string(column.column) + "='" + stored(texts(column.input), column.updated) + "'";
    }
    return std::string(frame.updateHead) + assignments + " where A00='" + key + "' and " +
           std::string(frame.sequence) + "=" + sequence;
}

std::int16_t nextSequence(const RowFrameRow& frame) {
    const data::RowSet greatest = gConn().query(frame.greatest);
    return convert::toInteger16(static_cast<double>(greatest.at(0, std::size_t{0}).toLong()) + 1);
}

} // namespace quillmere
