#include "Calling.h"
#include "ServerFolder.h"

#include "component/connection/ConnectionObject.h"
#include "component/connection/ForeignConnection.h"
#include "platform/Error.h"
#include "support/FailureNumber.h"

#include <gtest/gtest.h>

// The connection that a host opens by name, and a host's own that is driven by name.

namespace quillmere::component::test {
namespace {

constexpr SCODE objectClosed = static_cast<SCODE>(0x800A0E78);
constexpr SCODE objectOpen = static_cast<SCODE>(0x800A0E79);
constexpr SCODE invalidConnection = static_cast<SCODE>(0x800A0E7D);
constexpr SCODE itemNotFound = static_cast<SCODE>(0x800A0CC1);
constexpr SCODE noCurrentRecord = static_cast<SCODE>(0x800A0BCD);

class ConnectionByName : public testing::Test {
protected:
    ConnectionByName() {
        const auto engine = makeLeastRegister(file);
        engine->execute("create table T (name text, number integer, amount real, flag boolean)");
        engine->execute("insert into T values ('甲', 1, 2.5, true)");
        engine->execute("insert into T values (null, 5000000000, null, false)");
    }

    void open() { call(connection, "Open", list(Variant::of(std::string_view(file)))); }
    [[nodiscard]] ComPtr<IDispatch> execute(std::string_view sql) {
        return objectOf(call(connection, "Execute", list(Variant::of(sql))));
    }
    /// The scode of a call that fails.
    [[nodiscard]] SCODE failing(IDispatch& target, std::string_view name,
                                const std::vector<const VARIANT*>& arguments = {}) {
        const Answer answer = invokeName(target, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments);
        EXPECT_EQ(answer.code, DISP_E_EXCEPTION);
        EXPECT_FALSE(answer.description.empty());
        return answer.scode;
    }
    [[nodiscard]] static std::int32_t state(IDispatch& target) {
        return toInteger32(call(target, "State").get());
    }

