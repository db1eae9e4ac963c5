#include "platform/Error.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>

namespace quillmere {
namespace {

struct Row {
    Failure failure;
    int number;
    std::string_view description;
};

const Row rows[] = {
    {Failure::InvalidCall, 5, "无效的过程调用或参数"},
    {Failure::Overflow, 6, "溢出"},
    {Failure::SubscriptOutOfRange, 9, "下标越界"},
    {Failure::TypeMismatch, 13, "类型不匹配"},
    {Failure::FileNotFound, 53, "文件未找到"},
    {Failure::PermissionDenied, 70, "拒绝的权限"},
    {Failure::PathAccess, 75, "路径/文件访问错误"},
    {Failure::PathNotFound, 76, "路径未找到"},
    {Failure::ObjectNotSet, 91, "对象变量或 With 块变量未设置"},
    {Failure::InvalidUseOfNull, 94, "无效使用 Null"},
    {Failure::CannotCreateObject, 429, "ActiveX 部件不能创建对象"},
    {Failure::MemberNotFound, 438, "对象不支持该属性或方法"},
    {Failure::KeyAlreadyUsed, 457, "该键已经与该集合的一个元素关联"},
    {Failure::InvalidPicture, 481, "无效图片"},
    {Failure::NoCurrentRecord, 3021,
     "BOF 或 EOF 中有一个是“真”，或者当前的记录已被删除，所需的操作要求一个当前的记录。"},
    {Failure::ItemNotFound, 3265, "在对应所需名称或序数的集合中，未找到项目。"},
    {Failure::ObjectClosed, 3704, "对象关闭时，不允许操作。"},
};

TEST(ErrorTest, AFailureHasItsNumberAndItsWords) {
    for (const Row& row : rows) {
        const Error error(row.failure);
        EXPECT_EQ(error.number(), row.number);
        EXPECT_EQ(error.description(), row.description) << row.number;
        EXPECT_EQ(descriptionOf(row.failure), row.description) << row.number;
    }
}

TEST(ErrorTest, NoTwoFailuresReadAlike) {
    std::set<std::string_view> seen;
    for (const Failure failure :
         {Failure::InvalidCall,       Failure::Overflow,           Failure::SubscriptOutOfRange,
          Failure::TypeMismatch,      Failure::FileNotFound,       Failure::PermissionDenied,
          Failure::PathAccess,        Failure::PathNotFound,       Failure::ObjectNotSet,
          Failure::InvalidUseOfNull,  Failure::CannotCreateObject, Failure::MemberNotFound,
          Failure::KeyAlreadyUsed,    Failure::InvalidPicture,     Failure::BadArguments,
          Failure::NoCurrentRecord,   Failure::ItemNotFound,       Failure::ObjectClosed,
          Failure::InvalidConnection, Failure::StatementFailed,    Failure::ConstraintFailed,
          Failure::Unspecified})
        EXPECT_TRUE(seen.insert(descriptionOf(failure)).second) << static_cast<int>(failure);
}

TEST(ErrorTest, ANumberWithoutWordsReadsAsUnspecified) {
    EXPECT_EQ(descriptionOf(static_cast<Failure>(12345)), "未指定的错误");
}

TEST(ErrorTest, WithoutASourceItIsTheSystemsOwn) {
    EXPECT_EQ(Error(Failure::Overflow).source(), "Quillmere");
}

TEST(ErrorTest, AnEnginesMessageTakesThePlaceOfTheFixedWords) {
    const Error error(Failure::StatementFailed, "no such table: X", "SQLite");
    EXPECT_EQ(error.number(), -2147217900);
    EXPECT_EQ(error.description(), "no such table: X");
    EXPECT_EQ(error.source(), "SQLite");
}

TEST(ErrorTest, WhatIsTheDescription) {
    EXPECT_STREQ(Error(Failure::Overflow).what(), "溢出");
    try {
        throw Error(Failure::TypeMismatch);
    } catch (const std::exception& caught) {
        EXPECT_STREQ(caught.what(), "类型不匹配");
    }
}

} // namespace
} // namespace quillmere
