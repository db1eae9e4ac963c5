#include "Parts.h"
#include "Transcript.h"

namespace quillmere::component::test {

namespace {

Answer operation(IDispatch& object, std::string_view name) {
    return invokeName(object, name, DISPATCH_METHOD);
}

Answer operation(IDispatch& object, std::string_view name, std::string_view argument) {
    const Variant text = Variant::of(argument);
    return invokeName(object, name, DISPATCH_METHOD, {&text.get()});
}

/// All rows of a statement, a line for each field.
void listRows(IDispatch& connection, std::string_view sql) {
    const Answer answer = operation(connection, "Execute", sql);
    line(sql, answer);
    if (answer.code != S_OK) return;
    const auto recordset = toObject(answer.value.get());
    while (get(*recordset.get(), "State").value.get().lVal == 1 &&
           get(*recordset.get(), "EOF").value.get().boolVal == VARIANT_FALSE) {
        const auto fields = toObject(get(*recordset.get(), "Fields").value.get());
        const std::int32_t count = toInteger32(get(*fields.get(), "Count").value.get());
        for (std::int32_t at = 0; at < count; ++at) {
            const Variant index = Variant::of(at);
            const auto field =
                toObject(invokeName(*fields.get(), "Item", DISPATCH_PROPERTYGET, {&index.get()}).value.get());
            line("  " + toText(get(*field.get(), "Name").value.get()), get(*field.get(), "Value"));
        }
        (void)operation(*recordset.get(), "MoveNext");
    }
}

void tryStatements(IDispatch& connection) {
    listRows(connection, "select mid('合肥市',2,1) as 中,len('合肥市') as 长,iif(1=2,'是','否') as 选,"
                         "format('2026-11-21','yyyy.MM') as 月,null as 空");
    listRows(connection, "create table Trial (Name text, Amount integer)");
    listRows(connection, "insert into Trial values ('张三',3)");
    listRows(connection, "insert into Trial values ('李四',4)");
    listRows(connection, "select * from Trial order by Amount desc");
    listRows(connection, "drop table Trial");
    listRows(connection, "select * from Trial");
}

void tellWhetherKept(IDispatch& entry, const ComPtr<IDispatch>& connection) {
    const Answer found = get(entry, "Connection");
    line("Connection", found.value.get().pdispVal == connection.get() ? "the same object" : "another object");
}

/// A second entry object takes the first one's connection by reference, and gives the same object back.
void tryReference(IDispatch& entry, const ComPtr<IDispatch>& connection) {
    HRESULT code = S_OK;
    const auto other = create("Quillmere.IUserCtrl", code);
    const Variant reference = Variant::of(connection);
    line("Connection by value", putValue(*other.get(), "Connection", reference));
    line("Connection by reference", putValue(*other.get(), "Connection", reference, DISPATCH_PROPERTYPUTREF));
    tellWhetherKept(*other.get(), connection);
    line("Connection = the entry object",
         putValue(*other.get(), "Connection", Variant::of(&entry), DISPATCH_PROPERTYPUTREF));
    line("Connection = text",
         putValue(*other.get(), "Connection", Variant::of("a"), DISPATCH_PROPERTYPUTREF));
    tellWhetherKept(*other.get(), connection);
    line("Connection = no object",
         putValue(*other.get(), "Connection", Variant::of(static_cast<IDispatch*>(nullptr)),
                  DISPATCH_PROPERTYPUTREF));
    tellWhetherKept(*other.get(), connection);
}

} // namespace

void tryConnection(IDispatch& entry, const std::string& registerFile) {
    heading("connection");
    const auto connection = toObject(get(entry, "Connection").value.get());
    line("State", get(*connection.get(), "State"));
    line("Execute", operation(*connection.get(), "Execute", "select 1"));
    line("Open a missing file", operation(*connection.get(), "Open", "没有.db"));
    line("Open a server", operation(*connection.get(), "Open", "postgresql:"));
    line("Open", operation(*connection.get(), "Open", registerFile));
    line("State", get(*connection.get(), "State"));
    tryStatements(*connection.get());
    tryReference(entry, connection);
}

void tryWindow(IDispatch& entry) {
    heading("window");
    line("ShowPersonWh", operation(entry, "ShowPersonWh"));
    const auto connection = toObject(get(entry, "Connection").value.get());
    line("Close", operation(*connection.get(), "Close"));
    line("ShowPersonWh", operation(entry, "ShowPersonWh"));
}

} // namespace quillmere::component::test