    DataHome folder;
    std::string file = (folder.path() / "register.db").string();
    ComPtr<ConnectionObject> object = makeObject<ConnectionObject>();
    IDispatch& connection = *object.get();
};

TEST_F(ConnectionByName, IsClosedUntilItIsOpened) {
    EXPECT_EQ(state(connection), 0);
    EXPECT_EQ(failing(connection, "Close"), objectClosed);
    const Variant sql = Variant::of("select 1 as one");
    EXPECT_EQ(failing(connection, "Execute", {&sql.get()}), invalidConnection);
    open();
    EXPECT_EQ(state(connection), 1);
    call(connection, "Close");
    EXPECT_EQ(state(connection), 0);
    EXPECT_EQ(failing(connection, "Execute", {&sql.get()}), invalidConnection);
}

TEST_F(ConnectionByName, OpensWhatWasWrittenBeforeWhenOpenIsGivenNothing) {
    put(connection, "ConnectionString", Variant::of(std::string_view(file)));
    EXPECT_EQ(toText(call(connection, "connectionstring").get()), file);
    call(connection, "Open");
    EXPECT_EQ(state(connection), 1);
}

TEST_F(ConnectionByName, IsNotOpenedTwiceNorChangedWhileOpen) {
    open();
    const Variant name = Variant::of(std::string_view(file));
    EXPECT_EQ(failing(connection, "Open", {&name.get()}), objectOpen);
    EXPECT_EQ(putValue(connection, "ConnectionString", name).scode, objectOpen);
}

TEST_F(ConnectionByName, AMissingFileIsToldInChinese) {
    const Variant name = Variant::of("/nowhere/register.db");
    const Answer answer = invokeName(connection, "Open", DISPATCH_METHOD, {&name.get()});
    EXPECT_EQ(answer.scode, static_cast<SCODE>(0x800A0035));
    EXPECT_EQ(answer.source, "SQLite");
    EXPECT_EQ(answer.description, "找不到数据库文件：/nowhere/register.db");
    EXPECT_EQ(state(connection), 0);
}

TEST_F(ConnectionByName, GivesRowsByNameAndByPosition) {
    open();
    const auto rows = execute("select name, number, amount, flag from T order by number");
    EXPECT_EQ(toInteger32(call(*rows.get(), "RecordCount").get()), 2);
    const auto fields = objectOf(call(*rows.get(), "Fields"));
    EXPECT_EQ(toInteger32(call(*fields.get(), "Count").get()), 4);
    const auto value = [&](Variant index) {
        const auto field = objectOf(call(*rows.get(), "Fields", list(std::move(index))));
        return call(*field.get(), "Value");
    };
    EXPECT_EQ(toText(value(Variant::of("NAME")).get()), "甲");
    EXPECT_EQ(value(Variant::of(std::int16_t{1})).type(), VT_I4);
    EXPECT_EQ(value(Variant::of(2.0)).get().dblVal, 2.5);
    EXPECT_EQ(value(Variant::of("flag")).type(), VT_BOOL);
    EXPECT_FALSE(toBoolean(call(*rows.get(), "EOF").get()));
    call(*rows.get(), "MoveNext");
    EXPECT_EQ(value(Variant::of("name")).type(), VT_NULL);
    EXPECT_EQ(value(Variant::of("number")).get().dblVal, 5e9) << "too wide for 32 bits";
    call(*rows.get(), "MoveNext");
    EXPECT_TRUE(toBoolean(call(*rows.get(), "EOF").get()));
    const auto first = objectOf(call(*fields.get(), "Item", list(Variant::of(std::int32_t{0}))));
    EXPECT_EQ(toText(call(*first.get(), "Name").get()), "name");
    EXPECT_EQ(failing(*first.get(), "Value"), noCurrentRecord);
    EXPECT_EQ(failing(*rows.get(), "MoveNext"), noCurrentRecord);
}

TEST_F(ConnectionByName, AColumnThatIsNotThereIsNotFound) {
    open();
    const auto rows = execute("select name from T");
    const Variant unknown = Variant::of("number");
    const Variant behind = Variant::of(std::int32_t{1});
    const Variant before = Variant::of(std::int32_t{-1});
    EXPECT_EQ(failing(*rows.get(), "Fields", {&unknown.get()}), itemNotFound);
    EXPECT_EQ(failing(*rows.get(), "Fields", {&behind.get()}), itemNotFound);
    EXPECT_EQ(failing(*rows.get(), "Fields", {&before.get()}), itemNotFound);
}

TEST_F(ConnectionByName, AStatementWithoutRowsGivesAClosedRecordset) {
    open();
    const auto rows = execute("insert into T values ('乙', 2, 0, false)");
    EXPECT_EQ(state(*rows.get()), 0);
    EXPECT_EQ(failing(*rows.get(), "EOF"), objectClosed);
    const auto count = execute("select count(*) as n from T");
    EXPECT_EQ(
        toText(call(*objectOf(call(*count.get(), "Fields", list(Variant::of("n")))).get(), "Value").get()),
        "3");
}

TEST_F(ConnectionByName, AFailingStatementTellsNumberSourceAndDescription) {
    open();
    const Variant sql = Variant::of("select * from nowhere");
    const Answer answer = invokeName(connection, "Execute", DISPATCH_METHOD, {&sql.get()});
    EXPECT_EQ(answer.scode, static_cast<SCODE>(-2147217900));
    EXPECT_EQ(answer.source, "SQLite");
    EXPECT_NE(answer.description.find("nowhere"), std::string::npos);
}

TEST_F(ConnectionByName, FieldsOutliveTheVariableOfTheirRecordset) {
    open();
    ComPtr<IDispatch> field;
    {
        const auto rows = execute("select name from T where number = 1");
        field = objectOf(call(*rows.get(), "Fields", list(Variant::of("name"))));
    }
    EXPECT_EQ(toText(call(*field.get(), "Value").get()), "甲");
}

/// A host's own object: all that it does goes to the object within, under another identity.
class Stranger final : public IDispatch {
public:
    explicit Stranger(ComPtr<IDispatch> within) : within_(std::move(within)) {}
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool known = IsEqualGUID(iid, IID_IUnknown) || IsEqualGUID(iid, IID_IDispatch);
        *object = known ? this : nullptr;
        if (known) AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        return within_->GetTypeInfoCount(count);
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return within_->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return within_->GetIDsOfNames(reserved, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override {
        return within_->Invoke(id, reserved, locale, flags, parameters, result, exception, badArgument);
    }

private:
    ~Stranger() = default;

    ULONG references_ = 1;
    ComPtr<IDispatch> within_;
};

class ForeignConnection : public ConnectionByName {
protected:
    ComPtr<Stranger> stranger = makeObject<Stranger>(ComPtr<IDispatch>(object.get()));
    std::shared_ptr<data::Connection> foreign = connectionBehind(ComPtr<IDispatch>(stranger.get()));
};

TEST_F(ForeignConnection, IsDrivenByName) {
    EXPECT_NE(foreign, object->relay());
    EXPECT_FALSE(foreign->isOpen());
    open();
    EXPECT_TRUE(foreign->isOpen());
    const data::RowSet rows = foreign->query("select name, number, amount, flag from T order by number");
    ASSERT_EQ(rows.rowCount(), 2U);
    EXPECT_EQ(rows.columns(), (std::vector<std::string>{"name", "number", "amount", "flag"}));
    EXPECT_EQ(rows.row(0), (std::vector<data::Value>{"甲", 1, 2.5, true}));
    EXPECT_EQ(rows.row(1), (std::vector<data::Value>{data::Null(), 5e9, data::Null(), false}));
    foreign->execute("delete from T");
    EXPECT_TRUE(foreign->query("select * from T").empty());
    foreign->close();
    EXPECT_FALSE(foreign->isOpen());
}

TEST_F(ForeignConnection, ItsFailuresKeepNumberSourceAndDescription) {
    EXPECT_EQ(failureOf([&] { foreign->execute("delete from T"); }), number(Failure::InvalidConnection));
    open();
    try {
        (void)foreign->query("select * from nowhere");
        FAIL() << "no failure";
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), static_cast<int>(Failure::StatementFailed));
        EXPECT_EQ(error.source(), "SQLite");
        EXPECT_NE(error.description().find("nowhere"), std::string::npos);
    }
}

TEST_F(ForeignConnection, IsGivenBackToTheHostAsItsOwnObject) {
    const auto entry = makeObject<UserCtrlObject>();
    EXPECT_EQ(entry->putref_Connection(stranger.get()), S_OK);
    ComPtr<IDispatch> given;
    EXPECT_EQ(entry->get_Connection(given.put()), S_OK);
    EXPECT_EQ(given.get(), stranger.get());
}

} // namespace
} // namespace quillmere::component::test
